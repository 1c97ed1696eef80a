#pragma once

#include "caldav/CalDavClient.h"
#include "caldav/CalendarPull.h"
#include "models/Calendar.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class AppState;
class CalDavSession;
class CalendarPush;
class PendingResource;
class SyncTable;

/// One calendar, once: events down and up, then tasks down and up, one request at a time. Pulling goes first, so that
/// what is pushed is written over the server's latest copy. Ends in exactly one of completed() and failed().
class CalDavSyncRun : public QObject {
    Q_OBJECT

public:
    CalDavSyncRun(AppState *state, const Calendar &calendar, QObject *parent);
    ~CalDavSyncRun() override;

    void setCredentials(const QString &username, const QString &password, const QString &trustedCertSha256);
    void start();

    [[nodiscard]] const QString &calendarId() const { return m_calendar.id; }

signals:
    void progressed(int count);
    void completed(int count); ///< also when the calendar was removed meanwhile
    void failed(const QString &message);
    void taskRejected(const QString &message); ///< a notice; the run goes on

private:
    void onCtag(const CalDavClient::Response &response);
    void runPull();
    void onEventsRefused(const QString &error, int status);
    void onEventsPulled();
    void saveCalendar(bool hasChanged);
    void runPush();
    void onEventsPushed();
    void runTaskPull();
    void onTasksRefused(const QString &error, int status);
    void onTasksPulled();
    void runTaskPush();
    void onTasksPushed();
    [[nodiscard]] QStringList ownAddresses() const;
    bool rejectTask(const PendingResource &resource, int status);
    [[nodiscard]] std::optional<Calendar> homeForTasks() const;

    void startPush(SyncTable *table, bool isForTasks, void (CalDavSyncRun::*next)());
    void noteFailure(const QString &message);
    void end();
    void fail(const QString &message);

    AppState *m_state;
    Calendar m_calendar;
    CalDavSession *m_session;
    std::unique_ptr<SyncTable> m_events;
    std::unique_ptr<SyncTable> m_tasks;
    CalendarPull *m_pull = nullptr; // of the step that is at work
    CalendarPush *m_push = nullptr;
    CalendarPull::Listing m_listing;
    QString m_newCtag;
    int m_count = 0;
    bool m_hasEnded = false;
    QString m_firstFailure; // of a run that goes on all the same
};
