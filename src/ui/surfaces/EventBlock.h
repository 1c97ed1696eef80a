#pragma once

#include <QDateTime>
#include <QRect>
#include <QString>

/// What tells one instance on screen from all others: occurrences of a series share their id. An invalid
/// start stands for whichever occurrence there is.
struct EventKey {
    QString id;
    QDateTime occurrenceStart;

    [[nodiscard]] bool isEmpty() const { return id.isEmpty(); }
    [[nodiscard]] bool matches(const EventKey &other) const
    {
        return id == other.id
            && (!occurrenceStart.isValid() || !other.occurrenceStart.isValid()
                || occurrenceStart == other.occurrenceStart);
    }

    bool operator==(const EventKey &) const = default;
};

/// One event as a surface draws it. An event that spans several days has a block on each of them.
struct EventBlock {
    QString eventId;
    QRect rect; ///< widget coordinates
    QDateTime occurrenceStart;
    int eventIndex = -1; ///< in the list that the surface was given

    [[nodiscard]] EventKey key() const { return { eventId, occurrenceStart }; }

    bool operator==(const EventBlock &) const = default;
};
