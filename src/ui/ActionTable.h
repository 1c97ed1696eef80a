#pragma once

#include "ui/dialogs/KeyboardHelpDialog.h"

#include <QAction>
#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

/// Every command of the window, each once: menus, shortcuts and the keyboard help all read from here.
class ActionTable : public QObject {
    Q_OBJECT

public:
    struct Row {
        QString id{}; ///< for action()
        QString group{}; ///< heading in the keyboard help
        QString text{}; ///< as a menu shows it
        QString helpText{}; ///< as the keyboard help shows it; empty: the text
        QList<QKeySequence> keys{}; ///< alternatives; a key that an earlier row has is left out
        std::function<void()> run{};
        bool needsCalendar = false; ///< disabled while there is no calendar
        bool checkable = false;
        QAction::MenuRole role = QAction::NoRole;
    };

    /// The actions work in \p window and belong to it.
    explicit ActionTable(QWidget *window);

    QAction *add(const Row &row);
    [[nodiscard]] QAction *action(const QString &id) const; ///< null for an id that has no row
    [[nodiscard]] QList<QAction *> actions() const { return m_order; }
    void setCalendarsExist(bool exist);

    /// Rows with keys, in the order of their groups' first rows.
    [[nodiscard]] QList<ShortcutInfo> shortcuts() const;

    /// The platform's keys for \p standard, or \p fallback where it has none.
    static QList<QKeySequence> keysFor(QKeySequence::StandardKey standard, const QKeySequence &fallback);

private:
    QWidget *m_window;
    QList<QAction *> m_order;
    QList<QAction *> m_needCalendar;
    QHash<QString, QAction *> m_byId;
    QHash<QAction *, QString> m_groups;
    QHash<QAction *, QString> m_helpTexts;
    QList<QKeySequence> m_takenKeys;
};
