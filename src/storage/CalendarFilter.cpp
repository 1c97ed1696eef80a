#include "storage/CalendarFilter.h"

#include "storage/CalendarRemovals.h"
#include "storage/Database.h"

QString SqlList::places(qsizetype count)
{
    return QStringList(count, QStringLiteral("?")).join(QLatin1StringView(", "));
}

QVariantList SqlList::values(const QStringList &texts)
{
    return QVariantList(texts.begin(), texts.end());
}

CalendarFilter::CalendarFilter(Database *database, const QStringList &calendarIds)
    : m_ids(calendarIds.begin(), calendarIds.end())
    , m_removed(database->removals()->ids())
{
}

QString CalendarFilter::clause() const
{
    const bool isPositive = !m_ids.isEmpty();
    const qsizetype count = isPositive ? m_ids.size() : m_removed.size();
    if (count == 0 || count > SqlList::MaxValues)
        return {};
    // The plus keeps SQLite from walking whole calendars by their index instead of the range asked for.
    return QStringLiteral(" AND +calendar_id %1 (%2)")
        .arg(isPositive ? QStringLiteral("IN") : QStringLiteral("NOT IN"), SqlList::places(count));
}

QVariantList CalendarFilter::values() const
{
    const QSet<QString> &ids = m_ids.isEmpty() ? m_removed : m_ids;
    return ids.size() > SqlList::MaxValues ? QVariantList() : SqlList::values(ids.values());
}
