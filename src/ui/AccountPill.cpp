#include "ui/AccountPill.h"

#include "app/state/AppState.h"
#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

namespace {

constexpr char16_t WarningGlyph = 0xE002;
constexpr int GlyphSizePx = 16;

}

AccountPill::AccountPill(AppState *state, QWidget *parent)
    : QToolButton(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("accountPill"));
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setCursor(Qt::PointingHandCursor);
    connect(state->accounts(), &AccountRepository::accountsChanged, this, &AccountPill::refresh);
    if (ThemeManager *theme = state->theme())
        connect(theme, &ThemeManager::modeChanged, this, &AccountPill::updateLook);
    updateLook();
    refresh();
}

void AccountPill::updateLook()
{
    setStyleSheet(QStringLiteral("QToolButton { color: %1; font-weight: 600; }").arg(Theme::warning().name()));
    setIcon(Theme::iconFromGlyph(WarningGlyph, GlyphSizePx, Theme::warning()));
}

void AccountPill::refresh()
{
    int needAuth = 0;
    int needPassword = 0;
    int needReview = 0; // of a certificate
    for (const Account &account : m_state->accounts()->getAll()) {
        if (!account.enabled)
            continue;
        if (account.type == AccountType::Google || account.type == AccountType::Microsoft)
            needAuth += account.lastSyncError == AccountError::SignInRequired;
        else if (SyncScheduler::isCalDavFamily(account) && !account.pendingCertSha256.isEmpty())
            ++needReview;
        else if (SyncScheduler::isCalDavFamily(account))
            needPassword += account.lastSyncError == SyncScheduler::passwordMissing();
    }
    setVisible(needAuth + needPassword + needReview > 0);
    showCounts(needAuth, needPassword, needReview);
}

void AccountPill::showCounts(int needAuth, int needPassword, int needReview)
{
    if (needReview > 0 || (needAuth > 0 && needPassword > 0)) {
        setText(tr("%n account(s) need attention", nullptr, needAuth + needPassword + needReview));
        setToolTip(tr("Click to open Calendar Accounts and resolve the issues."));
    } else if (needAuth > 0) {
        setText(tr("%n account(s) need sign-in", nullptr, needAuth));
        setToolTip(tr("Click to open Calendar Accounts and sign in."));
    } else {
        setText(tr("%n account(s) need password", nullptr, needPassword));
        setToolTip(tr("Click to open Calendar Accounts and re-enter the password."));
    }
}
