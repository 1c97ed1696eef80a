#pragma once

#include "models/Event.h"

#include <QList>
#include <QVariant>

#include <optional>

class Database;

/// Whole events, children included, in and out of their tables.
namespace EventRows {

QList<Event> list(Database *database, const QString &tail, const QVariantList &values);
std::optional<Event> first(Database *database, const QString &tail, const QVariantList &values);

/// Fills reminders and attendees: a few queries for all events, not two for each.
void attachChildren(Database *database, QList<Event> &events);

/// Writes reminders and attendees of a row just inserted, or in place of those it has.
bool insertChildren(Database *database, const Event &event);
bool replaceChildren(Database *database, const Event &event);

/// Gives the reminders of a record that is about to replace its row the state of the stored ones.
void carryReminders(Database *database, Event &event);

} // namespace EventRows
