#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

/// The XML bodies of CalDAV requests, as fixed text. RFC 4918, RFC 4791.
namespace CalDavXml {

/// "yyyyMMddTHHmmssZ" of the instant.
QString formatIcalDateTimeUtc(const QDateTime &time);

QByteArray currentUserPrincipalBody(); ///< PROPFIND, depth 0, on a candidate for the principal
QByteArray calendarHomeSetBody(); ///< PROPFIND, depth 0, on the principal
QByteArray calendarEnumerationBody(); ///< PROPFIND, depth 1 on the home set, or 0 on a collection
QByteArray ctagBody(); ///< PROPFIND, depth 0, on a calendar

/// REPORT, depth 1, on a calendar: every object with a \p component ("VEVENT", "VTODO") and its text. An invalid
/// bound leaves the range open on that side.
QByteArray calendarQueryBody(const QDateTime &start, const QDateTime &end, const QString &component);

/// REPORT, depth 1, on a calendar. \p hrefs go out as they stand: the caller escapes and encodes them
/// (see CalDavPath::toHref).
QByteArray calendarMultigetBody(const QList<QString> &hrefs);

/// MKCALENDAR for events and tasks. \p color is "#RRGGBB" or empty.
QByteArray mkcalendarBody(const QString &displayName, const QString &color, const QString &description);

/// PROPPATCH of what is not empty.
QByteArray calendarPropPatchBody(const QString &displayName, const QString &color, const QString &description);

} // namespace CalDavXml
