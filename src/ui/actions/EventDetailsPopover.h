#pragma once

#include "models/Event.h"
#include "ui/actions/DetailsPopover.h"

class AppState;

/// Tells of an event, or of one occurrence of a series. Follows the stored row while it is on show.
class EventDetailsPopover : public DetailsPopover {
    Q_OBJECT

public:
    /// \p shown as EventEdits::shownAt() gives it.
    EventDetailsPopover(AppState *state, const Event &shown, QWidget *anchor);

    [[nodiscard]] const Event &shownEvent() const { return m_event; }

signals:
    void editRequested();
    void deleteRequested();
    void taskRequested(const QString &uid); ///< the linked task

private:
    void populate();
    void addPlace();
    void addPeople();
    void addLinkedTask();
    void addActions();
    void onEventsChanged();

    AppState *m_state;
    Event m_event;
    Event m_stored;
};
