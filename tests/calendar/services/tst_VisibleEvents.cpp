#include "calendar/services/VisibleEvents.h"

#include "calendar/FilterEngine.h"
#include "models/NewId.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

const QDate Monday(2026, 5, 4);

/// On the machine's clock, \p day days after Monday.
QDateTime local(int day, int hour, int minute = 0)
{
    return QDateTime(Monday.addDays(day), QTime(hour, minute));
}

}

// Runs with the machine in several zones: no expected value may depend on which.
class tst_VisibleEvents : public QObject {
    Q_OBJECT

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }
    void cleanup() { m_state.reset(); }

    void calendarIds()
    {
        const QString home = ScratchState::calendarId();
        const QString work = m_state->addCalendar(u"Work"_s);
        const QString hidden = m_state->addCalendar(u"Hidden"_s);
        const QString gone = m_state->addCalendar(u"Gone"_s);
        QVERIFY(state().calendars()->setVisible(hidden, false));
        QVERIFY(state().calendars()->softDelete(gone));
        const auto ids = [this] {
            const QStringList list = VisibleEvents::calendarIds(&state());
            return QSet<QString>(list.begin(), list.end());
        };
        const QSet<QString> visible{ home, work };
        QCOMPARE(ids(), visible);

        // A group decides over visibility; what is not there any more does not count.
        activateGroup(uR"(["%1","%2","unknown"])"_s.arg(hidden, gone));
        QCOMPARE(ids(), QSet<QString>{ hidden });
        for (const QString &text : { uR"(["%1"])"_s.arg(gone), u"[]"_s, u"not JSON"_s }) {
            activateGroup(text);
            QCOMPARE(ids(), visible);
        }
        const QString deleted = activateGroup(uR"(["%1"])"_s.arg(work));
        QCOMPARE(ids(), QSet<QString>{ work });
        QVERIFY(state().views()->softDelete(deleted));
        for (const QString &id : { deleted, u"missing"_s }) {
            state().setActiveViewId(id);
            QCOMPARE(ids(), visible);
        }
        QVERIFY(state().calendars()->setVisible(home, false) && state().calendars()->setVisible(work, false));
        addEvent(u"a"_s, local(0, 9), 60);
        QCOMPARE(shown(0, 7), u""_s);
    }

    void timedEventsByInstant()
    {
        addEvent(u"ends-at-the-first-midnight"_s, local(-1, 23), 60);
        addEvent(u"into"_s, local(-1, 23), 61);
        addEvent(u"first"_s, local(0, 0), 0);
        addEvent(u"early"_s, local(0, 9), 9 * 60);
        addSeries(u"series"_s, local(0, 12), u"FREQ=DAILY;COUNT=1"_s);
        addEvent(u"last"_s, local(6, 23, 59), 1);
        addEvent(u"the-day-after"_s, local(7, 0), 60);
        QCOMPARE(shown(0, 7), u"into first early series last"_s);
    }

    void instantsInFarZones()
    {
        // The stored digits of these are up to 26 hours away from those of the machine's own clock.
        for (const char *zone : { "Etc/GMT+12", "Pacific/Pago_Pago", "Asia/Kolkata", "Pacific/Kiritimati" }) {
            const auto add = [&](const QString &name, const QDateTime &start) {
                Event event = addEvent(name, start.toTimeZone(QTimeZone(zone)), 30);
                event.timezone = QString::fromLatin1(zone);
                QVERIFY(state().events()->update(event));
            };
            add(u"in"_s, local(0, 0));
            add(u"in"_s, local(0, 23, 30));
            add(u"out"_s, local(-1, 23, 30));
            add(u"out"_s, local(1, 0));
        }
        QCOMPARE(shown(0, 1), u"in in in in in in in in"_s);
    }

    void allDayEventsByDate()
    {
        m_state->addAllDayEvent(u"before"_s, Monday.addDays(-1));
        m_state->addAllDayEvent(u"into"_s, Monday.addDays(-2), 3);
        m_state->addAllDayEvent(u"first"_s, Monday);
        m_state->addAllDayEvent(u"last"_s, Monday.addDays(6));
        m_state->addAllDayEvent(u"after"_s, Monday.addDays(7));
        QCOMPARE(shown(0, 7), u"into first last"_s);
        QCOMPARE(shown(-1, 1), u"into before"_s);

        Event series = m_state->addAllDayEvent(u"weekly"_s, QDate(2020, 1, 6)); // a Monday
        series.recurrenceRule = u"FREQ=WEEKLY"_s;
        QVERIFY(state().events()->update(series));
        for (int day = 14; day <= 28; ++day)
            QCOMPARE(shown(day, 1), day % 7 == 0 ? u"weekly"_s : u""_s);
    }

    void seriesWithOverrides()
    {
        const auto inBerlin = [](int day, int hour) {
            return QDateTime(Monday.addDays(day), QTime(hour, 0), QTimeZone("Europe/Berlin"));
        };
        const Event series = addSeries(u"a"_s, inBerlin(-200, 12), u"FREQ=DAILY"_s);
        // Noon in Berlin is on another date in far zones: look at six local days around the changed instances.
        addOverride(series, inBerlin(2, 12), inBerlin(90, 12)); // out of the span
        addOverride(series, inBerlin(80, 12), inBerlin(2, 18)); // into it
        addOverride(series, inBerlin(3, 12), inBerlin(3, 13)); // within
        QStringList moved;
        for (const Event &event : state().visibleEvents()->inRange(Monday, 6)->events) {
            QVERIFY(event.startTime != inBerlin(2, 12) && event.startTime != inBerlin(3, 12));
            if (event.isOverride())
                moved.append(event.startTime.toTimeZone(QTimeZone("Europe/Berlin")).toString(u"d HH"));
        }
        QCOMPARE(moved, QStringList({ u"6 18"_s, u"7 13"_s }));
        QCOMPARE(shown(0, 6).count(u'a'), 6); // one a day, less one, and one more
        QCOMPARE((shown(89, 1) + shown(90, 1) + shown(91, 1)).count(u'a'), 4);
    }

    void filters()
    {
        addEvent(u"keep"_s, local(0, 9), 60);
        const Event dimmed = addEvent(u"dim"_s, local(0, 10), 60);
        addEvent(u"hide"_s, local(0, 11), 60);
        // Hidden, but a day away: it overlaps what is asked of the database and not the span.
        addEvent(u"hide"_s, local(1, 9), 60);
        addRule(u"hide"_s, FilterAction::Hide);
        addRule(u"dim"_s, FilterAction::Dim);
        const QString work = m_state->addCalendar(u"Work"_s, u"#112233"_s);
        QVERIFY(state().calendars()->setVisible(work, false));
        QCOMPARE(shown(0, 1), u"keep dim"_s);
        const auto span = state().visibleEvents()->inRange(Monday, 1);
        QCOMPARE(span->dimmedIds, QSet<QString>{ dimmed.id });
        QCOMPARE(span->hiddenCount, 1);
        QCOMPARE(span->calendarColors.value(work), u"#112233"_s); // of hidden calendars too
        QCOMPARE(state().visibleEvents()->unfilteredInRange(Monday, 1).size(), 3);
    }

    void keepsSpansUntilDataChanges()
    {
        VisibleEvents *visible = state().visibleEvents();
        auto span = visible->inRange(Monday, 7);
        const auto changed = [&] {
            const auto previous = std::exchange(span, visible->inRange(Monday, 7));
            return span != previous;
        };
        QVERIFY(!changed());
        const Event event = addEvent(u"a"_s, local(0, 9), 60);
        QVERIFY(changed());
        QCOMPARE(span->events.size(), 1);
        addRule(u"a"_s, FilterAction::Hide);
        QVERIFY(changed());
        QCOMPARE(span->hiddenCount, 1);
        QVERIFY(state().events()->remove(event.id));
        QVERIFY(changed());
        QCOMPARE(span->hiddenCount, 0);
        QVERIFY(state().calendars()->setVisible(ScratchState::calendarId(), false));
        QVERIFY(changed());
        activateGroup(u"[]"_s);
        QVERIFY(changed());
        QVERIFY(!changed());
    }

    void followsTheZone()
    {
        const QByteArray ownZone = qgetenv("TZ");
        qputenv("TZ", "Asia/Tokyo");
        addEvent(u"a"_s, local(0, 0, 30).toUTC(), 30);
        QCOMPARE(shown(0, 1), u"a"_s);
        qputenv("TZ", "Europe/London"); // where it is still Sunday
        const QString found = shown(0, 1);
        qputenv("TZ", ownZone);
        QCOMPARE(found, u""_s);
    }

