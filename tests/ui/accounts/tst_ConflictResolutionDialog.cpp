#include "ui/accounts/ConflictResolutionDialog.h"

#include "support/ScratchState.h"
#include "support/TestData.h"
#include "sync/ConflictResolutionService.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class tst_ConflictResolutionDialog : public QObject {
    Q_OBJECT

private slots:
    void picksASideForEach()
    {
        ScratchState state;
        Sync::ConflictResolutionService conflicts(state.state());
        state->setSyncServices(nullptr, &conflicts);
        ConflictResolutionDialog dialog(state.state());
        auto *list = dialog.findChild<QListWidget *>();
        QVERIFY(list->isHidden());
        for (const QString &title : { u"<b>Dentist</b>"_s, QString(), u"Lunch"_s }) {
            const Event local = state.addEvent(title, utc("2026-03-15T09:00"), utc("2026-03-15T10:00"));
            Event remote = local;
            remote.title = u"Theirs"_s;
            conflicts.recordConflict(local, remote);
        }
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->text(), u"(Untitled)"_s);
        QVERIFY(shows(dialog, u"Conflict: <b>Dentist</b>"_s));
        QVERIFY(shows(dialog, u"<b>Title:</b> &lt;b&gt;Dentist&lt;/b&gt;<br>"_s));
        QVERIFY(shows(dialog, u"<b>Title:</b> Theirs<br>"_s));

        const QString first = conflicts.conflicts().first().local.id;
        const QString last = conflicts.conflicts().last().local.id;
        click(dialog, u"Use server version"_s);
        QCOMPARE(state->events()->getById(first)->title, u"Theirs"_s);
        list->setCurrentRow(1);
        click(dialog, u"Keep local"_s);
        QCOMPARE(state->events()->getById(last)->title, u"Lunch"_s);
        click(dialog, u"Decide later"_s);
        QVERIFY(conflicts.conflicts().isEmpty() && list->isHidden());
        click(dialog, u"Decide later"_s);
        state->setSyncServices(nullptr, nullptr);
    }

private:
    static bool shows(const QDialog &dialog, const QString &text)
    {
        const auto labels = dialog.findChildren<QLabel *>();
        return std::ranges::any_of(labels, [&](const QLabel *label) { return label->text().startsWith(text); });
    }

    static void click(const QDialog &dialog, const QString &text)
    {
        for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
            if (button->text() == text)
                button->click();
        }
    }
};

QTEST_MAIN(tst_ConflictResolutionDialog)
#include "tst_ConflictResolutionDialog.moc"
