#include "ui/dialogs/CalendarChecklist.h"

#include "app/state/AppState.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "ui/theme/Theme.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int IdRole = Qt::UserRole;

}

CalendarChecklist::CalendarChecklist(AppState *state, QWidget *parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(12);
    setUniformRowHeights(true);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Calendars"));
    populate(state);
    connect(this, &QTreeWidget::itemChanged, this, &CalendarChecklist::checkedIdsChanged);
}

void CalendarChecklist::populate(AppState *state)
{
    QList<Calendar> calendars = state->calendars()->getAll();
    const auto addGroup = [this](const QString &name, const QList<Calendar> &members) {
        if (members.isEmpty())
            return;
        auto *group = new QTreeWidgetItem(this, { name });
        group->setFlags(Qt::ItemIsEnabled);
        group->setForeground(0, Theme::textMuted());
        for (const Calendar &calendar : members) {
            auto *item = new QTreeWidgetItem(group, { calendar.name.simplified() });
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setIcon(0, Theme::calendarDotIcon(calendar.color));
            item->setData(0, IdRole, calendar.id);
            item->setCheckState(0, Qt::Unchecked);
            m_items.insert(calendar.id, item);
            m_order.append(calendar.id);
        }
    };
    const auto takeOf = [&calendars](const QString &accountId) {
        const auto others = std::stable_partition(calendars.begin(), calendars.end(), [&](const Calendar &calendar) {
            return calendar.accountId == accountId;
        });
        const QList<Calendar> taken(calendars.begin(), others);
        calendars.erase(calendars.begin(), others);
        return taken;
    };
    const QList<Account> accounts = state->accounts()->getAll();
    for (const Account &account : accounts)
        addGroup(account.name.simplified(), takeOf(account.id));
    addGroup(tr("Other"), calendars);
    expandAll();
    if (!m_order.isEmpty())
        setCurrentItem(m_items.value(m_order.constFirst()), 0, QItemSelectionModel::NoUpdate);
}

void CalendarChecklist::setCheckedIds(const QStringList &ids)
{
    m_absentIds.clear();
    for (const QString &id : ids) {
        if (!m_items.contains(id))
            m_absentIds.append(id);
    }
    const QSignalBlocker blocker(this);
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it)
        it.value()->setCheckState(0, ids.contains(it.key()) ? Qt::Checked : Qt::Unchecked);
}

QStringList CalendarChecklist::checkedIds() const
{
    QStringList ids;
    for (const QString &id : m_order) {
        if (m_items.value(id)->checkState(0) == Qt::Checked)
            ids.append(id);
    }
    return ids + m_absentIds;
}

QString CalendarChecklist::checkedIdsJson() const
{
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(checkedIds())).toJson(QJsonDocument::Compact));
}

QStringList CalendarChecklist::idsFromJson(const QString &json)
{
    QStringList ids;
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue &value : array) {
        if (!value.toString().isEmpty())
            ids.append(value.toString());
    }
    return ids;
}

QSize CalendarChecklist::sizeHint() const
{
    const int rowHeight = topLevelItemCount() > 0 ? sizeHintForRow(0) : fontMetrics().height();
    const int rows = std::clamp(int(m_order.size()) + topLevelItemCount(), 3, 8);
    return { QTreeWidget::sizeHint().width(), rows * rowHeight + 2 * frameWidth() + 4 };
}
