#include "calendar/ICalEventBuilder.h"
#include "calendar/ICalLine.h"
#include "calendar/ICalParser.h"

class ICalParser::EventReader::Private {
public:
    explicit Private(QByteArray utf8)
        : text(std::move(utf8))
        , lines(text)
    {
    }

    /// Adds the event that ends with the current line, if one does and it is kept.
    void takeLine(QList<Event> &events)
    {
        const QByteArrayView line = lines.line();
        if (line == "BEGIN:VEVENT") {
            isInEvent = true;
            builder.begin();
        } else if (isInEvent && line == "END:VEVENT") {
            isInEvent = false;
            takeEvent(events);
        } else if (isInEvent) {
            builder.addLine(line);
        }
    }

    void takeEvent(QList<Event> &events)
    {
        if (builder.isTooLarge()) {
            ++skipped.tooLarge;
            return;
        }
        Event &event = builder.finish();
        if (event.uid.isEmpty()) {
            ++skipped.withoutUid;
            return;
        }
        if (!event.startTime.isValid())
            ++skipped.withoutStart;
        events.append(std::move(event));
    }

    QByteArray text;
    ICal::LineReader lines; // of text
    ICal::EventBuilder builder;
    bool isInEvent = false;
    Skipped skipped;
};

ICalParser::EventReader::EventReader(QByteArray utf8)
    : d(std::make_unique<Private>(std::move(utf8)))
{
}

ICalParser::EventReader::~EventReader() = default;
ICalParser::EventReader::EventReader(EventReader &&) noexcept = default;
ICalParser::EventReader &ICalParser::EventReader::operator=(EventReader &&) noexcept = default;

QList<Event> ICalParser::EventReader::read(int maxEvents, qsizetype maxBytes)
{
    QList<Event> events;
    const qsizetype position = d->lines.position();
    const qsizetype stopAt = position + std::min(maxBytes, d->text.size() - position);
    while (events.size() < maxEvents && d->lines.next(stopAt)) {
        d->takeLine(events);
        if (d->lines.position() >= stopAt)
            break;
    }
    return events;
}

bool ICalParser::EventReader::atEnd() const
{
    return d->lines.atEnd();
}

qsizetype ICalParser::EventReader::bytesRead() const
{
    return d->lines.position();
}

qsizetype ICalParser::EventReader::size() const
{
    return d->text.size();
}

ICalParser::Skipped ICalParser::EventReader::skipped() const
{
    return d->skipped;
}
