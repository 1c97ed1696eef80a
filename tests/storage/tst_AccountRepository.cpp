#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime utc(int day, int hour = 0)
{
    return QDateTime(QDate(2026, 5, day), QTime(hour, 0), Qt::UTC);
}

Account davAccount(const QString &id, const QString &username, const QString &serverUrl, int createdDay)
{
    Account account;
    account.id = id;
    account.name = id;
    account.type = AccountType::CalDAV;
    account.username = username;
    account.serverUrl = serverUrl;
    account.createdAt = utc(createdDay);
    account.updatedAt = utc(createdDay);
    return account;
}

// The queue's table is long gone, and the cascade says so each time.
void expectQueueWarning()
{
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(lit("^AccountRepository::cascadeDeleteCalendars failed: .*sync_queue.*\n"
                                                "\\s*DELETE FROM sync_queue")));
}

}

class tst_AccountRepository : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsEveryField();
    void updateLeavesCreationAndOrderAlone();
    void ordersAndReorders();
    void removingTakesEverythingButTheTombstone();
    void finishesARemovalThatWasCutOff();
    void reapsTombstonesOnly();
    void normalizesUrls_data();
    void normalizesUrls();
    void tellsServersApart_data();
    void tellsServersApart();
    void findsByIdentity();
    void collapsesDuplicates();
    void failsWithoutSignal();

private:
    QString fillCalendar(const QString &calendarId, const QString &accountId);

    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<AccountRepository> m_accounts;
};

void tst_AccountRepository::init()
{
    m_database = std::make_unique<ScratchDatabase>();
    m_accounts = std::make_unique<AccountRepository>(m_database->get());
}

void tst_AccountRepository::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_accounts.reset();
    m_database.reset();
}

// A calendar with an event and a task, both with children.
QString tst_AccountRepository::fillCalendar(const QString &calendarId, const QString &accountId)
{
    m_database->addCalendar(calendarId, accountId);
    Event event;
    event.id = lit("e-") + calendarId;
    event.uid = event.id;
    event.calendarId = calendarId;
    event.startTime = utc(1);
    event.reminders = { Reminder{} };
    event.attendees = { Attendee{} };
    if (!EventRepository(m_database->get()).insert(event))
        return {};
    m_database->execute(
        lit("INSERT INTO attachments (id, event_id, filename) VALUES ('f-%1', '%1', 'x')").arg(event.id));
    Task task;
    task.id = lit("t-") + calendarId;
    task.uid = task.id;
    task.calendarId = calendarId;
    task.reminders = { Reminder{} };
    return TaskRepository(m_database->get()).insert(task) ? calendarId : QString();
}

void tst_AccountRepository::keepsEveryField()
{
    Account account{
        .id = lit("id"),
        .name = lit("Ada's \"mail\""),
        .type = AccountType::ICloud,
        .serverUrl = lit("https://dav.example.org/"),
        .username = lit("ada@example.org"),
        .calendarHomeSet = lit("https://dav.example.org/home/"),
        .principalUrl = lit("https://dav.example.org/principal/"),
        .syncIntervalMinutes = 60,
        .lastSyncTime = utc(3),
        .lastSyncError = lit("Password missing"),
        .enabled = false,
        .color = lit("#000000"),
        .excludeFromSync = true,
        .trustedCertSha256 = lit("aa"),
        .pendingCertSha256 = lit("bb"),
        .createdAt = utc(1),
        .updatedAt = utc(2),
        .deletedAt = std::nullopt,
    };
    QVERIFY(m_accounts->insert(account));
    QCOMPARE(m_accounts->getById(lit("id")), account);

    account = Account();
    account.id = lit("id");
    account.type = AccountType::Google;
    account.createdAt = utc(1);
    account.updatedAt = utc(4);
    QVERIFY(m_accounts->update(account));
    QCOMPARE(m_accounts->getById(lit("id")), account);
    QCOMPARE(m_database->count(lit("accounts"), lit("username IS NULL AND last_sync_time IS NULL")), 1);

    m_database->execute(lit("UPDATE accounts SET deleted_at = '2026-05-09T00:00:00Z'"));
    QCOMPARE(m_accounts->getById(lit("id")), std::nullopt);
    QCOMPARE(m_accounts->getAllIncludingDeleted().value(0).deletedAt, utc(9));
}

void tst_AccountRepository::updateLeavesCreationAndOrderAlone()
{
    Account account = davAccount(lit("a"), lit("u"), QString(), 1);
    QVERIFY(m_accounts->insert(account));
    m_database->execute(lit("UPDATE accounts SET sort_order = 7"));
    account.createdAt = utc(20);
    account.deletedAt = utc(20);
    QVERIFY(m_accounts->update(account));
    QCOMPARE(m_accounts->getById(lit("a"))->createdAt, utc(1));
    QCOMPARE(m_database->column(lit("SELECT sort_order FROM accounts")), QStringList{ lit("7") });
}

