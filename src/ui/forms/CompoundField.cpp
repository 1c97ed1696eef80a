#include "ui/forms/CompoundField.h"

#include <QToolButton>

void setFirstControl(QWidget *field, QWidget *first)
{
    field->setFocusPolicy(first->focusPolicy());
    field->setFocusProxy(first);
}

void setTabStopsBefore(QWidget *next, const QList<QWidget *> &controls)
{
    QWidget *before = next->previousInFocusChain();
    // Qt puts nothing behind what takes no focus, and a compound field stands for its first control.
    while (!before->isWindow() && (before->focusPolicy() == Qt::NoFocus || before->isAncestorOf(next)))
        before = before->previousInFocusChain();
    for (QWidget *control : controls) {
        QWidget::setTabOrder(before, control);
        before = control;
    }
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
