#include "ui/HorizonChip.h"

#include "app/state/AppState.h"
#include "ui/ViewModes.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QAction>
#include <QActionGroup>
#include <QGuiApplication>
#include <QMenu>

namespace {

constexpr char16_t DropDownGlyph = 0xE5C5;
constexpr int GlyphSizePx = 14;

}

HorizonChip::HorizonChip(AppState *state, QWidget *parent)
    : QToolButton(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("horizonChip"));
    setProperty("horizonChip", true); // for the style sheet
    setToolTip(tr("Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days"));
    setAccessibleName(tr("Days timeline span"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setLayoutDirection(Qt::RightToLeft); // so that the arrow follows the text
    setPopupMode(QToolButton::InstantPopup);
    setCursor(Qt::PointingHandCursor);
    buildMenu();
    showHorizon();
    updateIcon();
    connect(state, &AppState::weekHorizonChanged, this, &HorizonChip::showHorizon);
    if (ThemeManager *theme = state->theme())
        connect(theme, &ThemeManager::modeChanged, this, &HorizonChip::updateIcon);
}

QString HorizonChip::label(int days)
{
    return tr("%n days", nullptr, days);
}

void HorizonChip::buildMenu()
{
    auto *menu = new QMenu(this);
    menu->setLayoutDirection(QGuiApplication::layoutDirection());
    auto *group = new QActionGroup(menu);
    // A stored span that is none of the choices shows no check mark.
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const int days : ViewModes::Horizons) {
        QAction *action = menu->addAction(label(days));
        action->setCheckable(true);
        action->setData(days);
        group->addAction(action);
        m_actions.insert(days, action);
        connect(action, &QAction::triggered, this, [this, days] {
            m_state->setWeekHorizon(days);
            showHorizon(); // the click may have unchecked the current choice
        });
    }
    setMenu(menu);
}

void HorizonChip::showHorizon()
{
    const int days = m_state->weekHorizon();
    setText(tr("%1d", "number of days").arg(days));
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it)
        it.value()->setChecked(it.key() == days);
}

void HorizonChip::updateIcon()
{
    setIcon(Theme::iconFromGlyph(DropDownGlyph, GlyphSizePx, Theme::textPrimary()));
}
