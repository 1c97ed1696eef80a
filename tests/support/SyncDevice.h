#pragma once

#include "caldav/CalDavSyncClient.h"
#include "models/Task.h"
#include "support/ScratchState.h"

#include <QString>

#include <functional>

/// One of the user's devices: a database with an account and a calendar of a CalDAV server, and syncs on demand.
class SyncDevice {
public:
    explicit SyncDevice(const QString &calendarUrl, const QString &username = QStringLiteral("alice"),
                        const QString &password = QStringLiteral("secret"));

    ScratchState &state() { return m_state; }
    [[nodiscard]] QString calendarId() const { return m_calendarId; }
    void setTrustedCert(const QString &sha256) { m_trustedCert = sha256; }

    /// Runs until the end; what went wrong, or an empty text.
    QString sync();
    [[nodiscard]] int lastCount() const { return m_lastCount; } ///< of the last good run

    Event event(const QString &uid, const QString &recurrenceId = {}); ///< fails hard if there is none
    Task task(const QString &uid);
    bool hasEvent(const QString &uid);
    bool hasTask(const QString &uid);
    /// What an edit does: the row as it is, changed, waiting to be pushed.
    void edit(const QString &uid, const std::function<void(Event &)> &change, const QString &recurrenceId = {});
    void editTask(const QString &uid, const std::function<void(Task &)> &change);
    void addEvent(const QString &uid, const QString &title, const QDateTime &start);
    void addTask(const QString &uid, const QString &title);
    void removeEvent(const QString &uid, const QString &recurrenceId = {});
    void removeTask(const QString &uid);

    /// How many rows the database has written since it was opened.
    int writes();
    int pendingCount();

private:
    ScratchState m_state;
    QString m_calendarId;
    QString m_username;
    QString m_password;
    QString m_trustedCert;
    int m_lastCount = -1;
};
