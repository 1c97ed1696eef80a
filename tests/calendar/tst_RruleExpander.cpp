#include "calendar/RruleExpander.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

#include <array>

// Every step is made, one after the other, with Qt's own dates and zones: slow, and easy to see through.
namespace Stepwise {

struct Rule {
    QString frequency;
    int interval = 1;
    int count = 0;
    QDateTime until;
    QSet<int> weekdays;
};

qint64 offsetMs(const QDateTime &like, qint64 utcMs)
{
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(utcMs, Qt::UTC);
    switch (like.timeSpec()) {
    case Qt::TimeZone:
        return like.timeZone().offsetFromUtc(utc) * 1000LL;
    case Qt::LocalTime:
        return utc.toLocalTime().offsetFromUtc() * 1000LL;
    default:
        return like.offsetFromUtc() * 1000LL;
    }
}

/// The instant of a wall-clock time on the clock of \p like: the first there is; in a gap, by the offset before.
qint64 instantMs(QDate date, const QDateTime &like)
{
    const qint64 wall = QDateTime(date, like.time(), Qt::UTC).toMSecsSinceEpoch();
    const qint64 before = offsetMs(like, wall - 86'400'000);
    const qint64 after = offsetMs(like, wall + 86'400'000);
    for (const qint64 offset : { std::max(before, after), std::min(before, after) }) {
        if (offsetMs(like, wall - offset) == offset)
            return wall - offset;
    }
    return wall - before;
}

class Generator {
public:
    Generator(Rule rule, QDateTime start, qint64 toMs)
        : m_rule(std::move(rule))
        , m_start(std::move(start))
        , m_toMs(toMs)
    {
    }

    QList<qint64> starts()
    {
        const QDate first = m_start.date();
        if (m_rule.frequency == u"DAILY")
            daily(first);
        else if (m_rule.frequency == u"WEEKLY")
            weekly(first);
        else if (m_rule.frequency == u"MONTHLY")
            for (QDate date = first; emitDate(date);)
                date = date.addMonths(m_rule.interval);
        else
            for (QDate date = first; emitDate(date);)
                date = date.addYears(m_rule.interval);
        return m_starts;
    }

private:
    void daily(QDate date)
    {
        const QDate last = QDateTime::fromMSecsSinceEpoch(m_toMs, Qt::UTC).date().addDays(2);
        for (; date <= last; date = date.addDays(m_rule.interval)) {
            const bool wanted = m_rule.weekdays.isEmpty() || m_rule.weekdays.contains(date.dayOfWeek());
            if (wanted && !emitDate(date))
                return;
        }
    }

    void weekly(QDate first)
    {
        QSet<int> weekdays = m_rule.weekdays;
        if (weekdays.isEmpty())
            weekdays.insert(first.dayOfWeek());
        for (QDate monday = first.addDays(1 - first.dayOfWeek());; monday = monday.addDays(7LL * m_rule.interval)) {
            for (int weekday = 1; weekday <= 7; ++weekday) {
                const QDate date = monday.addDays(weekday - 1);
                if (weekdays.contains(weekday) && date >= first && !emitDate(date))
                    return;
            }
        }
    }

    bool emitDate(QDate date)
    {
        const qint64 ms = date == m_start.date() ? m_start.toMSecsSinceEpoch() : instantMs(date, m_start);
        if ((m_rule.until.isValid() && ms > m_rule.until.toMSecsSinceEpoch()) || ms >= m_toMs)
            return false;
        m_starts.append(ms);
        return (m_rule.count == 0 || m_starts.size() < m_rule.count) && m_starts.size() < 10'000;
    }

    Rule m_rule;
    QDateTime m_start;
    qint64 m_toMs;
    QList<qint64> m_starts;
};

}

