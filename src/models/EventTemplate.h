#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// One row of `event_templates`: what a new event starts from.
struct EventTemplate {
    QString id;
    QString name; ///< the template's own
    QString title; ///< the new event's
    QString description;
    QString location;
    QString color;
    bool isAllDay = false;
    int durationMinutes = 60;
    QString recurrenceRule;
    QString calendarId; ///< may be empty
    QList<int> reminders; ///< minutes before the start
    int sortOrder = 0;
    QDateTime createdAt; ///< UTC
    QDateTime updatedAt; ///< UTC
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone

    bool operator==(const EventTemplate &) const = default;
};
