#include "ui/forms/RecurrenceEditDialog.h"

#include <QComboBox>
#include <QSpinBox>
#include <QToolButton>
#include <QtTest>

namespace {

const QDate Wednesday(2026, 6, 17);

}

class TestRecurrenceEditDialog : public QObject {
    Q_OBJECT

private slots:
    /// What the dialog wrote it reads again; what it cannot say is lost.
    void readsAndWrites_data()
    {
        QTest::addColumn<QString>("expected");
        const auto same = [](const char *rule) { QTest::newRow(rule) << QString::fromLatin1(rule); };
        const auto row = [](const char *rule, const char *expected) {
            QTest::newRow(rule) << QString::fromLatin1(expected);
        };
        same("FREQ=WEEKLY;BYDAY=MO");
        same("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR;COUNT=12");
        same("FREQ=MONTHLY;BYDAY=-1FR;COUNT=5");
        same("FREQ=MONTHLY;BYDAY=2SA");
        same("FREQ=MONTHLY;BYMONTHDAY=31");
        same("FREQ=DAILY;INTERVAL=2;UNTIL=20261231");
        same("FREQ=YEARLY");
        row("", "FREQ=WEEKLY;BYDAY=WE");
        row("BYDAY=TU;FREQ=weekly", "FREQ=WEEKLY;BYDAY=TU");
        row("FREQ=WEEKLY", "FREQ=WEEKLY;BYDAY=WE");
        row("FREQ=MONTHLY", "FREQ=MONTHLY;BYMONTHDAY=17");
        row("FREQ=DAILY;UNTIL=20261231T225959Z", "FREQ=DAILY;UNTIL=20261231");
        row("FREQ=MONTHLY;BYDAY=1MO;BYSETPOS=2", "FREQ=MONTHLY;BYDAY=1MO");
        row("FREQ=HOURLY;INTERVAL=x", "FREQ=WEEKLY;BYDAY=WE");
    }
    void readsAndWrites()
    {
        const QString rule = QString::fromLatin1(QTest::currentDataTag());
        const RecurrenceEditDialog dialog(rule, Wednesday, Qt::Sunday, nullptr);
        QTEST(dialog.rrule(), "expected");
    }

    void previewFollows()
    {
        RecurrenceEditDialog dialog({}, Wednesday, Qt::Sunday, nullptr);
        QCOMPARE(dialog.previewText(), QStringLiteral("Repeats weekly · Wed"));
        const QList<QToolButton *> buttons = dialog.findChildren<QToolButton *>();
        const auto sunday = std::find_if(buttons.begin(), buttons.end(),
                                         [](const QToolButton *button) { return button->isCheckable(); });
        (*sunday)->click(); // the week begins with it
        QCOMPARE(dialog.rrule(), QStringLiteral("FREQ=WEEKLY;BYDAY=SU,WE"));
        QCOMPARE(dialog.previewText(), QStringLiteral("Repeats weekly · Sun, Wed"));
    }

    void aValueChoosesItsRadioButton()
    {
        RecurrenceEditDialog dialog(QStringLiteral("FREQ=DAILY"), Wednesday, Qt::Monday, nullptr);
        const QList<QSpinBox *> boxes = dialog.findChildren<QSpinBox *>();
        for (QSpinBox *box : boxes) {
            if (box->accessibleName().startsWith(QLatin1StringView("Number")))
                box->setValue(3);
        }
        QCOMPARE(dialog.rrule(), QStringLiteral("FREQ=DAILY;COUNT=3"));
    }
};

QTEST_MAIN(TestRecurrenceEditDialog)
#include "tst_RecurrenceEditDialog.moc"
