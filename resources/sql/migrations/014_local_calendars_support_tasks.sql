-- Calendars of this product's own accounts hold tasks as well.
UPDATE calendars SET supported_components = '["VEVENT","VTODO"]'
WHERE account_id IN (SELECT id FROM accounts WHERE type = 'quillon')
  AND supported_components NOT LIKE '%VTODO%';
