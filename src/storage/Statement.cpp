#include "storage/Statement.h"

#include "storage/Database.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>

Statement::Statement(Database *database, const QString &sql, Reuse reuse)
    : m_database(database)
    , m_sql(sql)
    , m_reuse(reuse)
    , m_query(database->takePrepared(sql))
{
    if (m_query)
        return;
    m_query = std::make_unique<QSqlQuery>(database->db());
    m_query->setForwardOnly(true);
    m_isPrepared = m_query->prepare(sql);
}

Statement::~Statement()
{
    m_query->finish();
    if (m_isPrepared && m_reuse == Cached)
        m_database->givePrepared(m_sql, std::move(m_query));
}

Statement &Statement::bind(const QVariant &value)
{
    if (m_isPrepared)
        m_query->bindValue(m_bound++, value);
    return *this;
}

Statement &Statement::bindAll(const QVariantList &values)
{
    for (const QVariant &value : values)
        bind(value);
    return *this;
}

bool Statement::run()
{
    m_bound = 0;
    if (!m_isPrepared)
        return false;
    const bool isRead = m_sql.startsWith(QLatin1StringView("SELECT"));
    if (!isRead && m_database->isTransactionLost()) {
        m_refusal = QStringLiteral("the transaction was given up");
        return false;
    }
    const bool succeeded = m_query->exec();
    if (!succeeded && !isRead)
        m_database->checkTransaction();
    return succeeded;
}

bool Statement::run(const char *message)
{
    const bool succeeded = run();
    if (!succeeded)
        qWarning().noquote() << message << errorText();
    return succeeded;
}

bool Statement::next()
{
    return m_query->next();
}

QVariant Statement::value(int column) const
{
    return m_query->value(column);
}

QString Statement::errorText() const
{
    return m_refusal.isEmpty() ? m_query->lastError().text() : m_refusal;
}

bool runStatement(Database *database, const char *message, const QString &sql, const QVariantList &values)
{
    return Statement(database, sql).bindAll(values).run(message);
}
