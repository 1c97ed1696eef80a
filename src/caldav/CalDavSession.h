#pragma once

#include "caldav/CalDavClient.h"
#include "models/Calendar.h"

#include <QObject>
#include <QUrl>

class AppState;
class SilenceGuard;

/// What every step of a sync run stands on: the connection, the watch over its silence, and whether the calendar is
/// still there to be synced. One request at a time.
class CalDavSession : public QObject {
    Q_OBJECT

public:
    CalDavSession(AppState *state, const Calendar &calendar, QObject *parent);

    [[nodiscard]] AppState *state() const { return m_state; }
    [[nodiscard]] CalDavClient *client() const { return m_client; }
    [[nodiscard]] const QString &calendarId() const { return m_calendarId; }
    [[nodiscard]] const QString &calendarName() const { return m_calendarName; }
    [[nodiscard]] const QUrl &calendarUrl() const { return m_calendarUrl; }

    /// False once the calendar or its account was removed or disabled: then nothing more may be written.
    [[nodiscard]] bool isLive() const;

    /// The continuation to hand to the client. A server that stays silent, \p firstByteMs at first, gives \p next
    /// a response with an error; when the calendar has gone, \p next is not called and abandoned() is emitted. For an
    /// account that goes this happens at once.
    CalDavClient::Callback watched(int firstByteMs, CalDavClient::Callback next);

signals:
    void abandoned();

private:
    AppState *m_state;
    QString m_calendarId;
    QString m_calendarName;
    QString m_accountId;
    QUrl m_calendarUrl;
    CalDavClient *m_client;
    SilenceGuard *m_guard;
};
