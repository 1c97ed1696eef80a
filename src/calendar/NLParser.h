#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

/// What a line of quick add says. Times are in the zone of the reference time.
struct ParsedQuickAdd {
    QString title; ///< what remains, cleaned
    QDateTime start; ///< invalid if the date or time named does not exist
    std::optional<QDateTime> end;
    bool isAllDay = false; ///< a date and no time
    bool hasTime = false; ///< a time was named
    bool isReminder = false;
    bool isTask = false;
    QStringList tags; ///< without "#", in order of first appearance
};

/// Reads one line of English: "lunch with Sam tomorrow at 12:30pm for 90 min #work".
namespace NLParser {

ParsedQuickAdd parse(const QString &text, const QDateTime &now);

} // namespace NLParser
