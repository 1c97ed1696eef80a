#include "storage/ChangeOrigin.h"

#include "storage/Database.h"

SyncWrites::SyncWrites(Database *database)
    : m_database(database)
    , m_before(database->writeOrigin())
{
    database->setWriteOrigin(ChangeOrigin::Sync);
}

SyncWrites::~SyncWrites()
{
    if (m_database)
        m_database->setWriteOrigin(m_before);
}
