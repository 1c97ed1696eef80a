#pragma once

#include "ui/dialogs/OrderedListDialog.h"

class AppState;

/// All filter rules: which are on, and which comes first.
class ManageFiltersDialog : public OrderedListDialog {
    Q_OBJECT

public:
    explicit ManageFiltersDialog(AppState *state, QWidget *parent = nullptr);

protected:
    QList<Row> rows() override;
    void addRow() override;
    void editRow(const QString &id) override;
    void deleteRow(const QString &id) override;
    void setRowChecked(const QString &id, bool checked) override;
    void reorder(const QStringList &ids) override;

private:
    AppState *m_state;
};
