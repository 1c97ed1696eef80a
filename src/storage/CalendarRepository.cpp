#include "storage/CalendarRepository.h"

#include "storage/CalendarRemovals.h"
#include "storage/Database.h"
#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

#include <QDebug>

CalendarRepository::CalendarRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Calendar> CalendarRepository::getAll()
{
    return Tables::calendars().list(m_database, QStringLiteral(" WHERE deleted_at IS NULL ORDER BY sort_order, name"));
}

QList<Calendar> CalendarRepository::getByAccount(const QString &accountId)
{
    return Tables::calendars().list(
        m_database, QStringLiteral(" WHERE account_id = ? AND deleted_at IS NULL ORDER BY sort_order, name"),
        { accountId });
}

std::optional<Calendar> CalendarRepository::getById(const QString &id)
{
    return Tables::calendars().first(m_database, QStringLiteral(" WHERE id = ? AND deleted_at IS NULL"), { id });
}

QList<Calendar> CalendarRepository::getDeleted()
{
    QList<Calendar> calendars = Tables::calendars().list(m_database, QStringLiteral(" WHERE deleted_at IS NOT NULL"));
    calendars.removeIf([this](const Calendar &c) { return m_database->removals()->ids().contains(c.id); });
    return calendars;
}

bool CalendarRepository::insert(const Calendar &calendar)
{
    if (!m_database->removals()->finish(calendar.id))
        return false;
    return announce(Tables::calendars().insert(m_database, calendar, "CalendarRepository::insert failed:"));
}

bool CalendarRepository::update(const Calendar &calendar)
{
    return announce(Tables::calendars().update(m_database, calendar, "CalendarRepository::update failed:"));
}

bool CalendarRepository::softDelete(const QString &id)
{
    const QVariant now = StoredTime::now();
    return announce(runStatement(m_database, "CalendarRepository::softDelete failed:",
                                 QStringLiteral("UPDATE calendars SET deleted_at = ?, updated_at = ? WHERE id = ?"),
                                 { now, now, id }));
}

bool CalendarRepository::restore(const QString &id)
{
    return announce(runStatement(m_database, "CalendarRepository::restore failed:",
                                 QStringLiteral("UPDATE calendars SET deleted_at = NULL, updated_at = ? WHERE id = ?"),
                                 { StoredTime::now(), id }));
}

bool CalendarRepository::remove(const QString &id)
{
    return announce(runStatement(m_database, "CalendarRepository::remove failed:",
                                 QStringLiteral("DELETE FROM calendars WHERE id = ?"), { id }));
}

bool CalendarRepository::removeDeep(const QString &id)
{
    return announce(m_database->removals()->remove(id));
}

bool CalendarRepository::setVisible(const QString &id, bool visible)
{
    return announce(runStatement(m_database, "CalendarRepository::setVisible failed:",
                                 QStringLiteral("UPDATE calendars SET is_visible = ?, updated_at = ? WHERE id = ?"),
                                 { visible ? 1 : 0, StoredTime::now(), id }));
}

bool CalendarRepository::setDefault(const QString &id)
{
    const QVariant now = StoredTime::now();
    Savepoint savepoint(m_database);
    const bool stored = savepoint.isActive()
        && runStatement(m_database, "CalendarRepository::setDefault clear failed:",
                        QStringLiteral(
                            "UPDATE calendars SET is_default = 0, updated_at = ? WHERE is_default = 1 AND id != ?"),
                        { now, id })
        && runStatement(m_database, "CalendarRepository::setDefault set failed:",
                        QStringLiteral("UPDATE calendars SET is_default = 1, updated_at = ? WHERE id = ?"), { now, id })
        && savepoint.commit();
    return announce(stored);
}

bool CalendarRepository::deleteDeep(Database *database, const QString &id)
{
    Savepoint savepoint(database);
    if (!savepoint.isActive())
        return false;
    bool allDone = true;
    for (const auto *sql : {
             "DELETE FROM attendees WHERE event_id IN (SELECT id FROM events WHERE calendar_id = ?)",
             "DELETE FROM attachments WHERE event_id IN (SELECT id FROM events WHERE calendar_id = ?)",
             "DELETE FROM reminders WHERE event_id IN (SELECT id FROM events WHERE calendar_id = ?)",
             "DELETE FROM task_reminders WHERE task_id IN (SELECT id FROM tasks WHERE calendar_id = ?)",
             "DELETE FROM events WHERE calendar_id = ?",
             "DELETE FROM tasks WHERE calendar_id = ?",
             "DELETE FROM calendars WHERE id = ?",
         }) {
        Statement statement(database, QString::fromLatin1(sql));
        if (statement.bind(id).run())
            continue;
        qWarning().noquote() << "CalendarRepository::deleteDeep failed:" << statement.errorText() << "\n " << sql;
        allDone = false;
    }
    database->eventsPurged(id);
    return allDone && savepoint.commit();
}

bool CalendarRepository::announce(bool stored)
{
    if (!stored)
        return false;
    m_database->dataWritten();
    emit calendarsChanged();
    return true;
}
