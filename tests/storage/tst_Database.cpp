#include "storage/Database.h"
#include "storage/Tables.h"
#include "support/ScratchDatabase.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList column(Database &database, const QString &sql)
{
    QSqlQuery query(database.db());
    if (!query.exec(sql))
        return { query.lastError().text() };
    QStringList values;
    while (query.next())
        values.append(query.value(0).toString());
    return values;
}

void execute(Database &database, const QString &sql)
{
    QSqlQuery query(database.db());
    QVERIFY2(query.exec(sql), qPrintable(query.lastError().text()));
}

/// Brings an empty file to \p version by hand, as an older program would have left it.
void migrateTo(Database &database, int version)
{
    execute(database,
            lit("CREATE TABLE schema_version (version INTEGER PRIMARY KEY, name TEXT NOT NULL,"
                " applied_at TEXT NOT NULL DEFAULT (datetime('now')))"));
    const QDir files(lit(":/sql/sql/migrations"));
    const QStringList names = files.entryList({ lit("*.sql") }, QDir::Files, QDir::Name);
    QCOMPARE(names.size(), 16);
    for (int i = 0; i < version; ++i) {
        QFile file(files.filePath(names.at(i)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QString &statement : Database::splitStatements(QString::fromUtf8(file.readAll())))
            execute(database, statement);
        execute(database, lit("INSERT INTO schema_version (version, name) VALUES (%1, 'by hand')").arg(i + 1));
    }
}

void insertEvent(Database &database, const QString &id, const QString &recurrenceId, const QString &created)
{
    execute(database,
            lit("INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, recurrence_id, created)"
                " VALUES ('%1', 'c', 'u', 't', '2026-01-01T00:00:00Z', '', %2, '%3')")
                .arg(id, recurrenceId, created));
}

}

class tst_Database : public QObject {
    Q_OBJECT

private slots:
    void init();
    void splitsStatements_data();
    void splitsStatements();
    void migratesAnEmptyFile();
    void appliesNothingTwice();
    void schemaHasTheColumnsOfTheRecords_data();
    void schemaHasTheColumnsOfTheRecords();
    void removesDuplicateEvents();
    void reapsOrphanedCalendars();
    void lendsTasksToLocalCalendarsOnly();
    void resumesAfterAFailedMigration();
    void opensANewerDatabaseAsItStands();
    void refusesAFileThatIsNoDatabase();
    void refusesAPathThatCannotBeOpened();
    void refusesWhatItCannotWrite_data();
    void refusesWhatItCannotWrite();
    void closesWithStatementsPrepared();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

void tst_Database::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_path = m_dir->filePath(lit("calendar.db"));
}

void tst_Database::splitsStatements_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("two") << lit("A;\nB;\n") << QStringList{ lit("A"), lit("B") };
    QTest::newRow("no last semicolon") << lit("A;\nB") << QStringList{ lit("A"), lit("B") };
    QTest::newRow("comment line between") << lit("A;\n  -- x; y\nB;") << QStringList{ lit("A"), lit("B") };
    QTest::newRow("comment line inside") << lit("A\n-- x;\nB;") << QStringList{ lit("A\nB") };
    QTest::newRow("trailing comment stays") << lit("A -- x\nB;") << QStringList{ lit("A -- x\nB") };
    QTest::newRow("semicolon inside a line") << lit("A; B;") << QStringList{ lit("A; B") };
    QTest::newRow("trigger stays whole") << lit("CREATE TRIGGER t\nbegin\n  X;\n  Y;\nEND;\nB;")
                                         << QStringList{ lit("CREATE TRIGGER t\nbegin\n  X;\n  Y;\nEND"), lit("B") };
    QTest::newRow("column that begins like END")
        << lit("T (\nend_time TEXT);") << QStringList{ lit("T (\nend_time TEXT)") };
    QTest::newRow("lone semicolons") << lit(";\n ; \nA;") << QStringList{ lit("A") };
    QTest::newRow("carriage returns") << lit("A;\r\nB;\r\n") << QStringList{ lit("A"), lit("B") };
    QTest::newRow("nothing") << lit("\n-- only this\n") << QStringList();
}

