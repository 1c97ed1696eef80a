#include "storage/AccountRepository.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

Account davAccount(const QString &id, const QString &username, const QString &serverUrl, int createdDay = 1)
{
    Account account;
    account.id = id;
    account.name = id;
    account.type = AccountType::CalDAV;
    account.username = username;
    account.serverUrl = serverUrl;
    account.createdAt = QDateTime(QDate(2026, 5, createdDay), QTime(0, 0), Qt::UTC);
    return account;
}

// The queue's table is long gone, and the cascade says so each time.
void expectQueueWarning()
{
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"^AccountRepository::cascadeDeleteCalendars failed: .*sync_queue.*\n"
                                            "\\s*DELETE FROM sync_queue"_s));
}

}

class tst_AccountRepository : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<ScratchDatabase>();
        m_accounts = std::make_unique<AccountRepository>(m_database->get());
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_accounts.reset();
        m_database.reset();
    }

    void ordersAndReorders()
    {
        for (const QString &id : { u"b"_s, u"c"_s, u"a"_s })
            m_database->addAccount(id);
        QCOMPARE(idsOf(m_accounts->getAll()), u"a b c"_s);
        QSignalSpy changed(m_accounts.get(), &AccountRepository::accountsChanged);
        QVERIFY(m_accounts->reorder({ u"c"_s, u"a"_s, u"b"_s }));
        QCOMPARE(idsOf(m_accounts->getAll()), u"c a b"_s);
        QCOMPARE(changed.size(), 1);

        const quint64 generation = (*m_database)->dataGeneration();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^AccountRepository::insert failed: .*UNIQUE"_s));
        QVERIFY(!m_accounts->insert(davAccount(u"a"_s, u"v"_s, QString())));
        QCOMPARE(changed.size(), 1);
        QCOMPARE((*m_database)->dataGeneration(), generation);
    }

    void removingTakesEverythingButTheTombstone_data()
    {
        columns<bool>("isCutOff");
        row("at once", false);
        row("finished by the next start", true);
    }
    void removingTakesEverythingButTheTombstone()
    {
        for (const QString &id : { u"gone"_s, u"kept"_s }) {
            m_database->addAccount(id);
            m_database->addFullCalendar(u"c-"_s + id, id);
        }
        QFETCH(bool, isCutOff);
        QSignalSpy changed(m_accounts.get(), &AccountRepository::accountsChanged);
        expectQueueWarning();
        if (isCutOff) {
            m_database->execute(u"UPDATE accounts SET deleted_at = '2026-05-09T00:00:00Z' WHERE id = 'gone'"_s);
            QCOMPARE(m_accounts->finishInterruptedRemovals(), 1);
        } else {
            QVERIFY(m_accounts->remove(u"gone"_s));
            QCOMPARE(changed.size(), 1);
        }
        QCOMPARE(m_accounts->finishInterruptedRemovals(), 0);
        QCOMPARE(m_accounts->getById(u"gone"_s), std::nullopt);
        QCOMPARE(idsOf(m_accounts->getAllIncludingDeleted()), u"gone kept"_s);
        for (const char *table :
             { "calendars", "events", "tasks", "reminders", "attendees", "attachments", "task_reminders" }) {
            const QString id = m_database->text(u"SELECT id FROM "_s + QLatin1StringView(table));
            QVERIFY2(!id.contains(u' ') && !id.contains(u"gone"), table);
        }

        QVERIFY(m_accounts->reapTombstone(u"kept"_s) && m_accounts->reapTombstone(u"gone"_s));
        QCOMPARE(idsOf(m_accounts->getAllIncludingDeleted()), u"kept"_s);
    }

    void tellsServersApart()
    {
        const auto isSame = [](const ServerIdentity &a, const ServerIdentity &b) {
            return AccountRepository::isSameServer(a, b);
        };
        QVERIFY(!isSame({}, {}));
        QVERIFY(!isSame({ {}, u" "_s, {} }, { {}, u" "_s, {} }));
        QVERIFY(isSame({ {}, u" HTTPS://H:443/x// "_s, {} }, { {}, u"https://h/x?q"_s, {} }));
        QVERIFY(!isSame({ {}, u"https://h:80/x"_s, {} }, { {}, u"https://h/x"_s, {} }));
        QCOMPARE(AccountRepository::normalizedUrl(u"dav.example.org//"_s), u"dav.example.org"_s);
        QVERIFY(isSame({ u"https://a"_s, u"https://h/1/"_s, {} }, { u"https://b"_s, u"https://h/1"_s, {} }));
        QVERIFY(
            isSame({ u"https://a"_s, {}, u"https://h/p"_s }, { u"https://b"_s, u"https://h/1"_s, u"https://h/p/"_s }));
        QVERIFY(isSame({ u"https://h/one"_s, {}, {} }, { u"http://H:8080/two"_s, {}, {} })); // one host
        QVERIFY(!isSame({ u"https://a"_s, u"https://a/1"_s, {} }, { u"https://b"_s, u"https://b/1"_s, {} }));
    }

    void findsByIdentity()
    {
        QVERIFY(m_accounts->insert(davAccount(u"a"_s, u"ada"_s, u"https://one.example.org/"_s)));
        QVERIFY(m_accounts->insert(davAccount(u"b"_s, u"ada"_s, u"https://two.example.org/"_s)));
        QVERIFY(m_accounts->insert(davAccount(u"c"_s, QString(), u"https://two.example.org/"_s)));
        const auto find = [this](const QString &type, const QString &user) {
            const auto found =
                m_accounts->findByCanonicalIdentity(type, user, u"https://TWO.example.org:443"_s, {}, {});
            return found ? found->id : QString();
        };
        QCOMPARE(find(u"caldav"_s, u"ada"_s), u"b"_s);
        QCOMPARE(find(u"icloud"_s, u"ada"_s), QString());
        QCOMPARE(find(u"caldav"_s, u"bob"_s), QString());
        QCOMPARE(find(u"caldav"_s, u""_s), QString());
        expectQueueWarning();
        QVERIFY(m_accounts->remove(u"b"_s));
        QCOMPARE(find(u"caldav"_s, u"ada"_s), QString());
    }

    void collapsesDuplicates()
    {
        QVERIFY(m_accounts->insert(davAccount(u"young"_s, u"ada"_s, u"https://h/"_s, 2)));
        QVERIFY(m_accounts->insert(davAccount(u"old"_s, u"ada"_s, u"HTTPS://H:443"_s, 1)));
        QVERIFY(m_accounts->insert(davAccount(u"bob"_s, u"bob"_s, u"https://h/"_s, 3)));
        QVERIFY(m_accounts->insert(davAccount(u"anon1"_s, QString(), u"https://h/"_s, 4)));
        QVERIFY(m_accounts->insert(davAccount(u"anon2"_s, QString(), u"https://h/"_s, 5)));
        m_database->addFullCalendar(u"same-old"_s, u"old"_s);
        m_database->addFullCalendar(u"same-young"_s, u"young"_s);
        m_database->addFullCalendar(u"only-young"_s, u"young"_s);
        m_database->execute(u"UPDATE calendars SET url = 'https://h/shared' WHERE id LIKE 'same-%'"_s);

        expectQueueWarning();
        QCOMPARE(m_accounts->dedupExistingByCredentials(), 1);
        QCOMPARE(idsOf(m_accounts->getAll()), u"anon1 anon2 bob old"_s);
        QCOMPARE(m_database->text(u"SELECT id FROM calendars WHERE account_id = 'old' ORDER BY id"_s),
                 u"only-young same-old"_s);
        QCOMPARE(m_database->text(u"SELECT id FROM events ORDER BY id"_s), u"e-only-young e-same-old"_s);
        QCOMPARE(m_accounts->dedupExistingByCredentials(), 0);
    }

private:
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<AccountRepository> m_accounts;
};

QTEST_GUILESS_MAIN(tst_AccountRepository)
#include "tst_AccountRepository.moc"
