#pragma once

#include "models/Constants.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// One row of `filter_rules`: hides or dims events on this device, and never changes them.
struct FilterRule {
    QString id;
    QString name;
    QString type; ///< one of FilterType
    bool enabled = true;
    QString calendarIds = QStringLiteral("[]"); ///< JSON array; empty means all calendars
    QString conditions; ///< JSON object, see FilterEngine::parseConditions
    QString action = FilterAction::Hide;
    int priority = 100; ///< lower is tried first
    QString eventUid; ///< for a rule on one event
    QString eventCalendarId; ///< likewise
    bool suppressReminders = false;
    QString syncStatus = SyncStatus::Pending;
    QDateTime createdAt; ///< UTC
    QDateTime updatedAt; ///< UTC
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone

    bool operator==(const FilterRule &) const = default;
};

Q_DECLARE_TYPEINFO(FilterRule, Q_RELOCATABLE_TYPE);
