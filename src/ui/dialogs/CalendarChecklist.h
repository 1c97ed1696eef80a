#pragma once

#include <QHash>
#include <QStringList>
#include <QTreeWidget>

class AppState;

/// The live calendars, grouped by account, with check boxes and colour dots.
class CalendarChecklist : public QTreeWidget {
    Q_OBJECT

public:
    explicit CalendarChecklist(AppState *state, QWidget *parent = nullptr);

    /// Ids of calendars that are not there (yet to be synced, or deleted elsewhere) are kept as well.
    void setCheckedIds(const QStringList &ids);
    [[nodiscard]] QStringList checkedIds() const;
    /// As the columns that hold calendar ids store them.
    [[nodiscard]] QString checkedIdsJson() const;
    static QStringList idsFromJson(const QString &json);

    QSize sizeHint() const override;

signals:
    void checkedIdsChanged();

private:
    void populate(AppState *state);

    QHash<QString, QTreeWidgetItem *> m_items; // by calendar id
    QStringList m_order; // calendar ids as shown
    QStringList m_absentIds;
};
