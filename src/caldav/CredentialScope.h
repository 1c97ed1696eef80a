#pragma once

#include <QUrl>

/// Where a redirect may take the credentials of an account along to.
namespace CredentialScope {

/// Whether \p target may see what \p origin was sent: the same host at any port, or another host under the same
/// registered domain ("dav.example.co.uk" for "www.example.co.uk"). Never by way of an IP address, of a name without
/// a dot such as "local", or of a domain under which anybody can register, such as "co.uk"; and never from https
/// to http.
bool covers(const QUrl &origin, const QUrl &target);

} // namespace CredentialScope