namespace {

constexpr std::array WeekdayTokens{ "MO", "TU", "WE", "TH", "FR", "SA", "SU" };

Event series(const QDateTime &start, const QString &rule, int minutes = 60)
{
    Event event;
    event.id = QStringLiteral("row");
    event.uid = QStringLiteral("uid");
    event.title = QStringLiteral("Title");
    event.startTime = start;
    event.endTime = start.addSecs(minutes * 60);
    event.recurrenceRule = rule;
    return event;
}

QDateTime utc(const QString &iso)
{
    return QDateTime::fromString(iso, Qt::ISODate);
}

QStringList startsOf(const QList<Event> &events)
{
    QStringList starts;
    for (const Event &event : events)
        starts.append(event.startTime.toUTC().toString(Qt::ISODate));
    return starts;
}

QDateTime inZone(const char *zone, QDate date, QTime time)
{
    return QDateTime(date, time, QTimeZone(zone));
}

/// A rule as text and as what the plain generator takes.
std::pair<QString, Stepwise::Rule> randomRule(QRandomGenerator &random, const QDateTime &start)
{
    static constexpr std::array frequencies{ "DAILY", "WEEKLY", "MONTHLY", "YEARLY" };
    Stepwise::Rule rule;
    rule.frequency = QString::fromLatin1(frequencies[random.bounded(4)]);
    QString text = QStringLiteral("FREQ=") + rule.frequency;
    if (random.bounded(3) > 0) {
        rule.interval = random.bounded(10) == 0 ? random.bounded(1, 400) : random.bounded(1, 16);
        text += QStringLiteral(";INTERVAL=%1").arg(rule.interval);
    }
    if (random.bounded(3) == 0) {
        rule.count = random.bounded(8) == 0 ? random.bounded(9'990, 10'010) : random.bounded(1, 1'500);
        text += QStringLiteral(";COUNT=%1").arg(rule.count);
    }
    if (random.bounded(3) == 0) {
        rule.until = start.toUTC().addDays(random.bounded(6'000));
        if (random.bounded(2) == 0) // a moment that no instance begins at
            rule.until = rule.until.addSecs(random.bounded(-3'600, 3'600));
        text += QStringLiteral(";UNTIL=") + rule.until.toString(u"yyyyMMdd'T'HHmmss'Z'");
    }
    if (random.bounded(2) == 0) {
        QStringList tokens;
        for (int weekday = 1; weekday <= 7; ++weekday) {
            if (random.bounded(3) != 0)
                continue;
            rule.weekdays.insert(weekday);
            tokens.append(QString::fromLatin1(WeekdayTokens[weekday - 1]));
        }
        text += QStringLiteral(";BYDAY=") + tokens.join(u',');
    }
    return { text, rule };
}

QDateTime randomStart(QRandomGenerator &random, QDate windowDay)
{
    static constexpr std::array zones{ "UTC",
                                       "Europe/Berlin",
                                       "America/New_York",
                                       "Australia/Lord_Howe",
                                       "Asia/Kolkata",
                                       "America/Sao_Paulo",
                                       "Pacific/Apia",
                                       "Africa/Casablanca",
                                       "America/Havana",
                                       "Asia/Beirut",
                                       "Pacific/Kiritimati",
                                       "local" };
    QDate date = windowDay.addDays(-random.bounded(random.bounded(4) == 0 ? 11'000 : 1'500));
    if (random.bounded(3) == 0) // the days that not every month has
        date = QDate(date.year(), date.month(), date.daysInMonth());
    if (random.bounded(12) == 0)
        date = QDate(date.year() / 4 * 4, 2, 29);
    // Where clocks change, quarter by quarter.
    const QTime time =
        QTime(0, 0).addSecs(random.bounded(2) == 0 ? random.bounded(14) * 900 : random.bounded(96) * 900);
    const QByteArray zone = zones[random.bounded(int(zones.size()))];
    if (zone == "UTC")
        return QDateTime(date, time, Qt::UTC);
    const QDateTime noon(date, QTime(12, 0), Qt::UTC);
    const QTimeZone timeZone(zone == "local" ? QTimeZone::systemTimeZoneId() : zone);
    const qint64 ms = QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch() - timeZone.offsetFromUtc(noon) * 1000LL;
    return zone == "local" ? QDateTime::fromMSecsSinceEpoch(ms) : QDateTime::fromMSecsSinceEpoch(ms, timeZone);
}

}

class tst_RruleExpander : public QObject {
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void agreesWithPlainSteps();
    void keepsWallClock_data();
    void keepsWallClock();
    void leavesOutExceptions_data();
    void leavesOutExceptions();
    void window_data();
    void window();
    void singleEvents_data();
    void singleEvents();
    void occurrenceIsCopyOfMaster();
    void stopsAtTenThousand();
    void absurdRules_data();
    void absurdRules();
    void manyExceptions();
    void recurrenceId();
};

void tst_RruleExpander::rules_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("expected"); // dates of March 2026 and later, up to the window's end
    QTest::addColumn<QString>("to");
    const auto row = [](const char *name, const char *rule, const char *start, const char *to, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(rule) << QString::fromLatin1(start) << QString::fromLatin1(expected)
                            << QString::fromLatin1(to);
    };
    // 2 March 2026 is a Monday.
    row("count", "FREQ=DAILY;COUNT=3", "2026-03-02T09:00:00Z", "2026-04-01", "03-02 03-03 03-04");
    row("weekly from mid-week", "FREQ=WEEKLY;BYDAY=MO,WE,FR", "2026-03-04T09:00:00Z", "2026-03-10",
        "03-04 03-06 03-09");
    row("weeks count from the start's own", "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR", "2026-03-08T09:00:00Z",
        "2026-04-01", "03-16 03-18 03-20 03-30");
    row("ordinals fall away", "FREQ=WEEKLY;BYDAY=2MO", "2026-03-05T09:00:00Z", "2026-03-20", "03-05 03-12 03-19");
    row("weekdays cost no count", "FREQ=DAILY;COUNT=6;BYDAY=MO,TU,WE,TH,FR", "2026-03-05T09:00:00Z", "2026-04-01",
        "03-05 03-06 03-09 03-10 03-11 03-12");
    row("month day ignored", "FREQ=MONTHLY;BYMONTHDAY=15", "2026-03-03T09:00:00Z", "2026-06-01", "03-03 04-03 05-03");
    row("month weekday ignored", "FREQ=MONTHLY;BYDAY=1TH", "2026-03-03T09:00:00Z", "2026-05-01", "03-03 04-03");
    row("month ends stay cut", "FREQ=MONTHLY", "2026-01-31T09:00:00Z", "2026-05-01", "01-31 02-28 03-28 04-28");
    row("leap month ends", "FREQ=MONTHLY", "2028-01-31T09:00:00Z", "2028-05-01", "01-31 02-29 03-29 04-29");
    row("month of the year ignored", "FREQ=YEARLY;BYMONTH=3", "2026-06-10T09:00:00Z", "2028-01-01", "06-10 06-10");
    row("leap day", "FREQ=YEARLY", "2024-02-29T09:00:00Z", "2029-01-01", "02-29 02-28 02-28 02-28 02-28");
    row("leap day every fourth year", "FREQ=YEARLY;INTERVAL=4", "2024-02-29T09:00:00Z", "2033-01-01",
        "02-29 02-29 02-29");
    row("every seventh day never on another", "FREQ=DAILY;INTERVAL=7;BYDAY=TU", "2026-03-02T09:00:00Z", "2027-01-01",
        "");
    row("until that instant", "FREQ=DAILY;UNTIL=20260304T090000Z", "2026-03-02T09:00:00Z", "2026-04-01",
        "03-02 03-03 03-04");
    row("until the second before", "FREQ=DAILY;UNTIL=20260304T085959Z", "2026-03-02T09:00:00Z", "2026-04-01",
        "03-02 03-03");
    row("until the start of a date", "FREQ=DAILY;UNTIL=20260304", "2026-03-02T09:00:00Z", "2026-04-01", "03-02 03-03");
    row("until before the start", "FREQ=DAILY;UNTIL=20250101", "2026-03-02T09:00:00Z", "2026-04-01", "");
    row("seconds", "FREQ=SECONDLY", "2026-03-02T09:00:00Z", "2026-04-01", "03-02");
    row("no frequency, and no until either", "UNTIL=20250101", "2026-03-02T09:00:00Z", "2026-04-01", "03-02");
}

void tst_RruleExpander::rules()
{
    QFETCH(QString, rule);
    QFETCH(QString, start);
    QFETCH(QString, to);
    const QList<Event> found = RruleExpander::expand(
        series(utc(start), rule), utc(QStringLiteral("1970-01-01T00:00:00Z")), utc(to + QStringLiteral("T00:00:00Z")));
    QStringList dates;
    for (const Event &event : found) {
        dates.append(event.startTime.toString(u"MM-dd"));
        QCOMPARE(event.startTime.time(), QTime(9, 0));
    }
    QTEST(dates.join(u' '), "expected");
}

void tst_RruleExpander::agreesWithPlainSteps()
{
    QRandomGenerator random(20'260'302);
    int instances = 0;
    for (int i = 0; i < 3'000; ++i) {
        const QDate windowDay = QDate(2008, 1, 1).addDays(random.bounded(9'000));
        const QDateTime start = randomStart(random, windowDay);
        const auto [text, rule] = randomRule(random, start);
        Event event = series(start, text, random.bounded(4) == 0 ? random.bounded(20'000) : random.bounded(180));
        const qint64 durationMs = start.msecsTo(*event.endTime);
        const QDateTime from(windowDay, QTime(0, 0).addSecs(random.bounded(86'400)), Qt::UTC);
        const QDateTime to =
            from.addSecs(random.bounded(3) == 0 ? random.bounded(400) * 86'400LL : random.bounded(8 * 86'400));

        QStringList expected;
        for (const qint64 ms : Stepwise::Generator(rule, start, to.toMSecsSinceEpoch()).starts()) {
            if (ms + durationMs > from.toMSecsSinceEpoch())
                expected.append(QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(u"yyyyMMdd'T'HHmmss'Z'"));
        }
        QStringList found;
        const QList<Event> occurrences = RruleExpander::expand(event, from, to);
        for (const Event &occurrence : occurrences) {
            found.append(occurrence.recurrenceId);
            QCOMPARE(occurrence.startTime.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"), occurrence.recurrenceId);
            QCOMPARE(occurrence.startTime.timeSpec(), start.timeSpec());
            QCOMPARE(occurrence.startTime.msecsTo(*occurrence.endTime), durationMs);
        }
        QVERIFY2(found == expected,
                 qPrintable(QStringLiteral("%1 from %2 (%3), window %4 to %5:\n%6\ninstead of\n%7")
                                .arg(text, start.toString(Qt::ISODate), start.timeZoneAbbreviation(),
                                     from.toString(Qt::ISODate), to.toString(Qt::ISODate), found.join(u' '),
                                     expected.join(u' '))));
        instances += int(expected.size());
    }
    QVERIFY(instances > 10'000); // the windows do hold something
}

void tst_RruleExpander::keepsWallClock_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("nine o'clock over the spring change")
        << inZone("Europe/Berlin", QDate(2026, 3, 28), QTime(9, 0)) << QStringLiteral("FREQ=DAILY;COUNT=3")
        << QStringList{ QStringLiteral("2026-03-28T08:00:00Z"), QStringLiteral("2026-03-29T07:00:00Z"),
                        QStringLiteral("2026-03-30T07:00:00Z") };
    QTest::newRow("a step into the gap does not stick")
        << inZone("Europe/Berlin", QDate(2026, 3, 28), QTime(2, 30)) << QStringLiteral("FREQ=DAILY;COUNT=3")
        << QStringList{ QStringLiteral("2026-03-28T01:30:00Z"), QStringLiteral("2026-03-29T01:30:00Z"),
                        QStringLiteral("2026-03-30T00:30:00Z") };
    QTest::newRow("an hour that comes twice")
        << inZone("Europe/Berlin", QDate(2026, 10, 24), QTime(2, 30)) << QStringLiteral("FREQ=DAILY;COUNT=3")
        << QStringList{ QStringLiteral("2026-10-24T00:30:00Z"), QStringLiteral("2026-10-25T00:30:00Z"),
                        QStringLiteral("2026-10-26T01:30:00Z") };
    QTest::newRow("begun in the second of two hours")
        << utc(QStringLiteral("2026-10-25T01:30:00Z")).toTimeZone(QTimeZone("Europe/Berlin"))
        << QStringLiteral("FREQ=WEEKLY;COUNT=2")
        << QStringList{ QStringLiteral("2026-10-25T01:30:00Z"), QStringLiteral("2026-11-01T01:30:00Z") };
    QTest::newRow("weekdays are those of the zone, not of UTC")
        << inZone("Asia/Tokyo", QDate(2026, 3, 2), QTime(7, 0)) << QStringLiteral("FREQ=DAILY;COUNT=2;BYDAY=MO")
        << QStringList{ QStringLiteral("2026-03-01T22:00:00Z"), QStringLiteral("2026-03-08T22:00:00Z") };
    QTest::newRow("until counts instants")
        << inZone("Asia/Tokyo", QDate(2026, 3, 14), QTime(7, 0)) << QStringLiteral("FREQ=DAILY;UNTIL=20260315")
        << QStringList{ QStringLiteral("2026-03-13T22:00:00Z"), QStringLiteral("2026-03-14T22:00:00Z") };
}

void tst_RruleExpander::keepsWallClock()
{
    QFETCH(QDateTime, start);
    QFETCH(QString, rule);
    const QList<Event> found = RruleExpander::expand(series(start, rule), start.addDays(-2), start.addDays(30));
    QTEST(startsOf(found), "expected");
}

void tst_RruleExpander::leavesOutExceptions_data()
{
    QTest::addColumn<QString>("exceptions");
    QTest::addColumn<int>("left"); // of three in Berlin, 09:00 from 2 March
    QTest::newRow("instant in UTC") << QStringLiteral(R"(["20260303T080000Z"])") << 2;
    QTest::newRow("another instant") << QStringLiteral(R"(["20260303T090000Z"])") << 3;
    QTest::newRow("two of them, unsorted") << QStringLiteral(R"(["20260304T080000Z","20260302T080000Z"])") << 1;
    QTest::newRow("a date is midnight in UTC") << QStringLiteral(R"(["20260303"])") << 3;
    QTest::newRow("other elements are passed over")
        << QStringLiteral(R"([20260303,null,"","x","20260303T080000Z"])") << 2;
    QTest::newRow("no array") << QStringLiteral(R"({"a":"20260303T080000Z"})") << 3;
    QTest::newRow("no JSON") << QStringLiteral("20260303T080000Z") << 3;
    const QDateTime local = utc(QStringLiteral("2026-03-03T08:00:00Z")).toLocalTime();
    QTest::newRow("local time") << QStringLiteral(R"(["%1"])").arg(local.toString(u"yyyyMMdd'T'HHmmss")) << 2;
}

void tst_RruleExpander::leavesOutExceptions()
{
    QFETCH(QString, exceptions);
    Event event = series(inZone("Europe/Berlin", QDate(2026, 3, 2), QTime(9, 0)), QStringLiteral("FREQ=DAILY;COUNT=3"));
    event.exceptionDates = exceptions;
    const QList<Event> found = RruleExpander::expand(event, event.startTime.addDays(-1), event.startTime.addDays(30));
    QTEST(int(found.size()), "left");
}

void tst_RruleExpander::window_data()
{
    QTest::addColumn<int>("minutes"); // the length of each instance, begun at 09:00 each day
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("expected"); // days of March
    const auto row = [](const char *name, int minutes, const char *from, const char *to, const char *expected) {
        QTest::newRow(name) << minutes << QString::fromLatin1(from) << QString::fromLatin1(to)
                            << QString::fromLatin1(expected);
    };
    row("ends as the window begins", 60, "2026-03-05T10:00:00Z", "2026-03-06T00:00:00Z", "");
    row("ends within", 61, "2026-03-05T10:00:00Z", "2026-03-06T00:00:00Z", "5");
    row("begins as the window ends", 60, "2026-03-05T00:00:00Z", "2026-03-05T09:00:00Z", "");
    row("begins within", 60, "2026-03-05T00:00:00Z", "2026-03-05T09:00:01Z", "5");
    row("no length, at the window's begin", 0, "2026-03-05T09:00:00Z", "2026-03-06T00:00:00Z", "");
    row("no length, within", 0, "2026-03-05T08:59:59Z", "2026-03-06T00:00:00Z", "5");
    row("longer than the step", 3 * 1440, "2026-03-08T00:00:00Z", "2026-03-08T01:00:00Z", "5 6 7");
    row("ends before it begins", -60, "2026-03-05T00:00:00Z", "2026-03-06T00:00:00Z", "5");
    row("an empty window", 60, "2026-03-05T09:30:00Z", "2026-03-05T09:30:00Z", "5");
    row("a window the wrong way round", 60, "2026-03-06T00:00:00Z", "2026-03-05T00:00:00Z", "");
}

void tst_RruleExpander::window()
{
    QFETCH(int, minutes);
    QFETCH(QString, from);
    QFETCH(QString, to);
    const Event event = series(utc(QStringLiteral("2026-03-01T09:00:00Z")), QStringLiteral("FREQ=DAILY"), minutes);
    QStringList days;
    for (const Event &occurrence : RruleExpander::expand(event, utc(from), utc(to)))
        days.append(QString::number(occurrence.startTime.date().day()));
    QTEST(days.join(u' '), "expected");
}

void tst_RruleExpander::singleEvents_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<bool>("found");
    const QDateTime from = utc(QStringLiteral("2026-03-02T00:00:00Z"));
    const QDateTime to = from.addDays(1);
    QTest::newRow("within") << from.addSecs(60) << from.addSecs(120) << true;
    QTest::newRow("ends as the window begins") << from.addSecs(-60) << from << false;
    QTest::newRow("begins as the window ends") << to << to.addSecs(60) << false;
    QTest::newRow("without end, however old") << from.addYears(-40) << QDateTime() << true;
    QTest::newRow("without start") << QDateTime() << to << false;
}

void tst_RruleExpander::singleEvents()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(bool, found);
    Event event = series(start, QString());
    event.endTime = end.isValid() ? std::optional(end) : std::nullopt;
    const QDateTime from = utc(QStringLiteral("2026-03-02T00:00:00Z"));
    QCOMPARE(RruleExpander::expand(event, from, from.addDays(1)), found ? QList<Event>{ event } : QList<Event>());
}

void tst_RruleExpander::occurrenceIsCopyOfMaster()
{
    Event master =
        series(inZone("America/New_York", QDate(2026, 3, 2), QTime(20, 0)), QStringLiteral("FREQ=DAILY;COUNT=2"));
    master.endTime.reset();
    master.isAllDay = true;
    master.color = QStringLiteral("#112233");
    master.rawIcalendar = QStringLiteral("BEGIN:VCALENDAR");
    const QList<Event> found = RruleExpander::expand(master, master.startTime, master.startTime.addDays(9));
    QCOMPARE(found.size(), 2);
    Event expected = master;
    expected.startTime = inZone("America/New_York", QDate(2026, 3, 3), QTime(20, 0));
    expected.endTime = expected.startTime.addSecs(3'600); // none of its own
    expected.recurrenceId = QStringLiteral("20260304T010000Z");
    QCOMPARE(found.at(1), expected);
    QCOMPARE(found.at(1).startTime.timeZone(), QTimeZone("America/New_York"));
}

void tst_RruleExpander::stopsAtTenThousand()
{
    const QDateTime start(QDate(1990, 1, 1), QTime(9, 0), Qt::UTC);
    const QDate last = QDate(1990, 1, 1).addDays(9'999);
    const Event event = series(start, QStringLiteral("FREQ=DAILY"));
    const QList<Event> found =
        RruleExpander::expand(event, last.addDays(-1).startOfDay(Qt::UTC), last.addYears(30).startOfDay(Qt::UTC));
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.last().startTime.date(), last);
    QCOMPARE(RruleExpander::expand(event, start, start.addYears(100)).size(), 10'000);
    // A higher COUNT does not lift the limit.
    const Event counted = series(start, QStringLiteral("FREQ=DAILY;COUNT=20000"));
    QCOMPARE(RruleExpander::expand(counted, start, start.addYears(100)).size(), 10'000);
}

void tst_RruleExpander::absurdRules_data()
{
    QTest::addColumn<QString>("rule");
    for (const char *rule : { "FREQ=DAILY", "FREQ=DAILY;INTERVAL=2147483647", "FREQ=DAILY;INTERVAL=2147483646;BYDAY=MO",
                              "FREQ=DAILY;INTERVAL=2147483647;BYDAY=MO", "FREQ=WEEKLY;INTERVAL=2147483647;BYDAY=MO,SU",
                              "FREQ=WEEKLY;BYDAY=MO", "FREQ=MONTHLY;INTERVAL=2147483647", "FREQ=MONTHLY",
                              "FREQ=YEARLY;INTERVAL=2147483647", "FREQ=YEARLY;INTERVAL=1000", "FREQ=YEARLY",
                              "FREQ=YEARLY;COUNT=2147483647", "FREQ=DAILY;UNTIL=99991231T235959Z" })
        QTest::newRow(rule) << QString::fromLatin1(rule);
}

void tst_RruleExpander::absurdRules()
{
    QFETCH(QString, rule);
    const QTimeZone zone("America/New_York");
    constexpr qint64 farthest = std::numeric_limits<qint64>::max();
    const QDateTime dawn = QDateTime::fromMSecsSinceEpoch(-farthest, Qt::UTC);
    const QDateTime dusk = QDateTime::fromMSecsSinceEpoch(farthest, Qt::UTC);
    QElapsedTimer timer;
    timer.start();
    const auto check = [&](const QDateTime &start, const std::optional<QDateTime> &end, const QDateTime &from,
                           const QDateTime &to) {
        Event event = series(start, rule);
        event.endTime = end;
        const qsizetype found = RruleExpander::expand(event, from, to).size();
        QVERIFY(found <= RruleExpander::MaxInstances);
        if (!start.isValid())
            QCOMPARE(found, 0);
    };
    for (const QDateTime &start :
         { dawn, QDateTime(QDate(-4000, 2, 28), QTime(9, 0), zone), QDateTime(QDate(2024, 1, 31), QTime(9, 0), zone),
           QDateTime(QDate(2024, 2, 29), QTime(9, 0)), QDateTime(QDate(99'999, 12, 31), QTime(9, 0), zone),
           QDateTime(QDate(2'000'000, 1, 1), QTime(9, 0), zone), dusk, QDateTime() }) {
        for (const std::optional<QDateTime> &end :
             { std::optional<QDateTime>(), std::optional(dawn), std::optional(QDateTime()), std::optional(start) }) {
            check(start, end, dawn, start.addDays(40));
            check(start, end, start.addDays(9'000), start.addDays(9'040));
            check(start, end, dusk, dawn);
        }
        check(start, dusk, start.addDays(90), start.addDays(91));
    }
    check(QDateTime(QDate(-4000, 2, 28), QTime(9, 0), Qt::UTC), std::nullopt, dawn, dusk);
    check(QDateTime(QDate(2024, 2, 29), QTime(9, 0), QTimeZone("Asia/Kolkata")), std::nullopt, dawn, dusk);
    QVERIFY2(timer.elapsed() < 20'000, "takes too long"); // far above what it takes under sanitizers
}

void tst_RruleExpander::manyExceptions()
{
    const QDateTime start(QDate(2000, 1, 1), QTime(9, 0), Qt::UTC);
    QJsonArray dates;
    for (int i = 0; i < 30'000; ++i)
        dates.append(start.addDays(i % 9'000).toString(u"yyyyMMdd'T'HHmmss'Z'"));
    Event event = series(start, QStringLiteral("FREQ=DAILY"));
    event.exceptionDates = QString::fromUtf8(QJsonDocument(dates).toJson());
    QCOMPARE(RruleExpander::expand(event, start, start.addYears(50)).size(), 1'000);
}

void tst_RruleExpander::recurrenceId()
{
    QCOMPARE(RruleExpander::formatRecurrenceId(inZone("America/New_York", QDate(2026, 7, 4), QTime(21, 5, 9))),
             QStringLiteral("20260705T010509Z"));
    QCOMPARE(RruleExpander::formatRecurrenceId(QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC)),
             QStringLiteral("00010101T000000Z"));
    QCOMPARE(RruleExpander::formatRecurrenceId(QDateTime(QDate(1969, 12, 31), QTime(23, 59, 59, 999), Qt::UTC)),
             QStringLiteral("19691231T235959Z"));
    QCOMPARE(RruleExpander::formatRecurrenceId(QDateTime()), QString());
}

QTEST_GUILESS_MAIN(tst_RruleExpander)
#include "tst_RruleExpander.moc"
