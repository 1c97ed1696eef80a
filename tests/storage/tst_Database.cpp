#include "storage/Database.h"
#include "storage/Tables.h"
#include "support/TestData.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_Database : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(u"calendar.db"_s);
        m_database = std::make_unique<Database>();
    }

    void splitsStatements_data()
    {
        columns<QString, QString>("sql", "expected"); // separated by |
        row("no last semicolon", "A;\nB", "A|B");
        row("comment line between", "A;\n  -- x; y\nB;", "A|B");
        row("comment line inside", "A\n-- x;\nB;", "A\nB");
        row("trigger stays whole", "CREATE TRIGGER t\nbegin\n  X;\n  Y;\nEND;\nB;",
            "CREATE TRIGGER t\nbegin\n  X;\n  Y;\nEND|B");
        row("column that begins like END", "T (\nend_time TEXT);", "T (\nend_time TEXT)");
        row("lone semicolons", ";\n ; \nA;", "A");
        row("carriage returns", "A;\r\nB;\r\n", "A|B");
    }
    void splitsStatements()
    {
        QFETCH(QString, sql);
        QTEST(Database::splitStatements(sql).join(u'|'), "expected");
    }

    void migratesAnEmptyFileOnce()
    {
        QSignalSpy applied(m_database.get(), &Database::migrationApplied);
        openAndMigrate();
        QCOMPARE(applied.size(), 16);
        QCOMPARE(applied.at(6), (QVariantList{ 7, u"tasks_dateonly_repeat"_s }));
        QCOMPARE(text(u"SELECT count(*) FROM schema_version"_s), u"16"_s);
        QCOMPARE(text(u"SELECT id || name || calendar_ids || is_default || sync_status FROM calendar_views"_s),
                 u"all-calendarsAll Calendars[]1synced"_s);
        QCOMPARE(text(u"PRAGMA journal_mode"_s) + text(u"PRAGMA foreign_keys"_s), u"wal1"_s);

        QVERIFY(m_database->runMigrations());
        m_database->close();
        QVERIFY(!m_database->isOpen());
        openAndMigrate();
        QCOMPARE(applied.size(), 16);
    }

    void removesDuplicateEvents()
    {
        migrateTo(5);
        execute(u"INSERT INTO accounts (id, name, type) VALUES ('a', 'a', 'caldav')"_s);
        execute(u"INSERT INTO calendars (id, account_id, url, name) VALUES ('c', 'a', 'u', 'n')"_s);
        execute(u"INSERT INTO events (id, recurrence_id, created, deleted_at, calendar_id, uid, title, start_time,"
                " raw_icalendar) VALUES ('young', NULL, '2026-01-02T00:00:00Z', NULL, 'c', 'u', 't', 's', ''),"
                " ('old', '', '2026-01-01T00:00:00Z', '2026-01-03T00:00:00Z', 'c', 'u', 't', 's', ''),"
                " ('tie-b', 'R', '2026-01-01T00:00:00Z', NULL, 'c', 'u', 't', 's', ''),"
                " ('tie-a', 'R', '2026-01-01T00:00:00Z', NULL, 'c', 'u', 't', 's', '')"_s);
        execute(u"INSERT INTO reminders (id, event_id, minutes_before) SELECT id, id, 5 FROM events"_s);
        execute(u"INSERT INTO attendees (id, event_id, email) SELECT id, id, 'x' FROM events"_s);
        execute(u"INSERT INTO attachments (id, event_id, filename) SELECT id, id, 'x' FROM events"_s);

        QVERIFY(m_database->runMigrations());
        QCOMPARE(text(u"SELECT id FROM events ORDER BY id"_s), u"old tie-a"_s);
        for (const QString &table : { u"reminders"_s, u"attendees"_s, u"attachments"_s })
            QCOMPARE(text(u"SELECT event_id FROM %1 ORDER BY event_id"_s.arg(table)), u"old tie-a"_s);
        QVERIFY(text(u"INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, recurrence_id)"
                     " VALUES ('new', 'c', 'u', 't', 's', '', NULL)"_s)
                    .contains(u"UNIQUE"));
    }

    void reapsOrphanedCalendars()
    {
        migrateTo(11);
        execute(u"PRAGMA foreign_keys=OFF"_s);
        execute(u"INSERT INTO accounts (id, name, type, deleted_at) VALUES ('live', '', 'caldav', NULL),"
                " ('gone', '', 'caldav', '2026-01-01T00:00:00Z')"_s);
        for (const QString &account : { u"live"_s, u"gone"_s, u"missing"_s }) {
            for (const QString &row :
                 { u"calendars (account_id, id, url, name) VALUES ('%1', 'c-%1', 'u', 'n')"_s,
                   u"events (calendar_id, id, uid, title, start_time, raw_icalendar)"
                   " VALUES ('c-%1', 'e-%1', 'u', 't', 's', '')"_s,
                   u"reminders (event_id, id, minutes_before) VALUES ('e-%1', 'r-%1', 5)"_s,
                   u"attendees (event_id, id, email) VALUES ('e-%1', 'p-%1', 'x')"_s,
                   u"tasks (calendar_id, id, uid, title, raw_icalendar) VALUES ('c-%1', 't-%1', 'u', 't', '')"_s,
                   u"task_reminders (task_id, id, minutes_before) VALUES ('t-%1', 'q-%1', 5)"_s,
                   u"sync_queue (calendar_id, id, operation, entity_type, entity_id, payload)"
                   " VALUES ('c-%1', 's-%1', '', '', '', '')"_s })
                execute(u"INSERT INTO "_s + row.arg(account));
        }
        execute(u"PRAGMA foreign_keys=ON"_s);

        QVERIFY(m_database->runMigrations());
        QCOMPARE(text(u"SELECT id FROM calendars UNION SELECT id FROM events UNION SELECT id FROM reminders"
                      " UNION SELECT id FROM attendees UNION SELECT id FROM tasks UNION SELECT id FROM task_reminders"
                      " ORDER BY id"_s),
                 u"c-live e-live p-live q-live r-live t-live"_s);
        QCOMPARE(text(u"PRAGMA foreign_key_check"_s), QString());
    }

    void lendsTasksToLocalCalendarsOnly()
    {
        migrateTo(13);
        execute(u"INSERT INTO accounts (id, name, type) VALUES ('local', '', 'quillon'), ('dav', '', 'caldav')"_s);
        execute(u"INSERT INTO calendars (id, account_id, url, name, supported_components) VALUES"
                " ('plain', 'local', '', '', '[\"VEVENT\"]'), ('has', 'local', '', '', '[\"VTODO\"]'),"
                " ('other', 'dav', '', '', '[\"VEVENT\"]')"_s);
        QVERIFY(m_database->runMigrations());
        QCOMPARE(text(u"SELECT id || supported_components FROM calendars ORDER BY id"_s),
                 u"has[\"VTODO\"] other[\"VEVENT\"] plain[\"VEVENT\",\"VTODO\"]"_s);
    }

    void resumesAfterAFailedMigration()
    {
        migrateTo(6);
        // The third statement of version 7 will find its column there already.
        execute(u"ALTER TABLE tasks ADD COLUMN repeat_mode TEXT"_s);
        QSignalSpy failed(m_database.get(), &Database::migrationError);
        QSignalSpy applied(m_database.get(), &Database::migrationApplied);
        QTest::ignoreMessage(
            QtCriticalMsg,
            QRegularExpression(u"^Migration 7 failed: .*duplicate column name.*\nStatement: ALTER TABLE"_s));
        QVERIFY(!m_database->runMigrations());
        QCOMPARE(failed.value(0).value(0).toInt(), 7);
        QCOMPARE(applied.size(), 0);
        QCOMPARE(text(u"SELECT MAX(version) FROM schema_version"_s), u"6"_s);
        QVERIFY(!text(u"SELECT name FROM pragma_table_info('tasks')"_s).contains(u"due_is_date_only"));

        m_database->close();
        QVERIFY(m_database->open(m_path));
        execute(u"ALTER TABLE tasks DROP COLUMN repeat_mode"_s);
        QVERIFY(m_database->runMigrations());
        QCOMPARE(applied.size(), 10);
        QCOMPARE(text(u"SELECT MAX(version) FROM schema_version"_s), u"16"_s);
    }

    void refusesAPathThatCannotBeOpened()
    {
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"^Failed to open database: .+"_s));
        QVERIFY(!m_database->open(m_dir->filePath(u"no/such/folder/calendar.db"_s)));
        QVERIFY(!m_database->isOpen());
    }

    void refusesWhatItCannotWrite()
    {
        openAndMigrate();
        m_database->close();
        const auto readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
        const auto writable = QFile::WriteOwner | QFile::WriteOther;
        QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ReadOther));
        // The superuser may write anywhere, so the test steps down.
        constexpr uid_t nobody = 65534;
        const bool isRoot = geteuid() == 0;
        for (const auto folder : { readable, readable | writable }) {
            QVERIFY(QFile::setPermissions(m_dir->path(), folder));
            QVERIFY(!isRoot || seteuid(nobody) == 0);
            QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"^(Failed to|Database cannot be written:) .+"_s));
            const bool isUsable = m_database->open(m_path) && m_database->runMigrations();
            m_database->close();
            QVERIFY(!isRoot || seteuid(0) == 0);
            QVERIFY(!isUsable);
        }
    }

    void closesWithStatementsPrepared()
    {
        openAndMigrate();
        QVERIFY(Tables::views().list(m_database.get(), QString()).size() == 1);
        // No "connection is still in use" and no statement of the old file used on the new one.
        QTest::failOnWarning(QRegularExpression(u"."_s));
        m_path = m_dir->filePath(u"other.db"_s);
        openAndMigrate();
        execute(u"DELETE FROM calendar_views"_s);
        QVERIFY(Tables::views().list(m_database.get(), QString()).isEmpty());
    }

