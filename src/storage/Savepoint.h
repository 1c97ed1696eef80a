#pragma once

#include <QtGlobal>

class Database;

/// Several statements that land together or not at all; may be nested, as a SQLite SAVEPOINT may.
/// Rolls back when it goes out of scope without a successful commit().
///
/// The outermost one is a transaction, so a long import opens one around each slice and thereby
/// saves a disk flush for every row.
class Savepoint {
public:
    explicit Savepoint(Database *database);
    ~Savepoint();
    Q_DISABLE_COPY_MOVE(Savepoint)

    /// False if the savepoint could not be opened. What is written all the same lands statement by
    /// statement, and commit() fails.
    [[nodiscard]] bool isActive() const { return m_active; }
    /// Keeps what was written. False, and rolled back, if SQLite refuses (a full disk).
    bool commit();
    void rollback();

private:
    Database *m_database;
    quint64 m_purgesBefore;
    bool m_active = false;
};
