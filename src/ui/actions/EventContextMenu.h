#pragma once

#include "models/Event.h"
#include "models/FilterRule.h"

#include <QMenu>

class AppState;

/// What can be done with an event of a surface. Shown with popup(); deletes itself when it closes.
class EventContextMenu : public QMenu {
    Q_OBJECT

public:
    /// \p event is the instance on show, so that rules about weekdays and times are judged by it.
    EventContextMenu(AppState *state, const Event &event, QWidget *parent);

    void setDeletable(bool deletable);

signals:
    void editRequested();
    void deleteRequested();
    void filterEditRequested(const FilterRule &rule);
    void filterFromEventRequested(const Event &event);

private:
    QAction *m_delete;
};
