#include "sync/SyncScheduler.h"

#include "caldav/CalDavClient.h"
#include "caldav/CalDavSyncClient.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/Database.h"
#include "storage/TaskRepository.h"
#include "support/FakeCalDav.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int Never = std::numeric_limits<int>::min();

QByteArray eventText(const QByteArray &uid, const QByteArray &title)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Phone//EN\r\nBEGIN:VEVENT\r\nUID:" + uid
        + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + title
        + "\r\nDTSTART:20260315T090000Z\r\nDTEND:20260315T100000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
}

}

class tst_SyncScheduler : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_server = std::make_unique<FakeCalDav>();
        m_state = std::make_unique<ScratchState>();
        m_secrets = m_state->path(u"secrets.json"_s);
        qputenv("CALENDAR_TOKEN_STORE", "file:" + m_secrets.toUtf8());
        m_account = {};
        m_account.id = u"account"_s;
        m_account.name = u"Server"_s;
        m_account.type = AccountType::CalDAV;
        m_account.serverUrl = m_server->url().toString();
        m_account.username = u"alice"_s;
        QVERIFY((*m_state)->accounts()->insert(m_account));
        m_scheduler = std::make_unique<SyncScheduler>(m_state->state());
        m_messages = std::make_unique<QSignalSpy>(m_scheduler.get(), &SyncScheduler::statusMessage);
    }
    void cleanup()
    {
        m_messages.reset();
        m_scheduler.reset();
        qunsetenv("CALENDAR_TOKEN_STORE");
    }

    void aRoundFindsCalendarsAndSyncsThem()
    {
        givePassword();
        m_account.pendingCertSha256 = u"of a hotel"_s;
        m_account.lastSyncError = u"Passwort fehlt"_s; // written in another language
        QVERIFY((*m_state)->accounts()->update(m_account));
        m_server->store("a.ics", eventText("a", "Standup"));
        syncNow();
        const QList<Calendar> calendars = (*m_state)->calendars()->getByAccount(m_account.id);
        QCOMPARE(calendars.size(), 1);
        QCOMPARE(calendars.first().name, u"Work"_s);
        QVERIFY(!calendars.first().canonicalKey.isEmpty());
        QVERIFY((*m_state)->events()->getByUid(u"a"_s, calendars.first().id));
        QCOMPARE(messages(),
                 QStringList({ u"Syncing 1 account(s)…"_s, u"Discovered 1 new calendar(s)."_s, u"Synced 1 events"_s }));
        const Account account = *(*m_state)->accounts()->getById(m_account.id);
        QVERIFY(account.lastSyncTime);
        QCOMPARE(account.pendingCertSha256 + account.lastSyncError, QString());
    }

    void anAccountWithoutPasswordSaysSo()
    {
        syncNow();
        QCOMPARE((*m_state)->accounts()->getById(m_account.id)->lastSyncError, SyncScheduler::passwordMissing());
        QCOMPARE(m_server->requestCount(), 0);
        QCOMPARE(messages(), QStringList(u"All caught up, nothing waiting to sync."_s));

        const bool isStored = waitFor<bool>([this](auto done) {
            m_scheduler->credentials()->setCaldavPassword(m_account.id, u"secret"_s, this, done);
        });
        QVERIFY(isStored);
        syncNow();
        QCOMPARE((*m_state)->accounts()->getById(m_account.id)->lastSyncError, QString());
        QVERIFY(m_server->requestCount() > 0);
    }

    void withoutAnyAccountItSaysWhereToAddOne()
    {
        QVERIFY((*m_state)->accounts()->remove(m_account.id));
        m_scheduler->runSyncNow();
        QCOMPARE(messages(), QStringList(u"No sync accounts configured. Add one in Calendar Accounts."_s));
    }

    void anEditGoesOutAndStartsNothingElse()
    {
        givePassword();
        syncNow();
        m_scheduler->start();
        const int before = m_server->requestCount();
        addPending(u"mine"_s);
        QTRY_VERIFY(m_server->objects().contains("mine.ics"));
        QTRY_VERIFY(!(*m_state)->isSyncing());
        const int oneRun = m_server->requestCount() - before;
        QCOMPARE(oneRun, 4); // ctag, events, PUT, tasks

        // The debounce of the state, which comes two seconds after the edit, finds nothing that waits.
        QSignalSpy asked(m_state->state(), &AppState::syncNowRequested);
        for (QTimer *timer : m_state->state()->findChildren<QTimer *>(Qt::FindDirectChildrenOnly)) {
            if (timer->interval() == 2000)
                QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), 4000);
        }
        QCOMPARE(asked.size(), 0);
        QCOMPARE(m_server->requestCount(), before + oneRun);
    }

    void whatIsEditedDuringARunIsPushedAfterIt()
    {
        givePassword();
        syncNow();
        m_scheduler->start();
        m_server->whenAsked("PUT", [this] { addPending(u"second"_s); });
        addPending(u"first"_s);
        QTRY_VERIFY(m_server->objects().contains("second.ics"));
    }

    void aFailedCalendarRests()
    {
        givePassword();
        syncNow();
        const QString id = calendarId();
        QVERIFY(m_scheduler->canPush(id));
        m_server->fail(3, { .kind = FakeCalDav::Fault::Status, .status = 500 }); // behind the discovery
        m_messages->clear();
        syncNow();
        QVERIFY(!m_scheduler->canPush(id));
        QCOMPARE(messages().last(), u"Server returned HTTP 500 during ctag check"_s);
        QCOMPARE((*m_state)->lastSyncErrorMessage(), messages().last());
        QCOMPARE(m_scheduler->failure(id), messages().last());
        m_scheduler->start();
        const int before = m_server->requestCount();
        addPending(u"mine"_s);
        QSignalSpy changed((*m_state)->events(), &EventRepository::eventsChanged);
        QVERIFY(changed.wait());
        QCOMPARE(m_server->requestCount(), before);
        syncNow(); // who asks does not wait
        QVERIFY(m_scheduler->failure(id).isEmpty());
        QVERIFY(m_server->objects().contains("mine.ics"));
        QVERIFY(m_scheduler->canPush(id));
    }

    void anEditBeforeAFailureWaitsForTheRest()
    {
        givePassword();
        syncNow();
        m_scheduler->start();
        m_server->fail(3, { .kind = FakeCalDav::Fault::Status, .status = 500 });
        m_server->whenAsked("PROPFIND", [this] { addPending(u"mine"_s); });
        syncNow();
        const int before = m_server->requestCount();
        QSignalSpy changed((*m_state)->events(), &EventRepository::eventsChanged);
        QVERIFY(changed.wait());
        for (QTimer *timer : m_scheduler->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            QTRY_VERIFY(!timer->isSingleShot() || !timer->isActive());
        waitForRound();
        QCOMPARE(m_server->requestCount(), before);
    }

    void aServerThatGivesNothingEndsTheRoundWithAReason()
    {
        givePassword();
        m_account.serverUrl = u"http://127.0.0.1:1/"_s;
        QVERIFY((*m_state)->accounts()->update(m_account));
        syncNow();
        QVERIFY2(messages().last().startsWith(u"Could not reach the server: "_s), qPrintable(messages().last()));
        QCOMPARE(m_scheduler->failure(m_account.id), messages().last());
    }

    void anAccountThatGoesEndsItsWorkQuietly_data()
    {
        columns<QByteArray, bool, bool>("during", "isRemoved", "isSilent");
        row("removed before there were calendars", QByteArray("PROPFIND"), true, false);
        row("disabled before there were calendars", QByteArray("PROPFIND"), false, false);
        row("removed in the listing", QByteArray("REPORT"), true, false);
        row("disabled in the listing", QByteArray("REPORT"), false, false);
        row("disabled while the server is silent", QByteArray("REPORT"), false, true);
        row("removed in a push", QByteArray("PUT"), true, false);
    }
    void anAccountThatGoesEndsItsWorkQuietly()
    {
        QFETCH(const QByteArray, during);
        QFETCH(const bool, isRemoved);
        QFETCH(const bool, isSilent);
        givePassword();
        m_server->store("a.ics", eventText("a", "Standup"));
        const bool isNew = during == "PROPFIND";
        if (!isNew) {
            syncNow();
            addPending(u"mine"_s);
        }
        int before = 0;
        m_server->whenAsked(during, [&] {
            before = m_server->requestCount();
            if (isSilent)
                m_server->fail(-1, { .kind = FakeCalDav::Fault::Silence }); // this one
            m_account.enabled = false;
            isRemoved ? (*m_state)->accounts()->remove(m_account.id) : (*m_state)->accounts()->update(m_account);
        });
        m_scheduler->runSyncNow();
        m_scheduler->runSyncNow(); // one that waits
        QTRY_VERIFY(before > 0);
        QTRY_VERIFY(isIdle());
        QVERIFY(!(*m_state)->isSyncing());
        QVERIFY(!(*m_state)->lastSyncErrored());
        QCOMPARE((*m_state)->calendars()->getByAccount(m_account.id).size(), isNew || isRemoved ? 0 : 1);
        QVERIFY(isNew || m_server->requestCount() == before);
        QVERIFY2(!messages().last().startsWith(u"Syncing"), qPrintable(messages().last()));
    }

    void aFullSyncDiscardsOnlyWhatTheServerCanGiveBack()
    {
        givePassword();
        m_server->store("a.ics", eventText("a", "Theirs"));
        m_server->store("b.ics", eventText("b", "Theirs"));
        syncNow();
        const QString id = calendarId();
        Event edited = *(*m_state)->events()->getByUid(u"a"_s, id);
        edited.title = u"Mine"_s;
        edited.syncStatus = SyncStatus::Pending;
        QVERIFY((*m_state)->events()->update(edited));
        QVERIFY((*m_state)->events()->remove((*m_state)->events()->getByUid(u"b"_s, id)->id));
        addPending(u"new"_s);
        const Event local = m_state->addEvent(u"At home"_s, utc("2026-03-01T09:00"), utc("2026-03-01T10:00"));
        (*m_state)->events()->remove(local.id);
        m_scheduler->runForceFullSync();
        QTRY_COMPARE((*m_state)->events()->getByUid(u"a"_s, id)->title, u"Theirs"_s);
        waitForRound();
        QCOMPARE(m_server->objects().keys().join(' '), QByteArray("a.ics new.ics"));
        QVERIFY((*m_state)->events()->getById(local.id)->deletedAt);
    }

    void aFullSyncDuringAPushLeavesBothSidesAlike()
    {
        givePassword();
        m_server->store("a.ics", eventText("a", "Theirs"));
        syncNow();
        const auto edit = [this](const QString &title) {
            Event event = *(*m_state)->events()->getByUid(u"a"_s, calendarId());
            event.title = title;
            event.syncStatus = SyncStatus::Pending;
            (*m_state)->events()->update(event);
        };
        edit(u"Sent"_s);
        m_server->whenAsked("PUT", [this, edit] {
            edit(u"Given up"_s);
            m_scheduler->runForceFullSync();
        });
        syncNow();
        QTRY_COMPARE((*m_state)->events()->getByUid(u"a"_s, calendarId())->title, u"Sent"_s);
    }

    void theIntervalCountsFromTheLastTry_data()
    {
        columns<int, int, bool, bool>("interval", "minutesAgo", "isEnabled", "isDue");
        row("never tried", 15, Never, true, true);
        row("just now", 15, 1, true, false);
        row("due", 15, 15, true, true);
        row("the clock was put back", 15, -60, true, true);
        row("by hand only", 0, 500, true, false);
        row("disabled", 15, 500, false, false);
    }
    void theIntervalCountsFromTheLastTry()
    {
        QFETCH(const int, interval);
        QFETCH(const int, minutesAgo);
        QFETCH(const bool, isEnabled);
        QFETCH(const bool, isDue);
        givePassword();
        m_account.syncIntervalMinutes = interval;
        m_account.enabled = isEnabled;
        if (minutesAgo != Never)
            m_account.lastSyncTime = QDateTime::currentDateTimeUtc().addSecs(-60 * minutesAgo);
        QVERIFY((*m_state)->accounts()->update(m_account));
        m_scheduler->runPeriodicSyncTick();
        const auto stamped = (*m_state)->accounts()->getById(m_account.id)->lastSyncTime;
        QCOMPARE(stamped && qAbs(stamped->secsTo(QDateTime::currentDateTimeUtc())) < 30, isDue);
        if (isDue)
            waitForRound();
    }

private:
    void givePassword()
    {
        QFile file(m_secrets);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"caldav-password-account\":\"secret\"}");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }

    template <typename Result, typename Ask> Result waitFor(Ask ask)
    {
        std::optional<Result> result;
        ask([&result](const Result &given) { result = given; });
        [&] { QTRY_VERIFY(result.has_value()); }();
        return result.value_or(Result());
    }

    void syncNow()
    {
        m_scheduler->runSyncNow();
        waitForRound();
    }

    // Until the password was looked up, calendars were discovered, and their runs have ended.
    void waitForRound()
    {
        waitFor<QString>([this](auto done) {
            m_scheduler->credentials()->caldavPassword(m_account.id, Credentials::Unlock::Never, this, done);
        });
        QTRY_VERIFY(!(*m_state)->isSyncing() && isIdle());
    }

    QString calendarId() const { return (*m_state)->calendars()->getByAccount(m_account.id).first().id; }

    bool isIdle() const
    {
        return m_scheduler->findChildren<CalDavClient *>().isEmpty()
            && m_scheduler->findChildren<CalDavSyncClient *>().isEmpty();
    }

    void addPending(const QString &uid)
    {
        Event event;
        event.id = event.uid = uid;
        event.calendarId = calendarId();
        event.title = uid;
        event.startTime = utc("2026-05-01T10:00");
        event.endTime = utc("2026-05-01T11:00");
        event.created = event.startTime;
        event.syncStatus = SyncStatus::Pending;
        QVERIFY((*m_state)->events()->insert(event));
    }

    QStringList messages() const
    {
        QStringList texts;
        for (const QVariantList &message : *m_messages)
            texts.append(message.first().toString());
        return texts;
    }

    std::unique_ptr<FakeCalDav> m_server;
    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<SyncScheduler> m_scheduler;
    std::unique_ptr<QSignalSpy> m_messages;
    Account m_account{};
    QString m_secrets;
};

QTEST_GUILESS_MAIN(tst_SyncScheduler)
#include "tst_SyncScheduler.moc"
