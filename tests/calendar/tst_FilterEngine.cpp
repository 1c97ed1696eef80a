#include "calendar/FilterEngine.h"
#include "support/TestData.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;
using Pattern = FilterEngine::PatternConditions;
using Time = FilterEngine::TimeConditions;

namespace {

Event makeEvent(const QString &id, const QDateTime &start = {})
{
    Event event;
    event.id = event.title = id;
    event.uid = id + u"-uid"_s;
    event.calendarId = u"home"_s;
    event.startTime = start;
    return event;
}

FilterRule makeRule(const QString &conditions, int priority = 100, const QString &action = FilterAction::Hide)
{
    FilterRule rule;
    rule.id = u"rule-%1"_s.arg(priority);
    rule.conditions = conditions;
    rule.priority = priority;
    rule.action = action;
    return rule;
}

FilterRule titleRule(const QString &part, int priority = 100, const QString &action = FilterAction::Hide)
{
    return makeRule(FilterEngine::conditionsToJson(Pattern{ .titleContains = { part } }), priority, action);
}

/// One of each kind; 4 May 2026 is a Monday.
QList<Event> someEvents()
{
    const QDate monday(2026, 5, 4);
    QList<Event> events{ makeEvent(u"mon0859"_s, QDateTime(monday, QTime(8, 59, 59))),
                         makeEvent(u"mon0900"_s, QDateTime(monday, QTime(9, 0))),
                         makeEvent(u"mon1700"_s, QDateTime(monday, QTime(17, 0, 59)).toUTC()),
                         makeEvent(u"mon2330"_s, QDateTime(monday, QTime(23, 30)).toTimeZone(QTimeZone("Asia/Tokyo"))),
                         makeEvent(u"sun0900"_s, QDateTime(monday.addDays(6), QTime(9, 0))),
                         makeEvent(u"day"_s),
                         makeEvent(u"yearly"_s) };
    events[0].title = u"Daily Standup"_s;
    events[0].description = u"Bring coffee"_s;
    events[0].location = u"Room 5"_s;
    events[2].recurrenceRule = events[6].recurrenceRule = u"FREQ=YEARLY"_s;
    events[5].isAllDay = events[6].isAllDay = true;
    events[5].providerEventId = events[6].uid = u"mon0900-uid"_s;
    events[6].calendarId = u"work"_s;
    return events;
}

}

class tst_FilterEngine : public QObject {
    Q_OBJECT

private slots:
    void conditionsTexts_data()
    {
        columns<QString>("json");
        // As other devices write them.
        row("time",
            R"({"runtimeType":"time","timeExact":"","timeRange":{"start":"09:00","end":"17:00"},"daysOfWeek":["mon","fri"],"recurringOnly":true})");
        row("specific", R"({"runtimeType":"specific"})");
        row("all day", R"({"runtimeType":"allDay","recurringOnly":false})");
        row("pattern",
            R"({"runtimeType":"pattern","titleContains":["a\\b","Müller 😀"],"titleExact":["x"],"descriptionContains":["d"],"locationContains":[],"caseSensitive":true})");
    }
    void conditionsTexts()
    {
        QFETCH(QString, json);
        const auto conditions = FilterEngine::parseConditions(json);
        QVERIFY(conditions);
        QCOMPARE(FilterEngine::conditionsToJson(*conditions), json);
    }

    void unreadableTexts()
    {
        for (const char *json : { "", "null", "[]", "{}", "{", "text", R"({"runtimeType":"Pattern"})",
                                  R"({"runtimeType":1})", R"([{"runtimeType":"specific"}])" })
            QVERIFY2(!FilterEngine::parseConditions(QString::fromLatin1(json)), json);
        const auto odd = FilterEngine::parseConditions(
            uR"({"runtimeType":"pattern","titleContains":["a","",7,null],"titleExact":"x","caseSensitive":"yes"})"_s);
        QVERIFY(odd
                && *odd == FilterEngine::FilterConditions(Pattern{ .titleContains = { u"a"_s, u""_s, u""_s, u""_s } }));
        QCOMPARE(FilterEngine::parseCalendarIds(uR"(["a","","b",3,"a"])"_s), QSet<QString>({ u"a"_s, u"b"_s }));
        for (const QString &json : { u"[]"_s, uR"({"a":1})"_s, u"["_s, QString() })
            QCOMPARE(FilterEngine::parseCalendarIds(json), QSet<QString>());
    }

