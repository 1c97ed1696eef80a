#include "ui/dialogs/ChoiceDialog.h"

#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

ChoiceDialog::ChoiceDialog(const QString &title, const QString &heading, const QString &text,
                           const QList<Prompt::Choice> &choices, QWidget *parent)
    : FormDialog(title, parent)
    , m_group(new QButtonGroup(this))
{
    auto *head = new QLabel(PlainText::breakLongWords(heading));
    head->setTextFormat(Qt::PlainText);
    head->setWordWrap(true);
    head->setFont(Theme::headingFont(head->font()));
    body()->addWidget(head);
    auto *prompt = new QLabel(text);
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    body()->addWidget(prompt);
    for (const Prompt::Choice &choice : choices) {
        auto *button = new QRadioButton(choice.text);
        button->setAccessibleDescription(choice.explanation);
        m_group->addButton(button, int(m_group->buttons().size()));
        auto *hint = makeHint(choice.explanation);
        const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, button)
            + style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, button);
        hint->setContentsMargins(indicator, 0, 0, 0);
        auto *pair = new QVBoxLayout;
        pair->setSpacing(2);
        pair->addWidget(button);
        pair->addWidget(hint);
        body()->addLayout(pair);
    }
    m_group->button(0)->setChecked(true);
    m_group->button(0)->setFocus();
    body()->addStretch();
    addSaveButtons(tr("Apply"));
}

int ChoiceDialog::chosen() const
{
    return m_group->checkedId();
}
