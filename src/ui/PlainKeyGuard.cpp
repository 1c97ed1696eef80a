#include "ui/PlainKeyGuard.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

PlainKeyGuard::PlainKeyGuard(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool PlainKeyGuard::isPlainKey(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers others = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return others == Qt::NoModifier && event.key() >= Qt::Key_Space && event.key() <= Qt::Key_ydiaeresis;
}

bool PlainKeyGuard::keepsPlainKeys(const QWidget *widget)
{
    if (QApplication::activePopupWidget())
        return true;
    return qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget)
        || qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

bool PlainKeyGuard::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    auto *key = static_cast<QKeyEvent *>(event);
    if (!isPlainKey(*key) || !keepsPlainKeys(QApplication::focusWidget()))
        return false;
    key->accept(); // an accepted override reaches the widget as an ordinary key press
    return true;
}
