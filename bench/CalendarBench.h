#pragma once

#include <QString>

/// Parsing and expansion, the work that calendar libraries do too.
namespace CalendarBench {

/// Prints one JSON line. False if the file cannot be read.
bool parse(const QString &path);
/// Prints one JSON line for each repeat. Dates are "yyyyMMdd" in UTC.
bool expand(const QString &path, const QString &from, const QString &to, int repeats);

} // namespace CalendarBench
