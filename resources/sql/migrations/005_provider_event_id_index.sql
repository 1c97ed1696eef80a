-- A pull looks up every item by its provider's id; without the index each look-up read the whole calendar.
CREATE INDEX IF NOT EXISTS idx_events_calendar_provider ON events(calendar_id, provider_event_id);
