-- 1 is what most tasks of a server are; reading a time of day clears it.
ALTER TABLE tasks ADD COLUMN due_is_date_only INTEGER NOT NULL DEFAULT 1;
ALTER TABLE tasks ADD COLUMN start_is_date_only INTEGER NOT NULL DEFAULT 1;
ALTER TABLE tasks ADD COLUMN repeat_mode TEXT NOT NULL DEFAULT 'fromDueDate';
