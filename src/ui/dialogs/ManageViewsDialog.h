#pragma once

#include "ui/dialogs/OrderedListDialog.h"

class AppState;
struct ViewDef;

/// All calendar groups, in the order of the group menu.
class ManageViewsDialog : public OrderedListDialog {
    Q_OBJECT

public:
    explicit ManageViewsDialog(AppState *state, QWidget *parent = nullptr);

    /// Asks, deletes, and falls back to the built-in group if the deleted one was active.
    static void askToDelete(AppState *state, const ViewDef &view, QWidget *parent);

protected:
    QList<Row> rows() override;
    void addRow() override;
    void editRow(const QString &id) override;
    void deleteRow(const QString &id) override;
    void reorder(const QStringList &ids) override;

private:
    AppState *m_state;
};
