#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class AppState;

/// Makes the next sync of some calendars read every row anew. In slices of the event loop, as it writes all of their
/// rows.
class EtagClearing : public QObject {
    Q_OBJECT

public:
    EtagClearing(AppState *state, const QStringList &calendarIds, QObject *parent);

    void start() { m_slices.start(); }

signals:
    void finished();

private:
    void runSlice();

    AppState *m_state;
    QStringList m_calendarIds; // still to do; the first is at work
    bool m_isAtTasks = false; // its events are done
    qint64 m_rowid = 0; // of its rows, all up to this one are done
    QTimer m_slices;
};