private:
    void openAndMigrate()
    {
        QVERIFY(m_database->open(m_path));
        QVERIFY(m_database->runMigrations());
    }

    /// Brings an empty file to \p version by hand, as an older program would have left it.
    void migrateTo(int version)
    {
        QVERIFY(m_database->open(m_path));
        execute(u"CREATE TABLE schema_version (version INTEGER PRIMARY KEY, name TEXT NOT NULL,"
                " applied_at TEXT NOT NULL DEFAULT (datetime('now')))"_s);
        const QDir files(u":/sql/sql/migrations"_s);
        const QStringList names = files.entryList({ u"*.sql"_s }, QDir::Files, QDir::Name);
        for (int i = 0; i < version; ++i) {
            QFile file(files.filePath(names.at(i)));
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const QString &statement : Database::splitStatements(QString::fromUtf8(file.readAll())))
                execute(statement);
            execute(u"INSERT INTO schema_version (version, name) VALUES (%1, 'by hand')"_s.arg(i + 1));
        }
    }

    /// The first column of every row, separated by blanks; or what SQLite says against the statement.
    QString text(const QString &sql)
    {
        QSqlQuery query(m_database->db());
        if (!query.exec(sql))
            return query.lastError().text();
        QStringList values;
        while (query.next())
            values.append(query.value(0).toString());
        return values.join(u' ');
    }
    void execute(const QString &sql) { QCOMPARE(text(sql), QString()); }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
    std::unique_ptr<Database> m_database;
};

QTEST_GUILESS_MAIN(tst_Database)
#include "tst_Database.moc"
