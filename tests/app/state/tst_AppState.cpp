#include "app/state/AppState.h"

#include "models/Account.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Day = u"day"_s;
const QString Week = u"week"_s;
const QString Month = u"month"_s;
const QDate LeapDay(2024, 2, 29); // a Thursday

}

/// The view state: what is kept, what a stale database turns into, and the history.
class tst_AppState : public QObject {
    Q_OBJECT

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }
    void cleanup() { m_state.reset(); }

    void restoresStoredState_data()
    {
        columns<QString, QString, QString, int, int>("key", "stored", "mode", "hourHeight", "horizon");
        row("first start", "ui/unknown", "", "week", 56, 7);
        row("mode kept", "ui/viewMode", "month", "month", 56, 7);
        row("mode of the past or the future", "ui/viewMode", "list", "week", 56, 7);
        row("height too big", "ui/timelineHourHeight", "9000", "week", 200, 7);
        row("height no number", "ui/timelineHourHeight", "tall", "week", 56, 7);
        row("horizon too big", "ui/weekHorizon", "22", "week", 56, 21);
        row("old date is not reopened", "ui/viewDate", "1999-12-31", "week", 56, 7);
    }
    void restoresStoredState()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QVERIFY(preferences()->set(key, stored));
        QSignalSpy modeChanges(&state(), &AppState::viewModeChanged);
        state().restoreViewState();
        QTEST(state().viewMode(), "mode");
        QTEST(state().hourHeight(), "hourHeight");
        QTEST(state().weekHorizon(), "horizon");
        QCOMPARE(state().currentDate(), QDate::currentDate());
        QCOMPARE(modeChanges.size(), 0);
        // A mode that is no more leaves the database too; the other values are only read differently, as is a
        // mode that this version does not know.
        const bool isGone = stored == u"list" || stored == u"agenda";
        state().flushViewState();
        QCOMPARE(preferences()->get(key), isGone ? u"week"_s : stored);
    }

    void staleActiveViewFallsBackToTheFirst()
    {
        ViewDef gone;
        gone.id = u"gone"_s;
        QVERIFY(state().views()->insert(gone));
        QVERIFY(preferences()->set(u"ui/activeViewId"_s, gone.id));
        state().restoreViewState();
        QCOMPARE(state().activeViewId(), gone.id);
        QVERIFY(state().views()->softDelete(gone.id));
        state().restoreViewState();
        QCOMPARE(state().activeViewId(), u"all-calendars"_s);
        QCOMPARE(preferences()->get(u"ui/activeViewId"_s), gone.id);
    }

    void settersBoundAndSignalOnce()
    {
        QSignalSpy heights(&state(), &AppState::hourHeightChanged);
        state().setHourHeight(300);
        state().setHourHeight(201);
        state().setCurrentDate(QDate());
        QVERIFY(state().currentDate().isValid());
        QCOMPARE(state().hourHeight(), 200);
        QCOMPARE(heights.size(), 1);
        QSignalSpy counts(&state(), &AppState::filterHiddenCountChanged);
        state().setFilterHiddenCount(0); // differs from "never counted"
        state().setFilterHiddenCount(0);
        QCOMPARE(counts.size(), 1);
        QSignalSpy densities(&state(), &AppState::densityChanged);
        state().setDensityFor(Week, u"compact"_s);
        state().setDensityFor(Week, u"compact"_s);
        QVERIFY(state().isCompact(Week) && !state().isCompact(Month));
        QCOMPARE(densities.size(), 1);
    }

    void writesHalfASecondAfterTheLastChange()
    {
        QSignalSpy writes(preferences(), &PreferencesRepository::changed);
        for (int height = 60; height < 70; ++height)
            state().setHourHeight(height);
        QCOMPARE(writes.size(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(writes.size(), 1, 3000);
        QCOMPARE(preferences()->getInt(u"ui/timelineHourHeight"_s, 0), 69);
    }

    void writesAtTheEnd()
    {
        m_state.reset(); // one database at a time
        const QTemporaryDir dir;
        {
            AppState state;
            QVERIFY(state.openStorage(dir.filePath(u"calendar.db"_s)));
            state.restoreViewState();
            state.setViewMode(Month);
            state.setWeekHorizon(14);
            state.setCurrentDate(LeapDay);
        }
        AppState state;
        QVERIFY(state.openStorage(dir.filePath(u"calendar.db"_s)));
        state.restoreViewState();
        QCOMPARE(state.viewMode(), Month);
        QCOMPARE(state.weekHorizon(), 14);
        QCOMPARE(state.preferences()->get(u"ui/viewDate"_s), u"2024-02-29"_s);
    }

    void historyGoesBackAndForward()
    {
        const QDate today = state().currentDate();
        state().navigateBack(); // nothing to go back to
        state().setViewMode(Month);
        state().setCurrentDate(LeapDay);
        state().setWeekHorizon(3);

        state().navigateBack();
        QCOMPARE(state().weekHorizon(), 7);
        QCOMPARE(state().currentDate(), LeapDay);
        state().navigateBack();
        QCOMPARE(state().currentDate(), today);
        for (int i = 0; i < 3; ++i) // the last one at the end
            state().navigateForward();
        QCOMPARE(state().weekHorizon(), 3);
        QCOMPARE(state().currentDate(), LeapDay);
        QCOMPARE(state().viewMode(), Month);

        state().navigateBack();
        state().setViewMode(Day); // a new step empties the forward list
        state().navigateForward();
        QCOMPARE(state().viewMode(), Day);
    }

    void stepsOfTheHistory()
    {
        const QDate today = state().currentDate();
        state().setViewModeAndDate(Day, LeapDay); // one step
        state().setViewModeAndDate(Day, QDate()); // changes nothing, so records nothing
        QSignalSpy modeChanges(&state(), &AppState::viewModeChanged);
        state().replaceViewMode(Month); // no step
        QCOMPARE(modeChanges.size(), 1);
        state().flushViewState();
        QCOMPARE(preferences()->get(u"ui/viewMode"_s), Month);
        state().navigateBack();
        QCOMPARE(state().viewMode(), Week);
        QCOMPARE(state().currentDate(), today);
        state().navigateBack();
        QCOMPARE(state().viewMode(), Week);
    }

    void todayTurnsOnce()
    {
        const QDate today = QDate::currentDate();
        QSignalSpy turned(&state(), &AppState::todayChanged);
        state().checkToday(QDateTime(today, QTime(23, 59, 59)));
        QCOMPARE(turned.size(), 0);
        state().checkToday(QDateTime(today.addDays(1), QTime(0, 0)));
        state().checkToday(QDateTime(today.addDays(1), QTime(23, 59, 59, 950)));
        QCOMPARE(turned.size(), 1);
        QCOMPARE(state().currentDate(), today); // where the user looks stays
        // Right after midnight the real clock is looked at, which has a day of its own.
        QTRY_COMPARE_WITH_TIMEOUT(turned.size(), 2, 2000);
        QCOMPARE(turned.constLast().constFirst().toDate(), QDate::currentDate());
    }

    void asksForSyncOnlyWhenSomethingIsPending()
    {
        QTimer *debounce = nullptr;
        for (QTimer *timer : state().findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            debounce = timer->interval() == 2000 ? timer : debounce;
        QVERIFY(debounce && debounce->isSingleShot());
        debounce->setInterval(1);
        QSignalSpy elapsed(debounce, &QTimer::timeout);
        QSignalSpy asked(&state(), &AppState::syncNowRequested);
        Event event = m_state->addEvent(u"Dentist"_s, utc("2024-02-29T09:00"), utc("2024-02-29T10:00"));
        QTRY_COMPARE(elapsed.size(), 1);
        event.syncStatus = SyncStatus::Pending;
        QVERIFY(state().events()->update(event));
        QTRY_COMPARE(elapsed.size(), 2);
        QCOMPARE(asked.size(), 0); // a local calendar has no server

        Account account;
        account.id = account.name = u"server"_s;
        account.type = AccountType::CalDAV;
        QVERIFY(state().accounts()->insert(account));
        event.calendarId = m_state->addCalendar(u"Work"_s, {}, account.id);
        QVERIFY(state().events()->update(event));
        QTRY_COMPARE(asked.size(), 1);
        {
            const SyncWrites origin(state().database());
            QVERIFY(state().events()->update(event));
        }
        QSignalSpy changed(state().events(), &EventRepository::eventsChanged);
        QVERIFY(changed.wait());
        QVERIFY(!debounce->isActive()); // what a sync stored is no reason for another one
    }

    void oneFailureMarksTheWholeCycle()
    {
        QSignalSpy busy(&state(), &AppState::syncBusyChanged);
        QSignalSpy errored(&state(), &AppState::lastSyncErroredChanged);
        state().syncOpEnded(true); // nothing runs
        QCOMPARE(busy.size(), 0);

        state().syncOpBegan();
        state().syncOpBegan();
        state().recordSyncError(u"Work"_s, u"401"_s);
        state().syncOpEnded(true);
        QVERIFY(state().isSyncing());
        state().syncOpEnded(false);
        QVERIFY(!state().isSyncing());
        QVERIFY(state().lastSyncErrored());
        QCOMPARE(state().lastSyncErrorMessage(), u"401"_s);
        QCOMPARE(errored.size(), 1);
        QCOMPARE(busy.size(), 2);

        state().syncOpBegan();
        QVERIFY(state().lastSyncErrored()); // until a whole cycle went well
        state().syncOpEnded(false);
        QVERIFY(!state().lastSyncErrored());
        QCOMPARE(state().lastSyncErrorMessage() + state().lastSyncErrorCalendar(), QString());
    }

private:
    AppState &state() { return *m_state->state(); }
    PreferencesRepository *preferences() { return state().preferences(); }

    std::unique_ptr<ScratchState> m_state;
};

QTEST_GUILESS_MAIN(tst_AppState)
#include "tst_AppState.moc"
