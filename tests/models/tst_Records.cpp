#include "models/Calendar.h"
#include "models/Event.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What the records work out of their own fields.
class tst_Records : public QObject {
    Q_OBJECT

private slots:
    void reminderTexts()
    {
        const auto text = [](int minutes) {
            Reminder reminder;
            reminder.minutesBefore = minutes;
            return reminder.displayText();
        };
        QCOMPARE(text(0), u"At time of event"_s);
        QCOMPARE(text(59), u"59 minute(s) before"_s);
        QCOMPARE(text(60), u"1 hour(s) before"_s);
        QCOMPARE(text(90), u"90 minutes before"_s);
        QCOMPARE(text(1500), u"1500 minutes before"_s); // 25 hours
        QCOMPARE(text(1440), u"1 day(s) before"_s);
    }

    void taskSupport()
    {
        Calendar calendar;
        calendar.supportedComponents = u"[\"VEVENT\",\"vtodo\"]"_s;
        QVERIFY(calendar.supportsTasks());
        calendar.supportedComponents = u"[\"VEVENT\"]"_s;
        QVERIFY(!calendar.supportsTasks());
        calendar.allowTasksOverride = true;
        QVERIFY(calendar.supportsTasks());
    }

    void firstReminder()
    {
        Event event;
        QCOMPARE(event.firstReminderMinutes(), std::nullopt);
        event.reminders.resize(2);
        event.reminders[0].minutesBefore = 30;
        event.reminders[1].minutesBefore = 5;
        QCOMPARE(event.firstReminderMinutes(), 5);
    }
};

QTEST_GUILESS_MAIN(tst_Records)
#include "tst_Records.moc"
