#pragma once

#include "storage/ChangeOrigin.h"

#include <QObject>
#include <QSqlDatabase>
#include <QStringList>

#include <memory>
#include <unordered_map>

class CalendarRemovals;
class QSqlQuery;

/// The program's one connection to its SQLite file, and the migrations that bring the file up to date.
/// Main thread only.
class Database : public QObject {
    Q_OBJECT

public:
    explicit Database(QObject *parent = nullptr);
    ~Database() override;

    /// Opens (or creates) the file at \p path on Qt's default connection (on one of its
    /// own if that is in use), with WAL and foreign keys on.
    /// False, with a critical log line, if SQLite refuses.
    bool open(const QString &path);
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    QSqlDatabase &db() { return m_db; }
    void close();

    /// Applies every migration above the file's version, each in a transaction of its own.
    /// False at the first failure: that migration is rolled back, earlier ones stay. False also for a
    /// file that may not be written.
    bool runMigrations();

    /// The statements of a migration file, without whole-line comments and final semicolons.
    /// A trigger body (BEGIN … END) stays in one piece.
    static QStringList splitStatements(const QString &sql);

    /// Counts every write of something that is shown (events, tasks, calendars, accounts, groups,
    /// filters), in this process. Whoever keeps a result of stored data compares this number.
    [[nodiscard]] quint64 dataGeneration() const { return m_dataGeneration; }
    void dataWritten() { ++m_dataGeneration; }

    /// Counts the changes of events by anything else than EventRepository (a calendar or an account
    /// went with all it held), and the rollbacks of such.
    [[nodiscard]] quint64 eventPurges() const { return m_eventPurges; }
    /// Without a calendar anything may have changed.
    void eventsPurged(const QString &calendarId = {})
    {
        ++m_eventPurges;
        dataWritten();
        emit purged(calendarId);
    }

    /// Deletes calendars; those under removal are no longer there for any reader.
    [[nodiscard]] CalendarRemovals *removals() const { return m_removals; }

    /// Who causes the writes of this moment; see SyncWrites.
    [[nodiscard]] ChangeOrigin writeOrigin() const { return m_writeOrigin; }
    void setWriteOrigin(ChangeOrigin origin) { m_writeOrigin = origin; }

    /// How many Savepoints are open.
    [[nodiscard]] int savepointDepth() const { return m_savepointDepth; }

signals:
    void migrationApplied(int version, const QString &name);
    void migrationError(int version, const QString &message);
    /// All events of a calendar went at once. An empty id means that any event may have changed.
    void purged(const QString &calendarId);

private:
    friend class Savepoint;
    friend class Statement;

    struct TextHash {
        size_t operator()(const QString &text) const noexcept { return qHash(text); }
    };

    bool isReadOnly();
    bool ensureSchemaVersionTable();
    int currentVersion();
    bool applyMigration(int version, const QString &name, const QString &sql);

    std::unique_ptr<QSqlQuery> takePrepared(const QString &sql);
    void givePrepared(const QString &sql, std::unique_ptr<QSqlQuery> query);
    [[nodiscard]] bool isTransactionLost() const { return m_isTransactionLost; }
    void checkTransaction();

    QSqlDatabase m_db;
    CalendarRemovals *m_removals = nullptr;
    bool m_isOpen = false;
    std::unordered_map<QString, std::unique_ptr<QSqlQuery>, TextHash> m_prepared;
    int m_savepointDepth = 0;
    ChangeOrigin m_writeOrigin = ChangeOrigin::User;
    bool m_isTransactionLost = false; // SQLite ended it by itself while a Savepoint was open
    quint64 m_dataGeneration = 1;
    quint64 m_eventPurges = 1;
};
