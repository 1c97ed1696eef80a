#pragma once

#include "support/HttpServer.h"

#include <QMap>
#include <QObject>
#include <QUrl>

#include <functional>
#include <optional>

/// A CalDAV server inside the test's event loop, with one calendar of events and tasks, that fails on demand.
/// It checks If-Match, gives etags, and knows one principal with one home.
class FakeCalDav {
public:
    struct Object {
        QByteArray text;
        int version = 1;
    };
    /// What happens instead of a proper answer.
    struct Fault {
        enum Kind {
            Status, ///< refused, with \p status
            CutBody, ///< the answer ends in the middle
            TruncatedXml, ///< a whole answer, but half of the body
            ForeignXml, ///< a page of somebody else
            Silence, ///< no answer, and nothing done
            SilenceAfter, ///< ... but done
            DropBefore, ///< the connection goes before the request was acted on
            DropAfter, ///< ... and after
        };
        Kind kind = Status;
        int status = 500;
    };

    FakeCalDav();

    [[nodiscard]] HttpServer &http() { return m_http; }
    [[nodiscard]] QUrl url(const QString &path = QStringLiteral("/")) const { return m_http.url(path); }
    [[nodiscard]] QString calendarUrl() const { return m_http.url(QString::fromLatin1(CalendarPath)).toString(); }

    /// Another device's doing. \p name as in "standup.ics".
    void store(const QByteArray &name, const QByteArray &text);
    void remove(const QByteArray &name) { m_objects.remove(name); }
    [[nodiscard]] QByteArray text(const QByteArray &name) const { return m_objects.value(name).text; }
    [[nodiscard]] const QMap<QByteArray, Object> &objects() const { return m_objects; }

    /// The request number \p index from now on (0 is the next one) fails.
    void fail(int index, Fault fault);
    /// Runs \p act when \p method is asked for the next time, before the answer.
    void whenAsked(const QByteArray &method, std::function<void()> act) { m_hooks.insert(method, std::move(act)); }
    [[nodiscard]] int requestCount() const { return int(m_http.requests().size()); }
    /// How often \p method was asked for, such as "PUT".
    [[nodiscard]] int count(const QByteArray &method) const;

    bool givesTexts = true; ///< a listing has calendar-data
    bool givesEtagOnPut = true;
    bool takesTasks = true;
    bool refusesSameUid = true; ///< 409 for another resource with a UID that is there

    static constexpr char CalendarPath[] = "/alice/work/";

private:
    HttpServer::Reply answer(const HttpServer::Request &request);
    HttpServer::Reply act(const HttpServer::Request &request);
    HttpServer::Reply propfind(const HttpServer::Request &request) const;
    HttpServer::Reply report(const HttpServer::Request &request) const;
    HttpServer::Reply put(const HttpServer::Request &request, const QByteArray &name);
    HttpServer::Reply del(const HttpServer::Request &request, const QByteArray &name);
    [[nodiscard]] bool matches(const HttpServer::Request &request, const QByteArray &name) const;
    [[nodiscard]] QByteArray listed(const QByteArray &name, bool withText) const;
    [[nodiscard]] QByteArray ctag() const { return QByteArray::number(m_changes); }

    HttpServer m_http;
    QMap<QByteArray, Object> m_objects; // by decoded name
    int m_changes = 1;
    std::optional<Fault> m_fault;
    int m_faultAt = -1;
    QMap<QByteArray, std::function<void()>> m_hooks;
};
