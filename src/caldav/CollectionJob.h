#pragma once

#include "caldav/CalDavClient.h"
#include "models/Account.h"
#include "models/Calendar.h"

#include <QObject>
#include <QUrl>

class AppState;
class SilenceGuard;

/// Makes or changes one calendar of a CalDAV account: on the server first, and in the table once the server has
/// agreed. One object for each job; it ends in exactly one of succeeded(), tasksRefused() and failed(), never before
/// the starting call has returned. Deleting it ends the job quietly; what the server has been asked for by then may
/// still happen, and the next discovery finds it.
class CollectionJob : public QObject {
    Q_OBJECT

public:
    /// \p account as stored, with what is trusted of its server.
    CollectionJob(AppState *state, const Account &account, const QString &password, QObject *parent = nullptr);
    ~CollectionJob() override;

    /// A new collection for events and tasks, with name and colour of \p wanted, whose description stays here.
    /// RFC 4791 §5.3.1; looks at it afterwards, as there are servers that agree and create nothing.
    void create(const Calendar &wanted);
    /// Takes over what \p wanted says of name, colour, description and allowTasksOverride. Before tasks are allowed
    /// on a calendar whose server does not list them, one is put there and taken away again.
    void edit(const Calendar &wanted);
    /// False if edit() would change this device alone.
    static bool needsServer(const Calendar &stored, const Calendar &wanted);

    /// The address for a new collection of the account: its home set, or else beside its calendars, or else its server.
    static QUrl newUrl(AppState *state, const Account &account);

signals:
    void progressed(const QString &text); ///< for the user
    void succeeded(const QString &calendarId);
    void tasksRefused(const QString &message); ///< the server did not take one; nothing was changed
    void failed(const QString &message); ///< for the user

private:
    using Response = CalDavClient::Response;
    using Handler = void (CollectionJob::*)(const Response &response);

    void onCreated(const Response &response);
    void onVerified(const Response &response);
    void storeNew();
    void probeTasks();
    void onProbed(const Response &response);
    void patch();
    void onPatched(const Response &response);
    void storeEdit();
    void removeProbe();
    [[nodiscard]] CalDavClient *makeClient(QObject *parent) const;
    [[nodiscard]] CalDavClient::Callback step(Handler onReply);
    void failLater(const QString &message);

    AppState *m_state;
    Account m_account;
    QString m_password;
    CalDavClient *m_client;
    SilenceGuard *m_guard;
    Calendar m_before; // as stored when the job began
    Calendar m_wanted;
    QUrl m_url;
    QUrl m_probeUrl; // while a probe may be on the server
};
