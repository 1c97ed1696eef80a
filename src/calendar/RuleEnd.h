#pragma once

#include <QString>

/// The two ways in which a rule says its last day. Forms show a day, and mean all of it; what is stored of a
/// timed series is an instant. RFC 5545 §3.3.10, UNTIL.
namespace RuleEnd {

/// \p rule with an instant in UNTIL replaced by its local day, "yyyyMMdd". All else stays as it is.
QString asDay(const QString &rule);
/// \p rule with a day in UNTIL replaced by the last second of that local day, in UTC.
QString asInstant(const QString &rule);

} // namespace RuleEnd
