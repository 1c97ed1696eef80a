#pragma once

#include <QString>

/// Where this instance keeps its data, and what it is called.
namespace Platform {

/// CALENDAR_DATA_DIR, else "quillon/calendar" below the user's data folder. Makes the folder; a failure
/// shows when the database does not open.
QString dataDir();
QString databasePath();
/// "com.quillon.calendar", and the instance's name behind it if it has one.
QString tokenStoreAppId();
/// The value of CALENDAR_INSTANCE; empty for the ordinary instance.
QString instanceName();
bool isDevInstance();

} // namespace Platform
