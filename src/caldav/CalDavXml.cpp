#include "caldav/CalDavXml.h"

#include "caldav/CalDavNamespaces.h"

namespace CalDavXml {

namespace {

QByteArray xmlns(const char *prefix, QLatin1StringView uri)
{
    return QByteArray(" xmlns:") + prefix + "=\"" + uri.data() + '"';
}

QByteArray calDavNs()
{
    return xmlns("c", CalDavNamespaces::CalDav);
}

QByteArray calendarServerNs()
{
    return xmlns("cs", CalDavNamespaces::CalendarServer);
}

QByteArray appleICalNs()
{
    return xmlns("ic", CalDavNamespaces::AppleICal);
}

// The declaration and the start of the root element.
QByteArray root(const char *element, const QByteArray &namespaces = {})
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<") + element + xmlns("d", CalDavNamespaces::Dav)
        + namespaces + ">\n";
}

QByteArray xmlEscape(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '&':
            escaped += QLatin1StringView("&amp;");
            break;
        case '<':
            escaped += QLatin1StringView("&lt;");
            break;
        case '>':
            escaped += QLatin1StringView("&gt;");
            break;
        case '"':
            escaped += QLatin1StringView("&quot;");
            break;
        case '\'':
            escaped += QLatin1StringView("&apos;");
            break;
        default:
            escaped += c;
        }
    }
    return escaped.toUtf8();
}

// Clients of this property write "#RRGGBBAA"; ours has no transparency.
QByteArray toDavColor(const QString &color)
{
    if (color.isEmpty())
        return {};
    QString digits = color.toUpper();
    if (digits.startsWith(u'#'))
        digits.remove(0, 1);
    if (digits.size() == 6)
        digits += QLatin1StringView("FF");
    return '#' + digits.toUtf8();
}

QByteArray displayNameLine(const QString &name)
{
    return "      <d:displayname>" + xmlEscape(name) + "</d:displayname>\n";
}

QByteArray descriptionLine(const QString &description)
{
    if (description.isEmpty())
        return {};
    return "      <c:calendar-description>" + xmlEscape(description) + "</c:calendar-description>\n";
}

QByteArray colorLine(const QString &color)
{
    if (color.isEmpty())
        return {};
    return "      <ic:calendar-color>" + toDavColor(color) + "</ic:calendar-color>\n";
}

QByteArray timeRangeLine(const QDateTime &start, const QDateTime &end)
{
    if (!start.isValid() && !end.isValid())
        return {};
    QByteArray line = "        <c:time-range";
    if (start.isValid())
        line += " start=\"" + formatIcalDateTimeUtc(start).toUtf8() + '"';
    if (end.isValid())
        line += " end=\"" + formatIcalDateTimeUtc(end).toUtf8() + '"';
    return line + "/>\n";
}

}

QString formatIcalDateTimeUtc(const QDateTime &time)
{
    return time.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

QByteArray currentUserPrincipalBody()
{
    return root("d:propfind")
        + "  <d:prop>\n"
          "    <d:current-user-principal/>\n"
          "  </d:prop>\n"
          "</d:propfind>\n";
}

QByteArray calendarHomeSetBody()
{
    return root("d:propfind", calDavNs())
        + "  <d:prop>\n"
          "    <c:calendar-home-set/>\n"
          "    <d:displayname/>\n"
          "  </d:prop>\n"
          "</d:propfind>\n";
}

QByteArray calendarEnumerationBody()
{
    return root("d:propfind", calDavNs() + calendarServerNs() + appleICalNs())
        + "  <d:prop>\n"
          "    <d:resourcetype/>\n"
          "    <d:displayname/>\n"
          "    <c:calendar-description/>\n"
          "    <c:supported-calendar-component-set/>\n"
          "    <c:calendar-timezone/>\n"
          "    <ic:calendar-color/>\n"
          "    <cs:getctag/>\n"
          "    <d:sync-token/>\n"
          "    <d:current-user-privilege-set/>\n"
          "  </d:prop>\n"
          "</d:propfind>\n";
}

QByteArray ctagBody()
{
    return root("d:propfind", calendarServerNs())
        + "  <d:prop>\n"
          "    <cs:getctag/>\n"
          "    <d:sync-token/>\n"
          "  </d:prop>\n"
          "</d:propfind>\n";
}

QByteArray calendarQueryBody(const QDateTime &start, const QDateTime &end, const QString &component)
{
    return root("c:calendar-query", calDavNs())
        + "  <d:prop>\n"
          "    <d:getetag/>\n"
          "    <c:calendar-data/>\n"
          "  </d:prop>\n"
          "  <c:filter>\n"
          "    <c:comp-filter name=\"VCALENDAR\">\n"
          "      <c:comp-filter name=\""
        + component.toUtf8() + "\">\n" + timeRangeLine(start, end)
        + "      </c:comp-filter>\n"
          "    </c:comp-filter>\n"
          "  </c:filter>\n"
          "</c:calendar-query>\n";
}

QByteArray calendarMultigetBody(const QList<QString> &hrefs)
{
    QByteArray body = root("c:calendar-multiget", calDavNs())
        + "  <d:prop>\n"
          "    <d:getetag/>\n"
          "    <c:calendar-data/>\n"
          "  </d:prop>\n";
    for (const QString &href : hrefs) {
        body += "  <d:href>";
        body += href.toUtf8();
        body += "</d:href>\n";
    }
    body += "</c:calendar-multiget>\n";
    return body;
}

QByteArray mkcalendarBody(const QString &displayName, const QString &color, const QString &description)
{
    return root("c:mkcalendar", calDavNs() + appleICalNs())
        + "  <d:set>\n"
          "    <d:prop>\n"
        + displayNameLine(displayName) + descriptionLine(description)
        + "      <c:supported-calendar-component-set>\n"
          "        <c:comp name=\"VEVENT\"/>\n"
          "        <c:comp name=\"VTODO\"/>\n"
          "      </c:supported-calendar-component-set>\n"
        + colorLine(color)
        + "    </d:prop>\n"
          "  </d:set>\n"
          "</c:mkcalendar>\n";
}

QByteArray calendarPropPatchBody(const QString &displayName, const QString &color, const QString &description)
{
    return root("d:propertyupdate", calDavNs() + appleICalNs())
        + "  <d:set>\n"
          "    <d:prop>\n"
        + (displayName.isEmpty() ? QByteArray() : displayNameLine(displayName)) + colorLine(color)
        + descriptionLine(description)
        + "    </d:prop>\n"
          "  </d:set>\n"
          "</d:propertyupdate>\n";
}

} // namespace CalDavXml
