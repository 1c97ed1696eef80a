#pragma once

#include "models/Constants.h"

#include <QDateTime>
#include <QString>

/// One row of `calendars`.
struct Calendar {
    QString id;
    QString accountId;
    QString url; ///< collection URL, provider id, feed URL, or "local://calendar/…"
    QString name;
    QString description;
    QString color = DefaultColor;
    QString timezone = QStringLiteral("UTC");
    bool isVisible = true;
    bool isReadOnly = false;
    bool isDefault = false; ///< at most one row has it, see CalendarRepository::setDefault
    QString ctag;
    QString syncToken;
    QString deltaSyncToken;
    QString supportedComponents = QStringLiteral("[\"VEVENT\"]"); ///< JSON array text
    bool allowTasksOverride = false; ///< the user's choice, which discovery does not overwrite
    int sortOrder = 0;
    QString canonicalKey; ///< the same on every device
    bool syncEnabled = false; ///< cloud sync covers this calendar
    bool isShared = false;
    bool sharedWithMe = false;
    QString lastSyncError;
    QDateTime createdAt; ///< UTC
    QDateTime updatedAt; ///< UTC
    QDateTime deletedAt; ///< UTC; invalid while the calendar is alive

    /// True if the user forced task support on, or the server lists VTODO.
    [[nodiscard]] bool supportsTasks() const
    {
        return allowTasksOverride || supportedComponents.contains(QLatin1StringView("VTODO"), Qt::CaseInsensitive);
    }

    /// True if it lives on this device and not on a server.
    [[nodiscard]] bool isLocal() const { return url.startsWith(LocalDefaults::CalendarUrlPrefix); }

    bool operator==(const Calendar &) const = default;
};

Q_DECLARE_TYPEINFO(Calendar, Q_RELOCATABLE_TYPE);
