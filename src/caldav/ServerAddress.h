#pragma once

#include <QString>

/// The address of a CalDAV server as a person types or pastes it, taken apart.
struct ServerAddress {
    QString url; ///< trimmed, with a scheme, without user and password
    QString username; ///< empty if the text has none
    QString password;

    /// "https" where the text has no scheme. What cannot be read as a URL comes back trimmed.
    static ServerAddress read(const QString &typed);
};