void tst_AccountRepository::ordersAndReorders()
{
    for (const auto *id : { "b", "c", "a" })
        m_database->addAccount(lit(id));
    const auto ids = [this] {
        QStringList result;
        for (const Account &account : m_accounts->getAll())
            result.append(account.id);
        return result.join(QString());
    };
    QCOMPARE(ids(), lit("abc"));
    QSignalSpy changed(m_accounts.get(), &AccountRepository::accountsChanged);
    QVERIFY(m_accounts->reorder({ lit("c"), lit("a"), lit("b") }));
    QCOMPARE(ids(), lit("cab"));
    QCOMPARE(changed.size(), 1);
}

void tst_AccountRepository::removingTakesEverythingButTheTombstone()
{
    m_database->addAccount(lit("gone"));
    m_database->addAccount(lit("kept"));
    QCOMPARE(fillCalendar(lit("c1"), lit("gone")), lit("c1"));
    QCOMPARE(fillCalendar(lit("c2"), lit("kept")), lit("c2"));
    QSignalSpy changed(m_accounts.get(), &AccountRepository::accountsChanged);

    expectQueueWarning();
    QVERIFY(m_accounts->remove(lit("gone")));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_accounts->getById(lit("gone")), std::nullopt);
    QVERIFY(m_accounts->getAllIncludingDeleted().size() == 2);
    for (const auto *table :
         { "calendars", "events", "tasks", "reminders", "attendees", "attachments", "task_reminders" })
        QCOMPARE(m_database->count(lit(table)), 1);
    QCOMPARE(m_database->column(lit("SELECT id FROM calendars")), QStringList{ lit("c2") });
}

void tst_AccountRepository::finishesARemovalThatWasCutOff()
{
    m_database->addAccount(lit("gone"));
    m_database->addAccount(lit("kept"));
    QVERIFY(!fillCalendar(lit("c1"), lit("gone")).isEmpty());
    QVERIFY(!fillCalendar(lit("c2"), lit("kept")).isEmpty());
    m_database->execute(lit("UPDATE accounts SET deleted_at = '2026-05-09T00:00:00Z' WHERE id = 'gone'"));

    expectQueueWarning();
    QCOMPARE(m_accounts->finishInterruptedRemovals(), 1);
    QCOMPARE(m_database->column(lit("SELECT id FROM events")), QStringList{ lit("e-c2") });
    QCOMPARE(m_accounts->finishInterruptedRemovals(), 0);
}

void tst_AccountRepository::reapsTombstonesOnly()
{
    m_database->addAccount(lit("a"));
    QVERIFY(m_accounts->reapTombstone(lit("a")));
    QCOMPARE(m_accounts->getAll().size(), 1);
    expectQueueWarning();
    QVERIFY(m_accounts->remove(lit("a")));
    QVERIFY(m_accounts->reapTombstone(lit("a")));
    QCOMPARE(m_accounts->getAllIncludingDeleted().size(), 0);
}

void tst_AccountRepository::normalizesUrls_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << lit("  ") << QString();
    QTest::newRow("all at once") << lit(" HTTPS://Dav.Example.ORG:443/Home/// ") << lit("https://dav.example.org/Home");
    QTest::newRow("http port") << lit("http://h:80/") << lit("http://h");
    QTest::newRow("foreign port") << lit("https://h:80/a") << lit("https://h:80/a");
    QTest::newRow("query dropped") << lit("https://h/a?b=c") << lit("https://h/a");
    QTest::newRow("no host") << lit("dav.example.org//") << lit("dav.example.org");
}

void tst_AccountRepository::normalizesUrls()
{
    QFETCH(QString, url);
    QTEST(AccountRepository::normalizedUrl(url), "expected");
}

void tst_AccountRepository::tellsServersApart_data()
{
    QTest::addColumn<ServerIdentity>("a");
    QTest::addColumn<ServerIdentity>("b");
    QTest::addColumn<bool>("same");
    const QString none;
    QTest::newRow("nothing known") << ServerIdentity{} << ServerIdentity{} << false;
    QTest::newRow("spelling") << ServerIdentity{ lit("HTTPS://H:443/x/"), none, none }
                              << ServerIdentity{ lit("https://h/x"), none, none } << true;
    QTest::newRow("home sets") << ServerIdentity{ lit("https://a"), lit("https://h/1/"), none }
                               << ServerIdentity{ lit("https://b"), lit("https://h/1"), none } << true;
    QTest::newRow("principals") << ServerIdentity{ lit("https://a"), none, lit("https://h/p") }
                                << ServerIdentity{ lit("https://b"), lit("https://h/1"), lit("https://h/p/") } << true;
    QTest::newRow("hosts") << ServerIdentity{ lit("https://h/one"), none, none }
                           << ServerIdentity{ lit("http://H:8080/two"), none, none } << true;
    QTest::newRow("different") << ServerIdentity{ lit("https://a"), lit("https://a/1"), none }
                               << ServerIdentity{ lit("https://b"), lit("https://b/1"), none } << false;
}

