-- One row for each (calendar, UID, recurrence id), where no recurrence id and an empty one are the same.
-- The oldest row stays, tombstone or not, so that ids, etags and hrefs already synced stay valid.
DELETE FROM attendees WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS rank
        FROM events)
    WHERE rank > 1
);
DELETE FROM attachments WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS rank
        FROM events)
    WHERE rank > 1
);
DELETE FROM reminders WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS rank
        FROM events)
    WHERE rank > 1
);
DELETE FROM events WHERE id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS rank
        FROM events)
    WHERE rank > 1
);
CREATE UNIQUE INDEX IF NOT EXISTS idx_events_uid_unique
    ON events(calendar_id, uid, COALESCE(recurrence_id, ''));
