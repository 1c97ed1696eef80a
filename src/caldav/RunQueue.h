#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class AppState;
class CalDavSyncRun;

/// Keeps runs of one calendar apart: two at a time would push the same rows twice. Those of different calendars go
/// side by side.
class RunQueue : public QObject {
    Q_OBJECT

public:
    /// The one of this state; it lives as long.
    static RunQueue *of(AppState *state);

    /// At once, or when the runs of its calendar that came before have ended or are gone.
    void start(CalDavSyncRun *run);

    /// True if a run of the calendar has not begun yet: it will see all there is to see by then.
    [[nodiscard]] bool hasWaiting(const QString &calendarId) const;

private:
    explicit RunQueue(QObject *parent);
    void onEnded(const QString &calendarId);

    struct Line {
        bool isBusy = false;
        QList<QPointer<CalDavSyncRun>> waiting;
    };
    void startNow(CalDavSyncRun *run);

    QHash<QString, Line> m_lines; // by calendar
};
