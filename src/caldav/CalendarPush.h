#pragma once

#include "caldav/CalDavClient.h"
#include "caldav/CalendarPull.h"
#include "caldav/SyncTable.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class CalDavSession;

/// The pending rows of one kind, taken to the server resource by resource. A resource that the server refuses is
/// passed over and stays pending. Ends with finished(), or with failed() if the connection is gone.
class CalendarPush : public QObject {
    Q_OBJECT

public:
    /// What an answer may mean beside the usual.
    struct Policy {
        bool isForTasks = false; ///< they overwrite the server's copy on 412, once
        /// True if it dealt with a refusal: the resource is done with.
        std::function<bool(const PendingResource &resource, int status)> onRefusal;
        std::function<QString(const QString &error)> networkMessage;
        std::function<QString(int status, const QString &title)> statusMessage;
    };

    CalendarPush(CalDavSession *session, SyncTable *table, CalendarPull::Listing listing,
                 const QStringList &ownAddresses, Policy policy, QObject *parent);

    void start();

    [[nodiscard]] QString firstRefusal() const { return m_firstRefusal; } ///< for the user; empty if there was none

signals:
    void finished();
    void failed(const QString &message);

private:
    enum class Kind { Create, Update, Delete };

    void pushNext();
    [[nodiscard]] std::unique_ptr<PendingResource> openNext();
    void pushNextSoon();
    void logQueue() const;
    void logCurrent() const;
    void logAnswer(const CalDavClient::Response &response) const;
    [[nodiscard]] const char *kindName() const;
    void prepare();
    void fetchText();
    void onText(const CalDavClient::Response &response);
    void onLost(int status);
    void send(const CalDavParse::EventResource &newest);
    void sendText(const std::optional<QString> &etag);
    void sendDeletion(const std::optional<QString> &etag);
    void onAnswer(const CalDavClient::Response &response);
    void lookAgain(int status);
    void onLookedAgain(int status, const CalDavClient::Response &response);
    [[nodiscard]] bool isStored(const CalDavClient::Response &response) const;
    void onAccepted();
    void refuse(int status);
    [[nodiscard]] QUrl resourceUrl() const;
    [[nodiscard]] CalDavClient::Callback answered();

    CalDavSession *m_session;
    SyncTable *m_table;
    CalendarPull::Listing m_listing; // of this run
    QStringList m_ownAddresses;
    Policy m_policy;
    QList<PendingRow> m_queue; // one of each resource
    QSet<std::pair<QString, QString>> m_seen; // their UIDs and addresses
    qint64 m_lastRowid = -1;
    std::unique_ptr<PendingResource> m_current;
    Kind m_kind = Kind::Update;
    QString m_href; // where the current resource goes
    QString m_etag; // of the text under the current one
    QByteArray m_textBeneath; // the server's copy
    QByteArray m_body;
    QString m_newEtag; // what the answer gave
    bool m_hasRetried = false;
    QString m_firstRefusal;
};
