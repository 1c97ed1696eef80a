#pragma once

#include "calendar/services/EventEdits.h"
#include "models/Event.h"
#include "models/FilterRule.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

class AppState;
class QWidget;
class TaskActions;
struct WallClockShift;

/// What a person can do with an event, whichever surface it is on: open, edit, create, move, stretch, delete,
/// the context menu. One for each window. Dialogs open from the event loop, never inside a mouse or drop handler.
class EventActions : public QObject {
    Q_OBJECT

public:
    EventActions(AppState *state, QWidget *window);
    void setTaskActions(TaskActions *tasks) { m_tasks = tasks; } ///< for linked tasks

    /// Selects the occurrence and shows its details beside \p globalRect, or in the middle.
    void open(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect);
    void edit(const QString &id, const QDateTime &occurrenceStart = {});
    void create(const QDateTime &start, int minutes); ///< local; the form opens
    void createAllDay(QDate first, int days);
    void createFrom(const Event &draft); ///< not stored yet
    void createNow(); ///< the form with its own defaults
    void move(const QString &id, const QDateTime &occurrenceStart, int days, int minutes);
    void resize(const QString &id, const QDateTime &occurrenceStart, int minutes);
    void remove(const QString &id); ///< asks first
    void showContextMenu(const Event &shown, const QPoint &globalPos);

signals:
    void message(const QString &text); ///< for the status bar
    void filterEditRequested(const FilterRule &rule);
    void filterFromEventRequested(const Event &event);

private:
    /// Asks for the scope where it matters. Afterwards what \p shift made of the occurrence is selected.
    void changeTimes(const QString &id, const QDateTime &occurrenceStart, const WallClockShift &shift,
                     std::function<EventEdits::Outcome(EventEdits::Scope)> write);
    void onTimesChanged(const EventEdits::Outcome &outcome, const QDateTime &newStart);
    void report(const EventEdits::Outcome &outcome);

    AppState *m_state;
    QWidget *m_window;
    TaskActions *m_tasks = nullptr;
};
