#pragma once

#include <QPointer>

class Database;

/// Who caused a write. Only what the user did has to reach a server: a sync must not start another.
enum class ChangeOrigin { User, Sync };

/// While one lives, what is written counts as a sync's. Not across turns of the event loop.
class SyncWrites {
public:
    explicit SyncWrites(Database *database);
    ~SyncWrites();
    Q_DISABLE_COPY_MOVE(SyncWrites)

private:
    QPointer<Database> m_database;
    ChangeOrigin m_before;
};
