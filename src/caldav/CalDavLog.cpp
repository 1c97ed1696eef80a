#include "caldav/CalDavLog.h"

Q_LOGGING_CATEGORY(caldavLog, "calendar.caldav", QtInfoMsg)
