#include "storage/Savepoint.h"

#include "storage/Database.h"
#include "storage/Statement.h"

namespace {

// Every depth has a name of its own, so the same few statements serve the whole session.
QString savepointName(int depth)
{
    return QStringLiteral("level_%1").arg(depth);
}

}

Savepoint::Savepoint(Database *database)
    : m_database(database)
    , m_purgesBefore(database->eventPurges())
{
    const QString name = savepointName(database->m_savepointDepth + 1);
    m_active = Statement(database, QStringLiteral("SAVEPOINT ") + name).run("Savepoint open failed:");
    if (m_active)
        ++database->m_savepointDepth;
}

Savepoint::~Savepoint()
{
    rollback();
}

bool Savepoint::commit()
{
    if (!m_active)
        return false;
    const QString name = savepointName(m_database->m_savepointDepth);
    if (!Statement(m_database, QStringLiteral("RELEASE ") + name).run("Savepoint commit failed:")) {
        rollback();
        return false;
    }
    m_active = false;
    --m_database->m_savepointDepth;
    return true;
}

void Savepoint::rollback()
{
    if (!m_active)
        return;
    m_active = false;
    const QString name = savepointName(m_database->m_savepointDepth);
    if (!m_database->isTransactionLost()) {
        Statement(m_database, QStringLiteral("ROLLBACK TO ") + name).run("Savepoint rollback failed:");
        Statement(m_database, QStringLiteral("RELEASE ") + name).run("Savepoint rollback failed:");
    }
    if (m_database->isTransactionLost() || m_database->eventPurges() != m_purgesBefore)
        m_database->eventsPurged();
    else
        m_database->dataWritten();
    if (--m_database->m_savepointDepth == 0)
        m_database->m_isTransactionLost = false;
}
