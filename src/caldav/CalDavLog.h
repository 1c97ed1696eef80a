#pragma once

#include <QLoggingCategory>

/// "calendar.caldav": what runs of sync do, with the titles of what they move when debug output is on. Never
/// credentials.
Q_DECLARE_LOGGING_CATEGORY(caldavLog)
