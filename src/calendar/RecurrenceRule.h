#pragma once

#include <QByteArrayView>
#include <QStringView>
#include <QtGlobal>

#include <optional>

/// The parts of a recurrence rule that the program can lay out on a calendar. RFC 5545 §3.3.10 (a subset:
/// no BYMONTHDAY, BYSETPOS or ordinal BYDAY; other parts are ignored).
struct RecurrenceRule {
    enum class Frequency { Once, Daily, Weekly, Monthly, Yearly }; ///< Once: none, or one that is not read

    Frequency frequency = Frequency::Once;
    int interval = 1; ///< at least 1
    int count = 0; ///< 0 means no limit
    std::optional<qint64> untilMs; ///< inclusive, milliseconds since the epoch
    quint8 weekdays = 0; ///< plain BYDAY: bit 0 for Monday to bit 6 for Sunday

    bool operator==(const RecurrenceRule &) const = default;

    /// Reads a RRULE value. Never fails: what it cannot read it leaves at its default. An UNTIL without
    /// "Z" counts as UTC, a date-only one as midnight UTC at the start of that date.
    static RecurrenceRule parse(QStringView text);
};

/// A wall-clock time as iCalendar writes it.
struct CompactTime {
    qint64 day = 0; ///< from 1970-01-01
    int msOfDay = 0;

    /// Reads "yyyyMMddTHHmmss" or, with midnight, "yyyyMMdd"; nothing around it.
    static std::optional<CompactTime> parse(QStringView text);
    static std::optional<CompactTime> parse(QByteArrayView text);
};
