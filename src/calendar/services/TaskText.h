#pragma once

#include <QDate>
#include <QString>

class AppState;
class QDateTime;
struct Task;

/// What panes, popovers and forms write about a task, in the user's language and time format. Plain text.
namespace TaskText {

QString title(const Task &task); ///< "(Untitled)" if it has none
QString status(const QString &status); ///< "In progress"
QString priority(int priority); ///< "High", "Medium", "Low"; empty for none. RFC 5545 §3.8.1.9
/// The local day of a due or start date; a date without a time is never converted.
QDate day(const QDateTime &value, bool dateOnly);
/// "Today", "Tue, Mar 3" or with the year and the time where they matter.
QString date(AppState *state, const QDateTime &value, bool dateOnly);

} // namespace TaskText