void tst_AccountRepository::tellsServersApart()
{
    QFETCH(ServerIdentity, a);
    QFETCH(ServerIdentity, b);
    QTEST(AccountRepository::isSameServer(a, b), "same");
    QTEST(AccountRepository::isSameServer(b, a), "same");
}

void tst_AccountRepository::findsByIdentity()
{
    QVERIFY(m_accounts->insert(davAccount(lit("a"), lit("ada"), lit("https://one.example.org/"), 1)));
    QVERIFY(m_accounts->insert(davAccount(lit("b"), lit("ada"), lit("https://two.example.org/"), 2)));
    QVERIFY(m_accounts->insert(davAccount(lit("c"), QString(), lit("https://two.example.org/"), 3)));
    const auto find = [this](const char *type, const char *user, const char *url) {
        const auto found = m_accounts->findByCanonicalIdentity(lit(type), lit(user), lit(url), QString(), QString());
        return found ? found->id : QString();
    };
    QCOMPARE(find("caldav", "ada", "https://TWO.example.org:443"), lit("b"));
    QCOMPARE(find("icloud", "ada", "https://two.example.org"), QString());
    QCOMPARE(find("caldav", "bob", "https://two.example.org"), QString());
    QCOMPARE(find("caldav", "", "https://two.example.org"), QString());
    expectQueueWarning();
    QVERIFY(m_accounts->remove(lit("b")));
    QCOMPARE(find("caldav", "ada", "https://two.example.org"), QString());
}

void tst_AccountRepository::collapsesDuplicates()
{
    QVERIFY(m_accounts->insert(davAccount(lit("young"), lit("ada"), lit("https://h/"), 2)));
    QVERIFY(m_accounts->insert(davAccount(lit("old"), lit("ada"), lit("HTTPS://H:443"), 1)));
    QVERIFY(m_accounts->insert(davAccount(lit("bob"), lit("bob"), lit("https://h/"), 3)));
    QVERIFY(m_accounts->insert(davAccount(lit("anon1"), QString(), lit("https://h/"), 4)));
    QVERIFY(m_accounts->insert(davAccount(lit("anon2"), QString(), lit("https://h/"), 5)));
    QVERIFY(!fillCalendar(lit("same-old"), lit("old")).isEmpty());
    QVERIFY(!fillCalendar(lit("same-young"), lit("young")).isEmpty());
    QVERIFY(!fillCalendar(lit("only-young"), lit("young")).isEmpty());
    m_database->execute(lit("UPDATE calendars SET url = 'https://h/shared' WHERE id LIKE 'same-%'"));

    expectQueueWarning();
    QCOMPARE(m_accounts->dedupExistingByCredentials(), 1);
    QCOMPARE(m_accounts->getById(lit("young")), std::nullopt);
    QCOMPARE(m_accounts->getAll().size(), 4);
    QCOMPARE(m_database->column(lit("SELECT id FROM calendars WHERE account_id = 'old' ORDER BY id")),
             QStringList({ lit("only-young"), lit("same-old") }));
    QCOMPARE(m_database->column(lit("SELECT id FROM events ORDER BY id")),
             QStringList({ lit("e-only-young"), lit("e-same-old") }));
    QCOMPARE(m_accounts->dedupExistingByCredentials(), 0);
}

void tst_AccountRepository::failsWithoutSignal()
{
    QVERIFY(m_accounts->insert(davAccount(lit("a"), lit("u"), QString(), 1)));
    QSignalSpy changed(m_accounts.get(), &AccountRepository::accountsChanged);
    const quint64 generation = (*m_database)->dataGeneration();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^AccountRepository::insert failed: .*UNIQUE")));
    QVERIFY(!m_accounts->insert(davAccount(lit("a"), lit("v"), QString(), 1)));
    QCOMPARE(changed.size(), 0);
    QCOMPARE((*m_database)->dataGeneration(), generation);
}

QTEST_GUILESS_MAIN(tst_AccountRepository)
#include "tst_AccountRepository.moc"
