#pragma once

#include <QString>
#include <QUrl>

/// Addresses of resources on a CalDAV server. Paths are kept decoded and go out encoded.
namespace CalDavPath {

/// The URL of \p decodedPath on the server of \p calendarUrl; blanks, "#", "?" and "%" in the path stand for
/// themselves.
QUrl resourceUrl(const QUrl &calendarUrl, const QString &decodedPath);

/// The decoded path of a new resource: that of the calendar, whether or not its URL ends in a slash, and
/// \p uid with ".ics", percent-encoded so that any UID is one segment of a path.
QString newResourcePath(const QUrl &calendarUrl, const QString &uid);

/// \p decodedPath as the content of an XML href element: percent-encoded, and escaped for XML.
QString toHref(const QString &decodedPath);

/// The value for If-Match from a stored etag; empty if none is to be sent: no etag, or a weak one, which
/// If-Match never matches (RFC 9110 §13.1.1).
QByteArray ifMatch(const QString &etag);

/// The stored form of an ETag header: without quotes; empty for a missing one.
QString etagFromHeader(const QByteArray &value);

} // namespace CalDavPath
