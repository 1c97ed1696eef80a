#include "ui/FiltersPill.h"

#include "app/state/AppState.h"
#include "storage/FilterRuleRepository.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QMenu>

#include <algorithm>

namespace {

constexpr char16_t FilterGlyph = 0xE152;
constexpr int GlyphSizePx = 16;

}

FiltersPill::FiltersPill(AppState *state, QWidget *parent)
    : QToolButton(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("filtersPill"));
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setCursor(Qt::PointingHandCursor);
    setPopupMode(QToolButton::InstantPopup);
    setToolTip(tr("Manage filters"));
    connect(state, &AppState::filterHiddenCountChanged, this, &FiltersPill::updateLabel);
    connect(state->filterRules(), &FilterRuleRepository::filterRulesChanged, this, &FiltersPill::rebuildMenu);
    if (ThemeManager *theme = state->theme())
        connect(theme, &ThemeManager::modeChanged, this, &FiltersPill::updateIcon);
    updateIcon();
    rebuildMenu();
}

void FiltersPill::updateIcon()
{
    setIcon(Theme::iconFromGlyph(FilterGlyph, GlyphSizePx, Theme::textMuted()));
}

QString FiltersPill::label(int enabledRules, int hidden)
{
    if (enabledRules == 0)
        return tr("No filters");
    QString text = tr("%n filter(s) applied", nullptr, enabledRules);
    if (hidden > 0)
        text += QStringLiteral(" · ") + tr("%n hidden", nullptr, hidden);
    return text;
}

void FiltersPill::updateLabel()
{
    const auto rules = m_state->filterRules()->getEnabled();
    setText(label(int(rules.size()), m_state->filterHiddenCount()));
}

void FiltersPill::rebuildMenu()
{
    const QList<FilterRule> rules = m_state->filterRules()->getAll();
    const bool anyEnabled =
        std::any_of(rules.begin(), rules.end(), [](const FilterRule &rule) { return rule.enabled; });
    auto *menu = new QMenu(this);
    QAction *all = menu->addAction(anyEnabled ? tr("Disable all filters") : tr("Enable all filters"));
    all->setEnabled(!rules.isEmpty());
    connect(all, &QAction::triggered, this, [this, anyEnabled] { setAllEnabled(!anyEnabled); });
    menu->addSeparator();
    for (const FilterRule &rule : rules) {
        QAction *action = menu->addAction(Theme::plainLabel(rule.name));
        action->setCheckable(true);
        action->setChecked(rule.enabled);
        connect(action, &QAction::toggled, this,
                [this, id = rule.id](bool on) { m_state->filterRules()->setEnabled(id, on); });
    }
    menu->addSeparator();
    connect(menu->addAction(tr("Add Filter…")), &QAction::triggered, this, &FiltersPill::addRequested);
    connect(menu->addAction(tr("Manage Filters…")), &QAction::triggered, this, &FiltersPill::manageRequested);

    // The change may come from an entry of the old menu, which is still at work then.
    if (QMenu *old = this->menu())
        old->deleteLater();
    setMenu(menu);
    updateLabel();
}

void FiltersPill::setAllEnabled(bool enabled)
{
    const QList<FilterRule> rules = m_state->filterRules()->getAll();
    for (const FilterRule &rule : rules) {
        if (rule.enabled != enabled)
            m_state->filterRules()->setEnabled(rule.id, enabled);
    }
}
