#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

/// Keeps keys without a modifier from the window's shortcuts while the widget with the focus has a use of
/// its own for them: text fields, the search by first letters in lists, trees and combo boxes, menus and
/// the menu bar.
class PlainKeyGuard : public QObject {
    Q_OBJECT

public:
    /// Watches the whole application for the life of the guard.
    explicit PlainKeyGuard(QObject *parent = nullptr);

    /// True for a key that types something, in any alphabet: no Control, Alt or Meta.
    static bool isPlainKey(const QKeyEvent &event);
    static bool keepsPlainKeys(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
