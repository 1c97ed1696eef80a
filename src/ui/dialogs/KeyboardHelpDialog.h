#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QKeySequence>
#include <QList>
#include <QString>

class QTreeWidget;

struct ShortcutInfo {
    QString group;
    QString label;
    QList<QKeySequence> keys; ///< alternatives
};

/// Every shortcut by group, with a search field.
class KeyboardHelpDialog : public FormDialog {
    Q_OBJECT

public:
    explicit KeyboardHelpDialog(const QList<ShortcutInfo> &shortcuts, QWidget *parent = nullptr);

private:
    void fill(const QList<ShortcutInfo> &shortcuts);
    void applyFilter(const QString &text);

    QTreeWidget *m_table;
    QLabel *m_empty;
};
