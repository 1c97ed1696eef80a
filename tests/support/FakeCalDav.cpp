#include "support/FakeCalDav.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr char Home[] = "/alice/";

QByteArray multistatus(const QByteArray &responses)
{
    return "<?xml version=\"1.0\"?>\n<D:multistatus xmlns:D=\"DAV:\" xmlns:C=\"urn:ietf:params:xml:ns:caldav\" "
           "xmlns:CS=\"http://calendarserver.org/ns/\">"
        + responses + "</D:multistatus>";
}

QByteArray response(const QByteArray &href, const QByteArray &properties)
{
    return "<D:response><D:href>" + href + "</D:href><D:propstat><D:prop>" + properties
        + "</D:prop><D:status>HTTP/1.1 200 OK</D:status></D:propstat></D:response>";
}

QByteArray xmlEscaped(QByteArray text)
{
    return text.replace('&', "&amp;").replace('<', "&lt;").replace('>', "&gt;");
}

QByteArray uidOf(const QByteArray &text)
{
    static const QRegularExpression uid(QStringLiteral("^UID:(.*?)\\r?$"), QRegularExpression::MultilineOption);
    return uid.match(QString::fromUtf8(text)).captured(1).toUtf8();
}

HttpServer::Reply status(int number)
{
    return { .status = number, .body = {}, .headers = {} };
}

}

FakeCalDav::FakeCalDav()
{
    m_http.setHandler([this](const HttpServer::Request &request) { return answer(request); });
}

void FakeCalDav::store(const QByteArray &name, const QByteArray &text)
{
    const auto found = m_objects.constFind(name);
    m_objects.insert(name, { .text = text, .version = found == m_objects.cend() ? ++m_changes : found->version + 1 });
    ++m_changes;
}

void FakeCalDav::fail(int index, Fault fault)
{
    m_fault = fault;
    m_faultAt = requestCount() + index;
}

int FakeCalDav::count(const QByteArray &method) const
{
    return int(std::ranges::count(m_http.requests(), method, &HttpServer::Request::method));
}

HttpServer::Reply FakeCalDav::answer(const HttpServer::Request &request)
{
    if (const auto act = m_hooks.take(request.method))
        act();
    if (!m_fault || requestCount() - 1 != m_faultAt)
        return act(request);
    const Fault fault = *m_fault;
    m_fault.reset();
    HttpServer::Reply reply;
    switch (fault.kind) {
    case Fault::Status:
        return status(fault.status);
    case Fault::CutBody:
        reply = act(request);
        reply.fault = HttpServer::Fault::Truncate;
        return reply;
    case Fault::TruncatedXml:
        reply = act(request);
        reply.body.truncate(reply.body.size() / 2);
        return reply;
    case Fault::ForeignXml:
        return { .status = 200, .body = "<html><body>Please sign in<br></body></html>", .headers = {} };
    case Fault::SilenceAfter:
        act(request);
        [[fallthrough]];
    case Fault::Silence:
        reply.fault = HttpServer::Fault::Hang;
        return reply;
    case Fault::DropAfter:
        act(request);
        [[fallthrough]];
    case Fault::DropBefore:
        reply.fault = HttpServer::Fault::Close;
        return reply;
    }
    return reply;
}

HttpServer::Reply FakeCalDav::act(const HttpServer::Request &request)
{
    const QByteArray path = QByteArray::fromPercentEncoding(request.target);
    const QByteArray collection = QByteArray(CalendarPath);
    if (request.method == "PROPFIND")
        return propfind(request);
    if (request.method == "REPORT")
        return report(request);
    if (!path.startsWith(collection))
        return status(404);
    const QByteArray name = path.mid(collection.size());
    if (request.method == "PUT")
        return put(request, name);
    if (request.method == "DELETE")
        return del(request, name);
    if (request.method == "GET" && m_objects.contains(name))
        return { .status = 200,
                 .body = m_objects.value(name).text,
                 .headers = { { "ETag", '"' + QByteArray::number(m_objects.value(name).version) + '"' } } };
    return status(404);
}

