#include "ui/dialogs/ManualUpdateCheck.h"

#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/UpdateDialog.h"

#include <QCoreApplication>
#include <QWidget>

namespace QuillonUpdate {

namespace {

const QString CheckName = QStringLiteral("manualUpdateCheck");

struct Text {
    Q_DECLARE_TR_FUNCTIONS(QuillonUpdate)
};

QString title()
{
    return Text::tr("Check for Updates");
}

/// One run: lives until it has told its result.
class ManualCheck : public QObject {
public:
    ManualCheck(const Config &config, const QString &appName, QWidget *parent, const StatusHandler &status)
        : QObject(parent)
        , m_version(config.version)
        , m_appName(appName)
        , m_window(parent)
        , m_status(status)
        , m_client(config)
    {
        setObjectName(CheckName);
        connect(&m_client, &Client::updateAvailable, this, &ManualCheck::onUpdateAvailable);
        connect(&m_client, &Client::nothingNewer, this, &ManualCheck::onNothingNewer);
        connect(&m_client, &Client::checkFailed, this, &ManualCheck::onFailed);
    }

    void start() { m_client.checkForUpdate(); }

private:
    void onUpdateAvailable(const Artifact &artifact)
    {
        end();
        auto *dialog = new UpdateDialog(artifact, m_version, m_appName, m_window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    }

    void onNothingNewer()
    {
        end();
        Prompt::information(m_window, title(),
                            Text::tr("You're up to date. %1 %2 is the newest version.").arg(m_appName, m_version));
    }

    void onFailed(const QString &message)
    {
        end();
        Prompt::warning(m_window, title(), Text::tr("The check for updates failed.\n\n%1").arg(message));
    }

    void end()
    {
        m_status({});
        deleteLater();
    }

    QString m_version;
    QString m_appName;
    QWidget *m_window;
    StatusHandler m_status;
    Client m_client;
};

}

void runManualCheck(const Config &config, const QString &appName, QWidget *parent, const StatusHandler &status)
{
    if (config.baseUrl.isEmpty()) {
        Prompt::information(parent, title(),
                            Text::tr("This copy of %1 does not look for updates. They come from where you got the "
                                     "program, such as your system's package manager.")
                                .arg(appName));
        return;
    }
    status(Text::tr("Checking for updates…"));
    if (!parent->findChild<QObject *>(CheckName, Qt::FindDirectChildrenOnly))
        (new ManualCheck(config, appName, parent, status))->start();
}

} // namespace QuillonUpdate
