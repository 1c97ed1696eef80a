#include "app/Application.h"

#include "BuildSettings.h"
#include "app/SingleInstance.h"
#include "app/StartupTrace.h"
#include "app/TerminationSignals.h"
#include "app/state/AppState.h"
#include "app/state/Platform.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/MainWindow.h"
#include "ui/dialogs/FeedbackDialog.h"
#include "ui/dialogs/ManualUpdateCheck.h"
#include "ui/dialogs/UpdateDialog.h"
#include "ui/dialogs/WhatsNewDialog.h"
#include "ui/theme/Theme.h"

#include <QDebug>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <QTranslator>

namespace {

constexpr int WelcomeDelayMs = 300; // when the window has been painted
constexpr int UpdateCheckDelayMs = 1500;

const QString LanguageKey = QStringLiteral("ui/language");
const QString SystemLanguage = QStringLiteral("system");

QString languageOf(const QLocale &locale)
{
    return locale.name().left(2);
}

}

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setOrganizationName(QStringLiteral("Quillon"));
    setOrganizationDomain(QString::fromLatin1(BuildSettings::OrganizationDomain));
    setApplicationName(QStringLiteral("Calendar"));
    setApplicationVersion(QString::fromLatin1(BuildSettings::Version));
    setDesktopFileName(QStringLiteral("com.quillon.Calendar"));
    installTranslators();
    setWindowIcon(QIcon(QStringLiteral(":/icons/app-icon.png")));
    loadFonts();
    setFont(QFont(Theme::sansFamily(), Theme::FontSizeBody));
    connect(new TerminationSignals(this), &TerminationSignals::received, this, &Application::onTerminationSignal);
}

Application::~Application()
{
    // While the event dispatcher and the SQL drivers still stand.
    delete m_mainWindow;
    delete m_appState;
}

QStringList Application::supportedLanguages()
{
    return { QStringLiteral("en"), QStringLiteral("es"), QStringLiteral("de"), QStringLiteral("fr"),
             QStringLiteral("ja") };
}

QString Application::currentLanguage(bool resolveSystem)
{
    const QString stored = QSettings().value(LanguageKey, SystemLanguage).toString();
    if (!resolveSystem || stored != SystemLanguage)
        return stored;
    const QString language = languageOf(QLocale::system());
    return supportedLanguages().contains(language) ? language : QStringLiteral("en");
}

void Application::setPreferredLanguage(const QString &language)
{
    QSettings().setValue(LanguageKey, language);
}

QuillonUpdate::Config Application::updateConfig()
{
    return { .product = QStringLiteral("calendar"),
             .channel = QStringLiteral("stable"),
             .baseUrl = QString::fromLatin1(BuildSettings::DownloadUrl),
             .version = QString::fromLatin1(BuildSettings::Version) };
}

QuillonFeedback::Config Application::feedbackConfig()
{
    return { .product = QStringLiteral("calendar"), .url = QString::fromLatin1(BuildSettings::FeedbackUrl) };
}

QLocale Application::localeFor(const QString &language, const QLocale &system)
{
    // The system's own locale also knows what was set apart from it, such as LC_TIME.
    return languageOf(system) == language ? system : QLocale(QLocale(language).language(), system.territory());
}