void tst_Database::splitsStatements()
{
    QFETCH(QString, sql);
    QTEST(Database::splitStatements(sql), "expected");
}

void tst_Database::migratesAnEmptyFile()
{
    Database database;
    QSignalSpy applied(&database, &Database::migrationApplied);
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());

    QCOMPARE(applied.size(), 16);
    QCOMPARE(applied.at(6).at(0).toInt(), 7);
    QCOMPARE(applied.at(6).at(1).toString(), lit("tasks_dateonly_repeat"));
    QCOMPARE(column(database, lit("SELECT count(*) FROM schema_version")), QStringList{ lit("16") });
    QCOMPARE(
        column(database, lit("SELECT id || name || calendar_ids || is_default || sync_status FROM calendar_views")),
        QStringList{ lit("all-calendarsAll Calendars[]1synced") });
    QCOMPARE(column(database, lit("PRAGMA journal_mode")), QStringList{ lit("wal") });
    QCOMPARE(column(database, lit("PRAGMA foreign_keys")), QStringList{ lit("1") });
    QVERIFY(!column(database, lit("SELECT name FROM sqlite_master")).contains(lit("sync_queue")));
    QStringList indexes = column(database,
                                 lit("SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = 'events'"
                                     " AND sql IS NOT NULL ORDER BY name"));
    QCOMPARE(indexes.join(u' '),
             lit("idx_events_calendar idx_events_calendar_pending idx_events_calendar_provider"
                 " idx_events_calendar_start idx_events_end_time idx_events_master_uid idx_events_related_to_uid"
                 " idx_events_start_time idx_events_sync_status idx_events_uid_calendar idx_events_uid_unique"));
}

void tst_Database::appliesNothingTwice()
{
    Database database;
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());
    QSignalSpy applied(&database, &Database::migrationApplied);
    QVERIFY(database.runMigrations());
    database.close();
    QVERIFY(!database.isOpen());
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());
    QCOMPARE(applied.size(), 0);
}

void tst_Database::schemaHasTheColumnsOfTheRecords_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    const auto row = [](const auto &table, const QStringList &withoutMember = {}) {
        QTest::newRow(qPrintable(table.name())) << table.name() << table.columnNames() + withoutMember;
    };
    row(Tables::accounts(), { lit("sort_order") });
    row(Tables::calendars());
    row(Tables::events());
    row(Tables::attendees());
    row(Tables::reminders());
    row(Tables::tasks());
    row(Tables::taskReminders());
    row(Tables::views());
    row(Tables::filterRules());
    row(Tables::templates());
}

void tst_Database::schemaHasTheColumnsOfTheRecords()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    ScratchDatabase database;
    QStringList stored = database.column(lit("SELECT name FROM pragma_table_info('%1')").arg(table));
    stored.sort();
    columns.sort();
    QCOMPARE(columns, stored);
}

void tst_Database::removesDuplicateEvents()
{
    Database database;
    QVERIFY(database.open(m_path));
    migrateTo(database, 5);
    execute(database, lit("INSERT INTO accounts (id, name, type) VALUES ('a', 'a', 'caldav')"));
    execute(database, lit("INSERT INTO calendars (id, account_id, url, name) VALUES ('c', 'a', 'u', 'n')"));
    insertEvent(database, lit("young"), lit("NULL"), lit("2026-01-02T00:00:00Z"));
    insertEvent(database, lit("old"), lit("''"), lit("2026-01-01T00:00:00Z"));
    execute(database, lit("UPDATE events SET deleted_at = '2026-01-03T00:00:00Z' WHERE id = 'old'"));
    insertEvent(database, lit("tie-b"), lit("'R'"), lit("2026-01-01T00:00:00Z"));
    insertEvent(database, lit("tie-a"), lit("'R'"), lit("2026-01-01T00:00:00Z"));
    for (const auto *id : { "young", "old", "tie-b", "tie-a" }) {
        execute(database,
                lit("INSERT INTO reminders (id, event_id, minutes_before) VALUES ('r-%1', '%1', 5)").arg(lit(id)));
        execute(database, lit("INSERT INTO attendees (id, event_id, email) VALUES ('p-%1', '%1', 'x')").arg(lit(id)));
        execute(database,
                lit("INSERT INTO attachments (id, event_id, filename) VALUES ('f-%1', '%1', 'x')").arg(lit(id)));
    }

    QVERIFY(database.runMigrations());
    QCOMPARE(column(database, lit("SELECT id FROM events ORDER BY id")), QStringList({ lit("old"), lit("tie-a") }));
    for (const auto *table : { "reminders", "attendees", "attachments" }) {
        QCOMPARE(column(database, lit("SELECT event_id FROM %1 ORDER BY event_id").arg(lit(table))),
                 QStringList({ lit("old"), lit("tie-a") }));
    }
    QSqlQuery again(database.db());
    QVERIFY(!again.exec(lit("INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, recurrence_id)"
                            " VALUES ('new', 'c', 'u', 't', 's', '', NULL)")));
}

