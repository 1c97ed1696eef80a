#include "calendar/FilterEngine.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTimeZone>

namespace {

using namespace Qt::StringLiterals;

Event makeEvent(const QString &title, const QDateTime &start = QDateTime(QDate(2026, 5, 4), QTime(9, 0))) // a Monday
{
    Event event;
    event.id = title;
    event.uid = title + u"-uid"_s;
    event.calendarId = u"home"_s;
    event.title = title;
    event.startTime = start;
    return event;
}

FilterRule rule(const QString &conditions, int priority = 100, const QString &action = FilterAction::Hide)
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
    return rule(FilterEngine::conditionsToJson(FilterEngine::PatternConditions{ .titleContains = { part } }), priority,
                action);
}

QStringList titles(const FilterEngine::FilterResult &result)
{
    QStringList titles;
    for (const Event &event : result.events)
        titles.append(event.title);
    return titles;
}

}

class tst_FilterEngine : public QObject {
    Q_OBJECT

private slots:
    void conditionsTexts_data();
    void conditionsTexts();
    void unreadableConditions_data();
    void unreadableConditions();
    void listsTakeElementsAsText();
    void calendarIds();
    void patterns_data();
    void patterns();
    void foldsCaseAsQtDoes();
    void times_data();
    void times();
    void timeOfOccurrences();
    void specific();
    void allDay();
    void calendarScope();
    void lowerPriorityDecides();
    void dimming();
    void hidingCountsInstances();
    void deadRulesAreSkipped();
    void unknownActionEndsTheSearch();
    void firstMatchingRule();
};

void tst_FilterEngine::conditionsTexts_data()
{
    QTest::addColumn<QString>("json");
    // As other devices write them.
    QTest::newRow("pattern")
        << uR"({"runtimeType":"pattern","titleContains":["standup"],"titleExact":[],"descriptionContains":[],"locationContains":[],"caseSensitive":false})"_s;
    QTest::newRow("time")
        << uR"({"runtimeType":"time","timeExact":"","timeRange":{"start":"09:00","end":"17:00"},"daysOfWeek":["mon","fri"],"recurringOnly":true})"_s;
    QTest::newRow("specific") << uR"({"runtimeType":"specific"})"_s;
    QTest::newRow("allDay") << uR"({"runtimeType":"allDay","recurringOnly":false})"_s;
    QTest::newRow("escapes")
        << uR"({"runtimeType":"pattern","titleContains":["a\"b\\c","Müller 😀"],"titleExact":["x"],"descriptionContains":["d"],"locationContains":["l"],"caseSensitive":true})"_s;
}

void tst_FilterEngine::conditionsTexts()
{
    QFETCH(QString, json);
    const auto conditions = FilterEngine::parseConditions(json);
    QVERIFY(conditions);
    QCOMPARE(FilterEngine::conditionsToJson(*conditions), json);
}

void tst_FilterEngine::unreadableConditions_data()
{
    QTest::addColumn<QString>("json");
    for (const char *json :
         { "", "null", "[]", "{}", "{", "text", R"({"runtimeType":"Pattern"})", R"({"runtimeType":1})",
           R"({"runtimeType":"all_day"})", R"([{"runtimeType":"specific"}])" })
        QTest::newRow(json) << QString::fromLatin1(json);
}

void tst_FilterEngine::unreadableConditions()
{
    QFETCH(QString, json);
    QVERIFY(!FilterEngine::parseConditions(json));
}

void tst_FilterEngine::listsTakeElementsAsText()
{
    const auto conditions = FilterEngine::parseConditions(
        uR"({"runtimeType":"pattern","titleContains":["a","",7,null],"titleExact":"x","caseSensitive":"yes"})"_s);
    QVERIFY(conditions);
    const auto &pattern = std::get<FilterEngine::PatternConditions>(*conditions);
    QCOMPARE(pattern.titleContains, QStringList({ u"a"_s, u""_s, u""_s, u""_s }));
    QCOMPARE(pattern.titleExact, QStringList());
    QVERIFY(!pattern.caseSensitive);
}

