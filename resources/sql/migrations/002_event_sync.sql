-- Rows that exist came from a pull or have no remote: 'synced', so that none is pushed by surprise.
ALTER TABLE events ADD COLUMN sync_status TEXT NOT NULL DEFAULT 'synced';
ALTER TABLE events ADD COLUMN deleted_at TEXT;
CREATE INDEX idx_events_sync_status ON events(sync_status);
CREATE INDEX idx_events_calendar_pending ON events(calendar_id, sync_status) WHERE sync_status = 'pending';
