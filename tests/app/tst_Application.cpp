#include "app/Application.h"

#include "app/SingleInstance.h"

#include <QLocale>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
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

    void language()
    {
        QVERIFY2(QLocale::system().language() == QLocale::C, "run this test with LC_ALL=C.UTF-8");
        QSettings().remove(u"ui/language"_s);
        QCOMPARE(Application::currentLanguage(false), u"system"_s);
        QCOMPARE(Application::currentLanguage(true), u"en"_s); // as there is no catalogue for the system's
        Application::setPreferredLanguage(u"de"_s);
        QCOMPARE(Application::currentLanguage(true), u"de"_s);
        Application::setPreferredLanguage(u"system"_s);
    }

    void datesFollowTheLanguageAndTheTerritory()
    {
        const auto name = [](const char *language, const char *system) {
            return Application::localeFor(QString::fromLatin1(language), QLocale(QString::fromLatin1(system))).name();
        };
        // Which pairs there are is told by CLDR's list of locales.
        QCOMPARE(name("en", "de_DE"), u"en_DE"_s);
        QCOMPARE(name("es", "en_US"), u"es_US"_s);
        QCOMPARE(name("en", "en_GB"), u"en_GB"_s);
        QCOMPARE(name("de", "ja_JP"), u"de_DE"_s); // there is no German of Japan
        QCOMPARE(name("fr", "C"), u"fr_FR"_s);
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