void tst_Database::reapsOrphanedCalendars()
{
    Database database;
    QVERIFY(database.open(m_path));
    migrateTo(database, 11);
    execute(database, lit("PRAGMA foreign_keys=OFF"));
    execute(database,
            lit("INSERT INTO accounts (id, name, type, deleted_at) VALUES ('live', '', 'caldav', NULL),"
                " ('gone', '', 'caldav', '2026-01-01T00:00:00Z')"));
    for (const auto *account : { "live", "gone", "missing" }) {
        const QString id = lit(account);
        execute(database,
                lit("INSERT INTO calendars (id, account_id, url, name) VALUES ('c-%1', '%1', 'u', 'n')").arg(id));
        execute(database,
                lit("INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar)"
                    " VALUES ('e-%1', 'c-%1', 'u', 't', 's', '')")
                    .arg(id));
        execute(database,
                lit("INSERT INTO reminders (id, event_id, minutes_before) VALUES ('r-%1', 'e-%1', 5)").arg(id));
        execute(database, lit("INSERT INTO attendees (id, event_id, email) VALUES ('p-%1', 'e-%1', 'x')").arg(id));
        execute(database,
                lit("INSERT INTO tasks (id, calendar_id, uid, title, raw_icalendar)"
                    " VALUES ('t-%1', 'c-%1', 'u', 't', '')")
                    .arg(id));
        execute(database,
                lit("INSERT INTO task_reminders (id, task_id, minutes_before) VALUES ('q-%1', 't-%1', 5)").arg(id));
        execute(database,
                lit("INSERT INTO sync_queue (id, operation, entity_type, entity_id, calendar_id, payload)"
                    " VALUES ('s-%1', '', '', '', 'c-%1', '')")
                    .arg(id));
    }
    execute(database, lit("PRAGMA foreign_keys=ON"));

    QVERIFY(database.runMigrations());
    for (const auto *table : { "calendars", "events", "reminders", "attendees", "tasks", "task_reminders" }) {
        const QStringList ids = column(database, lit("SELECT id FROM %1").arg(lit(table)));
        QCOMPARE(ids.size(), 1);
        QVERIFY2(ids.first().endsWith(lit("-live")), table);
    }
    QCOMPARE(column(database, lit("PRAGMA foreign_key_check")), QStringList());
}

void tst_Database::lendsTasksToLocalCalendarsOnly()
{
    Database database;
    QVERIFY(database.open(m_path));
    migrateTo(database, 13);
    execute(database,
            lit("INSERT INTO accounts (id, name, type) VALUES ('local', '', 'quillon'), ('dav', '', 'caldav')"));
    execute(database,
            lit("INSERT INTO calendars (id, account_id, url, name, supported_components) VALUES"
                " ('plain', 'local', '', '', '[\"VEVENT\"]'), ('has', 'local', '', '', '[\"VTODO\"]'),"
                " ('other', 'dav', '', '', '[\"VEVENT\"]')"));
    QVERIFY(database.runMigrations());
    QCOMPARE(column(database, lit("SELECT id || supported_components FROM calendars ORDER BY id")),
             QStringList({ lit("has[\"VTODO\"]"), lit("other[\"VEVENT\"]"), lit("plain[\"VEVENT\",\"VTODO\"]") }));
}

