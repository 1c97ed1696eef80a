#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QString>

class AppState;

/// One line of English with a live preview of what it would store.
class QuickAddDialog : public FormDialog {
    Q_OBJECT

public:
    explicit QuickAddDialog(AppState *state, QWidget *parent);

signals:
    void added(const QString &title); ///< stored

protected:
    bool save() override;
};
