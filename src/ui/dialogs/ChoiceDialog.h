#pragma once

#include "ui/dialogs/FormDialog.h"
#include "ui/dialogs/Prompt.h"

class QButtonGroup;

/// One of several choices, each with a line that explains it. See Prompt::choose().
class ChoiceDialog : public FormDialog {
    Q_OBJECT

public:
    /// All texts are plain.
    ChoiceDialog(const QString &title, const QString &heading, const QString &text,
                 const QList<Prompt::Choice> &choices, QWidget *parent);

    [[nodiscard]] int chosen() const;

private:
    QButtonGroup *m_group;
};
