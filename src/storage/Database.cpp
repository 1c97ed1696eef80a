#include "storage/Database.h"

#include "storage/CalendarRemovals.h"

#include <QDebug>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

Database::Database(QObject *parent)
    : QObject(parent)
{
    m_removals = new CalendarRemovals(this);
}

Database::~Database()
{
    close();
}

bool Database::open(const QString &path)
{
    close();
    // Two databases may be open at a time, as two devices are in a test.
    const QString usualName = QLatin1StringView(QSqlDatabase::defaultConnection);
    const bool isTaken = QSqlDatabase::database(usualName, false).isOpen();
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"),
                                     isTaken ? QStringLiteral("database-%1").arg(quintptr(this)) : usualName);
    m_db.setDatabaseName(path);
    if (!m_db.open()) {
        qCritical().noquote() << "Failed to open database:" << m_db.lastError().text();
        return false;
    }
    QSqlQuery query(m_db);
    query.exec(QStringLiteral("PRAGMA journal_mode=WAL"));
    query.exec(QStringLiteral("PRAGMA foreign_keys=ON"));
    // Each nested savepoint would else keep its journal in a file.
    query.exec(QStringLiteral("PRAGMA temp_store=MEMORY"));
    // A slice of an import or a sync changes more pages than the usual 2 MB hold: what does not fit is written twice.
    query.exec(QStringLiteral("PRAGMA cache_size=-8192"));
    m_isOpen = true;
    return true;
}

void Database::close()
{
    m_removals->pause();
    m_prepared.clear();
    m_savepointDepth = 0;
    m_isTransactionLost = false;
    m_isOpen = false;
    if (!m_db.isValid())
        return;
    m_db.close();
    const QString name = m_db.connectionName();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

std::unique_ptr<QSqlQuery> Database::takePrepared(const QString &sql)
{
    const auto it = m_prepared.find(sql);
    return it == m_prepared.end() ? nullptr : std::move(it->second);
}

void Database::givePrepared(const QString &sql, std::unique_ptr<QSqlQuery> query)
{
    if (m_isOpen)
        m_prepared[sql] = std::move(query);
}

void Database::checkTransaction()
{
    // A full disk makes SQLite roll back the whole transaction and not only the statement. What is
    // written after that would no longer belong to it, and BEGIN tells whether it came to that.
    if (m_savepointDepth == 0 || m_isTransactionLost)
        return;
    QSqlQuery probe(m_db);
    if (!probe.exec(QStringLiteral("BEGIN")))
        return;
    probe.exec(QStringLiteral("ROLLBACK"));
    m_isTransactionLost = true;
}
