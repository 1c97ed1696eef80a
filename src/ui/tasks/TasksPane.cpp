#include "ui/tasks/TasksPane.h"

#include "app/state/AppState.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TaskRepository.h"
#include "storage/ViewRepository.h"
#include "ui/actions/TaskActions.h"
#include "ui/theme/ElidedLabel.h"
#include "ui/theme/Theme.h"

#include <QActionGroup>
#include <QCursor>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int LinesPerSlice = 60; // new ones or moved ones; what stays costs next to nothing
constexpr int MarginPx = 12;
constexpr int DragScrollMs = 30;
constexpr int DragScrollPx = 8; // each time
constexpr int DragEdgePx = 24; // at the top and the bottom
const QString FilterKey = QStringLiteral("ui/tasksFilter");
const QString GroupKey = QStringLiteral("ui/tasksGroupByCalendar");
const QString HideKey = QStringLiteral("ui/tasksHideCompleted");
const QString NotesKey = QStringLiteral("ui/tasksShowNotes");
const QString CategoriesKey = QStringLiteral("ui/tasksShowCategories");
const QString NoCalendarColor = QStringLiteral("#9aa0a6");

using Filter = TaskListing::Filter;

constexpr std::pair<Filter, QLatin1StringView> FilterNames[] = {
    { Filter::All, QLatin1StringView("all") },
    { Filter::Today, QLatin1StringView("today") },
    { Filter::ThisWeek, QLatin1StringView("thisweek") },
    { Filter::Overdue, QLatin1StringView("overdue") },
};

Filter filterFromName(const QString &name)
{
    for (const auto &[filter, stored] : FilterNames) {
        if (name == stored)
            return filter;
    }
    return Filter::All;
}

QString nameOf(Filter filter)
{
    for (const auto &[known, stored] : FilterNames) {
        if (known == filter)
            return stored;
    }
    return {};
}

}

TasksPane::TasksPane(AppState *state, TaskActions *actions, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_actions(actions)
    , m_reloadTimer(new QTimer(this))
    , m_sliceTimer(new QTimer(this))
    , m_dragScrollTimer(new QTimer(this))
    , m_scroll(new QScrollArea)
    , m_list(new QVBoxLayout)
{
    PreferencesRepository *preferences = state->preferences();
    m_options.filter = filterFromName(preferences->get(FilterKey, QStringLiteral("all")));
    m_options.groupByCalendar = preferences->getBool(GroupKey, false);
    m_options.hideCompleted = preferences->getBool(HideKey, false);
    m_showNotes = preferences->getBool(NotesKey, false);
    m_showCategories = preferences->getBool(CategoriesKey, false);

    setAccessibleName(tr("Tasks"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(buildToolbar());
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    column->addWidget(m_scroll, 1);
    auto *content = new QWidget;
    m_list->setContentsMargins(0, 0, 0, 0);
    m_list->setSpacing(0);
    m_list->addStretch();
    content->setLayout(m_list);
    m_scroll->setWidget(content);
    for (QTimer *timer : { m_reloadTimer, m_sliceTimer }) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    connect(m_reloadTimer, &QTimer::timeout, this, [this] {
        if (isVisible())
            reload();
    });
    connect(m_sliceTimer, &QTimer::timeout, this, &TasksPane::buildSlice);
    m_dragScrollTimer->setInterval(DragScrollMs);
    connect(m_dragScrollTimer, &QTimer::timeout, this, &TasksPane::scrollWhileDragging);
    connectSources();
}

QWidget *TasksPane::buildToolbar()
{
    auto *bar = new QWidget;
    bar->setAutoFillBackground(true);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(MarginPx, MarginPx / 2, MarginPx / 2, MarginPx / 2);
    auto *title = new QLabel(tr("Tasks"));
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    m_filterButton = new QToolButton;
    m_filterButton->setAutoRaise(true);
    m_filterButton->setToolTip(tr("Filter tasks"));
    m_filterButton->setPopupMode(QToolButton::InstantPopup);
    m_filterButton->setFocusPolicy(Qt::TabFocus);
    auto *menu = new QMenu(m_filterButton);
    buildFilterMenu(menu);
    m_filterButton->setMenu(menu);
    m_addButton = new QToolButton;
    m_addButton->setAutoRaise(true);
    m_addButton->setText(QStringLiteral("+"));
    m_addButton->setToolTip(tr("New task"));
    m_addButton->setAccessibleName(tr("New task"));
    m_addButton->setFocusPolicy(Qt::TabFocus);
    connect(m_addButton, &QToolButton::clicked, m_actions, &TaskActions::create);
    row->addWidget(title, 1);
    row->addWidget(m_filterButton);
    row->addWidget(m_addButton);
    showFilterName();
    return bar;
}

void TasksPane::buildFilterMenu(QMenu *menu)
{
    const QString texts[] = { tr("All"), tr("Today"), tr("This week"), tr("Overdue") };
    auto *exclusive = new QActionGroup(menu);
    for (std::size_t i = 0; i < std::size(FilterNames); ++i) {
        QAction *action = menu->addAction(texts[i]);
        action->setCheckable(true);
        action->setChecked(FilterNames[i].first == m_options.filter);
        action->setData(int(FilterNames[i].first));
        exclusive->addAction(action);
    }
    connect(exclusive, &QActionGroup::triggered, this,
            [this](const QAction *action) { setFilter(Filter(action->data().toInt())); });
    menu->addSeparator();
    addOption(menu, tr("Group by calendar"), m_options.groupByCalendar, &TasksPane::setGroupByCalendar);
    addOption(menu, tr("Hide completed"), m_options.hideCompleted, &TasksPane::setHideCompleted);
    addOption(menu, tr("Show notes"), m_showNotes, &TasksPane::setShowNotes);
    addOption(menu, tr("Show categories"), m_showCategories, &TasksPane::setShowCategories);
}

QAction *TasksPane::addOption(QMenu *menu, const QString &text, bool on, void (TasksPane::*setter)(bool))
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(on);
    connect(action, &QAction::toggled, this, setter);
    return action;
}

void TasksPane::connectSources()
{
    const auto refresh = [this] { reloadSoon(); };
    connect(m_state->tasks(), &TaskRepository::tasksChanged, this, refresh);
    connect(m_state->calendars(), &CalendarRepository::calendarsChanged, this, refresh);
    connect(m_state->views(), &ViewRepository::viewsChanged, this, refresh);
    connect(m_state, &AppState::activeViewChanged, this, refresh);
    connect(m_state, &AppState::lastSyncErroredChanged, this, refresh);
    connect(m_state, &AppState::todayChanged, this, refresh);
    connect(m_state->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key == QLatin1StringView("ui/timeFormat"))
            reloadSoon();
    });
}

