#include "storage/StoredAs.h"
#include "storage/Tables.h"

using namespace StoredAs;

const Table<Account> &Tables::accounts()
{
    static const Table<Account> table("accounts",
                                      {
                                          column<&Account::id, Text>("id", Write::OnInsert),
                                          column<&Account::name, Text>("name"),
                                          column<&Account::type, Text>("type"),
                                          column<&Account::serverUrl, NullableText>("server_url"),
                                          column<&Account::username, NullableText>("username"),
                                          column<&Account::calendarHomeSet, NullableText>("calendar_home_set"),
                                          column<&Account::principalUrl, NullableText>("principal_url"),
                                          column<&Account::syncIntervalMinutes, Number>("sync_interval_minutes"),
                                          column<&Account::lastSyncTime, OptionalStamp>("last_sync_time"),
                                          column<&Account::lastSyncError, NullableText>("last_sync_error"),
                                          column<&Account::enabled, Flag>("enabled"),
                                          column<&Account::color, Text>("color"),
                                          column<&Account::excludeFromSync, Flag>("exclude_from_sync"),
                                          column<&Account::trustedCertSha256, NullableText>("trusted_cert_sha256"),
                                          column<&Account::pendingCertSha256, NullableText>("pending_cert_sha256"),
                                          column<&Account::createdAt, Stamp>("created_at", Write::OnInsert),
                                          column<&Account::updatedAt, Stamp>("updated_at"),
                                          column<&Account::deletedAt, OptionalStamp>("deleted_at", Write::Never),
                                      });
    return table;
}

const Table<Calendar> &Tables::calendars()
{
    static const Table<Calendar> table("calendars",
                                       {
                                           column<&Calendar::id, Text>("id", Write::OnInsert),
                                           column<&Calendar::accountId, Text>("account_id"),
                                           column<&Calendar::url, Text>("url"),
                                           column<&Calendar::name, Text>("name"),
                                           column<&Calendar::description, NullableText>("description"),
                                           column<&Calendar::color, Text>("color"),
                                           column<&Calendar::timezone, Text>("timezone"),
                                           column<&Calendar::isVisible, Flag>("is_visible"),
                                           column<&Calendar::isReadOnly, Flag>("is_read_only"),
                                           column<&Calendar::isDefault, Flag>("is_default"),
                                           column<&Calendar::ctag, NullableText>("ctag"),
                                           column<&Calendar::syncToken, NullableText>("sync_token"),
                                           column<&Calendar::deltaSyncToken, NullableText>("delta_sync_token"),
                                           column<&Calendar::supportedComponents, Text>("supported_components"),
                                           column<&Calendar::allowTasksOverride, Flag>("allow_tasks_override"),
                                           column<&Calendar::sortOrder, Number>("sort_order"),
                                           column<&Calendar::canonicalKey, NullableText>("canonical_key"),
                                           column<&Calendar::syncEnabled, Flag>("sync_enabled"),
                                           column<&Calendar::isShared, Flag>("is_shared"),
                                           column<&Calendar::sharedWithMe, Flag>("shared_with_me"),
                                           column<&Calendar::lastSyncError, NullableText>("last_sync_error"),
                                           column<&Calendar::createdAt, Stamp>("created_at", Write::OnInsert),
                                           column<&Calendar::updatedAt, Stamp>("updated_at"),
                                           column<&Calendar::deletedAt, Stamp>("deleted_at", Write::Never),
                                       });
    return table;
}