private:
    AppState &state() { return *m_state->state(); }

    /// The titles of what shows, from \p day days after Monday on.
    QString shown(int day, int days)
    {
        QStringList titles;
        for (const Event &event : state().visibleEvents()->inRange(Monday.addDays(day), days)->events)
            titles.append(event.title);
        return titles.join(u' ');
    }

    Event addEvent(const QString &title, const QDateTime &start, int minutes)
    {
        return m_state->addEvent(title, start, start.addSecs(minutes * 60));
    }

    /// An hour each, in Berlin.
    Event addSeries(const QString &title, const QDateTime &start, const QString &rule)
    {
        Event series = addEvent(title, start, 60);
        series.recurrenceRule = rule;
        series.timezone = u"Europe/Berlin"_s;
        store(state().events()->update(series));
        return series;
    }

    /// The instance of \p series at \p original takes place at \p start.
    void addOverride(const Event &series, const QDateTime &original, const QDateTime &start)
    {
        Event event = series;
        event.id = newId();
        event.title = series.title + u"-moved"_s;
        event.recurrenceRule.clear();
        event.masterEventUid = series.uid;
        event.recurrenceId = original.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'");
        event.startTime = start;
        event.endTime = start.addSecs(3'600);
        store(state().events()->insert(event));
    }

    /// A calendar group that is the active one from now on.
    QString activateGroup(const QString &calendarIds)
    {
        ViewDef group;
        group.id = newId();
        group.calendarIds = calendarIds;
        store(state().views()->insert(group));
        state().setActiveViewId(group.id);
        return group.id;
    }

    void addRule(const QString &title, const QString &action)
    {
        FilterRule rule;
        rule.id = newId();
        rule.type = FilterType::Pattern;
        rule.action = action;
        rule.conditions = FilterEngine::conditionsToJson(FilterEngine::PatternConditions{ .titleContains = { title } });
        store(state().filterRules()->insert(rule));
    }

    static void store(bool stored)
    {
        if (!stored)
            qFatal("cannot store a scratch row");
    }

    std::unique_ptr<ScratchState> m_state;
};

QTEST_GUILESS_MAIN(tst_VisibleEvents)
#include "tst_VisibleEvents.moc"
