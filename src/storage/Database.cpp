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
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
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
    // Another Database may have taken the connection name over in the meantime.
    const bool isOurs = QSqlDatabase::database(name, false).driver() == m_db.driver();
    m_db = QSqlDatabase();
    if (isOurs)
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
