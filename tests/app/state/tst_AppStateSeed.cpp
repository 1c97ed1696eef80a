#include "app/state/AppState.h"

#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "support/TestData.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QString Local = LocalDefaults::LocalAccountId;
const QString Personal = LocalDefaults::PersonalCalendarId;

}

/// What a start writes into the database: the first calendar, and the repairs of older versions' rows.
class tst_AppStateSeed : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_state = std::make_unique<AppState>();
        QVERIFY(m_state->openStorage(m_dir->filePath(u"calendar.db"_s)));
    }
    void cleanup() { m_state.reset(); }

    void firstStartGivesACalendarToWriteTo()
    {
        m_state->seedDefaultCalendarIfMissing();
        const std::optional<Account> account = accounts()->getById(Local);
        QVERIFY(account && account->enabled && !account->excludeFromSync);
        QCOMPARE(account->name + account->type, u"Quillonquillon"_s);
        const std::optional<Calendar> calendar = calendars()->getById(Personal);
        QVERIFY(calendar);
        QCOMPARE(calendar->name, u"Personal"_s);
        QCOMPARE(calendar->accountId, Local);
        QCOMPARE(calendar->url, u"local://calendar/quillon-personal-default"_s);
        QVERIFY(calendar->isVisible && calendar->isDefault && calendar->syncEnabled && !calendar->isReadOnly);

        m_state->seedDefaultCalendarIfMissing();
        QCOMPARE(idsOf(calendars()->getAll()), Personal);
    }

    void whatWasDeletedComesBack()
    {
        m_state->seedDefaultCalendarIfMissing();
        insertCalendar(u"other"_s, Local); // even with another one to write to
        QVERIFY(calendars()->softDelete(Personal));
        m_state->seedDefaultCalendarIfMissing();
        QCOMPARE(calendars()->getAll().size(), 2);

        QVERIFY(accounts()->remove(Local));
        m_state->seedDefaultCalendarIfMissing();
        QCOMPARE(idsOf(accounts()->getAllIncludingDeleted()), Local);
        QCOMPARE(idsOf(calendars()->getAll()), Personal);
    }

    void onlyAQuillonCalendarIsEnough_data()
    {
        columns<QString, QString>("type", "expected");
        row("of the cloud", "quillon", "c");
        row("of another server", "caldav", "quillon-personal-default c");
    }
    void onlyAQuillonCalendarIsEnough()
    {
        QFETCH(QString, type);
        insertAccount(u"a"_s, type);
        insertCalendar(u"c"_s, u"a"_s);
        m_state->seedDefaultCalendarIfMissing();
        QTEST(idsOf(calendars()->getAll()), "expected");
    }

    void renamesTheLocalAccountOnce_data()
    {
        columns<QString, QString, QString>("type", "before", "after");
        row("first name", "quillon", "On This Device", "Quillon");
        row("lower case", "quillon", "On this device", "Quillon");
        row("Personal", "quillon", "Personal", "Quillon");
        row("the user's own name", "quillon", "personal", "personal");
        row("another type", "caldav", "Personal", "Personal");
    }
    void renamesTheLocalAccountOnce()
    {
        QFETCH(QString, type);
        QFETCH(QString, before);
        m_state->runOneOffRepairs(); // there is no account yet, so its time has not come
        Account account = insertAccount(Local, type, before);
        m_state->runOneOffRepairs();
        QTEST(accounts()->getById(Local)->name, "after");
        account.name = u"Personal"_s; // now it is the user's choice
        QVERIFY(accounts()->update(account));
        m_state->runOneOffRepairs();
        QCOMPARE(accounts()->getById(Local)->name, u"Personal"_s);
    }

    void enablesSyncOnOwnCalendarsOnce()
    {
        insertAccount(u"own"_s, AccountType::Quillon);
        Account keptOut = insertAccount(u"kept-out"_s, AccountType::Quillon);
        keptOut.excludeFromSync = true;
        QVERIFY(accounts()->update(keptOut));
        insertAccount(u"dav"_s, AccountType::CalDAV);
        Calendar plain = insertCalendar(u"plain"_s, u"own"_s);
        Calendar shared = insertCalendar(u"shared"_s, u"own"_s);
        shared.sharedWithMe = true;
        Calendar readOnly = insertCalendar(u"read-only"_s, u"own"_s);
        readOnly.isReadOnly = true;
        QVERIFY(calendars()->update(shared) && calendars()->update(readOnly));
        insertCalendar(u"excluded"_s, u"kept-out"_s);
        insertCalendar(u"foreign"_s, u"dav"_s);
        const auto enabled = [this] {
            QList<Calendar> all = calendars()->getAll();
            all.removeIf([](const Calendar &calendar) { return !calendar.syncEnabled; });
            return idsOf(all);
        };
        m_state->runOneOffRepairs();
        QCOMPARE(enabled(), u"plain"_s);
        QVERIFY(calendars()->update(plain)); // not enabled
        m_state->runOneOffRepairs();
        QCOMPARE(enabled(), u""_s);
    }

    void repairsOtherAccounts()
    {
        Account sample = insertAccount(LocalDefaults::SampleAccountId, AccountType::Quillon);
        insertAccount(u"a"_s, AccountType::CalDAV);
        for (int start = 0; start < 2; ++start) {
            QVERIFY(accounts()->update(sample)); // not excluded
            insertAccount(u"login %1"_s.arg(start), AccountType::CalDAV); // the same as "a"
            m_state->runOneOffRepairs();
            QVERIFY(accounts()->getById(sample.id)->excludeFromSync); // at every start
            QCOMPARE(accounts()->getAll().size(), 2 + start); // collapsed once
        }
    }

private:
    AccountRepository *accounts() { return m_state->accounts(); }
    CalendarRepository *calendars() { return m_state->calendars(); }

    Account insertAccount(const QString &id, const QString &type, const QString &name = u"Work"_s)
    {
        Account account;
        account.id = id;
        account.type = type;
        account.name = name;
        account.serverUrl = u"https://dav.example.org/"_s;
        account.username = u"alice"_s;
        if (!accounts()->insert(account))
            qFatal("cannot store an account");
        return account;
    }

    Calendar insertCalendar(const QString &id, const QString &accountId)
    {
        Calendar calendar;
        calendar.id = calendar.name = id;
        calendar.accountId = accountId;
        calendar.url = u"local://calendar/"_s + id;
        if (!calendars()->insert(calendar))
            qFatal("cannot store a calendar");
        return calendar;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
};

QTEST_GUILESS_MAIN(tst_AppStateSeed)
#include "tst_AppStateSeed.moc"
