-- A removed cloud calendar stays as a tombstone until a sync has acted on it.
ALTER TABLE calendars ADD COLUMN deleted_at TEXT;
