#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

/// Points in time as the database holds them: Qt's ISO form in seconds, with "Z", an offset, or nothing
/// for local time.
namespace StoredTime {

/// The text to store, or NULL for an invalid value. In UTC where the offset is not in whole minutes.
QVariant store(const QDateTime &time);

/// The text of the current time.
QVariant now();

/// Equal to QDateTime::fromString(text, Qt::ISODate), only faster for the usual forms.
QDateTime parse(const QString &text);

/// As parse(), but the form "yyyy-MM-dd HH:mm:ss" of SQLite's own clock is UTC.
QDateTime parseStamp(const QString &text);

/// The date of \p time, whatever its zone, at 00:00 UTC: how whole days are stored.
QDateTime wholeDay(const QDateTime &time);

/// \p time shown in the zone with this IANA name; unchanged if the name is empty, "UTC" or unknown.
QDateTime inZone(const QDateTime &time, const QString &zoneId);

} // namespace StoredTime
