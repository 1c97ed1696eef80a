#pragma once

#include "storage/Database.h"

#include <QTemporaryDir>

/// A migrated database in a folder of its own.
class ScratchDatabase {
public:
    ScratchDatabase();

    Database *operator->() { return &m_database; }
    Database *get() { return &m_database; }
    [[nodiscard]] QString path() const { return m_dir.filePath(QStringLiteral("calendar.db")); }

    /// A live CalDAV account, and a calendar in it. Both ids come back as given.
    QString addAccount(const QString &id);
    QString addCalendar(const QString &id, const QString &accountId);
    /// A calendar with an event "e-ID" and a task "t-ID", both with children.
    void addFullCalendar(const QString &id, const QString &accountId);
    /// 400 events with a reminder each, and as many tasks: too many to delete in one go.
    void addManyRows(const QString &calendarId);

    /// Runs one statement as another program would; fails hard if SQLite refuses.
    void execute(const QString &sql);
    /// The first column of every row; NULL as the text "NULL".
    QStringList column(const QString &sql);
    /// The same, separated by blanks.
    QString text(const QString &sql) { return column(sql).join(u' '); }
    int count(const QString &table, const QString &condition = QStringLiteral("1"));

    /// What SQLite finds wrong with the file or its references; empty if all is well.
    QString problems();

private:
    QTemporaryDir m_dir;
    Database m_database;
};
