#include "caldav/CalDavParse.h"

#include "caldav/CalDavNamespaces.h"
#include "caldav/CalDavPath.h"

#include <QXmlStreamReader>

#include <array>
#include <limits>

namespace CalDavParse {

namespace {

constexpr QLatin1StringView Dav = CalDavNamespaces::Dav;
constexpr QLatin1StringView CalDav = CalDavNamespaces::CalDav;
constexpr QLatin1StringView CalendarServer = CalDavNamespaces::CalendarServer;
constexpr QLatin1StringView AppleICal = CalDavNamespaces::AppleICal;

bool isElement(const QXmlStreamReader &xml, QLatin1StringView ns, QLatin1StringView name)
{
    return xml.namespaceUri() == ns && xml.name() == name;
}

// No DAV answer declares entities, and a few bytes of them can stand for gigabytes of text.
QXmlStreamReader::TokenType readToken(QXmlStreamReader &xml)
{
    const QXmlStreamReader::TokenType token = xml.readNext();
    if (token == QXmlStreamReader::DTD && !xml.entityDeclarations().isEmpty())
        xml.raiseError(QStringLiteral("entities are declared"));
    return token;
}

QUrl resolved(const QUrl &baseUrl, const QString &href)
{
    return baseUrl.resolved(QUrl(href));
}

// The text of the element that was just begun, or none if the document is cut in it.
std::optional<QString> readText(QXmlStreamReader &xml)
{
    const QString text = xml.readElementText();
    return xml.hasError() || text.isEmpty() ? std::nullopt : std::optional(text);
}

// The first href inside an element "name", RFC 4918 §14.7.
std::optional<QUrl> firstHrefIn(QLatin1StringView ns, QLatin1StringView name, const QByteArray &body,
                                const QUrl &baseUrl)
{
    QXmlStreamReader xml(body);
    bool isInside = false;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = readToken(xml);
        if (token == QXmlStreamReader::StartElement && isElement(xml, ns, name)) {
            isInside = true;
        } else if (token == QXmlStreamReader::EndElement && isElement(xml, ns, name)) {
            isInside = false;
        } else if (token == QXmlStreamReader::StartElement && isInside
                   && isElement(xml, Dav, QLatin1StringView("href"))) {
            const QString href = readText(xml).value_or(QString()).trimmed();
            return href.isEmpty() ? std::nullopt : std::optional(resolved(baseUrl, href));
        }
    }
    return std::nullopt;
}

struct TextProperty {
    QLatin1StringView ns;
    QLatin1StringView name;
    QString DiscoveredCalendar::*member;
};

constexpr std::array TextProperties{
    TextProperty{ Dav, QLatin1StringView("displayname"), &DiscoveredCalendar::displayName },
    TextProperty{ CalDav, QLatin1StringView("calendar-description"), &DiscoveredCalendar::description },
    TextProperty{ CalendarServer, QLatin1StringView("getctag"), &DiscoveredCalendar::ctag },
    TextProperty{ Dav, QLatin1StringView("sync-token"), &DiscoveredCalendar::syncToken },
};

class CalendarListReader {
public:
    CalendarListReader(const QByteArray &body, const QUrl &baseUrl)
        : m_xml(body)
        , m_baseUrl(baseUrl)
    {
    }

    QList<DiscoveredCalendar> read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = readToken(m_xml);
            if (token == QXmlStreamReader::StartElement)
                onStartElement();
            else if (token == QXmlStreamReader::EndElement)
                onEndElement();
        }
        return m_calendars;
    }