// One rebuild for all that changes before the event loop turns.
void TasksPane::reloadSoon()
{
    m_isStale = true;
    m_reloadTimer->start();
}

void TasksPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale)
        reload();
}

void TasksPane::setFilter(Filter filter)
{
    if (std::exchange(m_options.filter, filter) == filter)
        return;
    m_state->preferences()->set(FilterKey, nameOf(filter));
    showFilterName();
    reloadSoon();
}

void TasksPane::showFilterName()
{
    for (const QAction *action : m_filterButton->menu()->actions()) {
        if (action->data().isValid() && Filter(action->data().toInt()) == m_options.filter)
            m_filterButton->setText(action->text());
    }
    //: %1 is the name of a filter
    m_filterButton->setAccessibleName(tr("Filter tasks: %1").arg(m_filterButton->text()));
}

void TasksPane::storeFlag(bool *flag, bool on, const QString &key)
{
    if (std::exchange(*flag, on) == on)
        return;
    m_state->preferences()->setBool(key, on);
    reloadSoon();
}

void TasksPane::setGroupByCalendar(bool on)
{
    storeFlag(&m_options.groupByCalendar, on, GroupKey);
}

void TasksPane::setHideCompleted(bool on)
{
    storeFlag(&m_options.hideCompleted, on, HideKey);
}

void TasksPane::setShowNotes(bool on)
{
    storeFlag(&m_showNotes, on, NotesKey);
}

void TasksPane::setShowCategories(bool on)
{
    storeFlag(&m_showCategories, on, CategoriesKey);
}

void TasksPane::reload()
{
    m_isStale = false;
    m_sections = TaskListing::load(m_state, m_options, QDate::currentDate());
    m_calendarColors.clear();
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars)
        m_calendarColors.insert(calendar.id, calendar.color);
    m_syncableCalendarIds = m_state->syncableCalendarIds();
    clearContent();
    for (int section = 0; section < m_sections.size(); ++section) {
        if (!m_sections.at(section).calendarId.isEmpty())
            m_pending.append({ section, -1 });
        for (int row = 0; row < m_sections.at(section).rows.size(); ++row)
            m_pending.append({ section, row });
    }
    discardGoneRows();
    if (m_pending.isEmpty())
        buildEmptyState();
    buildSlice();
}

