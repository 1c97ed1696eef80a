#pragma once

#include <QStringList>

class Database;

/// Runs \p sql once for each id, bound to its position, the current time and the id; all or none.
bool storeOrder(Database *database, const char *message, const QString &sql, const QStringList &ids);
