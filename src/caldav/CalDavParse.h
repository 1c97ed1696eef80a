#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

/// Reads the answers of CalDAV servers (RFC 4918 §13, RFC 4791 §9). Never fails: what was read up to the first error
/// of the XML is returned, without the record it stopped in. The status of a propstat is not looked at: a property
/// that a server answers with 404 is empty.
namespace CalDavParse {

struct DiscoveredCalendar {
    QString url; ///< absolute
    QString displayName; ///< the URL's decoded path if the server has no name
    QString color; ///< "#RRGGBB" or empty
    QString description;
    QString ctag;
    QString syncToken;
    QList<QString> components; ///< as the server names them; VEVENT alone if it names none
    bool isReserved = false; ///< carried along; nothing depends on it
};

struct EventResource {
    QString href; ///< a path as CalDavPath keeps it, not a URL
    QString etag; ///< without quotes; a weak one (W/"…") as it stands
    QString calendarData; ///< empty if the server sent no text along
};

/// DAV:current-user-principal, RFC 5397.
std::optional<QUrl> parsePrincipalUrl(const QByteArray &body, const QUrl &baseUrl);
std::optional<QUrl> parseCalendarHomeSet(const QByteArray &body, const QUrl &baseUrl); ///< RFC 4791 §6.2.1
/// The calendar collections among the responses.
QList<DiscoveredCalendar> parseCalendarList(const QByteArray &body, const QUrl &baseUrl);
std::optional<QString> parseCtag(const QByteArray &body);
/// Object resources; a response whose path ends in "/" is the collection and is left out.
QList<EventResource> parseEventResources(const QByteArray &body, const QUrl &baseUrl);

/// parseEventResources() piece by piece, so that a large answer does not hold the event loop. Keeps little more than
/// the body itself in memory.
class EventResourceReader {
public:
    EventResourceReader(QByteArray body, QUrl baseUrl);
    ~EventResourceReader();
    EventResourceReader(EventResourceReader &&) noexcept;
    EventResourceReader &operator=(EventResourceReader &&) noexcept;

    /// Up to \p maxResources further ones, or fewer once about \p maxBytes of the body were read.
    QList<EventResource> read(int maxResources, qsizetype maxBytes);
    [[nodiscard]] bool atEnd() const; ///< of the document, or at its first error
    /// At the end: the XML arrived whole and its root is DAV:multistatus, so that what it does not list is not there.
    [[nodiscard]] bool isCompleteMultistatus() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CalDavParse