// The rows stay where they are until the new list has placed them.
void TasksPane::clearContent()
{
    m_sliceTimer->stop();
    m_pending.clear();
    m_placed = 0;
    for (TasksPaneRow *row : std::as_const(m_rows))
        m_oldRows.insert(row->row().id, row);
    m_rows.clear();
    for (QWidget *line : std::as_const(m_otherLines))
        discard(line);
    m_otherLines.clear();
}

// At first, so that those below need not move, and the focus goes to the next one.
void TasksPane::discardGoneRows()
{
    QHash<QString, TasksPaneRow *> staying;
    for (const TaskListing::Section &section : std::as_const(m_sections)) {
        for (const TaskListing::Row &row : section.rows) {
            if (TasksPaneRow *known = m_oldRows.take(row.id))
                staying.insert(row.id, known);
        }
    }
    for (TasksPaneRow *row : std::as_const(m_oldRows))
        discard(row);
    m_oldRows = staying;
}

void TasksPane::buildSlice()
{
    m_list->setEnabled(false); // else each row that shows would lay out all the others
    for (int moved = 0; moved < LinesPerSlice && !m_pending.isEmpty();) {
        const Pending next = m_pending.takeFirst();
        const TaskListing::Section &section = m_sections.at(next.section);
        if (next.row >= 0) {
            moved += placeRow(section.rows.at(next.row)) ? 1 : 0;
        } else {
            m_otherLines.append(buildSectionHeader(section.title, section.color, int(section.rows.size())));
            moved += place(m_otherLines.constLast()) ? 1 : 0;
        }
    }
    m_list->setEnabled(true);
    if (!m_pending.isEmpty())
        m_sliceTimer->start();
}

// Later, as it may be the origin of the signal that led here.
void TasksPane::discard(QWidget *line)
{
    m_list->removeWidget(line);
    line->hide();
    line->deleteLater();
}

bool TasksPane::place(QWidget *line)
{
    const int index = m_placed++;
    QWidget *other = m_list->itemAt(index)->widget();
    if (other == line)
        return false;
    if (other && m_list->itemAt(index + 1)->widget() == line) {
        // One that goes further down makes way, or all below it would be moved up past it.
        m_list->removeWidget(other);
        m_list->insertWidget(m_list->count() - 1, other);
        return true;
    }
    m_list->removeWidget(line);
    m_list->insertWidget(index, line);
    line->show();
    return true;
}

bool TasksPane::placeRow(const TaskListing::Row &row)
{
    const QString color = row.color.isEmpty() ? m_calendarColors.value(row.calendarId) : row.color;
    const bool waits = row.syncStatus == SyncStatus::Pending && m_syncableCalendarIds.contains(row.calendarId);
    const TasksPaneRow::Look look{ m_showNotes, m_showCategories, waits, color };
    QWidget *before = m_rows.isEmpty() ? static_cast<QWidget *>(m_addButton) : m_rows.constLast();
    if (TasksPaneRow *known = m_oldRows.take(row.id)) {
        known->setRow(row, look);
        m_rows.append(known);
    } else {
        m_rows.append(buildRow(row, look));
    }
    setTabOrder(before, m_rows.constLast()); // the key goes where the eye goes
    return place(m_rows.constLast());
}

TasksPaneRow *TasksPane::buildRow(const TaskListing::Row &row, const TasksPaneRow::Look &look)
{
    auto *widget = new TasksPaneRow(m_state, row, look);
    widget->setDraggable(true);
    connect(widget, &TasksPaneRow::rowSelected, m_actions, &TaskActions::open);
    connect(widget, &TasksPaneRow::rowActivated, m_actions, &TaskActions::edit);
    connect(widget, &TasksPaneRow::contextRequested, m_actions, &TaskActions::showContextMenu);
    connect(widget, &TasksPaneRow::completionToggled, m_actions, &TaskActions::setCompleted);
    connect(widget, &TasksPaneRow::deleteRequested, m_actions, &TaskActions::remove);
    connect(widget, &TasksPaneRow::draggedOver, this, [this] {
        if (!m_dragScrollTimer->isActive())
            m_dragScrollTimer->start();
    });
    connect(widget, &TasksPaneRow::dragEnded, m_dragScrollTimer, &QTimer::stop);
    connect(widget, &TasksPaneRow::taskDropped, this, &TasksPane::onTaskDropped);
    connect(widget, &TasksPaneRow::walkRequested, this, &TasksPane::onWalk);
    connect(widget, &TasksPaneRow::moveRequested, this, &TasksPane::onMove);
    return widget;
}

