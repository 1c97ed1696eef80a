#pragma once

#include <QString>
#include <QUrl>

/// Addresses of resources on a CalDAV server. Paths are kept decoded and go out encoded. Only a slash within a name is
/// kept as "%2F", and a name that holds the text "%2F" with that percent sign encoded ("%252F").
namespace CalDavPath {

/// The path of \p url as it is kept.
QString ofUrl(const QUrl &url);

/// The URL of a kept \p path on the server of \p calendarUrl; blanks, "#", "?" and "%" in the path stand for
/// themselves.
QUrl resourceUrl(const QUrl &calendarUrl, const QString &path);

/// The path of a new resource, as it is kept: that of the calendar, whether or not its URL ends in a slash, and
/// \p uid with ".ics", percent-encoded so that any UID is one segment of a path.
QString newResourcePath(const QUrl &calendarUrl, const QString &uid);

/// A kept \p path as the content of an XML href element: percent-encoded, and escaped for XML.
QString toHref(const QString &path);

/// The value for If-Match from a stored etag; empty if none is to be sent: no etag, or a weak one, which
/// If-Match never matches (RFC 9110 §13.1.1).
QByteArray ifMatch(const QString &etag);

/// The stored form of an ETag header: without quotes; empty for a missing one.
QString etagFromHeader(const QByteArray &value);

} // namespace CalDavPath