HttpServer::Reply FakeCalDav::propfind(const HttpServer::Request &request) const
{
    const QByteArray collection = QByteArray(CalendarPath);
    QByteArray body;
    if (request.body.contains("current-user-principal"))
        body =
            response(request.target, "<D:current-user-principal><D:href>/alice/</D:href></D:current-user-principal>");
    else if (request.body.contains("calendar-home-set"))
        body = response(Home, "<C:calendar-home-set><D:href>/alice/</D:href></C:calendar-home-set>");
    else
        body =
            response(collection,
                     "<D:resourcetype><D:collection/><C:calendar/></D:resourcetype><D:displayname>Work</D:displayname>"
                     "<CS:getctag>"
                         + ctag() + "</CS:getctag><C:supported-calendar-component-set><C:comp name=\"VEVENT\"/>"
                         + (takesTasks ? "<C:comp name=\"VTODO\"/>" : "") + "</C:supported-calendar-component-set>");
    return { .status = 207, .body = multistatus(body), .headers = {} };
}

HttpServer::Reply FakeCalDav::report(const HttpServer::Request &request) const
{
    const QByteArray collection = QByteArray(CalendarPath);
    QByteArray body;
    if (request.body.contains("calendar-multiget")) {
        static const QRegularExpression href(QStringLiteral("<d:href>(.*?)</d:href>"));
        for (auto it = href.globalMatch(QString::fromUtf8(request.body)); it.hasNext();) {
            const QByteArray path = QByteArray::fromPercentEncoding(it.next().captured(1).toUtf8());
            if (const QByteArray name = path.mid(collection.size()); m_objects.contains(name))
                body += listed(name, true);
        }
    } else {
        const QByteArray component = request.body.contains("\"VTODO\"") ? "BEGIN:VTODO" : "BEGIN:VEVENT";
        if (component == "BEGIN:VTODO" && !takesTasks)
            return status(403);
        for (auto object = m_objects.cbegin(); object != m_objects.cend(); ++object) {
            if (object->text.contains(component))
                body += listed(object.key(), givesTexts || component == "BEGIN:VTODO");
        }
    }
    return { .status = 207, .body = multistatus(body), .headers = {} };
}

QByteArray FakeCalDav::listed(const QByteArray &name, bool withText) const
{
    const Object object = m_objects.value(name);
    QByteArray properties = "<D:getetag>\"" + QByteArray::number(object.version) + "\"</D:getetag>";
    if (withText)
        properties += "<C:calendar-data>" + xmlEscaped(object.text) + "</C:calendar-data>";
    return response(QByteArray(CalendarPath) + name.toPercentEncoding("/:@"), properties);
}

bool FakeCalDav::matches(const HttpServer::Request &request, const QByteArray &name) const
{
    const QByteArray wanted = request.headers.value("if-match");
    return wanted.isEmpty()
        || (m_objects.contains(name) && wanted == '"' + QByteArray::number(m_objects.value(name).version) + '"');
}

HttpServer::Reply FakeCalDav::put(const HttpServer::Request &request, const QByteArray &name)
{
    if (!matches(request, name))
        return status(412);
    if (request.body.contains("BEGIN:VTODO") && !takesTasks)
        return status(403);
    if (!request.body.startsWith("BEGIN:VCALENDAR") || uidOf(request.body).isEmpty())
        return status(415);
    const bool isNew = !m_objects.contains(name);
    for (auto object = m_objects.cbegin(); refusesSameUid && object != m_objects.cend(); ++object) {
        if (object.key() != name && uidOf(object->text) == uidOf(request.body))
            return status(409);
    }
    store(name, request.body);
    HttpServer::Reply reply = status(isNew ? 201 : 204);
    if (givesEtagOnPut)
        reply.headers.append({ "ETag", '"' + QByteArray::number(m_objects.value(name).version) + '"' });
    return reply;
}

HttpServer::Reply FakeCalDav::del(const HttpServer::Request &request, const QByteArray &name)
{
    if (!m_objects.contains(name))
        return status(404);
    if (!matches(request, name))
        return status(412);
    m_objects.remove(name);
    ++m_changes;
    return status(204);
}
