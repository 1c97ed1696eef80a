#pragma once

#include <QPointer>

class Database;

/// Sets the database up for many writes while it lives. A commit does not wait for the disk: a power cut may
/// take back the last ones, but the file stays whole. For work that, cut off, is done again.
class BulkWrites {
public:
    /// What SQLite does unasked.
    static constexpr int UsualCheckpointPages = 1000;

    /// After \p checkpointPages a commit moves what was written from the log into the file, which holds the
    /// event loop: few pages make short holds, but more of them.
    explicit BulkWrites(Database *database, int checkpointPages = UsualCheckpointPages);
    ~BulkWrites();
    Q_DISABLE_COPY_MOVE(BulkWrites)

private:
    QPointer<Database> m_database;
};
