#pragma once

#include <QLoggingCategory>

/// "calendar.caldav": what runs of sync do. Never credentials, never the text of an event.
Q_DECLARE_LOGGING_CATEGORY(caldavLog)
