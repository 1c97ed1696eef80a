#pragma once

#include "models/Task.h"

#include <QDate>
#include <QList>
#include <QString>

class AppState;

/// Which tasks a list shows, and in which order.
namespace TaskListing {

enum class Filter { All, Today, ThisWeek, Overdue };

struct Options {
    Filter filter = Filter::All;
    bool groupByCalendar = false;
    bool hideCompleted = false;
};

struct Row : TreeTask {
    bool isCutOff = false; ///< its parent is not in the list

    bool operator==(const Row &) const = default;
};

struct Section {
    QString calendarId; ///< empty: the rows of all calendars
    QString title; ///< of the calendar, with its account
    QString color;
    QList<Row> rows;
};

/// By its due date alone. Today and overdue count in local days; a date without a time is never converted.
bool matches(const Task &task, Filter filter, QDate today);
/// Due before today, and neither completed nor cancelled.
bool isOverdue(const Task &task, QDate today);

/// How siblings without a place of their own are ordered: to do before done, then by due date and priority. On the
/// user's clock: a date without a time comes after the times of its day.
bool isBefore(const Task &a, const Task &b);

/// The tasks of the visible calendars; no reminders. One section, or one for each calendar that has rows.
QList<Section> load(AppState *state, const Options &options, QDate today);

} // namespace TaskListing
