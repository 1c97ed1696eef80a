#include "app/state/ServiceSettings.h"

#include "BuildSettings.h"

namespace {

QString setting(const char *variable, const char *buildValue)
{
    const QByteArray value = qgetenv(variable);
    return QString::fromUtf8(value.isEmpty() ? QByteArray(buildValue) : value);
}

}

ServiceSettings ServiceSettings::fromEnvironment()
{
    return { .authUrl = setting("AUTH_API_URL", BuildSettings::AuthUrl),
             .realm = setting("AUTH_REALM_SLUG", "quillon"),
             .accountApiUrl = setting("ACCOUNT_API_URL", BuildSettings::AccountApiUrl),
             .authClientId = setting("AUTH_CLIENT_ID", BuildSettings::AuthClientId),
             .syncApiUrl = setting("SYNC_API_URL", BuildSettings::SyncApiUrl),
             .accountPortalUrl = setting("ACCOUNT_PORTAL_URL", BuildSettings::AccountPortalUrl) };
}
