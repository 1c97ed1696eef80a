#pragma once

#include "models/ViewDef.h"
#include "ui/dialogs/FormDialog.h"

class AppState;
class CalendarChecklist;
class ColorButton;
class QLineEdit;

/// Creates and edits a calendar group.
class ViewFormDialog : public FormDialog {
    Q_OBJECT

public:
    explicit ViewFormDialog(AppState *state, QWidget *parent = nullptr);
    ViewFormDialog(AppState *state, const ViewDef &view, QWidget *parent = nullptr);

    [[nodiscard]] QString resultViewId() const { return m_resultId; } ///< of the group that was stored

protected:
    bool save() override;

private:
    void build();

    AppState *m_state;
    ViewDef m_original;
    bool m_editing = false;
    QString m_resultId;
    QLineEdit *m_name = nullptr;
    ColorButton *m_color = nullptr;
    CalendarChecklist *m_calendars = nullptr;
};