void tst_Database::resumesAfterAFailedMigration()
{
    Database database;
    QVERIFY(database.open(m_path));
    migrateTo(database, 6);
    // The third statement of version 7 will find its column there already.
    execute(database, lit("ALTER TABLE tasks ADD COLUMN repeat_mode TEXT"));

    QSignalSpy failed(&database, &Database::migrationError);
    QSignalSpy applied(&database, &Database::migrationApplied);
    QTest::ignoreMessage(
        QtCriticalMsg,
        QRegularExpression(lit("^Migration 7 failed: .*duplicate column name.*\nStatement: ALTER TABLE")));
    QVERIFY(!database.runMigrations());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.first().at(0).toInt(), 7);
    QCOMPARE(applied.size(), 0);
    QCOMPARE(column(database, lit("SELECT MAX(version) FROM schema_version")), QStringList{ lit("6") });
    QVERIFY(!column(database, lit("SELECT name FROM pragma_table_info('tasks')")).contains(lit("due_is_date_only")));

    database.close();
    QVERIFY(database.open(m_path));
    execute(database, lit("ALTER TABLE tasks DROP COLUMN repeat_mode"));
    QVERIFY(database.runMigrations());
    QCOMPARE(applied.size(), 10);
    QCOMPARE(column(database, lit("SELECT MAX(version) FROM schema_version")), QStringList{ lit("16") });
}

void tst_Database::opensANewerDatabaseAsItStands()
{
    Database database;
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());
    execute(database, lit("INSERT INTO schema_version (version, name) VALUES (99, 'future')"));
    execute(database, lit("ALTER TABLE events ADD COLUMN mood TEXT"));
    database.close();

    QSignalSpy applied(&database, &Database::migrationApplied);
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());
    QCOMPARE(applied.size(), 0);
    QVERIFY(column(database, lit("SELECT name FROM pragma_table_info('events')")).contains(lit("mood")));
}

void tst_Database::refusesAFileThatIsNoDatabase()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray content = QByteArray("this is not a database, but it is what the user has").repeated(100);
    file.write(content);
    file.close();

    Database database;
    if (database.open(m_path)) {
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(lit("^Failed to create schema_version table: .+")));
        QVERIFY(!database.runMigrations());
    }
    database.close();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
}

void tst_Database::refusesAPathThatCannotBeOpened()
{
    Database database;
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(lit("^Failed to open database: .+")));
    QVERIFY(!database.open(m_dir->filePath(lit("no/such/folder/calendar.db"))));
    QVERIFY(!database.isOpen());
}

void tst_Database::refusesWhatItCannotWrite_data()
{
    QTest::addColumn<bool>("isFolderWritable");
    QTest::newRow("read-only folder") << false;
    QTest::newRow("read-only file") << true;
}

void tst_Database::refusesWhatItCannotWrite()
{
    QFETCH(bool, isFolderWritable);
    {
        Database database;
        QVERIFY(database.open(m_path));
        QVERIFY(database.runMigrations());
    }
    const auto readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    const auto writable = QFile::WriteOwner | QFile::WriteOther;
    QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(QFile::setPermissions(m_dir->path(), isFolderWritable ? readable | writable : readable));
    // The superuser may write anywhere, so the test steps down.
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot)
        QCOMPARE(seteuid(nobody), 0);

    bool isUsable = false;
    {
        Database database;
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(lit("^(Failed to|Database cannot be written:) .+")));
        isUsable = database.open(m_path) && database.runMigrations();
    }
    if (isRoot)
        QCOMPARE(seteuid(0), 0);
    QFile::setPermissions(m_dir->path(), readable | writable);
    QVERIFY(!isUsable);
}

void tst_Database::closesWithStatementsPrepared()
{
    const QString other = m_dir->filePath(lit("other.db"));
    Database database;
    QVERIFY(database.open(m_path));
    QVERIFY(database.runMigrations());
    QVERIFY(Tables::views().list(&database, QString()).size() == 1);
    // No "connection is still in use" and no statement of the old file used on the new one.
    QTest::failOnWarning(QRegularExpression(lit(".")));
    QVERIFY(database.open(other));
    QVERIFY(database.runMigrations());
    execute(database, lit("DELETE FROM calendar_views"));
    QCOMPARE(Tables::views().list(&database, QString()).size(), 0);
}

QTEST_GUILESS_MAIN(tst_Database)
#include "tst_Database.moc"
