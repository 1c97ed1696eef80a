-- Calendars whose account is gone or removed go too, with all they hold, children first.
DELETE FROM attendees WHERE event_id IN (SELECT id FROM events WHERE calendar_id IN (
        SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
        WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
));
DELETE FROM attachments WHERE event_id IN (SELECT id FROM events WHERE calendar_id IN (
        SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
        WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
));
DELETE FROM reminders WHERE event_id IN (SELECT id FROM events WHERE calendar_id IN (
        SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
        WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
));
DELETE FROM task_reminders WHERE task_id IN (SELECT id FROM tasks WHERE calendar_id IN (
        SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
        WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
));
DELETE FROM sync_queue WHERE calendar_id IN (
    SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
    WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
);
DELETE FROM events WHERE calendar_id IN (
    SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
    WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
);
DELETE FROM tasks WHERE calendar_id IN (
    SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
    WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
);
DELETE FROM calendars WHERE id IN (
    SELECT c.id FROM calendars c LEFT JOIN accounts a ON a.id = c.account_id
    WHERE a.id IS NULL OR a.deleted_at IS NOT NULL
);
