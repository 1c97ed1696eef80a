#include "ui/CalendarListWidget.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "calendar/services/VisibleEvents.h"
#include "models/Account.h"
#include "models/ViewDef.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "ui/CalendarListDelegate.h"
#include "ui/CalendarMenu.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/GroupName.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/theme/Theme.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

CalendarListWidget::CalendarListWidget(AppState *state, QWidget *parent)
    : QTreeWidget(parent)
    , m_state(state)
    , m_refreshTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("calendarList"));
    setAccessibleName(tr("Calendars"));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(8);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    auto *delegate = new CalendarListDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &QAbstractItemDelegate::closeEditor, this, &CalendarListWidget::refreshSoon);
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(0);
    connect(m_refreshTimer, &QTimer::timeout, this, &CalendarListWidget::refresh);
    connect(this, &QTreeWidget::itemChanged, this, &CalendarListWidget::onItemChanged);
    connectSources();
    refresh();
}

void CalendarListWidget::connectSources()
{
    connect(m_state->calendars(), &CalendarRepository::calendarsChanged, this, &CalendarListWidget::refreshSoon);
    connect(m_state->accounts(), &AccountRepository::accountsChanged, this, &CalendarListWidget::refreshSoon);
    connect(m_state->views(), &ViewRepository::viewsChanged, this, &CalendarListWidget::refreshSoon);
    connect(m_state, &AppState::activeViewChanged, this, &CalendarListWidget::refreshSoon);
    connect(m_state->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key == DefaultCalendar::defaultKey(false) || key == DefaultCalendar::lastUsedKey(false))
            refreshSoon();
    });
}

QTreeWidgetItem *CalendarListWidget::itemFor(const QString &calendarId) const
{
    return m_items.value(calendarId);
}

QString CalendarListWidget::decidingGroupName(AppState *state)
{
    const auto group = state->views()->getById(state->activeViewId());
    if (!group || group->deletedAt)
        return {};
    const QStringList chosen = CalendarChecklist::idsFromJson(group->calendarIds);
    const bool anyAlive = std::any_of(chosen.begin(), chosen.end(), [state](const QString &id) {
        return state->calendars()->getById(id).has_value();
    });
    return anyAlive ? groupDisplayName(*group) : QString();
}

void CalendarListWidget::renameCalendar(const QString &calendarId)
{
    if (QTreeWidgetItem *item = itemFor(calendarId)) {
        setCurrentItem(item);
        editItem(item);
    }
}

// A change often comes from an item of this very tree, which must not be deleted under its own feet.
void CalendarListWidget::refreshSoon()
{
    m_refreshTimer->start();
}

void CalendarListWidget::refresh()
{
    if (state() == QAbstractItemView::EditingState)
        return; // the name being typed comes first; its end refreshes
    const QString current = currentItem() ? currentItem()->data(0, CalendarIdRole).toString() : QString();
    const int scrolled = verticalScrollBar()->value();
    rememberCollapsed();
    m_filling = true;
    fill();
    m_filling = false;
    if (QTreeWidgetItem *item = itemFor(current))
        setCurrentItem(item);
    verticalScrollBar()->setValue(scrolled);
}

void CalendarListWidget::fill()
{
    clear();
    m_items.clear();
    m_accounts.clear();
    const QStringList shown = VisibleEvents::calendarIds(m_state);
    m_shownIds = QSet<QString>(shown.begin(), shown.end());
    m_groupDecides = !decidingGroupName(m_state).isEmpty();
    m_defaultId = ImportDialog::defaultTarget(m_state, ImportDialog::writableCalendars(m_state));

    const QList<Calendar> calendars = m_state->calendars()->getAll();
    const QList<Account> accounts = m_state->accounts()->getAll();
    for (const Account &account : accounts) {
        for (const Calendar &calendar : calendars) {
            if (calendar.accountId != account.id)
                continue;
            QTreeWidgetItem *&parent = m_accounts[account.id];
            if (!parent)
                parent = addAccount(account.name);
            auto *item = new QTreeWidgetItem(parent);
            m_items.insert(calendar.id, item);
            fillItem(item, calendar, account.name);
        }
        if (QTreeWidgetItem *parent = m_accounts.value(account.id))
            parent->setExpanded(!m_collapsedAccounts.contains(account.id));
    }
}

