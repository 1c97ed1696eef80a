#pragma once

#include "models/Event.h"
#include "ui/actions/DetailsPopover.h"

class AppState;

/// Tells of an event, or of one occurrence of a series.
class EventDetailsPopover : public DetailsPopover {
    Q_OBJECT

public:
    /// \p shown as EventEdits::shownAt() gives it.
    EventDetailsPopover(AppState *state, const Event &shown, QWidget *anchor);

    [[nodiscard]] const Event &shownEvent() const { return m_event; }

signals:
    void editRequested(const Event &shown);
    void deleteRequested(const Event &shown);
    void taskRequested(const QString &uid); ///< the linked task

private:
    AppState *m_state;
    Event m_event;
};
