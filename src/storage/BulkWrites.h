#pragma once

#include <QPointer>

class Database;

/// Sets the database up for many writes while it lives. A commit does not wait for the disk: a power cut may
/// take back the last ones, but the file stays whole. For work that, cut off, is done again.
class BulkWrites {
public:
    explicit BulkWrites(Database *database);
    ~BulkWrites();
    Q_DISABLE_COPY_MOVE(BulkWrites)

private:
    QPointer<Database> m_database;
};
