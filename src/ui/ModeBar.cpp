#include "ui/ModeBar.h"

#include "app/state/AppState.h"
#include "ui/HorizonChip.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

ModeBar::ModeBar(AppState *state, const QStringList &modes, QWidget *parent)
    : QFrame(parent)
    , m_chip(new HorizonChip(state))
{
    setObjectName(QStringLiteral("modeBar"));
    setAccessibleName(tr("View"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(3, 3, 3, 3);
    row->setSpacing(2);
    auto *exclusive = new QButtonGroup(this);
    for (const QString &mode : modes) {
        auto *button = new QToolButton;
        button->setText(label(mode));
        button->setCheckable(true);
        button->setAutoRaise(true);
        exclusive->addButton(button);
        m_buttons.insert(mode, button);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, mode] { emit modeChosen(mode); });
        if (mode == u"days")
            row->addWidget(m_chip);
    }
    m_chip->hide();
    applyTheme();
    if (ThemeManager *theme = state->theme())
        connect(theme, &ThemeManager::modeChanged, this, &ModeBar::applyTheme);
}

QString ModeBar::label(const QString &mode)
{
    if (mode == u"day")
        return tr("Day");
    if (mode == u"week")
        return tr("Week");
    if (mode == u"days")
        return tr("Days");
    if (mode == u"grid")
        return tr("Grid");
    return mode == u"month" ? tr("Month") : tr("Year");
}

void ModeBar::showMode(const QString &mode)
{
    if (QToolButton *chosen = button(mode))
        chosen->setChecked(true);
    m_chip->setVisible(mode == u"days");
}

void ModeBar::applyTheme()
{
    setStyleSheet(QStringLiteral("#modeBar { background: %1; border: 1px solid %2; border-radius: 8px; }"
                                 "#modeBar QToolButton { border-radius: 5px; padding: 4px 14px; }")
                      .arg(Theme::surface().name(), Theme::border().name()));
}
