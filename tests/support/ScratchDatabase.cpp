#include "support/ScratchDatabase.h"

#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"

#include <QSqlError>
#include <QSqlQuery>

ScratchDatabase::ScratchDatabase()
{
    if (!m_dir.isValid() || !m_database.open(path()) || !m_database.runMigrations())
        qFatal("cannot open a scratch database");
}

QString ScratchDatabase::addAccount(const QString &id)
{
    Account account;
    account.id = id;
    account.name = id;
    account.type = AccountType::CalDAV;
    account.username = QStringLiteral("ada");
    if (!AccountRepository(&m_database).insert(account))
        qFatal("cannot store a scratch account");
    return id;
}

QString ScratchDatabase::addCalendar(const QString &id, const QString &accountId)
{
    Calendar calendar;
    calendar.id = id;
    calendar.accountId = accountId;
    calendar.name = id;
    calendar.url = QStringLiteral("https://dav.example.org/") + id;
    if (!CalendarRepository(&m_database).insert(calendar))
        qFatal("cannot store a scratch calendar");
    return id;
}

void ScratchDatabase::addFullCalendar(const QString &id, const QString &accountId)
{
    addCalendar(id, accountId);
    Event event;
    event.id = event.uid = QStringLiteral("e-") + id;
    event.calendarId = id;
    event.startTime = QDateTime(QDate(2026, 5, 1), QTime(8, 0), Qt::UTC);
    event.reminders = { Reminder{} };
    event.attendees = { Attendee{} };
    Task task;
    task.id = task.uid = QStringLiteral("t-") + id;
    task.calendarId = id;
    task.reminders = { Reminder{} };
    if (!EventRepository(&m_database).insert(event) || !TaskRepository(&m_database).insert(task))
        qFatal("cannot fill a scratch calendar");
    execute(QStringLiteral("INSERT INTO attachments (id, event_id, filename) VALUES ('f-%1', 'e-%1', 'x')").arg(id));
}

void ScratchDatabase::addManyRows(const QString &calendarId)
{
    execute(QStringLiteral("INSERT INTO events (id, calendar_id, uid, title, start_time, end_time, raw_icalendar)"
                           " WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 400)"
                           " SELECT '%1' || i, '%1', i, 'many', '2026-01-01', '2026-01-02', '' FROM n")
                .arg(calendarId));
    execute(QStringLiteral("INSERT INTO reminders (id, event_id, minutes_before)"
                           " SELECT 'r-' || id, id, 5 FROM events WHERE calendar_id = '%1' AND title = 'many'")
                .arg(calendarId));
    execute(
        QStringLiteral("INSERT INTO tasks (id, calendar_id, uid, title, raw_icalendar)"
                       " SELECT id, calendar_id, uid, '', '' FROM events WHERE calendar_id = '%1' AND title = 'many'")
            .arg(calendarId));
}

void ScratchDatabase::execute(const QString &sql)
{
    QSqlQuery query(m_database.db());
    if (!query.exec(sql))
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
}

QStringList ScratchDatabase::column(const QString &sql)
{
    QSqlQuery query(m_database.db());
    if (!query.exec(sql))
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    QStringList values;
    while (query.next())
        values.append(query.value(0).isNull() ? QStringLiteral("NULL") : query.value(0).toString());
    return values;
}

int ScratchDatabase::count(const QString &table, const QString &condition)
{
    return column(QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(table, condition)).value(0).toInt();
}

QString ScratchDatabase::problems()
{
    QStringList found = column(QStringLiteral("PRAGMA integrity_check"));
    found.removeAll(QStringLiteral("ok"));
    for (const QString &table : column(QStringLiteral("PRAGMA foreign_key_check")))
        found.append(QStringLiteral("dangling reference in ") + table);
    return found.join(u'\n');
}
