#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class Database;
class QSqlQuery;

/// One SQL statement, borrowed from the database's store of prepared ones and given back, finished,
/// when it goes out of scope: no read stays open that could hold up a commit.
class Statement {
public:
    enum Reuse {
        Cached, ///< prepared once for the life of the connection
        Once, ///< for a text that varies, such as one with a list of values
    };

    Statement(Database *database, const QString &sql, Reuse reuse = Cached);
    ~Statement();
    Q_DISABLE_COPY_MOVE(Statement)

    /// Binds the next "?". After run() binding starts at the first again.
    Statement &bind(const QVariant &value);
    Statement &bindAll(const QVariantList &values);

    /// False on an error, see errorText(). Within a Savepoint whose transaction SQLite has given up
    /// (a full disk), no write is run any more.
    bool run();
    /// run(), and a warning that begins with \p message on an error.
    bool run(const char *message);
    bool next();
    [[nodiscard]] QVariant value(int column) const;
    [[nodiscard]] QString errorText() const;

private:
    Database *m_database;
    QString m_sql;
    Reuse m_reuse;
    std::unique_ptr<QSqlQuery> m_query;
    QString m_refusal;
    int m_bound = 0;
    bool m_isPrepared = true;
};

/// Runs one statement; on an error a warning that begins with \p message.
bool runStatement(Database *database, const char *message, const QString &sql, const QVariantList &values = {});
