#pragma once

#include "caldav/CalDavParse.h"
#include "models/Calendar.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class AppState;
struct Account;

/// Takes what a discovery found into the calendars table. It only adds: names and colours that the user chose stay,
/// and what has gone from the server is not removed.
namespace CalDavRediscover {

/// The row for a collection that is not known yet: a new id, the account, and what the server says of it. Not stored.
Calendar newCalendar(const Account &account, const CalDavParse::DiscoveredCalendar &discovered);

/// The account's calendar at \p url, or the one that was there while the server had another name or scheme. Not one
/// that is itself among \p listedUrls, all that the server has: of "/Work/" and "/work/" neither is the other.
std::optional<Calendar> knownCalendar(AppState *state, const QString &accountId, const QString &url,
                                      const QStringList &listedUrls);

/// Inserts what is new and was neither declined nor removed; a known calendar whose address changed (http to https,
/// another host name) takes the new one. Returns the number of calendars inserted; 0 for an account that is not there.
int upsertDiscoveredCalendars(AppState *state, const QString &accountId,
                              const QList<CalDavParse::DiscoveredCalendar> &discovered);

/// Remembers addresses that the user did not pick, or removed here, so that no discovery brings them back.
void decline(AppState *state, const QString &accountId, const QStringList &urls);
/// Forgets that: the next upsert may add them.
void accept(AppState *state, const QString &accountId, const QStringList &urls);
/// For an account that goes.
void forgetAccount(AppState *state, const QString &accountId);
bool isDeclined(AppState *state, const QString &accountId, const QString &url);

} // namespace CalDavRediscover
