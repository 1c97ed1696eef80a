#include "storage/CalendarFilter.h"

QString SqlList::places(qsizetype count)
{
    return QStringList(count, QStringLiteral("?")).join(QLatin1StringView(", "));
}

QVariantList SqlList::values(const QStringList &texts)
{
    return QVariantList(texts.begin(), texts.end());
}

CalendarFilter::CalendarFilter(const QStringList &calendarIds)
    : m_ids(calendarIds.begin(), calendarIds.end())
{
}

QString CalendarFilter::clause() const
{
    if (m_ids.isEmpty() || m_ids.size() > SqlList::MaxValues)
        return {};
    // The plus keeps SQLite from walking whole calendars by their index instead of the range asked for.
    return QStringLiteral(" AND +calendar_id IN (%1)").arg(SqlList::places(m_ids.size()));
}

QVariantList CalendarFilter::values() const
{
    return m_ids.size() > SqlList::MaxValues ? QVariantList() : SqlList::values(m_ids.values());
}
