#include "ui/Sidebar.h"

#include "app/state/AppState.h"
#include "models/Constants.h"
#include "storage/CalendarRepository.h"
#include "storage/ViewRepository.h"
#include "ui/CalendarListWidget.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/surfaces/MiniMonthCalendar.h"
#include "ui/theme/ElidedLabel.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr char16_t AddGlyph = 0xE145;
constexpr int GlyphSizePx = 18;
constexpr int SideMarginPx = 12;

}

Sidebar::Sidebar(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_month(new MiniMonthCalendar(state))
    , m_calendars(new CalendarListWidget(state))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_month);
    column->addSpacing(8);
    column->addLayout(buildListHeader());
    column->addLayout(buildGroupHint());
    column->addWidget(m_calendars, 1);

    connect(state, &AppState::activeViewChanged, this, &Sidebar::updateGroupHint);
    connect(state->views(), &ViewRepository::viewsChanged, this, &Sidebar::updateGroupHint);
    connect(state->calendars(), &CalendarRepository::calendarsChanged, this, &Sidebar::updateGroupHint);
    if (ThemeManager *theme = state->theme()) {
        connect(theme, &ThemeManager::modeChanged, this, &Sidebar::applyTheme);
        connect(theme, &ThemeManager::accentChanged, this, &Sidebar::applyTheme);
    }
    applyTheme();
    updateGroupHint();
}

QSize Sidebar::minimumSizeHint() const
{
    return { m_month->minimumSizeHint().width(), QWidget::minimumSizeHint().height() };
}

QHBoxLayout *Sidebar::buildListHeader()
{
    auto *title = new ElidedLabel;
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setText(tr("Calendars"));
    m_add = new QToolButton;
    m_add->setObjectName(QStringLiteral("addCalendar"));
    m_add->setAutoRaise(true);
    m_add->setToolTip(tr("New calendar"));
    m_add->setAccessibleName(tr("New calendar"));
    connect(m_add, &QToolButton::clicked, this, [this] { (new CalendarFormDialog(m_state, window()))->open(); });

    auto *row = new QHBoxLayout;
    row->setContentsMargins(SideMarginPx, 0, SideMarginPx, 0);
    row->addWidget(title, 1);
    row->addWidget(m_add);
    return row;
}

QHBoxLayout *Sidebar::buildGroupHint()
{
    m_groupHint = new ElidedLabel;
    m_groupHint->setObjectName(QStringLiteral("groupHint"));
    m_groupHint->setMuted(true);
    m_leaveGroup = new QToolButton;
    m_leaveGroup->setAutoRaise(true);
    m_leaveGroup->setText(tr("Show All"));
    m_leaveGroup->setToolTip(tr("Leave the group: the check boxes decide again what is shown"));
    connect(m_leaveGroup, &QToolButton::clicked, this,
            [this] { m_state->setActiveViewId(ViewDefaults::AllCalendarsId); });

    auto *row = new QHBoxLayout;
    row->setContentsMargins(SideMarginPx, 0, SideMarginPx, 0);
    row->addWidget(m_groupHint, 1);
    row->addWidget(m_leaveGroup);
    return row;
}

void Sidebar::updateGroupHint()
{
    const QString group = CalendarListWidget::decidingGroupName(m_state);
    m_groupHint->setText(tr("Showing group “%1”").arg(group));
    m_groupHint->setVisible(!group.isEmpty());
    // The built-in group may itself list calendars; there is then nothing to leave it for.
    m_leaveGroup->setVisible(!group.isEmpty() && m_state->activeViewId() != ViewDefaults::AllCalendarsId);
}

void Sidebar::applyTheme()
{
    m_add->setIcon(Theme::iconFromGlyph(AddGlyph, GlyphSizePx, Theme::textPrimary()));
    // The list is part of the pane, not a box in it.
    m_calendars->setStyleSheet(QStringLiteral("#calendarList { background: %1; border-color: transparent; }"
                                              "#calendarList:focus { border-color: %2; }")
                                   .arg(Theme::canvas().name(), Theme::accent().name()));
}
