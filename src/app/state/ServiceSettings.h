#pragma once

#include <QString>

/// Where the product's own services are: settings of the build, which the environment may override.
struct ServiceSettings {
    QString authUrl; ///< AUTH_API_URL: sign-in service
    QString realm; ///< AUTH_REALM_SLUG
    QString accountApiUrl; ///< ACCOUNT_API_URL
    QString authClientId; ///< AUTH_CLIENT_ID
    QString syncApiUrl; ///< SYNC_API_URL: cloud calendar service
    QString accountPortalUrl; ///< ACCOUNT_PORTAL_URL

    /// A variable counts if it is set and not empty. An empty URL means that there is no such service.
    static ServiceSettings fromEnvironment();
};