void Application::installTranslators()
{
    const QString language = currentLanguage(true);
    QLocale::setDefault(localeFor(language, QLocale::system()));

    if (language != QLatin1StringView("en")) {
        auto *translator = new QTranslator(this);
        m_qtTranslator = installed(translator,
                                   translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                                                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    }
    auto *translator = new QTranslator(this);
    m_appTranslator = installed(translator, translator->load(QStringLiteral(":/i18n/calendar_%1.qm").arg(language)));
}

QTranslator *Application::installed(QTranslator *translator, bool loaded)
{
    if (loaded && installTranslator(translator))
        return translator;
    delete translator;
    return nullptr;
}

void Application::loadFonts()
{
    for (const auto &file :
         { QStringLiteral(":/fonts/IBMPlexSans.ttf"), QStringLiteral(":/fonts/IBMPlexSans-Italic.ttf"),
           QStringLiteral(":/fonts/IBMPlexSans-Bold.ttf"), QStringLiteral(":/fonts/IBMPlexMono-Medium.ttf") }) {
        if (QFile::exists(file))
            QFontDatabase::addApplicationFont(file);
    }
    const int icons = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/MaterialIcons-Regular.otf"));
    if (icons < 0) {
        qWarning("[Fonts] Failed to load Material Icons font — indicators will fall back to a missing-glyph box.");
        return;
    }
    if (const QStringList families = QFontDatabase::applicationFontFamilies(icons); !families.isEmpty())
        Theme::setIconFamily(families.constFirst());
}

int Application::run()
{
    m_appState = new AppState(this);
    if (!m_appState->initialize())
        return reportDatabaseFailure();
    m_mainWindow = new MainWindow(m_appState);
    StartupTrace::watch(m_mainWindow);
    // Until the window has been seen, a dialog that closes is no reason to leave.
    setQuitOnLastWindowClosed(false);
    m_mainWindow->installEventFilter(this);
    connectCommands();
    connectHelp();
    // The first week would else have to wait for what is being read in slices.
    connect(m_appState->events(), &EventRepository::warmedUp, this, &Application::begin, Qt::SingleShotConnection);
    QTimer::singleShot(UpdateCheckDelayMs, this, &Application::checkForUpdate);
    return exec();
}

void Application::begin()
{
    showFirstWindow();
    m_appState->syncScheduler()->start();
    if (hasInitialCommand())
        replayInitialCommand();
    else if (m_mainWindow->isVisible())
        QTimer::singleShot(WelcomeDelayMs, m_mainWindow, &MainWindow::welcomeOnFirstLaunch);
}

int Application::reportDatabaseFailure()
{
    qCritical().noquote() << "[Startup] the database cannot be used:" << Platform::databasePath();
    QMessageBox box(QMessageBox::Critical, tr("Database Error"),
                    tr("Failed to initialize the database.\n\nData directory: %1\n\nPlease check file permissions and "
                       "try again.")
                        .arg(Platform::dataDir()),
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    connect(&box, &QDialog::finished, this, &QCoreApplication::quit);
    box.open();
    exec(); // for the box alone
    return 1;
}

void Application::showFirstWindow()
{
    const bool startsHidden = m_appState->preferences()->getBool(QStringLiteral("ui/startMinimized"), false)
        || arguments().contains(QLatin1StringView("--background"));
    if (!startsHidden)
        m_mainWindow->show();
}

bool Application::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_mainWindow && event->type() == QEvent::Show) {
        setQuitOnLastWindowClosed(true);
        m_mainWindow->removeEventFilter(this);
    }
    return QApplication::eventFilter(watched, event);
}

void Application::connectCommands()
{
    if (!m_singleInstance)
        return;
    connect(m_singleInstance, &SingleInstance::focusRequested, m_mainWindow, &MainWindow::focusWindow);
    connect(m_singleInstance, &SingleInstance::showTodayRequested, m_mainWindow, &MainWindow::showToday);
    connect(m_singleInstance, &SingleInstance::openIcsRequested, m_mainWindow, &MainWindow::importIcsFromCommand);
    connect(m_singleInstance, &SingleInstance::newEventRequested, m_mainWindow, &MainWindow::openNewEventDialog);
    connect(m_singleInstance, &SingleInstance::quickAddRequested, m_mainWindow, &MainWindow::quickAddFromCommand);
}

void Application::connectHelp()
{
    const QString appName = QStringLiteral("Quillon Calendar");
    const QuillonUpdate::StatusHandler status = [window = m_mainWindow](const QString &text) {
        window->showMessage(text);
    };
    connect(m_mainWindow, &MainWindow::whatsNewRequested, m_mainWindow,
            [=, window = m_mainWindow] { QuillonUpdate::showWhatsNewManual(updateConfig(), appName, window, status); });
    connect(m_mainWindow, &MainWindow::updateCheckRequested, m_mainWindow,
            [=, window = m_mainWindow] { QuillonUpdate::runManualCheck(updateConfig(), appName, window, status); });
    connect(m_mainWindow, &MainWindow::feedbackRequested, m_mainWindow,
            [window = m_mainWindow] { QuillonFeedback::openFeedback(feedbackConfig(), window); });
}

bool Application::hasInitialCommand() const
{
    const QString cmd = QJsonDocument::fromJson(m_initialCommand).object().value(QLatin1StringView("cmd")).toString();
    return m_singleInstance && !cmd.isEmpty() && cmd != QLatin1StringView("focus");
}

void Application::replayInitialCommand()
{
    QTimer::singleShot(0, m_singleInstance, [instance = m_singleInstance, command = m_initialCommand] {
        QMetaObject::invokeMethod(instance, "dispatchCommand", Qt::QueuedConnection, Q_ARG(QByteArray, command));
    });
}

void Application::checkForUpdate()
{
    auto *client = new QuillonUpdate::Client(updateConfig(), this);
    connect(client, &QuillonUpdate::Client::updateAvailable, this, [this](const QuillonUpdate::Artifact &artifact) {
        auto *dialog = new QuillonUpdate::UpdateDialog(artifact, applicationVersion(),
                                                       QStringLiteral("Quillon Calendar"), m_mainWindow);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
    });
    connect(client, &QuillonUpdate::Client::checkFailed, this,
            [](const QString &message) { qWarning() << "update check failed:" << message; });
    client->checkForUpdate();
}

void Application::onTerminationSignal()
{
    if (m_mainWindow)
        m_mainWindow->quitApplication();
    exit(0); // an open form would stop quit(), to ask a question that nobody is there to answer
}
