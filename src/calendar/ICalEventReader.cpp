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

    /// The event that ends with the current line, if one does and it is kept.
    std::optional<Event> takeLine()
    {
        const QByteArrayView line = lines.line();
        if (line == "BEGIN:VEVENT") {
            isInEvent = true;
            builder.begin();
            return std::nullopt;
        }
        if (!isInEvent)
            return std::nullopt;
        if (line != "END:VEVENT") {
            builder.addLine(line);
            return std::nullopt;
        }
        isInEvent = false;
        if (builder.isTooLarge()) {
            ++skipped.tooLarge;
            return std::nullopt;
        }
        Event event = builder.finish();
        if (event.uid.isEmpty()) {
            ++skipped.withoutUid;
            return std::nullopt;
        }
        if (!event.startTime.isValid())
            ++skipped.withoutStart;
        return event;
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
        if (std::optional<Event> event = d->takeLine())
            events.append(*std::move(event));
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