    void matches_data()
    {
        columns<FilterRule, QString>("rule", "hidden");
        const auto match = [](const char *name, const FilterEngine::FilterConditions &conditions, const char *hidden) {
            row(name, makeRule(FilterEngine::conditionsToJson(conditions)), hidden);
        };
        match("part of the title", Pattern{ .titleContains = { u"STAND"_s } }, "mon0859");
        match("part of the title, case", Pattern{ .titleContains = { u"STAND"_s }, .caseSensitive = true }, "");
        match("part of the title, same case", Pattern{ .titleContains = { u"Stand"_s }, .caseSensitive = true },
              "mon0859");
        match("whole title", Pattern{ .titleExact = { u"x"_s, u"daily standup"_s } }, "mon0859");
        match("whole title, only a part", Pattern{ .titleExact = { u"Standup"_s } }, "");
        match("whole title, case", Pattern{ .titleExact = { u"daily standup"_s }, .caseSensitive = true }, "");
        match("description", Pattern{ .descriptionContains = { u"COFFEE"_s, u"mon"_s } }, "mon0859");
        match("location, one of several lists", Pattern{ .titleExact = { u"no"_s }, .locationContains = { u"room"_s } },
              "mon0859");
        // Texts that are not there hold nothing, not even the empty text.
        match("empty text", Pattern{ .descriptionContains = { u""_s }, .locationContains = { u""_s } }, "mon0859");
        match("no pattern", Pattern{}, "");

        match("exact time", Time{ .timeExact = u"09:00"_s }, "mon0900 sun0900");
        match("both limits count", Time{ .rangeStart = u"09:00"_s, .rangeEnd = u"17:00"_s }, "mon0900 mon1700 sun0900");
        match("from", Time{ .rangeStart = u"17:00"_s }, "mon1700 mon2330");
        match("over midnight: nothing", Time{ .rangeStart = u"22:00"_s, .rangeEnd = u"02:00"_s }, "");
        match("compared as text", Time{ .rangeStart = u"9:00"_s }, "");
        match("days", Time{ .daysOfWeek = { u"SUN"_s, u"tue"_s, u"monday"_s } }, "sun0900");
        match("day and time", Time{ .timeExact = u"09:00"_s, .daysOfWeek = { u"mon"_s } }, "mon0900");
        match("series", Time{ .daysOfWeek = { u"mon"_s }, .recurringOnly = true }, "mon1700");
        match("series without day or time", Time{ .recurringOnly = true }, "");

        match("all day", FilterEngine::AllDayConditions{}, "day yearly");
        match("all day, series", FilterEngine::AllDayConditions{ .recurringOnly = true }, "yearly");
        FilterRule specific = makeRule(uR"({"runtimeType":"specific"})"_s);
        specific.eventCalendarId = u"home"_s;
        row("no event", specific, ""); // an empty provider id is no id
        specific.eventUid = u"mon0900-uid"_s;
        row("one event, also by its provider's id", specific, "mon0900 day");
        FilterRule scoped = titleRule(u""_s);
        scoped.calendarIds = uR"(["work","other"])"_s;
        row("anything in some calendars", scoped, "yearly");
    }
    void matches()
    {
        QFETCH(FilterRule, rule);
        QList<Event> hidden = someEvents();
        for (const Event &kept : FilterEngine::apply(hidden, { rule }).events)
            hidden.removeOne(kept);
        QTEST(idsOf(hidden), "hidden");
    }

    void foldsCaseAsQtDoes()
    {
        const QString texts = u"ÄÖÜ_Straße ἈΘΗΝΑ_ΣΟΦΟΣ МОСКВА İstanbul_ISPARTA ﬁsh_ǅ 日本"_s;
        const QString parts = u"äöü STRASSE straße σοφος σοφοσ москва istanbul isparta ısparta FISH ǆ 日本 本日"_s;
        for (const QString &text : texts.split(u' ')) {
            for (const QString &part : parts.split(u' ')) {
                const bool hidden = FilterEngine::apply({ makeEvent(text) }, { titleRule(part) }).events.isEmpty();
                QVERIFY2(hidden == text.contains(part, Qt::CaseInsensitive), qPrintable(part + u" in "_s + text));
            }
        }
    }

    void lowerPriorityDecides()
    {
        const QList<Event> events{ makeEvent(u"a"_s) };
        FilterRule quiet = titleRule(u"a"_s, 10, FilterAction::Dim);
        auto result = FilterEngine::apply(events, { titleRule(u"a"_s, 20), quiet });
        QCOMPARE(result.events, events);
        QCOMPARE(result.dimmedIds, QSet<QString>{ u"a"_s });
        QCOMPARE(result.hiddenCount, 0);
        QCOMPARE(result.reminderSuppressedIds, QSet<QString>());
        quiet.suppressReminders = true;
        QCOMPARE(FilterEngine::apply(events, { quiet }).reminderSuppressedIds, QSet<QString>{ u"a"_s });

        result = FilterEngine::apply(events, { titleRule(u"a"_s, 1, u"blink"_s), titleRule(u"a"_s, 2) });
        QCOMPARE(result.events, events); // an action of the future ends the search too
        const QList<FilterRule> rules{ titleRule(u"b"_s, 9), titleRule(u"a"_s, 3), titleRule(u"x"_s, 1) };
        QCOMPARE(FilterEngine::firstMatchingRule(makeEvent(u"abc"_s), rules), rules.at(1));
        QCOMPARE(FilterEngine::firstMatchingRule(makeEvent(u"q"_s), rules), std::nullopt);
    }

    void deadRulesAreSkipped()
    {
        QList<FilterRule> rules{ titleRule(u"a"_s, 1), titleRule(u"a"_s, 2), makeRule(u"{"_s, 3) };
        rules[0].enabled = false;
        rules[1].deletedAt = QDateTime::currentDateTimeUtc();
        QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, rules).hiddenCount, 0);
        rules.append(titleRule(u"a"_s, 4));
        // Instances are counted, and are silent though the rule does not ask for it.
        const auto result = FilterEngine::apply({ makeEvent(u"a"_s), makeEvent(u"b"_s), makeEvent(u"a"_s) }, rules);
        QCOMPARE(idsOf(result.events), u"b"_s);
        QCOMPARE(result.hiddenCount, 2);
        QCOMPARE(result.reminderSuppressedIds, QSet<QString>{ u"a"_s });
    }
};

QTEST_GUILESS_MAIN(tst_FilterEngine)
#include "tst_FilterEngine.moc"
