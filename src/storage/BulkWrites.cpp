#include "storage/BulkWrites.h"

#include "storage/Database.h"

#include <QSqlQuery>

namespace {

void run(Database *database, const QString &pragma)
{
    if (database && database->isOpen())
        QSqlQuery(database->db()).exec(pragma);
}

}

BulkWrites::BulkWrites(Database *database)
    : m_database(database)
{
    run(database, QStringLiteral("PRAGMA synchronous=NORMAL"));
}

BulkWrites::~BulkWrites()
{
    run(m_database, QStringLiteral("PRAGMA synchronous=FULL"));
}