void tst_FilterEngine::calendarIds()
{
    QCOMPARE(FilterEngine::parseCalendarIds(uR"(["a","","b",3,"a"])"_s), QSet<QString>({ u"a"_s, u"b"_s }));
    QCOMPARE(FilterEngine::parseCalendarIds(u"[]"_s), QSet<QString>());
    QCOMPARE(FilterEngine::parseCalendarIds(uR"({"a":1})"_s), QSet<QString>());
    QCOMPARE(FilterEngine::parseCalendarIds(u"["_s), QSet<QString>());
    QCOMPARE(FilterEngine::parseCalendarIds(QString()), QSet<QString>());
}

void tst_FilterEngine::patterns_data()
{
    QTest::addColumn<FilterEngine::PatternConditions>("conditions");
    QTest::addColumn<bool>("hidden"); // "Daily Standup", with the description "Bring coffee", in "Room 5"
    using Pattern = FilterEngine::PatternConditions;
    QTest::newRow("part of the title") << Pattern{ .titleContains = { u"STAND"_s } } << true;
    QTest::newRow("part of the title, case")
        << Pattern{ .titleContains = { u"STAND"_s }, .caseSensitive = true } << false;
    QTest::newRow("part of the title, same case")
        << Pattern{ .titleContains = { u"Stand"_s }, .caseSensitive = true } << true;
    QTest::newRow("whole title") << Pattern{ .titleExact = { u"x"_s, u"daily standup"_s } } << true;
    QTest::newRow("whole title, only a part") << Pattern{ .titleExact = { u"Standup"_s } } << false;
    QTest::newRow("whole title, case") << Pattern{ .titleExact = { u"daily standup"_s }, .caseSensitive = true }
                                       << false;
    QTest::newRow("description") << Pattern{ .descriptionContains = { u"COFFEE"_s } } << true;
    QTest::newRow("description does not look at the title")
        << Pattern{ .descriptionContains = { u"Standup"_s } } << false;
    QTest::newRow("location") << Pattern{ .locationContains = { u"room"_s } } << true;
    QTest::newRow("one of several lists is enough")
        << Pattern{ .titleContains = { u"no"_s }, .titleExact = { u"no"_s }, .locationContains = { u"5"_s } } << true;
    QTest::newRow("empty text is in every title") << Pattern{ .titleContains = { u""_s } } << true;
    QTest::newRow("nothing asked") << Pattern{} << false;
}

void tst_FilterEngine::patterns()
{
    QFETCH(FilterEngine::PatternConditions, conditions);
    Event meeting = makeEvent(u"Daily Standup"_s);
    meeting.description = u"Bring coffee"_s;
    meeting.location = u"Room 5"_s;
    const auto result = FilterEngine::apply({ meeting }, { rule(FilterEngine::conditionsToJson(conditions)) });
    QTEST(result.events.isEmpty(), "hidden");

    // Texts that are not there hold nothing, not even the empty text.
    const FilterEngine::PatternConditions empty{ .descriptionContains = { u""_s }, .locationContains = { u""_s } };
    QCOMPARE(FilterEngine::apply({ makeEvent(u"Bare"_s) }, { rule(FilterEngine::conditionsToJson(empty)) }).hiddenCount,
             0);
}

void tst_FilterEngine::foldsCaseAsQtDoes()
{
    const QStringList texts{ u"ÄÖÜ Straße"_s,       u"ἈΘΗΝΑ ΣΟΦΟΣ"_s, u"МОСКВА"_s,
                             u"İstanbul ISPARTA"_s, u"ﬁsh ǅ"_s,       u"日本"_s };
    const QStringList parts{ u"äöü"_s,    u"STRASSE"_s,  u"straße"_s,  u"σοφος"_s,   u"σοφοσ"_s,
                             u"москва"_s, u"istanbul"_s, u"isparta"_s, u"ısparta"_s, u"FISH"_s,
                             u"ǆ"_s,      u"日本"_s,     u"本日"_s };
    for (const QString &text : texts) {
        for (const QString &part : parts) {
            const bool expected = text.contains(part, Qt::CaseInsensitive);
            const bool hidden = FilterEngine::apply({ makeEvent(text) }, { titleRule(part) }).events.isEmpty();
            QVERIFY2(hidden == expected, qPrintable(part + u" in "_s + text));
        }
    }
}

