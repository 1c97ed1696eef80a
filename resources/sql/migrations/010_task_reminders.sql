-- Minutes count back from the task's due date.
CREATE TABLE task_reminders (
    id TEXT PRIMARY KEY,
    task_id TEXT NOT NULL REFERENCES tasks(id) ON DELETE CASCADE,
    minutes_before INTEGER NOT NULL,
    action TEXT NOT NULL DEFAULT 'display',
    acknowledged INTEGER NOT NULL DEFAULT 0,
    trigger_time TEXT
);
CREATE INDEX idx_task_reminders_task ON task_reminders(task_id);
CREATE INDEX idx_task_reminders_trigger ON task_reminders(trigger_time);
