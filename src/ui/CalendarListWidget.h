#pragma once

#include "models/Calendar.h"

#include <QHash>
#include <QTreeWidget>

class AppState;
class QTimer;

/// The calendars below their accounts. The check box, in the calendar's colour, shows or hides it; F2
/// renames in place; the context menu has the rest.
class CalendarListWidget : public QTreeWidget {
    Q_OBJECT

public:
    enum Role {
        CalendarIdRole = Qt::UserRole, ///< empty for an account
        ColorRole,
        ReadOnlyRole,
        DefaultRole, ///< where new events go
        OutsideGroupRole, ///< the active group leaves it out, whatever its check box says
    };

    explicit CalendarListWidget(AppState *state, QWidget *parent = nullptr);

    [[nodiscard]] QTreeWidgetItem *itemFor(const QString &calendarId) const; ///< null if it is not listed

    /// Name of the active group if it picks calendars of its own; empty while the check boxes decide.
    static QString decidingGroupName(AppState *state);

    void renameCalendar(const QString &calendarId); ///< opens the name for typing

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void connectSources();
    void refreshSoon();
    void refresh();
    void fill();
    QTreeWidgetItem *addAccount(const QString &name);
    void fillItem(QTreeWidgetItem *item, const Calendar &calendar, const QString &accountName);
    void rememberCollapsed();
    void onItemChanged(QTreeWidgetItem *item);
    void storeName(const QString &calendarId, const QString &name);

    AppState *m_state;
    QTimer *m_refreshTimer;
    QHash<QString, QTreeWidgetItem *> m_items; // by calendar id
    QHash<QString, QTreeWidgetItem *> m_accounts; // by account id
    QSet<QString> m_collapsedAccounts;
    QSet<QString> m_shownIds;
    QString m_defaultId;
    bool m_groupDecides = false;
    bool m_filling = false;
};
