#pragma once

#include "ui/dialogs/OrderedListDialog.h"

class AppState;

/// The event templates: add, edit, delete, order.
class ManageTemplatesDialog : public OrderedListDialog {
    Q_OBJECT

public:
    explicit ManageTemplatesDialog(AppState *state, QWidget *parent);

protected:
    QList<Row> rows() override;
    void addRow() override;
    void editRow(const QString &id) override;
    void deleteRow(const QString &id) override;
    void reorder(const QStringList &ids) override;

private:
    AppState *m_state;
};
