#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

class Database;

/// Lists of values in SQL. SQLite bounds the variables of one statement.
namespace SqlList {

inline constexpr qsizetype MaxValues = 900;

/// "?, ?, …" for \p count values.
QString places(qsizetype count);

/// \p texts as values to bind.
QVariantList values(const QStringList &texts);

} // namespace SqlList

/// Restricts a query to some calendars; no ids mean all but those under removal. A list too long for one
/// statement is applied to the rows that came back.
class CalendarFilter {
public:
    CalendarFilter(Database *database, const QStringList &calendarIds);

    /// " AND calendar_id IN (…)", the opposite or nothing, and what to bind to it.
    [[nodiscard]] QString clause() const;
    [[nodiscard]] QVariantList values() const;
    [[nodiscard]] bool accepts(const QString &calendarId) const
    {
        return (m_ids.isEmpty() || m_ids.contains(calendarId)) && !m_removed.contains(calendarId);
    }

private:
    QSet<QString> m_ids;
    QSet<QString> m_removed;
};
