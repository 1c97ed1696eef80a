#include "calendar/services/TimeFormat.h"

#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"

#include <QLocale>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_TimeFormat : public QObject {
    Q_OBJECT

private slots:
    void formats();
    void withoutState();
    void theSystemsClockGoesFirst();
    void firstValueFollowsTheLocale_data();
    void firstValueFollowsTheLocale();
};

void tst_TimeFormat::formats()
{
    ScratchState state;
    const QTime late(21, 5);
    QCOMPARE(TimeFormat::formatTime(state.state(), late), u"9:05 PM"_s); // never set
    QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"24"_s));
    QCOMPARE(TimeFormat::formatTime(state.state(), late), u"21:05"_s);
    QCOMPARE(TimeFormat::formatTime(state.state(), QDateTime(QDate(2026, 5, 4), QTime(9, 5), Qt::OffsetFromUTC, 3'600)),
             u"09:05"_s);
    QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"12"_s));
    QCOMPARE(TimeFormat::formatTime(state.state(), QTime(0, 30)), u"12:30 AM"_s);
}

void tst_TimeFormat::withoutState()
{
    QVERIFY(!TimeFormat::use24Hour(nullptr));
    QCOMPARE(TimeFormat::eventTimeFormatString(nullptr), u"h:mm AP"_s);
    TimeFormat::initializeFromLocale(nullptr);
}

void tst_TimeFormat::theSystemsClockGoesFirst()
{
    const auto restore = qScopeGuard([previous = QLocale()] { QLocale::setDefault(previous); });
    QLocale::setDefault(QLocale(u"en_US"_s)); // the language of the labels
    ScratchState german;
    TimeFormat::initializeFromLocale(german.state(), QLocale(u"de_DE"_s));
    QCOMPARE(german->preferences()->get(u"ui/timeFormat"_s, QString()), u"24"_s);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    ScratchState american;
    TimeFormat::initializeFromLocale(american.state(), QLocale(u"en_US"_s));
    QCOMPARE(american->preferences()->get(u"ui/timeFormat"_s, QString()), u"12"_s);
}

void tst_TimeFormat::firstValueFollowsTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("United States") << u"en_US"_s << u"12"_s;
    QTest::newRow("United Kingdom") << u"en_GB"_s << u"24"_s;
    QTest::newRow("Germany") << u"de_DE"_s << u"24"_s;
    QTest::newRow("Japan") << u"ja_JP"_s << u"24"_s;
    QTest::newRow("Spain") << u"es_ES"_s << u"24"_s;
    QTest::newRow("India") << u"hi_IN"_s << u"12"_s;
    QTest::newRow("Korea") << u"ko_KR"_s << u"12"_s;
}

void tst_TimeFormat::firstValueFollowsTheLocale()
{
    QFETCH(QString, locale);
    const auto restore = qScopeGuard([previous = QLocale()] { QLocale::setDefault(previous); });
    QLocale::setDefault(QLocale(locale));
    ScratchState state;
    TimeFormat::initializeFromLocale(state.state(), QLocale::c()); // which has no habit
    QTEST(state->preferences()->get(u"ui/timeFormat"_s, QString()), "expected");
    // The user's own choice is not touched again.
    QVERIFY(state->preferences()->set(u"ui/timeFormat"_s, u"chosen"_s));
    TimeFormat::initializeFromLocale(state.state());
    QCOMPARE(state->preferences()->get(u"ui/timeFormat"_s, QString()), u"chosen"_s);
}

QTEST_GUILESS_MAIN(tst_TimeFormat)
#include "tst_TimeFormat.moc"