private:
    void onStartElement()
    {
        if (isElement(m_xml, Dav, QLatin1StringView("response")))
            m_response = Response{};
        else if (m_response)
            readProperty(*m_response);
    }

    void onEndElement()
    {
        if (m_response && isElement(m_xml, Dav, QLatin1StringView("resourcetype"))) {
            m_response->isInResourceType = false;
        } else if (m_response && isElement(m_xml, Dav, QLatin1StringView("response"))) {
            if (m_response->isCalendar && !m_response->href.isEmpty())
                append(*m_response);
            m_response.reset();
        }
    }

    struct Response {
        DiscoveredCalendar calendar;
        QString href;
        bool isInResourceType = false;
        bool isCalendar = false;
    };

    void readProperty(Response &response)
    {
        if (isElement(m_xml, Dav, QLatin1StringView("href"))) {
            if (response.href.isEmpty())
                response.href = m_xml.readElementText().trimmed();
        } else if (isElement(m_xml, Dav, QLatin1StringView("resourcetype"))) {
            response.isInResourceType = true;
        } else if (isElement(m_xml, CalDav, QLatin1StringView("calendar"))) {
            response.isCalendar |= response.isInResourceType;
        } else if (isElement(m_xml, AppleICal, QLatin1StringView("calendar-color"))) {
            if (const QString color = m_xml.readElementText().trimmed(); color.size() >= 7)
                response.calendar.color = color.first(7);
        } else if (isElement(m_xml, CalDav, QLatin1StringView("supported-calendar-component-set"))) {
            readComponents(response.calendar.components);
        } else {
            for (const TextProperty &property : TextProperties) {
                if (isElement(m_xml, property.ns, property.name)) {
                    response.calendar.*property.member = m_xml.readElementText();
                    return;
                }
            }
        }
    }

    void readComponents(QList<QString> &components)
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = readToken(m_xml);
            if (token == QXmlStreamReader::EndElement
                && isElement(m_xml, CalDav, QLatin1StringView("supported-calendar-component-set")))
                return;
            if (token == QXmlStreamReader::StartElement && isElement(m_xml, CalDav, QLatin1StringView("comp"))) {
                const QString name = m_xml.attributes().value(QLatin1StringView("name")).toString();
                if (!name.isEmpty())
                    components.append(name);
            }
        }
    }

    void append(Response &response)
    {
        DiscoveredCalendar &calendar = response.calendar;
        calendar.url = resolved(m_baseUrl, response.href).toString();
        if (calendar.components.isEmpty())
            calendar.components = { QStringLiteral("VEVENT") };
        if (calendar.displayName.isEmpty())
            calendar.displayName = QUrl(calendar.url).path(QUrl::FullyDecoded);
        m_calendars.append(calendar);
    }

    QXmlStreamReader m_xml;
    const QUrl &m_baseUrl;
    std::optional<Response> m_response;
    QList<DiscoveredCalendar> m_calendars;
};

}

std::optional<QUrl> parsePrincipalUrl(const QByteArray &body, const QUrl &baseUrl)
{
    return firstHrefIn(Dav, QLatin1StringView("current-user-principal"), body, baseUrl);
}

std::optional<QUrl> parseCalendarHomeSet(const QByteArray &body, const QUrl &baseUrl)
{
    return firstHrefIn(CalDav, QLatin1StringView("calendar-home-set"), body, baseUrl);
}

QList<DiscoveredCalendar> parseCalendarList(const QByteArray &body, const QUrl &baseUrl)
{
    return CalendarListReader(body, baseUrl).read();
}

std::optional<QString> parseCtag(const QByteArray &body)
{
    QXmlStreamReader xml(body);
    while (!xml.atEnd()) {
        if (readToken(xml) == QXmlStreamReader::StartElement
            && isElement(xml, CalendarServer, QLatin1StringView("getctag")))
            return readText(xml);
    }
    return std::nullopt;
}

QList<EventResource> parseEventResources(const QByteArray &body, const QUrl &baseUrl)
{
    EventResourceReader reader(body, baseUrl);
    QList<EventResource> resources;
    while (!reader.atEnd())
        resources += reader.read(std::numeric_limits<int>::max(), std::numeric_limits<qsizetype>::max());
    return resources;
}

/// Hands the body to the XML reader in small portions, and puts together itself what an element's text arrives as:
/// QXmlStreamReader::readElementText() cannot go on after the end of a portion.
class EventResourceReader::Private {
public:
    Private(QByteArray wholeBody, QUrl base)
        : body(std::move(wholeBody))
        , baseUrl(std::move(base))
    {
    }

