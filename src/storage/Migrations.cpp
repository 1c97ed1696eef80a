#include "storage/Database.h"

#include <QDebug>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>

namespace {

struct Migration {
    int version;
    const char *name;
    const char *file;
};

constexpr Migration migrations[] = {
    { 1, "initial", "001_initial.sql" },
    { 2, "event_sync", "002_event_sync.sql" },
    { 3, "tasks_sync", "003_tasks_sync.sql" },
    { 4, "accounts_sort_order", "004_accounts_sort_order.sql" },
    { 5, "provider_event_idx", "005_provider_event_id_index.sql" },
    { 6, "events_uid_unique", "006_events_uid_unique.sql" },
    { 7, "tasks_dateonly_repeat", "007_tasks_dateonly_and_repeat_mode.sql" },
    { 8, "accounts_soft_delete", "008_accounts_soft_delete.sql" },
    { 9, "event_related_to", "009_event_related_to.sql" },
    { 10, "task_reminders", "010_task_reminders.sql" },
    { 11, "task_item_type", "011_task_item_type.sql" },
    { 12, "reap_orphaned_calendars", "012_reap_orphaned_calendars.sql" },
    { 13, "calendar_allow_tasks_override", "013_calendar_allow_tasks_override.sql" },
    { 14, "local_calendars_support_tasks", "014_local_calendars_support_tasks.sql" },
    { 15, "drop_sync_queue", "015_drop_sync_queue.sql" },
    { 16, "calendars_soft_delete", "016_calendars_soft_delete.sql" },
};

}

bool Database::runMigrations()
{
    if (isReadOnly() || !ensureSchemaVersionTable())
        return false;
    const int fileVersion = currentVersion();
    for (const Migration &migration : migrations) {
        if (migration.version <= fileVersion)
            continue;
        const QString path = QStringLiteral(":/sql/sql/migrations/") + QLatin1StringView(migration.file);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            const QString message = QStringLiteral("Cannot read migration file: %1").arg(path);
            qCritical().noquote() << message;
            emit migrationError(migration.version, message);
            return false;
        }
        if (!applyMigration(migration.version, QLatin1StringView(migration.name), QString::fromUtf8(file.readAll())))
            return false;
    }
    return true;
}

QStringList Database::splitStatements(const QString &sql)
{
    QStringList statements;
    QString current;
    const auto finishStatement = [&] {
        QString statement = current.trimmed();
        current.clear();
        if (statement.endsWith(u';'))
            statement.chop(1);
        statement = statement.trimmed();
        if (!statement.isEmpty())
            statements.append(statement);
    };

    int depth = 0; // of BEGIN … END
    for (const QString &line : sql.split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(QLatin1StringView("--")))
            continue;
        current += line + u'\n';
        const QString upper = trimmed.toUpper();
        if (upper.contains(QLatin1StringView("BEGIN")))
            ++depth;
        if (upper.startsWith(QLatin1StringView("END")) && depth > 0)
            --depth;
        if (depth == 0 && trimmed.endsWith(u';'))
            finishStatement();
    }
    finishStatement();
    return statements;
}

bool Database::isReadOnly()
{
    // SQLite opens a file without write permission all the same, and then each edit would be lost.
    constexpr int readOnlyCode = 8;
    constexpr int primaryCodeMask = 0xff;
    QSqlQuery query(m_db);
    if (query.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        query.exec(QStringLiteral("ROLLBACK"));
        return false;
    }
    if ((query.lastError().nativeErrorCode().toInt() & primaryCodeMask) != readOnlyCode)
        return false;
    qCritical().noquote() << "Database cannot be written:" << query.lastError().text();
    return true;
}

bool Database::ensureSchemaVersionTable()
{
    QSqlQuery query(m_db);
    if (query.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS schema_version ("
                                  "  version    INTEGER PRIMARY KEY,"
                                  "  name       TEXT NOT NULL,"
                                  "  applied_at TEXT NOT NULL DEFAULT (datetime('now')))")))
        return true;
    qCritical().noquote() << "Failed to create schema_version table:" << query.lastError().text();
    return false;
}

int Database::currentVersion()
{
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT MAX(version) FROM schema_version")) || !query.next())
        return 0;
    return query.value(0).toInt();
}

bool Database::applyMigration(int version, const QString &name, const QString &sql)
{
    constexpr int shownStatementLength = 200;
    m_db.transaction();
    for (const QString &statement : splitStatements(sql)) {
        QSqlQuery query(m_db);
        if (query.exec(statement))
            continue;
        const QString error = query.lastError().text();
        qCritical().noquote() << "Migration" << version << "failed:" << error
                              << "\nStatement:" << statement.left(shownStatementLength);
        query.finish();
        m_db.rollback();
        emit migrationError(version, error);
        return false;
    }

    QSqlQuery record(m_db);
    record.prepare(QStringLiteral("INSERT INTO schema_version (version, name) VALUES (?, ?)"));
    record.bindValue(0, version);
    record.bindValue(1, name);
    if (!record.exec()) {
        const QString error = record.lastError().text();
        record.finish();
        m_db.rollback();
        emit migrationError(version, error);
        return false;
    }
    record.finish();
    m_db.commit();
    qInfo().noquote() << "Applied migration" << version << name;
    emit migrationApplied(version, name);
    return true;
}
