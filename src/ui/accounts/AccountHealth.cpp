#include "ui/accounts/AccountHealth.h"

#include "app/state/AppState.h"
#include "caldav/CalDavDiscovery.h"
#include "calendar/services/TimeFormat.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(AccountHealth)
};

QString failure(AppState *state, const QString &id)
{
    const SyncScheduler *scheduler = state->syncScheduler();
    return scheduler ? scheduler->failure(id) : QString();
}

/// What the last run of each calendar left behind: a line for each error, with the calendars that have it
/// unless all do.
QString calendarErrors(AppState *state, const Account &account)
{
    QStringList errors;
    QHash<QString, QStringList> names;
    const QList<Calendar> calendars = state->calendars()->getByAccount(account.id);
    for (const Calendar &calendar : calendars) {
        const QString latest = failure(state, calendar.id);
        const QString error = (latest.isEmpty() ? calendar.lastSyncError : latest).simplified();
        if (error.isEmpty())
            continue;
        if (!names.contains(error))
            errors.append(error);
        names[error].append(calendar.name.simplified());
    }
    for (QString &error : errors) {
        const QStringList of = names.value(error);
        if (of.size() == 1 || of.size() < calendars.size())
            error = Text::tr("%1: %2", "calendars, error").arg(QLocale().createSeparatedList(of), error);
    }
    return errors.join(u'\n');
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
    const QString calendars = calendarErrors(state, account);
    const QString ofAccount = failure(state, account.id);
    if (!calendars.isEmpty() && ofAccount == CalDavDiscovery::loginRejected())
        return { .state = State::PasswordRejected, .summary = Text::tr("Password rejected"), .detail = ofAccount };
    QStringList errors{ account.lastSyncError, ofAccount, calendars };
    errors.removeAll(QString());
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
    if (local.date() == QDate::currentDate())
        return TimeFormat::formatTime(state, local);
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
