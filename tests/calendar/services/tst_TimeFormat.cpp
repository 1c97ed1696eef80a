#include "calendar/services/TimeFormat.h"

#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QLocale>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

class tst_TimeFormat : public QObject {
    Q_OBJECT

private slots:
    void firstValueFollowsTheLocale_data()
    {
        columns<QString, QString, QString>("language", "system", "expected");
        row("the system's clock goes first", "en_US", "de_DE", "21:05");
        row("the system's clock goes first, 12", "de_DE", "en_US", "9:05 PM");
        // A system without a habit.
        row("United Kingdom", "en_GB", "C", "21:05");
        row("India", "hi_IN", "C", "9:05 PM");
    }
    void firstValueFollowsTheLocale()
    {
        QFETCH(QString, language);
        QFETCH(QString, system);
        const auto restore = qScopeGuard([previous = QLocale()] { QLocale::setDefault(previous); });
        QLocale::setDefault(QLocale(language));
        ScratchState state;
        TimeFormat::initializeFromLocale(nullptr); // asks and does nothing
        TimeFormat::initializeFromLocale(state.state(), QLocale(system));
        QTEST(TimeFormat::formatTime(state.state(), QTime(21, 5)), "expected");
        // The user's own choice is not touched again.
        for (const QString &choice : { u"12"_s, u"24"_s }) {
            QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, choice));
            TimeFormat::initializeFromLocale(state.state());
            QCOMPARE(TimeFormat::use24Hour(state.state()), choice == u"24");
        }
    }
};

QTEST_GUILESS_MAIN(tst_TimeFormat)
#include "tst_TimeFormat.moc"
