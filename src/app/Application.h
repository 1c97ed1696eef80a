#pragma once

#include "platform/QuillonFeedback.h"
#include "platform/QuillonUpdate.h"

#include <QApplication>
#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QStringList>

class AppState;
class MainWindow;
class QTranslator;
class SingleInstance;

/// The program: its identity, languages and fonts, and the long-lived objects in their order.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int &argc, char **argv);
    ~Application() override;

    /// Builds everything and runs until the program ends. 1 if the database cannot be used.
    int run();

    /// What "ui/language" says; with \p resolveSystem a "system" becomes one of supportedLanguages().
    static QString currentLanguage(bool resolveSystem);
    static void setPreferredLanguage(const QString &language); ///< takes effect at the next start
    static QStringList supportedLanguages();
    /// Dates and numbers in the language of the labels, with the habits of \p system's territory: its own
    /// locale if that is the language, else the language as it is spoken there, or in its main country where
    /// no such locale is known (English in Germany is; English in Japan is not, and gives en_US).
    static QLocale localeFor(const QString &language, const QLocale &system);
    static QuillonUpdate::Config updateConfig();
    static QuillonFeedback::Config feedbackConfig();

    void setSingleInstance(SingleInstance *singleInstance) { m_singleInstance = singleInstance; }
    /// The command line of this very launch, as SingleInstance::parseArgsToCommand gives it.
    void setInitialCommand(const QByteArray &command) { m_initialCommand = command; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void installTranslators();
    QTranslator *installed(QTranslator *translator, bool loaded);
    void loadFonts();
    int reportDatabaseFailure();
    void begin();
    void showFirstWindow();
    void connectCommands();
    void connectHelp();
    [[nodiscard]] bool hasInitialCommand() const; // more than to show the window
    void replayInitialCommand();
    void checkForUpdate();
    void onTerminationSignal();

    AppState *m_appState = nullptr;
    MainWindow *m_mainWindow = nullptr;
    SingleInstance *m_singleInstance = nullptr;
    QByteArray m_initialCommand;
    QTranslator *m_qtTranslator = nullptr;
    QTranslator *m_appTranslator = nullptr;
};
