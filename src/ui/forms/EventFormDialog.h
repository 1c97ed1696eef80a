#pragma once

#include "models/Event.h"
#include "ui/dialogs/FormDialog.h"

#include <QDateTime>
#include <QString>

class AppState;

/// Creates and edits an event. Works on a copy and writes once, when it is accepted. An event of a read-only
/// calendar opens for reading only.
class EventFormDialog : public FormDialog {
    Q_OBJECT

public:
    EventFormDialog(AppState *state, QWidget *parent);
    /// \p shown is the stored event, or EventEdits::shownAt() of one occurrence.
    EventFormDialog(AppState *state, const Event &shown, QWidget *parent);

    void setInitialStart(const QDateTime &start, int minutes); ///< local
    /// Fills a new event's form from \p draft, which is not stored yet: a task dropped on the calendar.
    void setDraft(const Event &draft);

    [[nodiscard]] QString eventId() const { return m_eventId; } ///< of the row written

protected:
    bool save() override;

private:
    QString m_eventId;
};
