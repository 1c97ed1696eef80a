#pragma once

#include "platform/QuillonUpdate.h"
#include "ui/dialogs/FormDialog.h"

/// The release notes, newest version first.
class WhatsNewDialog : public FormDialog {
    Q_OBJECT

public:
    WhatsNewDialog(const QString &appName, const QString &markdown, QWidget *parent = nullptr);

    /// The versions of a change log in the format of keepachangelog.com, as Markdown: without what stands above
    /// them, and without the brackets around a version, which are for links. Empty if it has no version.
    static QString notesFrom(const QString &changelog);
};

namespace QuillonUpdate {

/// Shows the release notes that were built into the program; \p status hears if there are none.
void showWhatsNewManual(const Config &config, const QString &appName, QWidget *parent, const StatusHandler &status);

} // namespace QuillonUpdate
