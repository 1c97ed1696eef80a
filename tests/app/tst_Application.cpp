#include "app/Application.h"

#include "app/SingleInstance.h"

#include <QLocale>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

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
        QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Quillon"));
        QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Calendar"));
        QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.3.7"));
        QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("com.quillon.Calendar"));
        QCOMPARE(Application::updateConfig().version, QStringLiteral("1.3.7"));
        QCOMPARE(Application::updateConfig().product, QStringLiteral("calendar"));
        QCOMPARE(Application::updateConfig().channel, QStringLiteral("stable"));
    }

    void language_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("asStored");
        QTest::addColumn<QString>("resolved");
        // The tests run with the C locale, which is no supported language.
        QTest::newRow("never chosen") << QString() << "system"
                                      << "en";
        QTest::newRow("system") << "system"
                                << "system"
                                << "en";
        QTest::newRow("German") << "de"
                                << "de"
                                << "de";
        QTest::newRow("not supported") << "pt"
                                       << "pt"
                                       << "pt";
    }
    void language()
    {
        QFETCH(QString, stored);
        QVERIFY2(QLocale::system().language() == QLocale::C, "run this test with LC_ALL=C.UTF-8");
        if (stored.isNull())
            QSettings().remove(QStringLiteral("ui/language"));
        else
            Application::setPreferredLanguage(stored);
        QTEST(Application::currentLanguage(false), "asStored");
        QTEST(Application::currentLanguage(true), "resolved");
        Application::setPreferredLanguage(QStringLiteral("system"));
    }

    void datesFollowTheLanguageAndTheTerritory_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("name");
        // Which pairs there are is told by CLDR's list of locales.
        QTest::newRow("English in Germany") << "en"
                                            << "de_DE"
                                            << "en_DE";
        QTest::newRow("English in Austria") << "en"
                                            << "de_AT"
                                            << "en_AT";
        QTest::newRow("Spanish in the United States") << "es"
                                                      << "en_US"
                                                      << "es_US";
        QTest::newRow("the system's own") << "en"
                                          << "en_GB"
                                          << "en_GB";
        QTest::newRow("German in Japan is not known") << "de"
                                                      << "ja_JP"
                                                      << "de_DE";
        QTest::newRow("Japanese in Germany is not known") << "ja"
                                                          << "de_DE"
                                                          << "ja_JP";
        QTest::newRow("system without a language") << "fr"
                                                   << "C"
                                                   << "fr_FR";
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
        QVERIFY(!instance.tryRouteToExisting({ QStringLiteral("program") }));
        m_application->setSingleInstance(&instance);
        m_application->setInitialCommand(SingleInstance::parseArgsToCommand({ QStringLiteral("program") }));
        bool wasHidden = false;
        bool dialogEndedIt = true;
        QTimer::singleShot(0, this, [&] {
            wasHidden = mainWindow() && !mainWindow()->isVisible();
            // Some dialog of a hidden program comes and goes.
            QWidget passing;
            passing.show();
            passing.close();
            QTimer::singleShot(0, this, [&] {
                dialogEndedIt = false;
                SingleInstance().tryRouteToExisting({ QStringLiteral("program") });
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
    qputenv("CALENDAR_DATA_DIR", dir.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    qputenv("CALENDAR_INSTANCE", "application-test-" + QByteArray::number(QCoreApplication::applicationPid()));
    char background[] = "--background";
    char *applicationArgv[] = { argv[0], background, nullptr };
    int applicationArgc = 2;
    Application application(applicationArgc, applicationArgv);
    tst_Application test(&application);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Application.moc"
