#include "app/state/AppState.h"

#include "models/Account.h"
#include "models/Calendar.h"
#include "models/Event.h"
#include "models/ViewDef.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

QString week()
{
    return QStringLiteral("week");
}
QString day()
{
    return QStringLiteral("day");
}
QString month()
{
    return QStringLiteral("month");
}

}

/// The view state: what is kept, what a stale database turns into, and the history.
class tst_AppState : public QObject {
    Q_OBJECT

private slots:
    void firstStart()
    {
        ScratchState state;
        QCOMPARE(state->activeViewId(), ViewDefaults::AllCalendarsId);
        QCOMPARE(state->viewMode(), week());
        QCOMPARE(state->currentDate(), QDate::currentDate());
        QCOMPARE(state->hourHeight(), 56);
        QCOMPARE(state->weekHorizon(), 7);
        QCOMPARE(state->filterHiddenCount(), -1);
    }

    void restoresStoredState_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("hourHeight");
        QTest::addColumn<int>("horizon");

        QTest::newRow("mode kept") << "ui/viewMode"
                                   << "month"
                                   << "month" << 56 << 7;
        QTest::newRow("list is gone") << "ui/viewMode"
                                      << "list"
                                      << "week" << 56 << 7;
        QTest::newRow("agenda is gone") << "ui/viewMode"
                                        << "agenda"
                                        << "week" << 56 << 7;
        QTest::newRow("mode of the future") << "ui/viewMode"
                                            << "spiral"
                                            << "week" << 56 << 7;
        QTest::newRow("height kept") << "ui/timelineHourHeight"
                                     << "80"
                                     << "week" << 80 << 7;
        QTest::newRow("height too big") << "ui/timelineHourHeight"
                                        << "9000"
                                        << "week" << 200 << 7;
        QTest::newRow("height negative") << "ui/timelineHourHeight"
                                         << "-3"
                                         << "week" << 56 << 7;
        QTest::newRow("height no number") << "ui/timelineHourHeight"
                                          << "tall"
                                          << "week" << 56 << 7;
        QTest::newRow("horizon too big") << "ui/weekHorizon"
                                         << "22"
                                         << "week" << 56 << 21;
        QTest::newRow("horizon too small") << "ui/weekHorizon"
                                           << "1"
                                           << "week" << 56 << 2;
        QTest::newRow("old date is not reopened") << "ui/viewDate"
                                                  << "1999-12-31"
                                                  << "week" << 56 << 7;
    }
    void restoresStoredState()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        ScratchState state;
        QVERIFY(state->preferences()->set(key, stored));
        QSignalSpy modeChanges(state.state(), &AppState::viewModeChanged);
        state->restoreViewState();
        QTEST(state->viewMode(), "mode");
        QTEST(state->hourHeight(), "hourHeight");
        QTEST(state->weekHorizon(), "horizon");
        QCOMPARE(state->currentDate(), QDate::currentDate());
        QCOMPARE(modeChanges.size(), 0);
        // A mode that is no more leaves the database too; the other values are only read differently, as is a
        // mode that this version does not know.
        const bool isGone = stored == QStringLiteral("list") || stored == QStringLiteral("agenda");
        state->flushViewState();
        QCOMPARE(state->preferences()->get(key), isGone ? QStringLiteral("week") : stored);
    }

    void staleActiveViewFallsBackToTheFirst()
    {
        ScratchState state;
        ViewDef gone;
        gone.id = QStringLiteral("gone");
        gone.name = QStringLiteral("Gone");
        gone.createdAt = gone.updatedAt = QDateTime::currentDateTimeUtc();
        QVERIFY(state->views()->insert(gone));
        QVERIFY(state->preferences()->set(QStringLiteral("ui/activeViewId"), gone.id));
        state->restoreViewState();
        QCOMPARE(state->activeViewId(), gone.id);

        QVERIFY(state->views()->softDelete(gone.id));
        state->restoreViewState();
        QCOMPARE(state->activeViewId(), state->views()->getAll().constFirst().id);
        QCOMPARE(state->preferences()->get(QStringLiteral("ui/activeViewId")), gone.id);
    }

    void settersBoundAndSignalOnce()
    {
        ScratchState state;
        QSignalSpy heights(state.state(), &AppState::hourHeightChanged);
        state->setHourHeight(300);
        state->setHourHeight(201);
        QCOMPARE(state->hourHeight(), 200);
        QCOMPARE(heights.size(), 1);

        QSignalSpy counts(state.state(), &AppState::filterHiddenCountChanged);
        state->setFilterHiddenCount(0); // differs from "never counted"
        state->setFilterHiddenCount(0);
        QCOMPARE(counts.size(), 1);

        QSignalSpy dates(state.state(), &AppState::currentDateChanged);
        state->setCurrentDate(QDate());
        state->setCurrentDate(state->currentDate());
        QCOMPARE(dates.size(), 0);

        state->setViewMode(QStringLiteral("agenda"));
        QCOMPARE(state->viewMode(), week());
    }

    void selectionIsAnOccurrence()
    {
        AppState state;
        QSignalSpy changed(&state, &AppState::selectedEventChanged);
        const QDateTime monday(QDate(2026, 6, 15), QTime(9, 0), Qt::UTC);
        state.setSelectedOccurrence(QStringLiteral("e"), monday);
        state.setSelectedOccurrence(QStringLiteral("e"), monday);
        QCOMPARE(changed.size(), 1);
        state.setSelectedOccurrence(QStringLiteral("e"), monday.addDays(1));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(state.selectedOccurrence(), monday.addDays(1));
        state.setSelectedEventId(QStringLiteral("e")); // whichever comes first
        QCOMPARE(changed.size(), 3);
        QVERIFY(!state.selectedOccurrence().isValid());
        QCOMPARE(changed.at(2).at(0).toString(), QStringLiteral("e"));
    }

    void writesHalfASecondAfterTheLastChange()
    {
        ScratchState state;
        QSignalSpy writes(state->preferences(), &PreferencesRepository::changed);
        QSignalSpy heights(state.state(), &AppState::hourHeightChanged);
        for (int height = 60; height < 70; ++height)
            state->setHourHeight(height);
        QCOMPARE(heights.size(), 10);
        QCOMPARE(writes.size(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(writes.size(), 1, 3000);
        QCOMPARE(state->preferences()->getInt(QStringLiteral("ui/timelineHourHeight"), 0), 69);
    }

    void writesAtTheEnd()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("calendar.db"));
        {
            AppState state;
            QVERIFY(state.openStorage(path));
            state.restoreViewState();
            state.setViewMode(month());
            state.setWeekHorizon(14);
            state.setCurrentDate(QDate(2024, 2, 29));
        }
        AppState state;
        QVERIFY(state.openStorage(path));
        state.restoreViewState();
        QCOMPARE(state.viewMode(), month());
        QCOMPARE(state.weekHorizon(), 14);
        QCOMPARE(state.preferences()->get(QStringLiteral("ui/viewDate")), QStringLiteral("2024-02-29"));
    }

    void historyGoesBackAndForward()
    {
        ScratchState state;
        const QDate today = state->currentDate();
        const QDate leapDay(2024, 2, 29);
        state->navigateBack(); // nothing to go back to
        state->setViewMode(month());
        state->setCurrentDate(leapDay);
        state->setWeekHorizon(3);

        state->navigateBack();
        QCOMPARE(state->weekHorizon(), 7);
        QCOMPARE(state->currentDate(), leapDay);
        state->navigateBack();
        QCOMPARE(state->currentDate(), today);
        state->navigateForward();
        state->navigateForward();
        QCOMPARE(state->weekHorizon(), 3);
        QCOMPARE(state->currentDate(), leapDay);
        QCOMPARE(state->viewMode(), month());
        state->navigateForward(); // the end
        QCOMPARE(state->weekHorizon(), 3);
    }

    void newStepEmptiesTheForwardList()
    {
        ScratchState state;
        state->setViewMode(month());
        state->navigateBack();
        state->setViewMode(day());
        state->navigateForward();
        QCOMPARE(state->viewMode(), day());
    }

    void replacedModeIsNoStep()
    {
        ScratchState state;
        state->setCurrentDate(QDate(2024, 2, 29));
        QSignalSpy modeChanges(state.state(), &AppState::viewModeChanged);
        state->replaceViewMode(day());
        QCOMPARE(modeChanges.size(), 1);
        state->flushViewState();
        QCOMPARE(state->preferences()->get(QStringLiteral("ui/viewMode")), day());
        state->navigateBack();
        QCOMPARE(state->currentDate(), QDate::currentDate()); // the step before it
        QCOMPARE(state->viewMode(), week());
    }

    void combinedJumpIsOneStep()
    {
        ScratchState state;
        const QDate today = state->currentDate();
        state->setViewModeAndDate(day(), QDate(2024, 2, 29));
        QCOMPARE(state->viewMode(), day());
        QCOMPARE(state->currentDate(), QDate(2024, 2, 29));
        state->setViewModeAndDate(day(), QDate()); // changes nothing, so records nothing
        state->navigateBack();
        QCOMPARE(state->viewMode(), week());
        QCOMPARE(state->currentDate(), today);
        state->navigateBack();
        QCOMPARE(state->viewMode(), week());
    }

    void densityKnowsTwoValues()
    {
        ScratchState state;
        QSignalSpy spy(state.state(), &AppState::densityChanged);
        QCOMPARE(AppState().densityFor(week()), QStringLiteral("comfortable")); // before any database
        state->setDensityFor(week(), QStringLiteral("compact"));
        QVERIFY(state->isCompact(week()));
        QVERIFY(!state->isCompact(month()));
        state->setDensityFor(week(), QStringLiteral("airy"));
        state->setDensityFor(week(), QStringLiteral("comfortable"));
        QVERIFY(!state->isCompact(week()));
        QCOMPARE(spy.size(), 2);
    }

    void todayTurnsOnce()
    {
        ScratchState state;
        const QDate today = QDate::currentDate();
        QSignalSpy spy(state.state(), &AppState::todayChanged);
        state->checkToday(QDateTime(today, QTime(23, 59, 59)));
        QCOMPARE(spy.size(), 0);
        state->checkToday(QDateTime(today.addDays(1), QTime(0, 0)));
        state->checkToday(QDateTime(today.addDays(1), QTime(8, 0)));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.constFirst().constFirst().toDate(), today.addDays(1));
        QCOMPARE(state->currentDate(), today); // where the user looks stays
    }

    void looksAtTheClockRightAfterMidnight()
    {
        ScratchState state;
        const QDate other = QDate::currentDate().addDays(5);
        QSignalSpy spy(state.state(), &AppState::todayChanged);
        state->checkToday(QDateTime(other, QTime(23, 59, 59, 950)));
        QCOMPARE(spy.size(), 1);
        // 50 ms later the real clock is looked at, which has a day of its own.
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 2, 2000);
        QCOMPARE(spy.constLast().constFirst().toDate(), QDate::currentDate());
    }

    void weekStart_data()
    {
        QTest::addColumn<int>("firstDay");
        QTest::addColumn<QDate>("start");
        // 29 February 2024 was a Thursday.
        QTest::newRow("Monday") << 1 << QDate(2024, 2, 26);
        QTest::newRow("Thursday") << 4 << QDate(2024, 2, 29);
        QTest::newRow("Friday") << 5 << QDate(2024, 2, 23);
        QTest::newRow("Saturday") << 6 << QDate(2024, 2, 24);
        QTest::newRow("Sunday") << 7 << QDate(2024, 2, 25);
    }
    void weekStart()
    {
        QFETCH(int, firstDay);
        ScratchState state;
        QSignalSpy spy(state.state(), &AppState::firstDayOfWeekChanged);
        QVERIFY(state->preferences()->setInt(QStringLiteral("ui/weekStartDay"), firstDay));
        QCOMPARE(spy.size(), 1);
        QTEST(state->weekStart(QDate(2024, 2, 29)), "start");
    }

    void unreadableWeekStartIsAutomatic()
    {
        ScratchState state;
        const Qt::DayOfWeek automatic = state->firstDayOfWeek();
        for (const int stored : { 0, 8, -1 }) {
            QVERIFY(state->preferences()->setInt(QStringLiteral("ui/weekStartDay"), stored));
            QCOMPARE(state->firstDayOfWeek(), automatic);
        }
    }

    void workdayHoursFollowTheirSettings()
    {
        ScratchState state;
        QSignalSpy spy(state.state(), &AppState::workdayHoursChanged);
        QVERIFY(state->preferences()->setInt(QStringLiteral("ui/workdayStart"), 6));
        QCOMPARE(spy.takeFirst(), (QVariantList{ 6, 18 }));
    }

    void asksForSyncOnlyWhenSomethingIsPending()
    {
        ScratchState state;
        QTimer *debounce = nullptr;
        for (QTimer *timer : state->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            debounce = timer->interval() == 2000 ? timer : debounce;
        QVERIFY(debounce && debounce->isSingleShot());
        debounce->setInterval(1);
        QSignalSpy elapsed(debounce, &QTimer::timeout);
        QSignalSpy asked(state.state(), &AppState::syncNowRequested);
        Event event = state.addEvent(QStringLiteral("Dentist"), QDateTime(QDate(2024, 2, 29), QTime(9, 0), Qt::UTC),
                                     QDateTime(QDate(2024, 2, 29), QTime(10, 0), Qt::UTC));
        QTRY_COMPARE(elapsed.size(), 1);
        QCOMPARE(asked.size(), 0); // what a sync stored is no reason for another one
        event.syncStatus = SyncStatus::Pending;
        QVERIFY(state->events()->update(event));
        QTRY_COMPARE(asked.size(), 1);
    }

    void oneFailureMarksTheWholeCycle()
    {
        AppState state;
        QSignalSpy busy(&state, &AppState::syncBusyChanged);
        QSignalSpy errored(&state, &AppState::lastSyncErroredChanged);
        state.syncOpEnded(true); // nothing runs
        QCOMPARE(busy.size(), 0);

        state.syncOpBegan();
        state.syncOpBegan();
        state.recordSyncError(QStringLiteral("Work"), QStringLiteral("401"));
        state.syncOpEnded(true);
        QVERIFY(state.isSyncing());
        state.syncOpEnded(false);
        QVERIFY(!state.isSyncing());
        QVERIFY(state.lastSyncErrored());
        QCOMPARE(state.lastSyncErrorMessage(), QStringLiteral("401"));
        QCOMPARE(errored.size(), 1);
        QCOMPARE(busy.size(), 2);

        state.syncOpBegan();
        QVERIFY(state.lastSyncErrored()); // until a whole cycle went well
        state.syncOpEnded(false);
        QVERIFY(!state.lastSyncErrored());
        QVERIFY(state.lastSyncErrorMessage().isEmpty());
        QVERIFY(state.lastSyncErrorCalendar().isEmpty());
    }

    void syncableCalendarsAreThoseOfOtherServers()
    {
        ScratchState state;
        QVERIFY(AppState().syncableCalendarIds().isEmpty());
        QSet<QString> expected;
        for (const char *type : { "caldav", "icloud", "zoho", "google", "microsoft", "quillon", "webcal" }) {
            Account account;
            account.id = account.type = QString::fromLatin1(type);
            account.name = account.username = account.id;
            account.createdAt = account.updatedAt = QDateTime::currentDateTimeUtc();
            QVERIFY(state->accounts()->insert(account));
            Calendar calendar;
            calendar.id = QStringLiteral("calendar-") + account.id;
            calendar.accountId = account.id;
            calendar.url = calendar.name = calendar.id;
            calendar.createdAt = calendar.updatedAt = account.createdAt;
            QVERIFY(state->calendars()->insert(calendar));
            if (account.type != AccountType::Quillon && account.type != AccountType::Webcal)
                expected.insert(calendar.id);
        }
        QCOMPARE(state->syncableCalendarIds(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_AppState)
#include "tst_AppState.moc"
