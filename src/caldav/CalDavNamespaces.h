#pragma once

#include <QString>

/// The XML namespaces of what goes to and comes from a CalDAV server.
namespace CalDavNamespaces {

inline constexpr QLatin1StringView Dav{ "DAV:" };
inline constexpr QLatin1StringView CalDav{ "urn:ietf:params:xml:ns:caldav" };
inline constexpr QLatin1StringView CalendarServer{ "http://calendarserver.org/ns/" };
inline constexpr QLatin1StringView AppleICal{ "http://apple.com/ns/ical/" };

} // namespace CalDavNamespaces
