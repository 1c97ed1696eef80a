-- A removed account stays as a tombstone until the removal has travelled.
ALTER TABLE accounts ADD COLUMN deleted_at TEXT;
