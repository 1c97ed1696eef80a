#pragma once

#include "caldav/CalDavClient.h"
#include "ui/dialogs/FormDialog.h"

#include <QString>

/// Asks whether to trust a certificate that no known authority vouches for. Accepted means yes.
class CalDavCertificateDialog : public FormDialog {
    Q_OBJECT

public:
    explicit CalDavCertificateDialog(const CalDavClient::UntrustedCertInfo &info, QWidget *parent = nullptr);
    /// \p previousSha256 was trusted for this server until now; empty for none.
    CalDavCertificateDialog(const CalDavClient::UntrustedCertInfo &info, const QString &previousSha256,
                            QWidget *parent = nullptr);
};
