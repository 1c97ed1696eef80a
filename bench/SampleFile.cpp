#include "SampleFile.h"

#include <QRandomGenerator>
#include <QTime>

#include <array>

namespace {

constexpr std::array zones = {"Europe/Berlin", "America/New_York", "Asia/Tokyo", "UTC"};
constexpr std::array words = {"review", "planning", "lunch", "dentist", "standup", "concert", "travel", "school"};
constexpr std::array rules = {"FREQ=DAILY", "FREQ=WEEKLY;BYDAY=MO,WE,FR", "FREQ=WEEKLY", "FREQ=WEEKLY;INTERVAL=2",
                              "FREQ=MONTHLY", "FREQ=YEARLY", "FREQ=DAILY;COUNT=40", "FREQ=WEEKLY;COUNT=100"};
constexpr int seriesPerThousand = 152;

class Writer {
public:
    explicit Writer(const SampleFile::Shape &shape)
        : m_shape(shape)
    {
        m_text.reserve(qsizetype(shape.events) * 1400);
    }

    QByteArray write()
    {
        line("BEGIN:VCALENDAR");
        line("VERSION:2.0");
        line("PRODID:-//Sample//Sample//EN");
        for (int i = 0; i < m_shape.events; ++i)
            event(i);
        for (int i = 0; i < m_shape.events / 10; ++i)
            task(i);
        line("END:VCALENDAR");
        return m_text;
    }

private:
    void line(const QByteArray &content)
    {
        constexpr qsizetype fold = 74;
        m_text += content.left(fold);
        for (qsizetype at = fold; at < content.size(); at += fold - 1)
            m_text += "\r\n " + content.mid(at, fold - 1);
        m_text += "\r\n";
    }

    template <typename List> const char *pick(const List &list) { return list[size_t(m_random.bounded(int(list.size())))]; }

    QByteArray prose(int wordCount)
    {
        QByteArray text;
        for (int i = 0; i < wordCount; ++i)
            text += QByteArray(pick(words)) + (i % 9 == 8 ? "\\n" : " ");
        return text;
    }

    void times(const QByteArray &zone)
    {
        const QDate date = m_shape.newest.addDays(-m_random.bounded(365 * m_shape.years));
        const QTime time(7 + m_random.bounded(12), 15 * m_random.bounded(4));
        const auto stamp = [&](QTime at) {
            const QByteArray text = date.toString(u"yyyyMMdd").toLatin1() + "T" + at.toString(u"HHmmss").toLatin1();
            return zone == "UTC" ? ":" + text + "Z" : ";TZID=" + zone + ":" + text;
        };
        line("DTSTART" + stamp(time));
        line("DTEND" + stamp(time.addSecs(1800 * (1 + m_random.bounded(4)))));
    }

    void event(int number)
    {
        const QByteArray n = QByteArray::number(number);
        line("BEGIN:VEVENT");
        line("UID:sample-event-" + n + "@quillon.example");
        line("DTSTAMP:20260101T000000Z");
        times(pick(zones));
        if (m_random.bounded(1000) < seriesPerThousand)
            line(QByteArray("RRULE:") + pick(rules));
        line("SUMMARY:" + prose(3) + n);
        line("LOCATION:Room " + QByteArray::number(number % 40) + "\\, second floor");
        line("DESCRIPTION:" + prose(75));
        line("STATUS:CONFIRMED");
        line("SEQUENCE:" + QByteArray::number(number % 5));
        line("CREATED:20250101T120000Z");
        line("LAST-MODIFIED:20250601T120000Z");
        line("ORGANIZER;CN=\"Sample, Olga\":mailto:olga@quillon.example");
        for (int i = 0; i < number % 4; ++i)
            line("ATTENDEE;CN=Guest " + QByteArray::number(i) + ";PARTSTAT=ACCEPTED;RSVP=TRUE:mailto:guest"
                 + QByteArray::number(i) + "@quillon.example");
        line("BEGIN:VALARM");
        line("ACTION:DISPLAY");
        line("DESCRIPTION:Reminder");
        line("TRIGGER:-PT15M");
        line("END:VALARM");
        line("END:VEVENT");
    }

    void task(int number)
    {
        const QByteArray n = QByteArray::number(number);
        line("BEGIN:VTODO");
        line("UID:sample-task-" + n + "@quillon.example");
        line("DTSTAMP:20260101T000000Z");
        line("SUMMARY:" + prose(3) + n);
        line("DUE;VALUE=DATE:" + m_shape.newest.addDays(number % 60).toString(u"yyyyMMdd").toLatin1());
        line("END:VTODO");
    }

    SampleFile::Shape m_shape;
    QRandomGenerator m_random {20261122};
    QByteArray m_text;
};

}

QByteArray SampleFile::generate(const Shape &shape)
{
    return Writer(shape).write();
}
