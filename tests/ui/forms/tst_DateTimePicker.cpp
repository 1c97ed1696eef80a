#include "ui/forms/DateTimePicker.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QDate May1(2026, 5, 1);

QComboBox *timeBox(const DateTimePicker &picker)
{
    return picker.findChild<QComboBox *>();
}

void type(DateTimePicker &picker, const QString &text)
{
    QComboBox *box = timeBox(picker); // has the focus, and hands the keys on
    box->lineEdit()->clear();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
}

}

class TestDateTimePicker : public QObject {
    Q_OBJECT

private slots:
    void readsTimes_data()
    {
        QTest::addColumn<QTime>("expected");
        const auto row = [](const char *text, int hour, int minute) { QTest::newRow(text) << QTime(hour, minute); };
        row("3pm", 15, 0);
        row("3:30pm", 15, 30);
        row("3:30 PM", 15, 30);
        row("12 am", 0, 0);
        row("15:30", 15, 30);
        row("9", 9, 0);
        row("09", 9, 0);
        row("0930", 9, 30);
        row("9.30", 9, 30);
        row("23.05", 23, 5);
        row("10:15 AM  (45 min)", 10, 15);
        QTest::newRow("") << QTime();
        QTest::newRow("soon") << QTime();
        QTest::newRow("25:00") << QTime();
        QTest::newRow("(45 min)") << QTime();
    }
    void readsTimes()
    {
        const auto time = DateTimePicker::parseTimeText(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(time.value_or(QTime()), "expected");
    }

    void typedTimeIsTaken()
    {
        DateTimePicker picker(Qt::Monday);
        picker.setDateTime(QDateTime(May1, QTime(9, 0)));
        const QSignalSpy changed(&picker, &DateTimePicker::dateTimeChanged);
        type(picker, QStringLiteral("4:20pm"));
        QCOMPARE(picker.dateTime(), QDateTime(May1, QTime(16, 20)));
        QCOMPARE(changed.size(), 1);
        type(picker, QStringLiteral("whenever"));
        QCOMPARE(picker.dateTime(), QDateTime(May1, QTime(16, 20)));
        QCOMPARE(timeBox(picker)->currentText(), QStringLiteral("4:20 PM"));
        QTest::keyClicks(timeBox(picker), QStringLiteral("5"));
        QTest::keyClick(timeBox(picker), Qt::Key_Escape);
        QCOMPARE(timeBox(picker)->currentText(), QStringLiteral("4:20 PM"));
    }

    void staysBehindItsReference()
    {
        DateTimePicker start(Qt::Monday);
        DateTimePicker end(Qt::Monday);
        start.setDateTime(QDateTime(May1, QTime(9, 0)));
        end.setDateTime(QDateTime(May1, QTime(10, 0)));
        end.setRelativeTo(&start);
        QCOMPARE(timeBox(end)->itemText(0), QStringLiteral("9:00 AM"));
        QCOMPARE(timeBox(end)->itemText(6), QStringLiteral("10:30 AM  (1 hr 30 min)"));
        type(end, QStringLiteral("8am"));
        QCOMPARE(end.dateTime(), QDateTime(May1, QTime(9, 0)));
        type(start, QStringLiteral("11:10"));
        QCOMPARE(end.dateTime(), QDateTime(May1, QTime(11, 10)));
        end.setDate(May1.addDays(1));
        QCOMPARE(timeBox(end)->count(), 96);
        QCOMPARE(timeBox(end)->itemText(0), QStringLiteral("12:00 AM"));
    }

    void aWholeDayHasNoTime()
    {
        DateTimePicker picker(Qt::Monday);
        picker.setDateTime(QDateTime(May1, QTime(9, 45)));
        picker.setDateOnly(true);
        QVERIFY(timeBox(picker)->isHidden());
        QCOMPARE(picker.dateTime(), QDateTime(May1, QTime(0, 0)));
        picker.setDateOnly(false);
        QCOMPARE(picker.dateTime(), QDateTime(May1, QTime(9, 45)));
    }
};

QTEST_MAIN(TestDateTimePicker)
#include "tst_DateTimePicker.moc"
