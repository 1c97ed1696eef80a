#pragma once

#include "caldav/CalDavParse.h"
#include "models/Account.h"

#include <QList>
#include <QString>
#include <QStringList>

class AppState;

/// What becomes of an account in the tables when its owner has picked calendars of its server.
namespace AccountSetup {

QString defaultName(const QString &serverUrl); ///< "CalDAV (dav.example.com)"

/// Inserts or updates the account, inserts the calendars of \p picked that it has not got, gives the others their
/// present address, and remembers that \p leftUrls are not wanted. All of it, or nothing and false.
bool store(AppState *state, const Account &account, const QList<CalDavParse::DiscoveredCalendar> &picked,
           const QStringList &leftUrls);

} // namespace AccountSetup