    QList<EventResource> read(int maxResources, qsizetype maxBytes)
    {
        found.clear();
        qsizetype readBytes = 0;
        while (!isAtEnd && found.size() < maxResources) {
            if (readToken(xml) != QXmlStreamReader::Invalid) {
                onToken();
            } else if (xml.error() != QXmlStreamReader::PrematureEndOfDocumentError || fedBytes == body.size()) {
                isAtEnd = true;
            } else if (readBytes >= maxBytes) {
                break;
            } else {
                readBytes += feed();
            }
        }
        return std::exchange(found, {});
    }

    [[nodiscard]] bool isCompleteMultistatus() const
    {
        return isAtEnd && isMultistatus && !xml.hasError() && body.sliced(fedBytes).trimmed().isEmpty();
    }

    bool isAtEnd = false;

private:
    static constexpr qsizetype PortionBytes = 16 * 1024;

    // The XML reader begins a CDATA section or a comment again with each portion: portions that grow keep the effort
    // in proportion to the size.
    qsizetype feed()
    {
        portionBytes = std::min(portionBytes * 2, body.size() - fedBytes);
        xml.addData(body.sliced(fedBytes, portionBytes));
        fedBytes += portionBytes;
        return portionBytes;
    }

    void onToken()
    {
        portionBytes = PortionBytes / 2;
        switch (xml.tokenType()) {
        case QXmlStreamReader::StartElement:
            onStartElement();
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (text)
                *text += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            if (text)
                text = nullptr;
            else if (isInResponse && isElement(xml, Dav, QLatin1StringView("response")))
                finishResource();
            break;
        case QXmlStreamReader::EndDocument:
            isAtEnd = true;
            break;
        default:
            break;
        }
    }

    void onStartElement()
    {
        if (!hasRoot)
            isMultistatus = isElement(xml, Dav, QLatin1StringView("multistatus"));
        hasRoot = true;
        if (text) {
            xml.raiseError(QStringLiteral("an element inside a text"));
        } else if (isElement(xml, Dav, QLatin1StringView("response"))) {
            isInResponse = true;
            resource = {};
        } else if (isInResponse) {
            text = textOf(resource);
            if (text)
                text->clear();
        }
    }

    QString *textOf(EventResource &of) const
    {
        if (isElement(xml, Dav, QLatin1StringView("href")))
            return of.href.isEmpty() ? &of.href : nullptr;
        if (isElement(xml, Dav, QLatin1StringView("getetag")))
            return &of.etag;
        if (isElement(xml, CalDav, QLatin1StringView("calendar-data")))
            return &of.calendarData;
        return nullptr;
    }

    void finishResource()
    {
        isInResponse = false;
        resource.href = resource.href.trimmed();
        resource.etag = resource.etag.trimmed();
        if (resource.href.isEmpty())
            return;
        resource.href = CalDavPath::ofUrl(resolved(baseUrl, resource.href));
        if (resource.etag.size() >= 2 && resource.etag.startsWith(u'"') && resource.etag.endsWith(u'"'))
            resource.etag = resource.etag.sliced(1, resource.etag.size() - 2);
        if (!resource.href.endsWith(u'/'))
            found.append(std::move(resource));
    }

    QByteArray body;
    QUrl baseUrl;
    qsizetype fedBytes = 0;
    qsizetype portionBytes = PortionBytes / 2;
    QXmlStreamReader xml;
    bool hasRoot = false;
    bool isMultistatus = false;
    bool isInResponse = false;
    EventResource resource;
    QString *text = nullptr; // of the resource, while it is read
    QList<EventResource> found;
};

EventResourceReader::EventResourceReader(QByteArray body, QUrl baseUrl)
    : d(std::make_unique<Private>(std::move(body), std::move(baseUrl)))
{
}

EventResourceReader::~EventResourceReader() = default;
EventResourceReader::EventResourceReader(EventResourceReader &&) noexcept = default;
EventResourceReader &EventResourceReader::operator=(EventResourceReader &&) noexcept = default;

QList<EventResource> EventResourceReader::read(int maxResources, qsizetype maxBytes)
{
    return d->read(maxResources, maxBytes);
}

bool EventResourceReader::atEnd() const
{
    return d->isAtEnd;
}

bool EventResourceReader::isCompleteMultistatus() const
{
    return d->isCompleteMultistatus();
}

} // namespace CalDavParse