QTreeWidgetItem *CalendarListWidget::addAccount(const QString &name)
{
    auto *item = new QTreeWidgetItem(this, { name });
    item->setFlags(Qt::ItemIsEnabled);
    item->setToolTip(0, Theme::plainToolTip(name));
    return item;
}

void CalendarListWidget::fillItem(QTreeWidgetItem *item, const Calendar &calendar, const QString &accountName)
{
    const bool outside = m_groupDecides && !m_shownIds.contains(calendar.id);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEditable
                   | Qt::ItemNeverHasChildren);
    item->setText(0, calendar.name);
    item->setCheckState(0, calendar.isVisible ? Qt::Checked : Qt::Unchecked);
    item->setData(0, CalendarIdRole, calendar.id);
    item->setData(0, ColorRole, calendar.color);
    item->setData(0, ReadOnlyRole, calendar.isReadOnly);
    item->setData(0, DefaultRole, calendar.id == m_defaultId);
    item->setData(0, OutsideGroupRole, outside);

    QStringList said{ calendar.name };
    if (calendar.isReadOnly)
        said.append(tr("read-only"));
    if (calendar.id == m_defaultId)
        said.append(tr("default calendar"));
    if (outside)
        said.append(tr("not in the active group"));
    item->setData(0, Qt::AccessibleTextRole, said.join(u", "));
    item->setData(0, Qt::AccessibleDescriptionRole, tr("Calendar of account %1").arg(accountName));
    item->setToolTip(0, Theme::plainToolTip(said.join(u", ") + u'\n' + accountName));
}

void CalendarListWidget::rememberCollapsed()
{
    for (auto it = m_accounts.cbegin(); it != m_accounts.cend(); ++it) {
        if (it.value()->isExpanded())
            m_collapsedAccounts.remove(it.key());
        else
            m_collapsedAccounts.insert(it.key());
    }
}

void CalendarListWidget::onItemChanged(QTreeWidgetItem *item)
{
    if (m_filling)
        return;
    const QString id = item->data(0, CalendarIdRole).toString();
    const auto calendar = m_state->calendars()->getById(id);
    if (!calendar) {
        refreshSoon();
        return;
    }
    const bool visible = item->checkState(0) == Qt::Checked;
    if (visible != calendar->isVisible)
        m_state->calendars()->setVisible(id, visible);
    else if (item->text(0) != calendar->name)
        storeName(id, item->text(0).trimmed());
}

void CalendarListWidget::storeName(const QString &calendarId, const QString &name)
{
    auto calendar = m_state->calendars()->getById(calendarId);
    if (calendar && !name.isEmpty() && name != calendar->name) {
        calendar->name = name;
        calendar->updatedAt = QDateTime::currentDateTimeUtc();
        m_state->calendars()->update(*calendar);
    }
    refreshSoon(); // an empty name gives way to the old one
}

void CalendarListWidget::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    QTreeWidgetItem *item = byKeyboard ? currentItem() : itemAt(event->pos());
    if (!item)
        return;
    const auto calendar = m_state->calendars()->getById(item->data(0, CalendarIdRole).toString());
    if (!calendar)
        return;
    const QPoint where = byKeyboard ? visualItemRect(item).center() : event->pos();
    auto *menu = new CalendarMenu(m_state, *calendar, this);
    connect(menu, &CalendarMenu::renameRequested, this, &CalendarListWidget::renameCalendar);
    menu->popup(viewport()->mapToGlobal(where));
}
