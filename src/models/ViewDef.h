#pragma once

#include "models/Constants.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// One row of `calendar_views`: a named group of calendars.
struct ViewDef {
    QString id;
    QString name;
    QString color; ///< may be empty
    QString calendarIds = QStringLiteral("[]"); ///< JSON array; empty means all visible calendars
    bool isDefault = false;
    int sortOrder = 0;
    QString syncStatus = SyncStatus::Pending;
    QDateTime createdAt; ///< UTC
    QDateTime updatedAt; ///< UTC
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone

    bool operator==(const ViewDef &) const = default;
};
