#include "ui/PlainKeyGuard.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

PlainKeyGuard::PlainKeyGuard(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool PlainKeyGuard::isPlainKey(const QKeyEvent &event)
{
    constexpr Qt::KeyboardModifiers Typing = Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
    if ((event.modifiers() & ~Typing) != Qt::NoModifier)
        return false;
    // Not by the key: on a Cyrillic layout the key that types "о" also stands for the shortcut J.
    const QList<uint> typed = event.text().toUcs4();
    return !typed.isEmpty() && QChar::isPrint(typed.first());
}

bool PlainKeyGuard::keepsPlainKeys(const QWidget *widget)
{
    if (QApplication::activePopupWidget())
        return true;
    return qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget)
        || qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget)
        || qobject_cast<const QMenuBar *>(widget);
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
