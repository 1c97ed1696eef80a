#include "models/Calendar.h"
#include "models/Event.h"
#include "models/Task.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

/// What the records work out of their own fields.
class tst_Records : public QObject {
    Q_OBJECT

private slots:
    void reminderTexts_data()
    {
        columns<int, QString>("minutes", "text");
        row("none", 0, "At time of event");
        row("almost an hour", 59, "59 minute(s) before");
        row("an hour", 60, "1 hour(s) before");
        row("an hour and a half", 90, "90 minutes before");
        row("two days", 2880, "2 day(s) before");
        row("25 hours", 1500, "1500 minutes before");
    }
    void reminderTexts()
    {
        Reminder reminder;
        QFETCH(int, minutes);
        reminder.minutesBefore = minutes;
        QTEST(reminder.displayText(), "text");
    }

    void taskSupport()
    {
        const auto supportsTasks = [](const QString &components, bool allows) {
            Calendar calendar;
            calendar.supportedComponents = components;
            calendar.allowTasksOverride = allows;
            return calendar.supportsTasks();
        };
        QVERIFY(supportsTasks(u"[\"VEVENT\",\"vtodo\"]"_s, false));
        QVERIFY(!supportsTasks(u"[\"VEVENT\"]"_s, false));
        QVERIFY(supportsTasks(u"[\"VEVENT\"]"_s, true));
        QVERIFY(!supportsTasks(QString(), false));
    }

    void firstReminder()
    {
        Event event;
        QCOMPARE(event.firstReminderMinutes(), std::nullopt);
        event.reminders.resize(3);
        event.reminders[0].minutesBefore = 30;
        event.reminders[1].minutesBefore = 5;
        event.reminders[2].minutesBefore = 1440;
        QCOMPARE(event.firstReminderMinutes(), 5);
    }
};

QTEST_GUILESS_MAIN(tst_Records)
#include "tst_Records.moc"
