#pragma once

/// The XML namespaces of what goes to and comes from a CalDAV server.
namespace CalDavNamespaces {

inline constexpr char Dav[] = "DAV:";
inline constexpr char CalDav[] = "urn:ietf:params:xml:ns:caldav";
inline constexpr char CalendarServer[] = "http://calendarserver.org/ns/";
inline constexpr char AppleICal[] = "http://apple.com/ns/ical/";

} // namespace CalDavNamespaces
