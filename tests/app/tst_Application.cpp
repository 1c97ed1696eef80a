#include "app/Application.h"

#include "app/SingleInstance.h"
#include "support/TestData.h"

#include <QLocale>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QMainWindow *mainWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<QMainWindow *>(widget))
            return window;
    }
    return nullptr;
}

}

/// Identity, languages, and a start in the background.
class tst_Application : public QObject {
    Q_OBJECT

public:
    explicit tst_Application(Application *application)
        : m_application(application)
    {
    }

private slots:
    void identity()
    {
        // Settings and data folders hang on these names, so they never change.
        QCOMPARE(QCoreApplication::organizationName(), u"Quillon"_s);
        QCOMPARE(QCoreApplication::applicationName(), u"Calendar"_s);
        QCOMPARE(QGuiApplication::desktopFileName(), u"com.quillon.Calendar"_s);
    }

    void language_data()
    {
        columns<QString, QString, QString>("stored", "asStored", "resolved");
        // The tests run with the C locale, which is no supported language.
        row("never chosen", QString(), "system", "en");
        row("system", "system", "system", "en");
        row("not supported", "pt", "pt", "pt");
    }
    void language()
    {
        QFETCH(QString, stored);
        QVERIFY2(QLocale::system().language() == QLocale::C, "run this test with LC_ALL=C.UTF-8");
        if (stored.isNull())
            QSettings().remove(u"ui/language"_s);
        else
            Application::setPreferredLanguage(stored);
        QTEST(Application::currentLanguage(false), "asStored");
        QTEST(Application::currentLanguage(true), "resolved");
        Application::setPreferredLanguage(u"system"_s);
    }

    void datesFollowTheLanguageAndTheTerritory_data()
    {
        columns<QString, QString, QString>("language", "system", "name");
        // Which pairs there are is told by CLDR's list of locales.
        row("English in Germany", "en", "de_DE", "en_DE");
        row("Spanish in the United States", "es", "en_US", "es_US");
        row("the system's own", "en", "en_GB", "en_GB");
        row("German in Japan is not known", "de", "ja_JP", "de_DE");
        row("system without a language", "fr", "C", "fr_FR");
    }
    void datesFollowTheLanguageAndTheTerritory()
    {
        QFETCH(QString, language);
        QFETCH(QString, system);
        QTEST(Application::localeFor(language, QLocale(system)).name(), "name");
    }

    void startsHiddenAndComesForwardOnARelaunch()
    {
        SingleInstance instance;
        QVERIFY(!instance.tryRouteToExisting({ u"program"_s }));
        m_application->setSingleInstance(&instance);
        m_application->setInitialCommand(SingleInstance::parseArgsToCommand({ u"program"_s }));
        bool wasHidden = false;
        bool dialogEndedIt = true;
        QTimer::singleShot(0, this, [&] {
            wasHidden = mainWindow() && !mainWindow()->isVisible();
            // Some dialog of a hidden program comes and goes. If that ends the program, the next turns of
            // its loop never come.
            QWidget passing;
            passing.show();
            passing.close();
            QTimer::singleShot(50, this, [&] {
                dialogEndedIt = false;
                SingleInstance().tryRouteToExisting({ u"program"_s });
            });
        });
        // Closing the window that the relaunch brought up ends the program.
        QTimer look;
        connect(&look, &QTimer::timeout, this, [] {
            if (mainWindow() && mainWindow()->isVisible())
                mainWindow()->close();
        });
        look.start(10);
        QTimer::singleShot(10'000, this, [] { QCoreApplication::exit(99); });
        QCOMPARE(m_application->run(), 0);
        QVERIFY(wasHidden);
        QVERIFY(!dialogEndedIt);
    }

private:
    Application *m_application;
};

int main(int argc, char *argv[])
{
    const QTemporaryDir dir;
    qputenv("CALENDAR_DATA_DIR", dir.filePath(u"data"_s).toUtf8());
    qputenv("XDG_CONFIG_HOME", dir.filePath(u"config"_s).toUtf8());
    qputenv("CALENDAR_INSTANCE", "application-test-" + QByteArray::number(QCoreApplication::applicationPid()));
    char background[] = "--background";
    char *applicationArgv[] = { argv[0], background, nullptr };
    int applicationArgc = 2;
    Application application(applicationArgc, applicationArgv);
    tst_Application test(&application);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Application.moc"
