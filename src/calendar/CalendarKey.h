#pragma once

#include "models/Calendar.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

/// Names a calendar the same on every device, whatever its local id is.
namespace Quillon::CalendarKey {

/// From the account's type and the calendar's address; of a CalDAV address only the path counts, as one server may
/// have several names. None for a type that has no calendars of its own, or an empty address.
std::optional<QString> compute(const QString &accountType, const QString &url);

/// The cloud's id of a calendar: what its address says, else \p calendarId.
QString serverIdFor(const QString &calendarId, const QString &url);

/// The id of the first calendar with that key, or empty.
QString resolve(const QString &key, const QList<Calendar> &calendars);

/// What has no counterpart is left out.
QStringList idsToKeys(const QStringList &ids, const QList<Calendar> &calendars);
QStringList keysToIds(const QStringList &keys, const QList<Calendar> &calendars);

/// Different spellings of one server id become one.
QSet<QString> collapseServerIds(const QSet<QString> &serverIds);
bool serverListContains(const QSet<QString> &collapsed, const QString &calendarId, const QString &url);

} // namespace Quillon::CalendarKey
