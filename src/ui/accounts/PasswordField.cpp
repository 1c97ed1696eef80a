#include "ui/accounts/PasswordField.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

PasswordField::PasswordField(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit)
{
    m_edit->setEchoMode(QLineEdit::Password);
    auto *show = new QToolButton;
    show->setText(tr("Show"));
    show->setAccessibleName(tr("Show the password"));
    show->setCheckable(true);
    show->setFocusPolicy(Qt::TabFocus);
    connect(show, &QToolButton::toggled, this,
            [this](bool isShown) { m_edit->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password); });
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(m_edit, 1);
    row->addWidget(show);
    setFocusProxy(m_edit);
    setFocusPolicy(m_edit->focusPolicy()); // else the mnemonic of its label does nothing
}

QString PasswordField::text() const
{
    return m_edit->text();
}
