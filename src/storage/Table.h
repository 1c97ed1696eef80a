#pragma once

#include "storage/Statement.h"

#include <QList>
#include <QStringList>

#include <optional>
#include <vector>

/// When a column is written.
enum class Write { Always, OnInsert, Never };

/// One column of a table and the member of the record it holds. See StoredAs.h for how values are stored.
template <typename Record> struct Column {
    const char *name;
    QVariant (*store)(const Record &);
    void (*load)(Record &, const QVariant &); ///< null: written only, no member holds it
    Write write = Write::Always;
};

/// One table whose columns are each named once: SELECT, INSERT, UPDATE, binding and reading all come from
/// the same list. The first column is the key.
template <typename Record> class Table {
public:
    /// \p finish completes a record after its columns were loaded, where one column depends on another.
    Table(const char *name, std::vector<Column<Record>> columns, void (*finish)(Record &) = nullptr)
        : m_name(QLatin1StringView(name))
        , m_columns(std::move(columns))
        , m_finish(finish)
    {
        buildSelect();
        buildInsert();
        buildUpdate();
    }

    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QStringList columnNames() const
    {
        QStringList names;
        for (const auto &column : m_columns)
            names.append(QLatin1StringView(column.name));
        return names;
    }

    /// "SELECT columns FROM table", to be followed by \p tail. \p extraColumns come behind the record's.
    [[nodiscard]] QString select(const QString &tail, const QString &extraColumns = {}) const
    {
        return m_selectColumns + extraColumns + m_from + tail;
    }
    /// How many columns select() reads without extra ones.
    [[nodiscard]] int selectedCount() const { return m_selectedCount; }

    [[nodiscard]] Record read(const Statement &row) const
    {
        Record record;
        int position = 0;
        for (const auto &column : m_columns) {
            if (column.load)
                column.load(record, row.value(position++));
        }
        if (m_finish)
            m_finish(record);
        return record;
    }

    /// All rows of select(\p tail); none, with a warning, on an error.
    QList<Record> list(Database *database, const QString &tail, const QVariantList &values = {},
                       Statement::Reuse reuse = Statement::Cached) const
    {
        Statement statement(database, select(tail), reuse);
        QList<Record> records;
        if (!statement.bindAll(values).run("Reading failed:"))
            return records;
        while (statement.next())
            records.append(read(statement));
        return records;
    }

    std::optional<Record> first(Database *database, const QString &tail, const QVariantList &values) const
    {
        Statement statement(database, select(tail));
        if (!statement.bindAll(values).run("Reading failed:") || !statement.next())
            return std::nullopt;
        return read(statement);
    }

    /// On an error false, and a warning that begins with \p message.
    bool insert(Database *database, const Record &record, const char *message) const
    {
        Statement statement(database, m_insert);
        for (const auto &column : m_columns) {
            if (column.write != Write::Never)
                statement.bind(column.store(record));
        }
        return statement.run(message);
    }

    /// Writes the row with the record's key. On an error false, and a warning that begins with \p message.
    bool update(Database *database, const Record &record, const char *message) const
    {
        Statement statement(database, m_update);
        for (const auto &column : m_columns) {
            if (column.write == Write::Always)
                statement.bind(column.store(record));
        }
        statement.bind(m_columns.front().store(record));
        return statement.run(message);
    }

private:
    void buildSelect()
    {
        QStringList names;
        for (const auto &column : m_columns) {
            if (column.load)
                names.append(QLatin1StringView(column.name));
        }
        m_selectedCount = static_cast<int>(names.size());
        m_selectColumns = QStringLiteral("SELECT ") + names.join(QLatin1StringView(", "));
        m_from = QStringLiteral(" FROM ") + m_name;
    }

    void buildInsert()
    {
        QStringList names;
        for (const auto &column : m_columns) {
            if (column.write != Write::Never)
                names.append(QLatin1StringView(column.name));
        }
        const QStringList places(names.size(), QStringLiteral("?"));
        m_insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                       .arg(m_name, names.join(QLatin1StringView(", ")), places.join(QLatin1StringView(", ")));
    }

    void buildUpdate()
    {
        QStringList assignments;
        for (const auto &column : m_columns) {
            if (column.write == Write::Always)
                assignments.append(QLatin1StringView(column.name) + QStringLiteral(" = ?"));
        }
        m_update =
            QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                .arg(m_name, assignments.join(QLatin1StringView(", ")), QLatin1StringView(m_columns.front().name));
    }

    QString m_name;
    std::vector<Column<Record>> m_columns;
    void (*m_finish)(Record &);
    int m_selectedCount = 0;
    QString m_selectColumns;
    QString m_from;
    QString m_insert;
    QString m_update;
};
