#include "storage/Reorder.h"

#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"

bool storeOrder(Database *database, const char *message, const QString &sql, const QStringList &ids)
{
    const QVariant now = StoredTime::now();
    Savepoint savepoint(database);
    if (!savepoint.isActive())
        return false;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        if (!runStatement(database, message, sql, { i, now, ids.at(i) }))
            return false;
    }
    return savepoint.commit();
}
