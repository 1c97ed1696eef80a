#include "app/state/AppState.h"

#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"

#include <QTemporaryDir>
#include <QTest>

/// What a start writes into the database: the first calendar, and the repairs of older versions' rows.
class tst_AppStateSeed : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_state = std::make_unique<AppState>();
        QVERIFY(m_state->openStorage(m_dir->filePath(QStringLiteral("calendar.db"))));
    }
    void cleanup() { m_state.reset(); }

    void firstStartGivesACalendarToWriteTo()
    {
        m_state->seedDefaultCalendarIfMissing();
        const std::optional<Account> account = m_state->accounts()->getById(LocalDefaults::LocalAccountId);
        QVERIFY(account);
        QCOMPARE(account->name, QStringLiteral("Quillon"));
        QCOMPARE(account->type, AccountType::Quillon);
        QCOMPARE(account->color, QStringLiteral("#4CAF50"));
        QVERIFY(account->enabled && !account->excludeFromSync);
        const std::optional<Calendar> calendar = m_state->calendars()->getById(LocalDefaults::PersonalCalendarId);
        QVERIFY(calendar);
        QCOMPARE(calendar->name, QStringLiteral("Personal"));
        QCOMPARE(calendar->accountId, LocalDefaults::LocalAccountId);
        QCOMPARE(calendar->url, QStringLiteral("local://calendar/quillon-personal-default"));
        QCOMPARE(calendar->color, QStringLiteral("#4285F4"));
        QVERIFY(calendar->isVisible && calendar->isDefault && calendar->syncEnabled && !calendar->isReadOnly);
        QVERIFY(!calendar->supportsTasks());

        m_state->seedDefaultCalendarIfMissing();
        QCOMPARE(m_state->calendars()->getAll().size(), 1);
    }

    void deletedPersonalCalendarComesBack()
    {
        m_state->seedDefaultCalendarIfMissing();
        insertCalendar(QStringLiteral("other"), LocalDefaults::LocalAccountId); // even with another one to write to
        QVERIFY(m_state->calendars()->softDelete(LocalDefaults::PersonalCalendarId));
        m_state->seedDefaultCalendarIfMissing();
        QVERIFY(m_state->calendars()->getById(LocalDefaults::PersonalCalendarId));
        QCOMPARE(m_state->calendars()->getAll().size(), 2);
    }

    void deletedLocalAccountIsReplaced()
    {
        m_state->seedDefaultCalendarIfMissing();
        QVERIFY(m_state->accounts()->remove(LocalDefaults::LocalAccountId));
        QVERIFY(!m_state->accounts()->getById(LocalDefaults::LocalAccountId));
        m_state->seedDefaultCalendarIfMissing();
        QVERIFY(m_state->accounts()->getById(LocalDefaults::LocalAccountId));
        QVERIFY(m_state->calendars()->getById(LocalDefaults::PersonalCalendarId));
        QCOMPARE(m_state->accounts()->getAllIncludingDeleted().size(), 1);
    }

    void otherQuillonCalendarIsEnough()
    {
        insertAccount(QStringLiteral("cloud"), AccountType::Quillon, QStringLiteral("Cloud"));
        insertCalendar(QStringLiteral("cloud-calendar"), QStringLiteral("cloud"));
        m_state->seedDefaultCalendarIfMissing();
        QCOMPARE(m_state->calendars()->getAll().size(), 1);
        QVERIFY(!m_state->accounts()->getById(LocalDefaults::LocalAccountId));
    }

    void calendarOfAnotherServerIsNotEnough()
    {
        insertAccount(QStringLiteral("dav"), AccountType::CalDAV, QStringLiteral("Work"));
        insertCalendar(QStringLiteral("dav-calendar"), QStringLiteral("dav"));
        m_state->seedDefaultCalendarIfMissing();
        QVERIFY(m_state->calendars()->getById(LocalDefaults::PersonalCalendarId));
    }

    void renamesTheLocalAccountOnce_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("first name") << "quillon"
                                    << "On This Device"
                                    << "Quillon";
        QTest::newRow("lower case") << "quillon"
                                    << "On this device"
                                    << "Quillon";
        QTest::newRow("Personal") << "quillon"
                                  << "Personal"
                                  << "Quillon";
        QTest::newRow("the user's own name") << "quillon"
                                             << "personal"
                                             << "personal";
        QTest::newRow("another type") << "caldav"
                                      << "Personal"
                                      << "Personal";
    }
    void renamesTheLocalAccountOnce()
    {
        QFETCH(QString, type);
        QFETCH(QString, before);
        const QString flag = QStringLiteral("migrations/quillonAccountRenamedV1");
        m_state->runOneOffRepairs();
        QVERIFY(!m_state->preferences()->getBool(flag, false)); // there was no account yet

        insertAccount(LocalDefaults::LocalAccountId, type, before);
        m_state->runOneOffRepairs();
        QTEST(m_state->accounts()->getById(LocalDefaults::LocalAccountId)->name, "after");
        QVERIFY(m_state->preferences()->getBool(flag, false));

        Account account = m_state->accounts()->getById(LocalDefaults::LocalAccountId).value();
        account.name = QStringLiteral("Personal"); // now it is the user's choice
        QVERIFY(m_state->accounts()->update(account));
        m_state->runOneOffRepairs();
        QCOMPARE(m_state->accounts()->getById(LocalDefaults::LocalAccountId)->name, QStringLiteral("Personal"));
    }

    void enablesSyncOnOwnCalendarsOnce()
    {
        insertAccount(QStringLiteral("own"), AccountType::Quillon, QStringLiteral("Own"));
        insertAccount(QStringLiteral("kept-out"), AccountType::Quillon, QStringLiteral("Kept out"), true);
        insertAccount(QStringLiteral("dav"), AccountType::CalDAV, QStringLiteral("Work"));
        insertCalendar(QStringLiteral("plain"), QStringLiteral("own"));
        insertCalendar(QStringLiteral("shared"), QStringLiteral("own"), [](Calendar &c) { c.sharedWithMe = true; });
        insertCalendar(QStringLiteral("read-only"), QStringLiteral("own"), [](Calendar &c) { c.isReadOnly = true; });
        insertCalendar(QStringLiteral("excluded"), QStringLiteral("kept-out"));
        insertCalendar(QStringLiteral("foreign"), QStringLiteral("dav"));
        m_state->runOneOffRepairs();
        QStringList enabled;
        for (const Calendar &calendar : m_state->calendars()->getAll()) {
            if (calendar.syncEnabled)
                enabled.append(calendar.id);
        }
        QCOMPARE(enabled, QStringList(QStringLiteral("plain")));

        Calendar plain = m_state->calendars()->getById(QStringLiteral("plain")).value();
        plain.syncEnabled = false;
        QVERIFY(m_state->calendars()->update(plain));
        m_state->runOneOffRepairs();
        QVERIFY(!m_state->calendars()->getById(QStringLiteral("plain"))->syncEnabled);
    }

    void sampleDataStaysOutOfSyncAtEveryStart()
    {
        insertAccount(LocalDefaults::SampleAccountId, AccountType::Quillon, QStringLiteral("Sample"));
        for (int start = 0; start < 2; ++start) {
            Account sample = m_state->accounts()->getById(LocalDefaults::SampleAccountId).value();
            sample.excludeFromSync = false;
            QVERIFY(m_state->accounts()->update(sample));
            m_state->runOneOffRepairs();
            QVERIFY(m_state->accounts()->getById(LocalDefaults::SampleAccountId)->excludeFromSync);
        }
    }

    void collapsesTheSameLoginOnce()
    {
        insertAccount(QStringLiteral("a"), AccountType::CalDAV, QStringLiteral("Work"));
        insertAccount(QStringLiteral("b"), AccountType::CalDAV, QStringLiteral("Work"));
        m_state->runOneOffRepairs();
        QCOMPARE(m_state->accounts()->getAll().size(), 1);
        insertAccount(QStringLiteral("c"), AccountType::CalDAV, QStringLiteral("Work"));
        m_state->runOneOffRepairs();
        QCOMPARE(m_state->accounts()->getAll().size(), 2);
    }

private:
    void insertAccount(const QString &id, const QString &type, const QString &name, bool excludeFromSync = false)
    {
        Account account;
        account.id = id;
        account.type = type;
        account.name = name;
        account.serverUrl = QStringLiteral("https://dav.example.org/");
        account.username = QStringLiteral("alice");
        account.excludeFromSync = excludeFromSync;
        account.createdAt = account.updatedAt = QDateTime::currentDateTimeUtc();
        QVERIFY(m_state->accounts()->insert(account));
    }

    void insertCalendar(const QString &id, const QString &accountId, const std::function<void(Calendar &)> &change = {})
    {
        Calendar calendar;
        calendar.id = calendar.name = id;
        calendar.accountId = accountId;
        calendar.url = QStringLiteral("local://calendar/") + id;
        calendar.createdAt = calendar.updatedAt = QDateTime::currentDateTimeUtc();
        if (change)
            change(calendar);
        QVERIFY(m_state->calendars()->insert(calendar));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
};

QTEST_GUILESS_MAIN(tst_AppStateSeed)
#include "tst_AppStateSeed.moc"
