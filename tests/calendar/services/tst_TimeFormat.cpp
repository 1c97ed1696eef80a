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
    void formats()
    {
        ScratchState state;
        const auto shown = [&](QTime time) { return TimeFormat::formatTime(state.state(), time); };
        QCOMPARE(shown(QTime(21, 5)), u"9:05 PM"_s); // never set
        QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"24"_s));
        QCOMPARE(shown(QTime(9, 5)), u"09:05"_s);
        QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"12"_s));
        QCOMPARE(shown(QTime(0, 30)), u"12:30 AM"_s);
        QCOMPARE(TimeFormat::eventTimeFormatString(nullptr), u"h:mm AP"_s);
    }

    void firstValueFollowsTheLocale_data()
    {
        columns<QString, QString, QString>("language", "system", "expected");
        row("the system's clock goes first", "en_US", "de_DE", "24");
        row("the system's clock goes first, 12", "de_DE", "en_US", "12");
        // A system without a habit.
        row("United States", "en_US", "C", "12");
        row("United Kingdom", "en_GB", "C", "24");
        row("Spain", "es_ES", "C", "24");
        row("India", "hi_IN", "C", "12");
    }
    void firstValueFollowsTheLocale()
    {
        QFETCH(QString, language);
        QFETCH(QString, system);
        const auto restore = qScopeGuard([previous = QLocale()] { QLocale::setDefault(previous); });
        QLocale::setDefault(QLocale(language));
        ScratchState state;
        TimeFormat::initializeFromLocale(nullptr);
        TimeFormat::initializeFromLocale(state.state(), QLocale(system));
        QTEST(state->preferences()->get(u"ui/timeFormat"_s, QString()), "expected");
        // The user's own choice is not touched again.
        QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"chosen"_s));
        TimeFormat::initializeFromLocale(state.state());
        QCOMPARE(state->preferences()->get(u"ui/timeFormat"_s, QString()), u"chosen"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TimeFormat)
#include "tst_TimeFormat.moc"
