#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QIcon>
#include <QList>
#include <QString>
#include <QStringList>

class QListWidget;
class QListWidgetItem;

/// A list that the user adds to, edits, deletes from and puts in order, by buttons and by dragging.
class OrderedListDialog : public FormDialog {
    Q_OBJECT

public:
    struct Row {
        QString id;
        QString title;
        QString detail; ///< second line, muted
        QIcon icon;
        bool checkable = false;
        bool checked = false;
        bool pinned = false; ///< stays on top and cannot be deleted
    };

protected:
    OrderedListDialog(const QString &title, const QString &emptyText, QWidget *parent);

    virtual QList<Row> rows() = 0;
    virtual void addRow() = 0;
    virtual void editRow(const QString &id) = 0;
    virtual void deleteRow(const QString &id) = 0;
    virtual void setRowChecked(const QString &id, bool checked);
    virtual void reorder(const QStringList &ids) = 0;

    void refill(); ///< keeps the selection

private:
    void buildButtons(class QVBoxLayout *column);
    void fillList(const QList<Row> &rows, const QString &selectedId);
    void moveRow(int delta);
    void storeOrder();
    void updateButtons();
    [[nodiscard]] QString currentId() const;
    [[nodiscard]] QStringList ids() const;

    QListWidget *m_list;
    QLabel *m_empty;
    QPushButton *m_add = nullptr;
    QPushButton *m_edit = nullptr;
    QPushButton *m_delete = nullptr;
    QPushButton *m_up = nullptr;
    QPushButton *m_down = nullptr;
    bool m_filling = false;
};
