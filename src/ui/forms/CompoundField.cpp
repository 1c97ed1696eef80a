#include "ui/forms/CompoundField.h"

#include <QToolButton>

void setFirstControl(QWidget *field, QWidget *first)
{
    field->setFocusPolicy(first->focusPolicy());
    field->setFocusProxy(first);
}

QToolButton *makeRemoveButton(const QString &name)
{
    constexpr int SizePx = 24;
    auto *button = new QToolButton;
    button->setText(QStringLiteral("×"));
    button->setAutoRaise(true);
    button->setMinimumSize(SizePx, SizePx);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}