QWidget *TasksPane::buildSectionHeader(const QString &title, const QString &color, int count)
{
    auto *header = new QWidget;
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx / 3);
    auto *dot = new QLabel;
    dot->setPixmap(Theme::calendarDotIcon(color.isEmpty() ? NoCalendarColor : color).pixmap(12, 12));
    auto *name = new ElidedLabel;
    name->setText(title);
    QFont font = name->font();
    font.setBold(true);
    name->setFont(font);
    auto *number = new QLabel(QLocale().toString(count));
    number->setProperty("muted", true);
    row->addWidget(dot);
    row->addWidget(name, 1);
    row->addWidget(number);
    return header;
}

void TasksPane::buildEmptyState()
{
    const auto label = [](const QString &text, bool isTitle) {
        auto *result = new QLabel(text);
        result->setWordWrap(true);
        result->setAlignment(Qt::AlignHCenter);
        QFont font = result->font();
        font.setBold(isTitle);
        result->setFont(font);
        result->setProperty("muted", !isTitle);
        return result;
    };
    const QString other = tr("Switch the filter to see other tasks.");
    QString title = tr("No tasks yet");
    QString text = tr("Create a task to track what needs doing.");
    if (m_options.filter == Filter::Today) {
        title = tr("Nothing due today");
        text = other;
    } else if (m_options.filter == Filter::ThisWeek) {
        title = tr("Nothing due this week");
        text = other;
    } else if (m_options.filter == Filter::Overdue) {
        title = tr("Nothing overdue");
        text = tr("You're caught up. Nice.");
    }
    auto *box = new QWidget;
    auto *column = new QVBoxLayout(box);
    column->setContentsMargins(MarginPx, 3 * MarginPx, MarginPx, MarginPx);
    column->addWidget(label(title, true));
    column->addWidget(label(text, false));
    if (m_options.filter == Filter::All) {
        auto *add = new QPushButton(tr("+ New Task"));
        connect(add, &QPushButton::clicked, m_actions, &TaskActions::create);
        column->addWidget(add, 0, Qt::AlignHCenter);
    }
    m_otherLines.append(box);
    place(box);
}

void TasksPane::onWalk(int step)
{
    const auto index = m_rows.indexOf(static_cast<TasksPaneRow *>(sender()));
    if (index < 0)
        return;
    const qsizetype next = std::clamp<qsizetype>(index + step, 0, m_rows.size() - 1);
    m_rows.at(next)->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    m_scroll->ensureWidgetVisible(m_rows.at(next), 0, 0);
}

// Where the pointer stays at the edge: what is beyond comes nearer.
void TasksPane::scrollWhileDragging()
{
    const QWidget *viewport = m_scroll->viewport();
    const int y = viewport->mapFromGlobal(QCursor::pos()).y();
    QScrollBar *bar = m_scroll->verticalScrollBar();
    if (y < DragEdgePx)
        bar->setValue(bar->value() - DragScrollPx);
    else if (y >= viewport->height() - DragEdgePx)
        bar->setValue(bar->value() + DragScrollPx);
    else
        m_dragScrollTimer->stop();
}

// Past the next task that hangs from the same one.
void TasksPane::onMove(int step)
{
    const auto index = m_rows.indexOf(static_cast<TasksPaneRow *>(sender()));
    if (index < 0)
        return;
    const TaskListing::Row &moved = m_rows.at(index)->row();
    for (qsizetype i = index + step; i >= 0 && i < m_rows.size(); i += step) {
        const TaskListing::Row &other = m_rows.at(i)->row();
        if (other.depth < moved.depth)
            return;
        if (other.depth == moved.depth && other.calendarId == moved.calendarId)
            return m_actions->place(moved.uid, other.uid,
                                    step > 0 ? TaskEdits::DropZone::Below : TaskEdits::DropZone::Above);
    }
}

void TasksPane::onTaskDropped(const QString &uid, const QString &targetUid, TasksPaneRow::Zone zone)
{
    if (zone == TasksPaneRow::Zone::None)
        return;
    m_actions->place(uid, targetUid,
                     zone == TasksPaneRow::Zone::Onto        ? TaskEdits::DropZone::Onto
                         : zone == TasksPaneRow::Zone::Above ? TaskEdits::DropZone::Above
                                                             : TaskEdits::DropZone::Below);
}
