#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

/// What a line of quick add says. Times are in the zone of the reference time.
struct ParsedQuickAdd {
    QString title; ///< what remains, cleaned
    QDateTime start; ///< invalid if the date or time named does not exist
    std::optional<QDateTime> end; ///< always there with a valid start; midnight of the next day for whole days
    bool isAllDay = false; ///< a date and no time
    bool hasTime = false; ///< a time was named
    bool isReminder = false;
    bool isTask = false;
    QStringList tags; ///< without "#", in order of first appearance
};

/// Reads one line of English: "lunch with Sam tomorrow at 12:30pm for 90 min #work".
namespace NLParser {

/// Never fails: what it does not understand is title. A line with a date or a time is an event unless it begins as
/// a task or a reminder does; one with neither is a task. Its start is then the next half hour. A date without
/// a year is the next such day, a time without a date is today's, also if it is over.
ParsedQuickAdd parse(const QString &text, const QDateTime &now);

} // namespace NLParser