void tst_FilterEngine::times_data()
{
    QTest::addColumn<FilterEngine::TimeConditions>("conditions");
    QTest::addColumn<QString>("hidden"); // of a Monday 08:59, 09:00, 17:00, 23:30, and a Sunday 09:00
    using Time = FilterEngine::TimeConditions;
    QTest::newRow("exact") << Time{ .timeExact = u"09:00"_s } << u"mon0900 sun0900"_s;
    QTest::newRow("both limits count") << Time{ .rangeStart = u"09:00"_s, .rangeEnd = u"17:00"_s }
                                       << u"mon0900 mon1700 sun0900"_s;
    QTest::newRow("from") << Time{ .rangeStart = u"17:00"_s } << u"mon1700 mon2330"_s;
    QTest::newRow("until") << Time{ .rangeEnd = u"08:59"_s } << u"mon0859"_s;
    QTest::newRow("over midnight: nothing") << Time{ .rangeStart = u"22:00"_s, .rangeEnd = u"02:00"_s } << u""_s;
    QTest::newRow("compared as text") << Time{ .rangeStart = u"9:00"_s } << u""_s;
    QTest::newRow("days") << Time{ .daysOfWeek = { u"sun"_s, u"tue"_s } } << u"sun0900"_s;
    QTest::newRow("days in capitals") << Time{ .daysOfWeek = { u"SUN"_s } } << u"sun0900"_s;
    QTest::newRow("long day names") << Time{ .daysOfWeek = { u"sunday"_s } } << u""_s;
    QTest::newRow("day and time") << Time{ .timeExact = u"09:00"_s, .daysOfWeek = { u"mon"_s } } << u"mon0900"_s;
    QTest::newRow("series") << Time{ .daysOfWeek = { u"mon"_s }, .recurringOnly = true } << u"mon1700"_s;
    QTest::newRow("series without day or time") << Time{ .recurringOnly = true } << u""_s;
    QTest::newRow("nothing asked") << Time{} << u""_s;
}

void tst_FilterEngine::times()
{
    QFETCH(FilterEngine::TimeConditions, conditions);
    const QDate monday(2026, 5, 4);
    QList<Event> events{ makeEvent(u"mon0859"_s, QDateTime(monday, QTime(8, 59, 59))),
                         makeEvent(u"mon0900"_s, QDateTime(monday, QTime(9, 0))),
                         makeEvent(u"mon1700"_s, QDateTime(monday, QTime(17, 0, 59)).toUTC()),
                         makeEvent(u"mon2330"_s, QDateTime(monday, QTime(23, 30)).toTimeZone(QTimeZone("Asia/Tokyo"))),
                         makeEvent(u"sun0900"_s, QDateTime(monday.addDays(6), QTime(9, 0))),
                         makeEvent(u"no start"_s, QDateTime()) };
    events[2].recurrenceRule = u"FREQ=DAILY"_s;
    const QStringList kept = titles(FilterEngine::apply(events, { rule(FilterEngine::conditionsToJson(conditions)) }));
    QStringList hidden;
    for (const Event &event : events) {
        if (!kept.contains(event.title))
            hidden.append(event.title);
    }
    QTEST(hidden.join(u' '), "hidden");
}

void tst_FilterEngine::timeOfOccurrences()
{
    // One series, one id: each instance is judged by its own start.
    Event first = makeEvent(u"series"_s, QDateTime(QDate(2026, 5, 4), QTime(9, 0)));
    Event second = makeEvent(u"series"_s, QDateTime(QDate(2026, 5, 5), QTime(10, 0)));
    const auto result = FilterEngine::apply(
        { first, second },
        { rule(FilterEngine::conditionsToJson(FilterEngine::TimeConditions{ .timeExact = u"10:00"_s })) });
    QCOMPARE(result.events, QList<Event>{ first });
    QCOMPARE(result.hiddenCount, 1);
}

void tst_FilterEngine::specific()
{
    FilterRule one = rule(uR"({"runtimeType":"specific"})"_s);
    one.eventUid = u"a-uid"_s;
    one.eventCalendarId = u"home"_s;
    Event elsewhere = makeEvent(u"elsewhere"_s);
    elsewhere.uid = u"a-uid"_s;
    elsewhere.calendarId = u"work"_s;
    Event byProvider = makeEvent(u"by provider"_s);
    byProvider.providerEventId = u"a-uid"_s;
    QCOMPARE(titles(FilterEngine::apply({ makeEvent(u"a"_s), makeEvent(u"b"_s), elsewhere, byProvider }, { one })),
             QStringList({ u"b"_s, u"elsewhere"_s }));
    one.eventUid.clear(); // an empty provider id is no id
    QCOMPARE(FilterEngine::apply({ makeEvent(u"b"_s) }, { one }).hiddenCount, 0);
}

