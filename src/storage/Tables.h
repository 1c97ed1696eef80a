#pragma once

#include "models/Account.h"
#include "models/Calendar.h"
#include "models/Event.h"
#include "models/EventTemplate.h"
#include "models/FilterRule.h"
#include "models/Task.h"
#include "models/ViewDef.h"
#include "storage/Table.h"

/// The columns of every table that has a record, each named once.
namespace Tables {

const Table<Account> &accounts(); ///< without `sort_order`, which the record does not have
const Table<Calendar> &calendars();
const Table<Event> &events();
const Table<Attendee> &attendees();
const Table<Reminder> &reminders();
const Table<Task> &tasks();
const Table<Reminder> &taskReminders();
const Table<ViewDef> &views();
const Table<FilterRule> &filterRules();
const Table<EventTemplate> &templates();

} // namespace Tables
