#include "storage/StoredAs.h"
#include "storage/Tables.h"

using namespace StoredAs;

const Table<ViewDef> &Tables::views()
{
    static const Table<ViewDef> table("calendar_views",
                                      {
                                          column<&ViewDef::id, Text>("id", Write::OnInsert),
                                          column<&ViewDef::name, Text>("name"),
                                          column<&ViewDef::color, NullableText>("color"),
                                          column<&ViewDef::calendarIds, Text>("calendar_ids"),
                                          column<&ViewDef::isDefault, Flag>("is_default"),
                                          column<&ViewDef::sortOrder, Number>("sort_order"),
                                          column<&ViewDef::syncStatus, Text>("sync_status"),
                                          column<&ViewDef::createdAt, Stamp>("created_at", Write::OnInsert),
                                          column<&ViewDef::updatedAt, Stamp>("updated_at"),
                                          column<&ViewDef::deletedAt, OptionalStamp>("deleted_at", Write::Never),
                                      });
    return table;
}

const Table<FilterRule> &Tables::filterRules()
{
    static const Table<FilterRule> table("filter_rules",
                                         {
                                             column<&FilterRule::id, Text>("id", Write::OnInsert),
                                             column<&FilterRule::name, Text>("name"),
                                             column<&FilterRule::type, Text>("type"),
                                             column<&FilterRule::enabled, Flag>("enabled"),
                                             column<&FilterRule::calendarIds, Text>("calendar_ids"),
                                             column<&FilterRule::conditions, Text>("conditions"),
                                             column<&FilterRule::action, Text>("action"),
                                             column<&FilterRule::priority, Number>("priority"),
                                             column<&FilterRule::eventUid, NullableText>("event_uid"),
                                             column<&FilterRule::eventCalendarId, NullableText>("event_calendar_id"),
                                             column<&FilterRule::suppressReminders, Flag>("suppress_reminders"),
                                             column<&FilterRule::syncStatus, Text>("sync_status"),
                                             column<&FilterRule::createdAt, Stamp>("created_at", Write::OnInsert),
                                             column<&FilterRule::updatedAt, Stamp>("updated_at"),
                                             column<&FilterRule::deletedAt, OptionalStamp>("deleted_at", Write::Never),
                                         });
    return table;
}

const Table<EventTemplate> &Tables::templates()
{
    static const Table<EventTemplate> table(
        "event_templates",
        {
            column<&EventTemplate::id, Text>("id", Write::OnInsert),
            column<&EventTemplate::name, Text>("name"),
            column<&EventTemplate::title, Text>("title"),
            column<&EventTemplate::description, NullableText>("description"),
            column<&EventTemplate::location, NullableText>("location"),
            column<&EventTemplate::color, NullableText>("color"),
            column<&EventTemplate::isAllDay, Flag>("is_all_day"),
            column<&EventTemplate::durationMinutes, Number>("duration_minutes"),
            column<&EventTemplate::recurrenceRule, NullableText>("recurrence_rule"),
            column<&EventTemplate::calendarId, NullableText>("calendar_id"),
            column<&EventTemplate::reminders, JsonArray>("reminders"),
            column<&EventTemplate::sortOrder, Number>("sort_order"),
            // Every change made here is still to be pushed, and the record does not say so.
            { "sync_status", [](const EventTemplate &) { return QVariant(QString(SyncStatus::Pending)); }, nullptr },
            column<&EventTemplate::createdAt, Stamp>("created_at", Write::OnInsert),
            column<&EventTemplate::updatedAt, Stamp>("updated_at"),
            column<&EventTemplate::deletedAt, OptionalStamp>("deleted_at", Write::Never),
        });
    return table;
}
