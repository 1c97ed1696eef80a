-- A column of its own, because discovery overwrites supported_components and the user's choice must stay.
ALTER TABLE calendars ADD COLUMN allow_tasks_override INTEGER NOT NULL DEFAULT 0;
