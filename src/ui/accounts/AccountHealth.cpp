#include "ui/accounts/AccountHealth.h"

#include "app/state/AppState.h"
#include "calendar/services/TimeFormat.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(AccountHealth)
};

/// What the last runs left behind.
QStringList syncErrors(AppState *state, const Account &account)
{
    const SyncScheduler *scheduler = state->syncScheduler();
    const auto failureOf = [scheduler](const QString &id) {
        return scheduler ? scheduler->lastFailure(id) : QString();
    };
    QStringList lines{ account.lastSyncError, failureOf(account.id).simplified() };
    const QList<Calendar> calendars = state->calendars()->getByAccount(account.id);
    for (const Calendar &calendar : calendars) {
        const QString failure = failureOf(calendar.id);
        const QString error = failure.isEmpty() ? calendar.lastSyncError : failure;
        if (!error.isEmpty())
            lines.append(Text::tr("%1: %2", "calendar, error").arg(calendar.name.simplified(), error.simplified()));
    }
    lines.removeAll(QString());
    return lines;
}

}

AccountHealth AccountHealth::of(AppState *state, const Account &account)
{
    if (account.type == AccountType::Quillon)
        return { .state = State::Local, .summary = Text::tr("On this device"), .detail = {} };
    if (!account.enabled)
        return { .state = State::Disabled, .summary = Text::tr("Turned off"), .detail = {} };
    if (!account.pendingCertSha256.isEmpty()) {
        return { .state = State::CertificateChanged,
                 .summary = Text::tr("Certificate changed"),
                 .detail = Text::tr("The server shows a certificate that you have not trusted. Nothing syncs until you "
                                    "have reviewed it.") };
    }
    if (account.lastSyncError == SyncScheduler::passwordMissing()) {
        return { .state = State::PasswordMissing,
                 .summary = account.lastSyncError,
                 .detail = Text::tr("The password of this account is not on this device. Nothing syncs until you enter "
                                    "it.") };
    }
    if (account.lastSyncError == AccountError::SignInRequired) {
        return { .state = State::SignInRequired,
                 .summary = Text::tr("Sign in required"),
                 .detail = Text::tr("The sign-in of this account has ended.") };
    }
    const QStringList errors = syncErrors(state, account);
    if (!errors.isEmpty())
        return { .state = State::Failing, .summary = Text::tr("Sync failed"), .detail = errors.join(u'\n') };
    const QString summary =
        account.lastSyncTime ? Text::tr("Last sync: %1").arg(lastSync(state, account)) : Text::tr("Not synced yet");
    return { .state = State::Fine, .summary = summary, .detail = {} };
}

QString AccountHealth::lastSync(AppState *state, const Account &account)
{
    if (!account.lastSyncTime)
        return Text::tr("Never");
    const QDateTime local = account.lastSyncTime->toLocalTime();
    return Text::tr("%1, %2", "date, time")
        .arg(QLocale().toString(local.date(), QLocale::ShortFormat), TimeFormat::formatTime(state, local));
}

QString AccountHealth::typeName(const Account &account)
{
    if (account.type == AccountType::Quillon)
        return Text::tr("Calendars on this device");
    if (account.type == AccountType::CalDAV)
        return QStringLiteral("CalDAV");
    if (account.type == AccountType::ICloud)
        return QStringLiteral("iCloud");
    if (account.type == AccountType::Zoho)
        return QStringLiteral("Zoho");
    if (account.type == AccountType::Google)
        return QStringLiteral("Google");
    if (account.type == AccountType::Microsoft)
        return QStringLiteral("Microsoft");
    if (account.type == AccountType::Webcal)
        return Text::tr("Web feed");
    return account.type;
}
