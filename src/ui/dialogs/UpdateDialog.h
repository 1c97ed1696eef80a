#pragma once

#include "platform/QuillonUpdate.h"

#include <QDialog>

namespace QuillonUpdate {

/// Tells of a newer release and what is new in it. "Download" opens its address in the browser.
class UpdateDialog : public QDialog {
    Q_OBJECT

public:
    UpdateDialog(const Artifact &artifact, const QString &currentVersion, const QString &appName,
                 QWidget *parent = nullptr);

private:
    void onDownload();

    QUrl m_url;
};

} // namespace QuillonUpdate
