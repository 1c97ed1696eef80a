#include "models/Calendar.h"
#include "models/Event.h"
#include "models/Task.h"

#include <QTest>

/// What the records work out of their own fields.
class tst_Records : public QObject {
    Q_OBJECT

private slots:
    void reminderTexts_data();
    void reminderTexts();
    void taskSupport_data();
    void taskSupport();
    void onlyCompletedTasksAreCompleted();
    void firstReminder();
};

void tst_Records::reminderTexts_data()
{
    QTest::addColumn<int>("minutesBefore");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0 << u"At time of event"_qs;
    QTest::newRow("a minute") << 1 << u"1 minute(s) before"_qs;
    QTest::newRow("almost an hour") << 59 << u"59 minute(s) before"_qs;
    QTest::newRow("an hour") << 60 << u"1 hour(s) before"_qs;
    QTest::newRow("an hour and a half") << 90 << u"90 minutes before"_qs;
    QTest::newRow("two hours") << 120 << u"2 hour(s) before"_qs;
    QTest::newRow("almost a day") << 1439 << u"1439 minutes before"_qs;
    QTest::newRow("a day") << 1440 << u"1 day(s) before"_qs;
    QTest::newRow("25 hours") << 1500 << u"1500 minutes before"_qs;
    QTest::newRow("two days") << 2880 << u"2 day(s) before"_qs;
}

void tst_Records::reminderTexts()
{
    QFETCH(int, minutesBefore);
    Reminder reminder;
    reminder.minutesBefore = minutesBefore;
    QTEST(reminder.displayText(), "text");
}

void tst_Records::taskSupport_data()
{
    QTest::addColumn<QString>("components");
    QTest::addColumn<bool>("override");
    QTest::addColumn<bool>("expected");

    QTest::newRow("both") << u"[\"VEVENT\",\"VTODO\"]"_qs << false << true;
    QTest::newRow("lower case") << u"[\"vtodo\"]"_qs << false << true;
    QTest::newRow("events only") << u"[\"VEVENT\"]"_qs << false << false;
    QTest::newRow("events only, override") << u"[\"VEVENT\"]"_qs << true << true;
    QTest::newRow("empty") << QString() << false << false;
}

void tst_Records::taskSupport()
{
    Calendar calendar;
    QVERIFY(!calendar.supportsTasks());
    QFETCH(QString, components);
    QFETCH(bool, override);
    calendar.supportedComponents = components;
    calendar.allowTasksOverride = override;
    QTEST(calendar.supportsTasks(), "expected");
}

void tst_Records::onlyCompletedTasksAreCompleted()
{
    Task task;
    QVERIFY(!task.isCompleted());
    task.status = u"completed"_qs;
    QVERIFY(task.isCompleted());
    for (const auto *status : { "Completed", "cancelled", "" }) {
        task.status = QString::fromLatin1(status);
        QVERIFY2(!task.isCompleted(), status);
    }
}

void tst_Records::firstReminder()
{
    Event event;
    QCOMPARE(event.firstReminderMinutes(), std::nullopt);
    event.reminders.resize(3);
    event.reminders[0].minutesBefore = 30;
    event.reminders[1].minutesBefore = 5;
    event.reminders[2].minutesBefore = 1440;
    QCOMPARE(event.firstReminderMinutes(), 5);
    event.reminders[2].minutesBefore = 0;
    QCOMPARE(event.firstReminderMinutes(), 0);
}

QTEST_GUILESS_MAIN(tst_Records)
#include "tst_Records.moc"
