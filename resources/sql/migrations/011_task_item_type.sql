-- 'task' or 'reminder'.
ALTER TABLE tasks ADD COLUMN item_type TEXT NOT NULL DEFAULT 'task';
CREATE INDEX idx_tasks_item_type ON tasks(item_type);
