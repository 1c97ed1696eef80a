#include "calendar/TimeZoneText.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray textOf(const char *id, int firstYear)
{
    return TimeZoneText::component(QString::fromLatin1(id), QTimeZone(id), firstYear).bytes();
}

/// A reader of its own: which offset a VTIMEZONE gives for an instant.
class Offsets {
public:
    Offsets(const ICal::TreeComponent &zone, int lastYear)
    {
        for (const char *kind : { "STANDARD", "DAYLIGHT" }) {
            for (const ICal::TreeComponent *observance : zone.components(kind))
                read(*observance, lastYear);
        }
        std::ranges::sort(m_onsets);
    }

    [[nodiscard]] int at(const QDateTime &utc) const
    {
        const auto next = std::ranges::upper_bound(m_onsets, std::pair(utc.toSecsSinceEpoch(), 999'999));
        return next == m_onsets.begin() ? -1 : std::prev(next)->second;
    }

private:
    static QByteArray value(const ICal::TreeComponent &component, const char *name)
    {
        const ICal::TreeLine *line = component.lastLine(name);
        return line ? line->content().value().toByteArray() : QByteArray();
    }

    static int seconds(const QByteArray &offset)
    {
        const int sum = offset.mid(1, 2).toInt() * 3600 + offset.mid(3, 2).toInt() * 60 + offset.mid(5).toInt();
        return offset.startsWith('-') ? -sum : sum;
    }

    void read(const ICal::TreeComponent &observance, int lastYear)
    {
        const int from = seconds(value(observance, "TZOFFSETFROM"));
        const int to = seconds(value(observance, "TZOFFSETTO"));
        const auto add = [&](const QDateTime &local) { m_onsets.emplace_back(local.toSecsSinceEpoch() - from, to); };
        const auto parsed = [](const QByteArray &text) {
            return QDateTime(QDate::fromString(QString::fromLatin1(text.left(8)), u"yyyyMMdd"),
                             QTime::fromString(QString::fromLatin1(text.mid(9)), u"HHmmss"), Qt::UTC);
        };
        const QDateTime start = parsed(value(observance, "DTSTART"));
        add(start);
        if (const QByteArray dates = value(observance, "RDATE"); !dates.isEmpty()) {
            for (const QByteArray &date : dates.split(','))
                add(parsed(date));
        }
        if (const QByteArray rule = value(observance, "RRULE"); !rule.isEmpty()) {
            for (QDate day = start.date().addDays(1); day.year() <= lastYear; day = day.addDays(1)) {
                if (matches(rule, day))
                    add(QDateTime(day, start.time(), Qt::UTC));
            }
        }
    }

    static bool matches(const QByteArray &rule, QDate day)
    {
        QMap<QByteArray, QByteArray> parts;
        for (const QByteArray &part : rule.split(';'))
            parts[part.left(part.indexOf('='))] = part.mid(part.indexOf('=') + 1);
        const QByteArray byDay = parts["BYDAY"];
        const int place = byDay.chopped(2).toInt();
        const int fromEnd = day.daysInMonth() - day.day();
        const bool isPlace = place == 0 || (place > 0 ? (day.day() - 1) / 7 + 1 == place : fromEnd / 7 + 1 == -place);
        const QByteArrayList monthDays = parts["BYMONTHDAY"].split(',');
        return parts["BYMONTH"].toInt() == day.month() && isPlace
            && byDay.right(2) == "MOTUWETHFRSASU"_ba.mid((day.dayOfWeek() - 1) * 2, 2)
            && (parts["BYMONTHDAY"].isEmpty() || monthDays.contains(QByteArray::number(day.day())));
    }

    std::vector<std::pair<qint64, int>> m_onsets; // seconds since the epoch; the offset from then on
};

}

class tst_TimeZoneText : public QObject {
    Q_OBJECT

private slots:
    void writesRulesAndHistory()
    {
        QCOMPARE(textOf("America/New_York", 2006),
                 "BEGIN:VTIMEZONE\r\nTZID:America/New_York\r\n"
                 "BEGIN:STANDARD\r\nDTSTART:20051231T190000\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0500\r\n"
                 "TZNAME:EST\r\nEND:STANDARD\r\n"
                 "BEGIN:STANDARD\r\nDTSTART:20061029T020000\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\n"
                 "TZNAME:EST\r\nEND:STANDARD\r\n"
                 "BEGIN:STANDARD\r\nDTSTART:20071104T020000\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\n"
                 "TZNAME:EST\r\nRRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\r\nEND:STANDARD\r\n"
                 "BEGIN:DAYLIGHT\r\nDTSTART:20060402T020000\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\n"
                 "TZNAME:EDT\r\nEND:DAYLIGHT\r\n"
                 "BEGIN:DAYLIGHT\r\nDTSTART:20070311T020000\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\n"
                 "TZNAME:EDT\r\nRRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=2SU\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n"_ba);
        QCOMPARE(textOf("Asia/Kolkata", 2026),
                 "BEGIN:VTIMEZONE\r\nTZID:Asia/Kolkata\r\nBEGIN:STANDARD\r\nDTSTART:20260101T053000\r\n"
                 "TZOFFSETFROM:+0530\r\nTZOFFSETTO:+0530\r\nTZNAME:IST\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"_ba);
        QVERIFY(textOf("Europe/Berlin", 2026).contains("RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\r\n"));
    }

    /// Southern ones, half hours, a Saturday before the last Sunday, changes at 24:00, Ramadan, and one that gave up
    /// changing its clocks.
    void givesTheSystemsOffsets_data()
    {
        columns<QByteArray, int>("id", "firstYear");
        for (const char *id :
             { "Europe/London", "Europe/Dublin", "America/Los_Angeles", "America/Santiago", "America/Nuuk",
               "America/Sao_Paulo", "Australia/Lord_Howe", "Pacific/Auckland", "Pacific/Kiritimati", "Africa/Cairo",
               "Africa/Casablanca", "Asia/Tehran", "Asia/Gaza", "Europe/Istanbul", "Etc/GMT+5" }) {
            row(qPrintable(QLatin1StringView(id) + u" since 1985"_s), QByteArray(id), 1985);
            row(qPrintable(QLatin1StringView(id) + u" since 2026"_s), QByteArray(id), 2026);
        }
    }
    void givesTheSystemsOffsets()
    {
        QFETCH(QByteArray, id);
        QFETCH(int, firstYear);
        const QTimeZone zone(id);
        constexpr int lastYear = 2065;
        const Offsets offsets(TimeZoneText::component(QString::fromLatin1(id), zone, firstYear), lastYear);
        for (QDateTime time = utc(u"%1-01-02"_s.arg(firstYear)); time.date().year() <= lastYear;
             time = time.addSecs(53 * 3600)) {
            if (offsets.at(time) != zone.offsetFromUtc(time))
                QCOMPARE(u"%1 %2"_s.arg(time.toString(Qt::ISODate)).arg(offsets.at(time)),
                         u"%1 %2"_s.arg(time.toString(Qt::ISODate)).arg(zone.offsetFromUtc(time)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_TimeZoneText)
#include "tst_TimeZoneText.moc"
