#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// One row of `reminders` (eventId set) or of `task_reminders` (taskId set).
struct Reminder {
    QString id; ///< empty: the repository makes one when it writes
    QString eventId;
    QString taskId;
    int minutesBefore = 0; ///< before an event's start, before a task's due date
    QString action = QStringLiteral("display");
    bool acknowledged = false;
    std::optional<QDateTime> triggerTime; ///< when absent, the writer computes it

    /// "10 minute(s) before" and the like, translated.
    [[nodiscard]] QString displayText() const;

    bool operator==(const Reminder &) const = default;
};

Q_DECLARE_TYPEINFO(Reminder, Q_RELOCATABLE_TYPE);
