-- The UID of one linked task; other RELATED-TO lines live in raw_icalendar.
ALTER TABLE events ADD COLUMN related_to_uid TEXT;
CREATE INDEX idx_events_related_to_uid ON events(related_to_uid);
