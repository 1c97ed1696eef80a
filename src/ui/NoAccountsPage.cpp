#include "ui/NoAccountsPage.h"

#include "app/state/AppState.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int MarginPx = 48;
constexpr int TextWidthPx = 560;
constexpr QSize ButtonSize(200, 36);

}

NoAccountsPage::NoAccountsPage(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_body(new QLabel(tr("Add a Quillon Calendar account to store calendars on this device, connect Google or "
                           "Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).")))
{
    auto *title = new QLabel(tr("No accounts configured"));
    QFont titleFont = title->font();
    titleFont.setPointSize(Theme::FontSizeXl);
    titleFont.setBold(true);
    title->setFont(titleFont);
    auto *button = new QPushButton(tr("  Add Account…"));
    button->setMinimumSize(ButtonSize);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &NoAccountsPage::addRequested);

    auto *column = new QWidget;
    column->setMaximumWidth(TextWidthPx);
    auto *texts = new QVBoxLayout(column);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(12);
    for (QLabel *label : { title, m_body }) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        texts->addWidget(label);
    }
    texts->addSpacing(8);
    texts->addWidget(button, 0, Qt::AlignHCenter);

    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
    outer->addStretch();
    auto *centred = new QHBoxLayout;
    centred->addStretch();
    centred->addWidget(column, 1);
    centred->addStretch();
    outer->addLayout(centred);
    outer->addStretch();

    applyTheme();
    if (ThemeManager *theme = state->theme())
        connect(theme, &ThemeManager::modeChanged, this, &NoAccountsPage::applyTheme);
}

void NoAccountsPage::applyTheme()
{
    m_body->setStyleSheet(QStringLiteral("color: %1;").arg(Theme::textMuted().name()));
}
