#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

/// The two ways in which a rule says its last day. Forms show a day, and mean all of it; what is stored of a
/// timed series is an instant. RFC 5545 §3.3.10, UNTIL.
namespace RuleEnd {

/// \p rule with an instant in UNTIL replaced by its day, "yyyyMMdd": the local one, of an all-day series that
/// of its digits. All else stays as it is.
QString asDay(const QString &rule, bool isAllDay = false);
/// \p rule with a day in UNTIL replaced by the last second of that local day, in UTC.
QString asInstant(const QString &rule);

/// \p rule that ends with the last instance no later than \p until, whatever its end was: UNTIL as an instant
/// in the place of the old one, else behind all parts, and no COUNT.
QString at(const QString &rule, const QDateTime &until);
/// The same with a day, for an all-day series.
QString on(const QString &rule, QDate lastDay);
/// \p rule without COUNT and UNTIL.
QString removed(const QString &rule);

} // namespace RuleEnd
