#pragma once

#include "models/Reminder.h"

#include <QDateTime>
#include <QList>

#include <optional>

/// What a person changed in a form, as the difference of the record shown and the record edited. It is put
/// onto the row as stored now, so that what a sync changed in between stays.
namespace EditDifference {

/// Sets those of \p Fields in \p row that \p edited has otherwise than \p shown.
template <auto... Fields, typename Record> void carry(const Record &shown, const Record &edited, Record &row)
{
    const auto carryOne = [&](auto field) {
        if (shown.*field != edited.*field)
            row.*field = edited.*field;
    };
    (carryOne(Fields), ...);
}

/// Adds and removes in \p row what was added and removed. A form knows the minutes alone: what else a stored
/// reminder holds stays.
void carryReminders(const QList<Reminder> &shown, const QList<Reminder> &edited, QList<Reminder> &row);

/// True if a picker shows both alike. It knows the date, or the local time in whole minutes.
bool isSameInPicker(const std::optional<QDateTime> &a, const std::optional<QDateTime> &b, bool isDateOnly);

} // namespace EditDifference
