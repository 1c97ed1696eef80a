#pragma once

#include <QLatin1StringView>

// The named values of the stored text columns. They are part of the data format that other
// devices read, so a value here never changes.

namespace AccountType {
inline constexpr QLatin1StringView Quillon{"quillon"}; ///< on this device and in the cloud
inline constexpr QLatin1StringView CalDAV{"caldav"};
inline constexpr QLatin1StringView ICloud{"icloud"};
inline constexpr QLatin1StringView Zoho{"zoho"};
inline constexpr QLatin1StringView Google{"google"};
inline constexpr QLatin1StringView Microsoft{"microsoft"};
inline constexpr QLatin1StringView Webcal{"webcal"}; ///< a read-only feed
}

namespace AccountError {
inline constexpr QLatin1StringView SignInRequired{"Sign in required"}; ///< stored like this whatever the language is
}

namespace EventStatus {
inline constexpr QLatin1StringView Confirmed{"confirmed"};
inline constexpr QLatin1StringView Tentative{"tentative"};
inline constexpr QLatin1StringView Cancelled{"cancelled"};
}

namespace TaskStatus {
inline constexpr QLatin1StringView NeedsAction{"needs-action"};
inline constexpr QLatin1StringView InProcess{"in-process"};
inline constexpr QLatin1StringView Completed{"completed"};
inline constexpr QLatin1StringView Cancelled{"cancelled"};
}

namespace SyncStatus {
inline constexpr QLatin1StringView Synced{"synced"};
inline constexpr QLatin1StringView Pending{"pending"}; ///< a local change that has not been pushed
}

namespace FilterType {
inline constexpr QLatin1StringView Time{"time"};
inline constexpr QLatin1StringView AllDay{"all_day"};
inline constexpr QLatin1StringView Pattern{"pattern"};
inline constexpr QLatin1StringView Specific{"specific"};
}

namespace FilterAction {
inline constexpr QLatin1StringView Hide{"hide"};
inline constexpr QLatin1StringView Dim{"dim"};
}

namespace ViewDefaults {
inline constexpr QLatin1StringView AllCalendarsId{"all-calendars"};
}

namespace LocalDefaults {
inline constexpr QLatin1StringView LocalAccountId{"personal-local-account"};
inline constexpr QLatin1StringView SampleAccountId{"sample-account"};
inline constexpr QLatin1StringView CalendarUrlPrefix{"local://calendar/"}; ///< an id follows
inline constexpr QLatin1StringView PersonalCalendarId{"quillon-personal-default"};
inline constexpr QLatin1StringView PersonalCalendarUrl{"local://calendar/quillon-personal-default"};
}

/// The colour of an account, calendar or event that has none, or one that cannot be read.
inline constexpr QLatin1StringView DefaultColor{"#4285F4"};
