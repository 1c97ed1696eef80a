#include "calendar/services/VisibleEvents.h"

#include "calendar/FilterEngine.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"

#include <QTest>
#include <QTimeZone>
#include <QUuid>

namespace {

using namespace Qt::StringLiterals;

const QDate Monday(2026, 5, 4);

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QStringList titles(const QList<Event> &events)
{
    QStringList titles;
    for (const Event &event : events)
        titles.append(event.title);
    return titles;
}

QDateTime local(QDate date, int hour, int minute = 0)
{
    return QDateTime(date, QTime(hour, minute));
}

/// A calendar group that is the active one from now on.
QString activateGroup(ScratchState &state, const QString &calendarIds)
{
    ViewDef group;
    group.id = newId();
    group.name = u"Group"_s;
    group.calendarIds = calendarIds;
    if (!state->views()->insert(group))
        qFatal("cannot store a group");
    state->setActiveViewId(group.id);
    return group.id;
}

void addRule(ScratchState &state, const QString &titlePart, const QString &action)
{
    FilterRule rule;
    rule.id = newId();
    rule.name = titlePart;
    rule.type = FilterType::Pattern;
    rule.action = action;
    rule.conditions = FilterEngine::conditionsToJson(FilterEngine::PatternConditions{ .titleContains = { titlePart } });
    if (!state->filterRules()->insert(rule))
        qFatal("cannot store a rule");
}

/// A stored daily series of an hour from \p start on, in Berlin.
Event addSeries(ScratchState &state, const QString &title, const QDateTime &start)
{
    Event series = state.addEvent(title, start, start.addSecs(3'600));
    series.recurrenceRule = u"FREQ=DAILY"_s;
    series.timezone = u"Europe/Berlin"_s;
    if (!state->events()->update(series))
        qFatal("cannot store a series");
    return series;
}

/// A stored override: the instance of \p series at \p original takes place at \p start.
Event addOverride(ScratchState &state, const Event &series, const QDateTime &original, const QDateTime &start)
{
    Event event = series;
    event.id = newId();
    event.title = series.title + u" moved"_s;
    event.recurrenceRule.clear();
    event.masterEventUid = series.uid;
    event.recurrenceId = original.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'");
    event.startTime = start;
    event.endTime = start.addSecs(3'600);
    if (!state->events()->insert(event))
        qFatal("cannot store an override");
    return event;
}

}

// Runs with the machine in several zones: no expected value may depend on which.
class tst_VisibleEvents : public QObject {
    Q_OBJECT

private slots:
    void calendarIds();
    void noCalendars();
    void timedEventsByInstant();
    void instantsInFarZones();
    void allDayEventsByDate();
    void allDaySeriesByDate();
    void seriesWithOverrides();
    void overridesStayInTheirCalendar();
    void filters();
    void sortsByStart();
    void colors();
    void keepsSpansUntilDataChanges();
    void followsTheZone();
};

void tst_VisibleEvents::calendarIds()
{
    ScratchState state;
    const QString home = ScratchState::calendarId();
    const QString work = state.addCalendar(u"Work"_s);
    const QString hidden = state.addCalendar(u"Hidden"_s);
    const QString gone = state.addCalendar(u"Gone"_s);
    QVERIFY(state->calendars()->setVisible(hidden, false));
    QVERIFY(state->calendars()->softDelete(gone));
    const auto ids = [&] {
        const QStringList list = VisibleEvents::calendarIds(state.state());
        return QSet<QString>(list.begin(), list.end());
    };
    const QSet<QString> visible{ home, work };
    QCOMPARE(ids(), visible);

    // A group decides over visibility; what is not there any more does not count.
    activateGroup(state, uR"(["%1","%2","unknown"])"_s.arg(hidden, gone));
    QCOMPARE(ids(), QSet<QString>{ hidden });
    activateGroup(state, uR"(["%1"])"_s.arg(gone));
    QCOMPARE(ids(), visible);
    activateGroup(state, u"[]"_s);
    QCOMPARE(ids(), visible);
    activateGroup(state, u"not JSON"_s);
    QCOMPARE(ids(), visible);
    const QString deleted = activateGroup(state, uR"(["%1"])"_s.arg(work));
    QCOMPARE(ids(), QSet<QString>{ work });
    QVERIFY(state->views()->softDelete(deleted));
    state->setActiveViewId(deleted);
    QCOMPARE(ids(), visible);
    state->setActiveViewId(u"missing"_s);
    QCOMPARE(ids(), visible);
}

void tst_VisibleEvents::noCalendars()
{
    ScratchState state;
    state.addEvent(u"a"_s, local(Monday, 9), local(Monday, 10));
    QVERIFY(state->calendars()->setVisible(ScratchState::calendarId(), false));
    const auto span = state->visibleEvents()->inRange(Monday, 7);
    QVERIFY(span);
    QVERIFY(span->events.isEmpty());
    QCOMPARE(span->hiddenCount, 0);
}

void tst_VisibleEvents::timedEventsByInstant()
{
    ScratchState state;
    const QDate before = Monday.addDays(-1);
    const QDate after = Monday.addDays(7);
    state.addEvent(u"ends at the first midnight"_s, local(before, 23), local(Monday, 0));
    state.addEvent(u"runs into the first day"_s, local(before, 23), local(Monday, 0, 1));
    state.addEvent(u"first minute"_s, local(Monday, 0), local(Monday, 0, 1));
    state.addEvent(u"no length"_s, local(Monday, 0), local(Monday, 0));
    state.addEvent(u"last minute"_s, local(after.addDays(-1), 23, 59), local(after, 0));
    state.addEvent(u"the day after"_s, local(after, 0), local(after, 1));
    const QStringList expected{ u"runs into the first day"_s, u"first minute"_s, u"no length"_s, u"last minute"_s };
    QStringList found = titles(state->visibleEvents()->inRange(Monday, 7)->events);
    std::sort(found.begin() + 1, found.begin() + 3); // two with one start
    QCOMPARE(found, expected);
}

void tst_VisibleEvents::instantsInFarZones()
{
    // The stored digits of these are up to 26 hours away from those of the machine's own clock.
    ScratchState state;
    for (const char *zone : { "Etc/GMT+12", "Pacific/Pago_Pago", "Asia/Kolkata", "Pacific/Kiritimati" }) {
        const QTimeZone timeZone(zone);
        const auto add = [&](const char *name, const QDateTime &start) {
            Event event = state.addEvent(QString::fromLatin1(name), start.toTimeZone(timeZone),
                                         start.addSecs(1'800).toTimeZone(timeZone));
            event.timezone = QString::fromLatin1(zone);
            QVERIFY(state->events()->update(event));
        };
        add("in", local(Monday, 0));
        add("in", local(Monday, 23, 30));
        add("out", local(Monday.addDays(-1), 23, 30));
        add("out", local(Monday.addDays(1), 0));
    }
    const QStringList found = titles(state->visibleEvents()->inRange(Monday, 1)->events);
    QCOMPARE(found, QStringList(8, u"in"_s));
}

void tst_VisibleEvents::allDayEventsByDate()
{
    ScratchState state;
    state.addAllDayEvent(u"before"_s, Monday.addDays(-1));
    state.addAllDayEvent(u"into"_s, Monday.addDays(-2), 3);
    state.addAllDayEvent(u"first"_s, Monday);
    state.addAllDayEvent(u"last"_s, Monday.addDays(6));
    state.addAllDayEvent(u"after"_s, Monday.addDays(7));
    QCOMPARE(titles(state->visibleEvents()->inRange(Monday, 7)->events),
             QStringList({ u"into"_s, u"first"_s, u"last"_s }));
    QCOMPARE(titles(state->visibleEvents()->inRange(Monday.addDays(-1), 1)->events),
             QStringList({ u"into"_s, u"before"_s }));
}

void tst_VisibleEvents::allDaySeriesByDate()
{
    ScratchState state;
    Event series = state.addAllDayEvent(u"a"_s, QDate(2020, 1, 6)); // a Monday
    series.recurrenceRule = u"FREQ=WEEKLY"_s;
    QVERIFY(state->events()->update(series));
    for (int day = -7; day <= 7; ++day) {
        const auto span = state->visibleEvents()->inRange(Monday.addDays(day), 1);
        QCOMPARE(span->events.size(), day % 7 == 0 ? 1 : 0);
    }
}

void tst_VisibleEvents::seriesWithOverrides()
{
    ScratchState state;
    const QTimeZone berlin("Europe/Berlin");
    const auto inBerlin = [&](int day, int hour) { return QDateTime(Monday.addDays(day), QTime(hour, 0), berlin); };
    const Event series = addSeries(state, u"a"_s, inBerlin(-200, 12));
    // Noon in Berlin is on another date in far zones: look at five local days around the changed instances.
    addOverride(state, series, inBerlin(2, 12), inBerlin(90, 12)); // out of the span
    addOverride(state, series, inBerlin(80, 12), inBerlin(2, 18)); // into it
    addOverride(state, series, inBerlin(3, 12), inBerlin(3, 13)); // within
    const auto span = state->visibleEvents()->inRange(Monday, 6);
    QStringList moved;
    for (const Event &event : span->events) {
        QVERIFY(event.startTime != inBerlin(2, 12));
        QVERIFY(event.startTime != inBerlin(3, 12));
        if (event.isOverride())
            moved.append(event.startTime.toTimeZone(berlin).toString(u"d HH"));
    }
    QCOMPARE(moved, QStringList({ u"6 18"_s, u"7 13"_s }));
    QCOMPARE(span->events.size(), 6); // one a day, less one, and one more
    QCOMPARE(state->visibleEvents()->inRange(Monday.addDays(90), 1)->events.size()
                 + state->visibleEvents()->inRange(Monday.addDays(91), 1)->events.size()
                 + state->visibleEvents()->inRange(Monday.addDays(89), 1)->events.size(),
             4);
}

void tst_VisibleEvents::overridesStayInTheirCalendar()
{
    ScratchState state;
    const QString work = state.addCalendar(u"Work"_s);
    const QDateTime start = local(Monday, 12);
    const Event series = addSeries(state, u"home"_s, start);
    Event copy = series;
    copy.id = newId();
    copy.calendarId = work;
    copy.title = u"work"_s;
    QVERIFY(state->events()->insert(copy));
    addOverride(state, copy, start, start.addSecs(60));
    QCOMPARE(titles(state->visibleEvents()->inRange(Monday, 1)->events), QStringList({ u"home"_s, u"work moved"_s }));

    activateGroup(state, uR"(["%1"])"_s.arg(ScratchState::calendarId()));
    QCOMPARE(titles(state->visibleEvents()->inRange(Monday, 1)->events), QStringList{ u"home"_s });
}

void tst_VisibleEvents::filters()
{
    ScratchState state;
    const Event kept = state.addEvent(u"keep"_s, local(Monday, 9), local(Monday, 10));
    const Event dimmed = state.addEvent(u"dim"_s, local(Monday, 10), local(Monday, 11));
    state.addEvent(u"hide"_s, local(Monday, 11), local(Monday, 12));
    // Hidden, but a day away: it overlaps what is asked of the database and not the span.
    state.addEvent(u"hide"_s, local(Monday.addDays(1), 9), local(Monday.addDays(1), 10));
    addRule(state, u"hide"_s, FilterAction::Hide);
    addRule(state, u"dim"_s, FilterAction::Dim);
    const auto span = state->visibleEvents()->inRange(Monday, 1);
    QCOMPARE(titles(span->events), QStringList({ kept.title, dimmed.title }));
    QCOMPARE(span->dimmedIds, QSet<QString>{ dimmed.id });
    QCOMPARE(span->hiddenCount, 1);
    QCOMPARE(titles(state->visibleEvents()->unfilteredInRange(Monday, 1)),
             QStringList({ u"keep"_s, u"dim"_s, u"hide"_s }));
}

void tst_VisibleEvents::sortsByStart()
{
    ScratchState state;
    state.addEvent(u"c"_s, local(Monday, 15), local(Monday, 16));
    addSeries(state, u"b"_s, local(Monday, 12));
    state.addEvent(u"a"_s, local(Monday, 9), local(Monday, 18));
    QCOMPARE(titles(state->visibleEvents()->inRange(Monday, 1)->events), QStringList({ u"a"_s, u"b"_s, u"c"_s }));
}

void tst_VisibleEvents::colors()
{
    ScratchState state;
    const QString work = state.addCalendar(u"Work"_s, u"#112233"_s);
    QVERIFY(state->calendars()->setVisible(work, false));
    const auto span = state->visibleEvents()->inRange(Monday, 1);
    QCOMPARE(span->calendarColors.value(work), u"#112233"_s);
    QCOMPARE(span->calendarColors.size(), 2);
}

void tst_VisibleEvents::keepsSpansUntilDataChanges()
{
    ScratchState state;
    VisibleEvents *visible = state->visibleEvents();
    auto span = visible->inRange(Monday, 7);
    QCOMPARE(visible->inRange(Monday, 7), span);
    QVERIFY(visible->inRange(Monday, 6) != span);
    const auto changed = [&] {
        const auto previous = std::exchange(span, visible->inRange(Monday, 7));
        return span != previous;
    };
    QVERIFY(!changed());
    const Event event = state.addEvent(u"a"_s, local(Monday, 9), local(Monday, 10));
    QVERIFY(changed());
    QCOMPARE(span->events.size(), 1);
    addRule(state, u"a"_s, FilterAction::Hide);
    QVERIFY(changed());
    QCOMPARE(span->events.size(), 0);
    QVERIFY(state->events()->remove(event.id));
    QVERIFY(changed());
    QCOMPARE(span->hiddenCount, 0);
    QVERIFY(state->calendars()->setVisible(ScratchState::calendarId(), false));
    QVERIFY(changed());
    activateGroup(state, u"[]"_s);
    QVERIFY(changed());
    QVERIFY(!changed());
}

void tst_VisibleEvents::followsTheZone()
{
    ScratchState state;
    const QByteArray ownZone = qgetenv("TZ");
    qputenv("TZ", "Asia/Tokyo");
    state.addEvent(u"a"_s, local(Monday, 0, 30).toUTC(), local(Monday, 1).toUTC());
    QCOMPARE(state->visibleEvents()->inRange(Monday, 1)->events.size(), 1);
    qputenv("TZ", "Europe/London"); // where it is still Sunday
    const qsizetype found = state->visibleEvents()->inRange(Monday, 1)->events.size();
    qputenv("TZ", ownZone);
    QCOMPARE(found, 0);
}

QTEST_GUILESS_MAIN(tst_VisibleEvents)
#include "tst_VisibleEvents.moc"