void tst_FilterEngine::allDay()
{
    Event day = makeEvent(u"day"_s);
    day.isAllDay = true;
    Event yearly = day;
    yearly.title = u"yearly"_s;
    yearly.recurrenceRule = u"FREQ=YEARLY"_s;
    const QList<Event> events{ makeEvent(u"timed"_s), day, yearly };
    QCOMPARE(titles(FilterEngine::apply(events, { rule(uR"({"runtimeType":"allDay"})"_s) })),
             QStringList{ u"timed"_s });
    QCOMPARE(titles(FilterEngine::apply(events, { rule(uR"({"runtimeType":"allDay","recurringOnly":true})"_s) })),
             QStringList({ u"timed"_s, u"day"_s }));
}

void tst_FilterEngine::calendarScope()
{
    FilterRule scoped = titleRule(u"a"_s);
    scoped.calendarIds = uR"(["work"])"_s;
    QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, { scoped }).hiddenCount, 0);
    scoped.calendarIds = uR"(["work","home"])"_s;
    QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, { scoped }).hiddenCount, 1);
}

void tst_FilterEngine::lowerPriorityDecides()
{
    const auto result = FilterEngine::apply(
        { makeEvent(u"a"_s) }, { titleRule(u"a"_s, 20, FilterAction::Hide), titleRule(u"a"_s, 10, FilterAction::Dim) });
    QCOMPARE(titles(result), QStringList{ u"a"_s });
    QCOMPARE(result.dimmedIds, QSet<QString>{ u"a"_s });
    QCOMPARE(result.hiddenCount, 0);
}

void tst_FilterEngine::dimming()
{
    FilterRule quiet = titleRule(u"a"_s, 1, FilterAction::Dim);
    QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, { quiet }).reminderSuppressedIds, QSet<QString>());
    quiet.suppressReminders = true;
    QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, { quiet }).reminderSuppressedIds, QSet<QString>{ u"a"_s });
}

void tst_FilterEngine::hidingCountsInstances()
{
    const QList<Event> events{ makeEvent(u"b"_s), makeEvent(u"a"_s), makeEvent(u"c"_s), makeEvent(u"a"_s),
                               makeEvent(u"d"_s) };
    const auto result = FilterEngine::apply(events, { titleRule(u"a"_s) });
    QCOMPARE(titles(result), QStringList({ u"b"_s, u"c"_s, u"d"_s }));
    QCOMPARE(result.hiddenCount, 2);
    QCOMPARE(result.reminderSuppressedIds, QSet<QString>{ u"a"_s }); // though the rule does not ask for it
    QCOMPARE(events.size(), 5); // the caller's list is untouched
}

void tst_FilterEngine::deadRulesAreSkipped()
{
    FilterRule disabled = titleRule(u"a"_s, 1);
    disabled.enabled = false;
    FilterRule deleted = titleRule(u"a"_s, 2);
    deleted.deletedAt = QDateTime::currentDateTimeUtc();
    QCOMPARE(FilterEngine::apply({ makeEvent(u"a"_s) }, { disabled, deleted, rule(u"{"_s, 3) }).hiddenCount, 0);
    QCOMPARE(
        FilterEngine::apply({ makeEvent(u"a"_s) }, { disabled, rule(u"{"_s, 3), titleRule(u"a"_s, 4) }).hiddenCount, 1);
}

void tst_FilterEngine::unknownActionEndsTheSearch()
{
    const auto result =
        FilterEngine::apply({ makeEvent(u"a"_s) }, { titleRule(u"a"_s, 1, u"blink"_s), titleRule(u"a"_s, 2) });
    QCOMPARE(titles(result), QStringList{ u"a"_s });
    QCOMPARE(result.dimmedIds, QSet<QString>());
}

void tst_FilterEngine::firstMatchingRule()
{
    const QList<FilterRule> rules{ titleRule(u"a"_s, 9), titleRule(u"ab"_s, 3), titleRule(u"x"_s, 1) };
    QCOMPARE(FilterEngine::firstMatchingRule(makeEvent(u"abc"_s), rules), rules.at(1));
    QCOMPARE(FilterEngine::firstMatchingRule(makeEvent(u"q"_s), rules), std::nullopt);
}

QTEST_GUILESS_MAIN(tst_FilterEngine)
#include "tst_FilterEngine.moc"
