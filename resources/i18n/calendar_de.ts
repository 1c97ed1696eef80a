<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>AboutBox</name>
        <message>
            <source>About Quillon Calendar</source>
            <translation>Über Quillon Calendar</translation>
        </message>
        <message>
            <source>Built with</source>
            <translation>Erstellt mit</translation>
        </message>
        <message>
            <source>GNU Lesser General Public License, version 3</source>
            <translation>GNU Lesser General Public License, Version 3</translation>
        </message>
        <message>
            <source>SIL Open Font License 1.1 (OFL-1.1)</source>
            <translation>SIL Open Font License 1.1 (OFL-1.1)</translation>
        </message>
        <message>
            <source>Apache License 2.0 (Apache-2.0)</source>
            <translation>Apache License 2.0 (Apache-2.0)</translation>
        </message>
        <message>
            <source>Version %1</source>
            <translation>Version %1</translation>
        </message>
    </context>
    <context>
        <name>AllDayStrip</name>
        <message>
            <source>All-day events</source>
            <translation>Ganztägige Termine</translation>
        </message>
        <message>
            <source>all-day</source>
            <translation>ganztägig</translation>
        </message>
        <message>
            <source>+%1 more</source>
            <translation>+%1 weitere</translation>
        </message>
        <message>
            <source>+%1</source>
            <extracomment>the short form of "+%1 more"</extracomment>
            <translation>+%1</translation>
        </message>
    </context>
    <context>
        <name>Application</name>
        <message>
            <source>Database Error</source>
            <translation>Datenbankfehler</translation>
        </message>
        <message>
            <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
            <translation>Die Datenbank konnte nicht initialisiert werden.

Datenverzeichnis: %1

Bitte prüfen Sie die Dateirechte und versuchen Sie es erneut.</translation>
        </message>
    </context>
    <context>
        <name>CalendarChecklist</name>
        <message>
            <source>Calendars</source>
            <translation>Kalender</translation>
        </message>
        <message>
            <source>Other</source>
            <translation>Andere</translation>
        </message>
    </context>
    <context>
        <name>CalendarFormDialog</name>
        <message>
            <source>New Calendar</source>
            <translation>Neuer Kalender</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Erstellen</translation>
        </message>
        <message>
            <source>Edit Calendar</source>
            <translation>Kalender bearbeiten</translation>
        </message>
        <message>
            <source>This calendar is read-only. Its name and color change on this device only.</source>
            <translation>Dieser Kalender ist schreibgeschützt. Name und Farbe ändern sich nur auf diesem Gerät.</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Calendar name</source>
            <translation>Kalendername</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Name</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Farbe</translation>
        </message>
        <message>
            <source>&amp;Description</source>
            <translation>&amp;Beschreibung</translation>
        </message>
        <message>
            <source>Enter a name for the calendar.</source>
            <translation>Geben Sie einen Namen für den Kalender ein.</translation>
        </message>
        <message>
            <source>This calendar was deleted in the meantime.</source>
            <translation>Dieser Kalender wurde inzwischen gelöscht.</translation>
        </message>
        <message>
            <source>The calendar could not be saved.</source>
            <translation>Der Kalender konnte nicht gespeichert werden.</translation>
        </message>
    </context>
    <context>
        <name>CalendarListDelegate</name>
        <message>
            <source>Default</source>
            <translation>Standard</translation>
        </message>
    </context>
    <context>
        <name>CalendarListWidget</name>
        <message>
            <source>Calendars</source>
            <translation>Kalender</translation>
        </message>
        <message>
            <source>read-only</source>
            <translation>schreibgeschützt</translation>
        </message>
        <message>
            <source>default calendar</source>
            <translation>Standardkalender</translation>
        </message>
        <message>
            <source>not in the active group</source>
            <translation>nicht in der aktiven Gruppe</translation>
        </message>
        <message>
            <source>Calendar of account %1</source>
            <translation>Kalender des Kontos %1</translation>
        </message>
    </context>
    <context>
        <name>CalendarMenu</name>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Umbenennen</translation>
        </message>
        <message>
            <source>Make &amp;Default</source>
            <translation>Als &amp;Standard festlegen</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>&amp;Bearbeiten…</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Farbe</translation>
        </message>
        <message>
            <source>Show &amp;Only This</source>
            <translation>&amp;Nur diesen anzeigen</translation>
        </message>
        <message>
            <source>Show &amp;All</source>
            <translation>&amp;Alle anzeigen</translation>
        </message>
        <message>
            <source>De&amp;lete Calendar…</source>
            <translation>Kalender &amp;löschen…</translation>
        </message>
        <message>
            <source>Delete calendar?</source>
            <translation>Kalender löschen?</translation>
        </message>
        <message>
            <source>Delete "%1" and all its events? This cannot be undone.</source>
            <translation>„%1“ und alle zugehörigen Termine löschen? Dies kann nicht rückgängig gemacht werden.</translation>
        </message>
    </context>
    <context>
        <name>ColorButton</name>
        <message>
            <source>Blue</source>
            <translation>Blau</translation>
        </message>
        <message>
            <source>Sky</source>
            <translation>Himmelblau</translation>
        </message>
        <message>
            <source>Teal</source>
            <translation>Blaugrün</translation>
        </message>
        <message>
            <source>Green</source>
            <translation>Grün</translation>
        </message>
        <message>
            <source>Lime</source>
            <translation>Limette</translation>
        </message>
        <message>
            <source>Amber</source>
            <translation>Bernstein</translation>
        </message>
        <message>
            <source>Orange</source>
            <translation>Orange</translation>
        </message>
        <message>
            <source>Red</source>
            <translation>Rot</translation>
        </message>
        <message>
            <source>Pink</source>
            <translation>Rosa</translation>
        </message>
        <message>
            <source>Purple</source>
            <translation>Lila</translation>
        </message>
        <message>
            <source>Indigo</source>
            <translation>Indigo</translation>
        </message>
        <message>
            <source>Graphite</source>
            <translation>Graphit</translation>
        </message>
        <message>
            <source>Custom…</source>
            <translation>Eigene…</translation>
        </message>
        <message>
            <source>Color: %1</source>
            <translation>Farbe: %1</translation>
        </message>
    </context>
    <context>
        <name>EventContextMenu</name>
        <message>
            <source>Edit filter "%1"…</source>
            <translation>Filter „%1“ bearbeiten…</translation>
        </message>
        <message>
            <source>Create Filter from Event…</source>
            <translation>Filter aus Termin erstellen…</translation>
        </message>
    </context>
    <context>
        <name>EventText</name>
        <message>
            <source>ddd, MMM d</source>
            <extracomment>weekday and date of an event, as a date pattern</extracomment>
            <translation>ddd, d. MMM</translation>
        </message>
        <message>
            <source>%1, all day</source>
            <extracomment>%1 is a date, or two with a dash</extracomment>
            <translation>%1, ganztägig</translation>
        </message>
        <message>
            <source>Cancelled</source>
            <translation>Abgesagt</translation>
        </message>
        <message>
            <source>(Untitled)</source>
            <translation>(Unbenannt)</translation>
        </message>
        <message>
            <source>h AP</source>
            <extracomment>the label of an hour line, as a time pattern</extracomment>
            <translation>h AP</translation>
        </message>
    </context>
    <context>
        <name>FilterEventChoice</name>
        <message>
            <source>%1 · %2</source>
            <translation>%1 · %2</translation>
        </message>
        <message>
            <source>(no title)</source>
            <translation>(ohne Titel)</translation>
        </message>
        <message>
            <source>Choose an event</source>
            <translation>Termin auswählen</translation>
        </message>
        <message>
            <source>An event that is not on this device</source>
            <translation>Ein Termin, der nicht auf diesem Gerät ist</translation>
        </message>
    </context>
    <context>
        <name>FilterFormDialog</name>
        <message>
            <source>New Filter</source>
            <translation>Neuer Filter</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Erstellen</translation>
        </message>
        <message>
            <source>Edit Filter</source>
            <translation>Filter bearbeiten</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Name</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
        </message>
        <message>
            <source>Text in the event</source>
            <translation>Text im Termin</translation>
        </message>
        <message>
            <source>Day or start time</source>
            <translation>Tag oder Beginn</translation>
        </message>
        <message>
            <source>All-day events</source>
            <translation>Ganztägige Termine</translation>
        </message>
        <message>
            <source>One event</source>
            <translation>Ein Termin</translation>
        </message>
        <message>
            <source>Only &amp;repeating events</source>
            <translation>Nur &amp;wiederkehrende Termine</translation>
        </message>
        <message>
            <source>Event</source>
            <translation>Termin</translation>
        </message>
        <message>
            <source>&amp;Filter by</source>
            <translation>&amp;Filtern nach</translation>
        </message>
        <message>
            <source>In all calendars</source>
            <translation>In allen Kalendern</translation>
        </message>
        <message>
            <source>Only in chosen calendars</source>
            <translation>Nur in ausgewählten Kalendern</translation>
        </message>
        <message>
            <source>&amp;Calendars</source>
            <translation>&amp;Kalender</translation>
        </message>
        <message>
            <source>Hide the events</source>
            <translation>Termine ausblenden</translation>
        </message>
        <message>
            <source>Dim the events</source>
            <translation>Termine abblenden</translation>
        </message>
        <message>
            <source>&amp;Silence their reminders</source>
            <translation>&amp;Erinnerungen stummschalten</translation>
        </message>
        <message>
            <source>Reminders of hidden events are always silent.</source>
            <translation>Erinnerungen ausgeblendeter Termine sind immer stumm.</translation>
        </message>
        <message>
            <source>Of several filters that match an event, the one with the lowest number decides.</source>
            <translation>Treffen mehrere Filter auf einen Termin zu, entscheidet der mit der niedrigsten Zahl.</translation>
        </message>
        <message>
            <source>Filter is &amp;on</source>
            <translation>Filter ist &amp;aktiv</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>Wirk&amp;ung</translation>
        </message>
        <message>
            <source>&amp;Priority</source>
            <translation>&amp;Priorität</translation>
        </message>
        <message>
            <source>Filter name</source>
            <translation>Filtername</translation>
        </message>
        <message>
            <source>Enter at least one text to look for.</source>
            <translation>Geben Sie mindestens einen Suchtext ein.</translation>
        </message>
        <message>
            <source>Choose at least one day or time.</source>
            <translation>Wählen Sie mindestens einen Tag oder eine Uhrzeit aus.</translation>
        </message>
        <message>
            <source>Choose the event that the filter is for.</source>
            <translation>Wählen Sie den Termin aus, für den der Filter gilt.</translation>
        </message>
        <message>
            <source>Choose at least one calendar.</source>
            <translation>Wählen Sie mindestens einen Kalender aus.</translation>
        </message>
        <message>
            <source>This filter was deleted in the meantime.</source>
            <translation>Dieser Filter wurde inzwischen gelöscht.</translation>
        </message>
        <message>
            <source>The filter could not be saved.</source>
            <translation>Der Filter konnte nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>Delete filter?</source>
            <translation>Filter löschen?</translation>
        </message>
        <message>
            <source>Delete "%1"? The events it hides or dims show again.</source>
            <translation>„%1“ löschen? Die aus- oder abgeblendeten Termine werden wieder angezeigt.</translation>
        </message>
    </context>
    <context>
        <name>FilterPatternEditor</name>
        <message>
            <source>Add Te&amp;xt</source>
            <translation>Te&amp;xt hinzufügen</translation>
        </message>
        <message>
            <source>&amp;Match upper and lower case</source>
            <translation>&amp;Groß-/Kleinschreibung beachten</translation>
        </message>
        <message>
            <source>Title contains</source>
            <translation>Titel enthält</translation>
        </message>
        <message>
            <source>Title is exactly</source>
            <translation>Titel ist genau</translation>
        </message>
        <message>
            <source>Description contains</source>
            <translation>Beschreibung enthält</translation>
        </message>
        <message>
            <source>Location contains</source>
            <translation>Ort enthält</translation>
        </message>
        <message>
            <source>Where to look</source>
            <translation>Suchbereich</translation>
        </message>
        <message>
            <source>Text to look for</source>
            <translation>Suchtext</translation>
        </message>
        <message>
            <source>Remove this text</source>
            <translation>Diesen Text entfernen</translation>
        </message>
    </context>
    <context>
        <name>FilterPreview</name>
        <message numerus="yes">
            <source>%n event(s) in the next 30 days match</source>
            <translation>
                <numerusform>%n Termin in den nächsten 30 Tagen stimmt überein</numerusform>
                <numerusform>%n Termine in den nächsten 30 Tagen stimmen überein</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>FilterText</name>
        <message>
            <source>title is "%1"</source>
            <translation>Titel ist „%1“</translation>
        </message>
        <message>
            <source>title contains "%1"</source>
            <translation>Titel enthält „%1“</translation>
        </message>
        <message>
            <source>description contains "%1"</source>
            <translation>Beschreibung enthält „%1“</translation>
        </message>
        <message>
            <source>location contains "%1"</source>
            <translation>Ort enthält „%1“</translation>
        </message>
        <message>
            <source> or </source>
            <translation> oder </translation>
        </message>
        <message>
            <source>starts at %1</source>
            <translation>beginnt um %1</translation>
        </message>
        <message>
            <source>starts from %1</source>
            <translation>beginnt ab %1</translation>
        </message>
        <message>
            <source>starts until %1</source>
            <translation>beginnt bis %1</translation>
        </message>
        <message>
            <source>repeating only</source>
            <translation>nur wiederkehrende</translation>
        </message>
        <message>
            <source>the event "%1"</source>
            <translation>der Termin „%1“</translation>
        </message>
        <message>
            <source>one event</source>
            <translation>ein Termin</translation>
        </message>
        <message>
            <source>no calendar of this device</source>
            <translation>kein Kalender auf diesem Gerät</translation>
        </message>
        <message>
            <source>repeating all-day events</source>
            <translation>wiederkehrende ganztägige Termine</translation>
        </message>
        <message>
            <source>all-day events</source>
            <translation>ganztägige Termine</translation>
        </message>
        <message>
            <source>Hides</source>
            <translation>Blendet aus</translation>
        </message>
        <message>
            <source>Dims</source>
            <translation>Blendet ab</translation>
        </message>
        <message>
            <source>matches nothing</source>
            <translation>keine Übereinstimmung</translation>
        </message>
    </context>
    <context>
        <name>FilterTimeEditor</name>
        <message>
            <source>Only &amp;repeating events</source>
            <translation>Nur &amp;wiederkehrende Termine</translation>
        </message>
        <message>
            <source>Starts e&amp;xactly at</source>
            <translation>Beginnt genau u&amp;m</translation>
        </message>
        <message>
            <source>Starts at or af&amp;ter</source>
            <translation>Beginnt um oder nac&amp;h</translation>
        </message>
        <message>
            <source>Starts at or &amp;before</source>
            <translation>Beginnt um oder &amp;vor</translation>
        </message>
        <message>
            <source>A range over midnight matches nothing. Make two filters: one for the evening, with only "at or after", and one for the morning.</source>
            <translation>Ein Zeitraum über Mitternacht trifft auf nichts zu. Erstellen Sie zwei Filter: einen für den Abend, nur mit „um oder nach“, und einen für den Morgen.</translation>
        </message>
    </context>
    <context>
        <name>FiltersPill</name>
        <message>
            <source>Manage filters</source>
            <translation>Filter verwalten</translation>
        </message>
        <message>
            <source>No filters</source>
            <translation>Keine Filter</translation>
        </message>
        <message numerus="yes">
            <source>%n filter(s) applied</source>
            <translation>
                <numerusform>%n Filter angewendet</numerusform>
                <numerusform>%n Filter angewendet</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n hidden</source>
            <translation>
                <numerusform>%n ausgeblendet</numerusform>
                <numerusform>%n ausgeblendet</numerusform>
            </translation>
        </message>
        <message>
            <source>Disable all filters</source>
            <translation>Alle Filter deaktivieren</translation>
        </message>
        <message>
            <source>Enable all filters</source>
            <translation>Alle Filter aktivieren</translation>
        </message>
        <message>
            <source>Add Filter…</source>
            <translation>Filter hinzufügen…</translation>
        </message>
        <message>
            <source>Manage Filters…</source>
            <translation>Filter verwalten…</translation>
        </message>
    </context>
    <context>
        <name>GroupButton</name>
        <message>
            <source>Calendar group</source>
            <translation>Kalendergruppe</translation>
        </message>
        <message>
            <source>Calendar group: %1</source>
            <translation>Kalendergruppe: %1</translation>
        </message>
        <message>
            <source>Add Calendar Group…</source>
            <translation>Kalendergruppe hinzufügen…</translation>
        </message>
        <message>
            <source>Edit Current Group…</source>
            <translation>Aktuelle Gruppe bearbeiten…</translation>
        </message>
        <message>
            <source>Delete Current Group</source>
            <translation>Aktuelle Gruppe löschen</translation>
        </message>
    </context>
    <context>
        <name>GroupMenu</name>
        <message>
            <source>Calendar groups</source>
            <translation>Kalendergruppen</translation>
        </message>
        <message>
            <source>&amp;Next Group</source>
            <translation>&amp;Nächste Gruppe</translation>
        </message>
        <message>
            <source>&amp;Previous Group</source>
            <translation>&amp;Vorherige Gruppe</translation>
        </message>
    </context>
    <context>
        <name>GroupName</name>
        <message>
            <source>All Calendars</source>
            <translation>Alle Kalender</translation>
        </message>
    </context>
    <context>
        <name>HorizonChip</name>
        <message>
            <source>Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days</source>
            <translation>Zeitraum der Tage-Ansicht — Strg+Umschalt+1..5 für 3 / 5 / 7 / 10 / 14 Tage</translation>
        </message>
        <message>
            <source>Days timeline span</source>
            <translation>Zeitraum der Tage-Ansicht</translation>
        </message>
        <message numerus="yes">
            <source>%n days</source>
            <translation>
                <numerusform>%n Tag</numerusform>
                <numerusform>%n Tage</numerusform>
            </translation>
        </message>
        <message>
            <source>%1d</source>
            <comment>number of days</comment>
            <translation>%1 T</translation>
        </message>
    </context>
    <context>
        <name>IcsImportFlow</name>
        <message>
            <source>Importing… %1%</source>
            <translation>Importieren… %1%</translation>
        </message>
        <message>
            <source>Reading… %1%</source>
            <translation>Lesen… %1%</translation>
        </message>
        <message>
            <source>No calendars configured</source>
            <translation>Keine Kalender eingerichtet</translation>
        </message>
        <message>
            <source>Add a writable calendar first; then re-import "%1".</source>
            <translation>Fügen Sie zuerst einen beschreibbaren Kalender hinzu und importieren Sie dann "%1" erneut.</translation>
        </message>
        <message>
            <source>Couldn't open "%1" for reading.</source>
            <translation>„%1“ konnte nicht zum Lesen geöffnet werden.</translation>
        </message>
        <message>
            <source>No events found in "%1".</source>
            <translation>Keine Termine in „%1“ gefunden.</translation>
        </message>
        <message>
            <source>Couldn't open file</source>
            <translation>Datei konnte nicht geöffnet werden</translation>
        </message>
        <message>
            <source>Nothing to import</source>
            <translation>Nichts zu importieren</translation>
        </message>
        <message>
            <source>Imported %1 and updated %2 in %3.</source>
            <translation>%1 importiert und %2 aktualisiert in %3.</translation>
        </message>
        <message>
            <source>Updated 1 existing event in %1.</source>
            <translation>1 vorhandener Termin in %1 aktualisiert.</translation>
        </message>
        <message>
            <source>Updated %1 existing events in %2.</source>
            <translation>%1 vorhandene Termine in %2 aktualisiert.</translation>
        </message>
        <message>
            <source>Imported 1 event into %1.</source>
            <translation>1 Termin in %1 importiert.</translation>
        </message>
        <message>
            <source>Imported %1 events into %2.</source>
            <translation>%1 Termine in %2 importiert.</translation>
        </message>
        <message numerus="yes">
            <source> Skipped %n event(s) without an identifier or a start.</source>
            <translation>
                <numerusform> %n Termin ohne Kennung oder Beginn übersprungen.</numerusform>
                <numerusform> %n Termine ohne Kennung oder Beginn übersprungen.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source> %n event(s) could not be stored.</source>
            <translation>
                <numerusform> %n Termin konnte nicht gespeichert werden.</numerusform>
                <numerusform> %n Termine konnten nicht gespeichert werden.</numerusform>
            </translation>
        </message>
        <message>
            <source>Import failed</source>
            <translation>Import fehlgeschlagen</translation>
        </message>
        <message>
            <source>The chosen calendar was deleted in the meantime.</source>
            <translation>Der gewählte Kalender wurde inzwischen gelöscht.</translation>
        </message>
        <message>
            <source>Import incomplete</source>
            <translation>Import unvollständig</translation>
        </message>
        <message>
            <source>"%1" is too large to import.</source>
            <translation>„%1“ ist zu groß für den Import.</translation>
        </message>
        <message numerus="yes">
            <source> Skipped %n event(s) that are too large.</source>
            <translation>
                <numerusform> %n zu großer Termin übersprungen.</numerusform>
                <numerusform> %n zu große Termine übersprungen.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>ImportDialog</name>
        <message>
            <source>Import 1 event from "%1" into:</source>
            <translation>1 Termin aus „%1“ importieren in:</translation>
        </message>
        <message>
            <source>Import %1 events from "%2" into:</source>
            <translation>%1 Termine aus „%2“ importieren in:</translation>
        </message>
        <message>
            <source>Import 1 event from %1 files into:</source>
            <translation>1 Termin aus %1 Dateien importieren in:</translation>
        </message>
        <message>
            <source>Import %1 events from %2 files into:</source>
            <translation>%1 Termine aus %2 Dateien importieren in:</translation>
        </message>
        <message>
            <source>Import events</source>
            <translation>Termine importieren</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importieren</translation>
        </message>
    </context>
    <context>
        <name>KeyboardHelpDialog</name>
        <message>
            <source>Keyboard Shortcuts</source>
            <translation>Tastenkürzel</translation>
        </message>
        <message>
            <source>No shortcut matches.</source>
            <translation>Kein passendes Tastenkürzel.</translation>
        </message>
        <message>
            <source>Search shortcuts</source>
            <translation>Tastenkürzel suchen</translation>
        </message>
        <message>
            <source>Action</source>
            <translation>Aktion</translation>
        </message>
        <message>
            <source>Keys</source>
            <translation>Tasten</translation>
        </message>
    </context>
    <context>
        <name>MainMenus</name>
        <message>
            <source>General</source>
            <translation>Allgemein</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message>
            <source>New &amp;Calendar…</source>
            <translation>Neuer &amp;Kalender…</translation>
        </message>
        <message>
            <source>&amp;Import ICS File…</source>
            <translation>ICS-Datei &amp;importieren…</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Beenden</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Bearbeiten</translation>
        </message>
        <message>
            <source>&amp;Preferences…</source>
            <translation>&amp;Einstellungen…</translation>
        </message>
        <message>
            <source>View</source>
            <translation>Ansicht</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Ansicht</translation>
        </message>
        <message>
            <source>Toggle &amp;Sidebar</source>
            <translation>&amp;Seitenleiste ein-/ausblenden</translation>
        </message>
        <message>
            <source>&amp;Compact Density</source>
            <translation>&amp;Kompakte Darstellung</translation>
        </message>
        <message>
            <source>Days Timeline S&amp;pan</source>
            <translation>&amp;Zeitraum der Tage-Ansicht</translation>
        </message>
        <message>
            <source>&amp;Go</source>
            <translation>G&amp;ehe zu</translation>
        </message>
        <message>
            <source>&amp;Day</source>
            <translation>&amp;Tag</translation>
        </message>
        <message>
            <source>Da&amp;ys</source>
            <translation>T&amp;age</translation>
        </message>
        <message>
            <source>&amp;Week</source>
            <translation>&amp;Woche</translation>
        </message>
        <message>
            <source>Gr&amp;id</source>
            <translation>&amp;Raster</translation>
        </message>
        <message>
            <source>&amp;Month</source>
            <translation>&amp;Monat</translation>
        </message>
        <message>
            <source>Yea&amp;r</source>
            <translation>&amp;Jahr</translation>
        </message>
        <message>
            <source>Days timeline span</source>
            <translation>Zeitraum der Tage-Ansicht</translation>
        </message>
        <message>
            <source>Navigation</source>
            <translation>Navigation</translation>
        </message>
        <message>
            <source>&amp;Today</source>
            <translation>&amp;Heute</translation>
        </message>
        <message>
            <source>&amp;Next</source>
            <translation>&amp;Nächster Zeitraum</translation>
        </message>
        <message>
            <source>&amp;Previous</source>
            <translation>&amp;Vorheriger Zeitraum</translation>
        </message>
        <message>
            <source>A &amp;Week Later</source>
            <translation>Eine &amp;Woche später</translation>
        </message>
        <message>
            <source>A W&amp;eek Earlier</source>
            <translation>Eine Woche &amp;früher</translation>
        </message>
        <message>
            <source>A &amp;Month Later</source>
            <translation>Einen &amp;Monat später</translation>
        </message>
        <message>
            <source>A M&amp;onth Earlier</source>
            <translation>Einen Mona&amp;t früher</translation>
        </message>
        <message>
            <source>&amp;Back</source>
            <translation>&amp;Zurück</translation>
        </message>
        <message>
            <source>&amp;Forward</source>
            <translation>V&amp;orwärts</translation>
        </message>
        <message>
            <source>&amp;Zoom In</source>
            <translation>Ver&amp;größern</translation>
        </message>
        <message>
            <source>Zoom &amp;Out</source>
            <translation>Verk&amp;leinern</translation>
        </message>
        <message>
            <source>&amp;Tools</source>
            <translation>E&amp;xtras</translation>
        </message>
        <message>
            <source>Add &amp;Filter…</source>
            <translation>&amp;Filter hinzufügen…</translation>
        </message>
        <message>
            <source>&amp;Manage Filters…</source>
            <translation>Filter &amp;verwalten…</translation>
        </message>
        <message>
            <source>Add Calendar &amp;Group…</source>
            <translation>Kalender&amp;gruppe hinzufügen…</translation>
        </message>
        <message>
            <source>Manage Calendar Gr&amp;oups…</source>
            <translation>Kalendergruppen ver&amp;walten…</translation>
        </message>
        <message>
            <source>&amp;Calendar Groups</source>
            <translation>&amp;Kalendergruppen</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Hilfe</translation>
        </message>
        <message>
            <source>&amp;Keyboard Shortcuts</source>
            <translation>&amp;Tastenkürzel</translation>
        </message>
        <message>
            <source>&amp;About Quillon Calendar</source>
            <translation>&amp;Über Quillon Calendar</translation>
        </message>
    </context>
    <context>
        <name>MainWindow</name>
        <message>
            <source>Quillon Calendar</source>
            <translation>Quillon Calendar</translation>
        </message>
        <message>
            <source>Import ICS file</source>
            <translation>ICS-Datei importieren</translation>
        </message>
        <message>
            <source>iCalendar files (*.ics);;All files (*)</source>
            <translation>iCalendar-Dateien (*.ics);;Alle Dateien (*)</translation>
        </message>
    </context>
    <context>
        <name>ManageFiltersDialog</name>
        <message>
            <source>Manage Filters</source>
            <translation>Filter verwalten</translation>
        </message>
        <message>
            <source>No filters yet. A filter hides or dims events on this device; it never changes them.</source>
            <translation>Noch keine Filter. Ein Filter blendet Termine auf diesem Gerät aus oder ab; er ändert sie nie.</translation>
        </message>
    </context>
    <context>
        <name>ManageViewsDialog</name>
        <message>
            <source>Manage Calendar Groups</source>
            <translation>Kalendergruppen verwalten</translation>
        </message>
        <message>
            <source>No groups yet. A group shows the calendars you choose, under one name.</source>
            <translation>Noch keine Gruppen. Eine Gruppe zeigt die von Ihnen ausgewählten Kalender unter einem Namen.</translation>
        </message>
        <message>
            <source>Delete group?</source>
            <translation>Gruppe löschen?</translation>
        </message>
        <message>
            <source>Delete "%1"? You can recreate it later.</source>
            <translation>„%1“ löschen? Sie können die Gruppe später neu erstellen.</translation>
        </message>
        <message>
            <source>All visible calendars</source>
            <translation>Alle sichtbaren Kalender</translation>
        </message>
    </context>
    <context>
        <name>MiniMonthCalendar</name>
        <message>
            <source>Previous month</source>
            <translation>Vorheriger Monat</translation>
        </message>
        <message>
            <source>Next month</source>
            <translation>Nächster Monat</translation>
        </message>
        <message>
            <source>Month to pick a day from</source>
            <translation>Monat zur Auswahl eines Tages</translation>
        </message>
        <message>
            <source>MMMM yyyy</source>
            <extracomment>Title of the small month in the sidebar: a date pattern, M is for month and y for year.</extracomment>
            <translation>MMMM yyyy</translation>
        </message>
    </context>
    <context>
        <name>ModeBar</name>
        <message>
            <source>View</source>
            <translation>Ansicht</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Tag</translation>
        </message>
        <message>
            <source>Week</source>
            <translation>Woche</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Tage</translation>
        </message>
        <message>
            <source>Grid</source>
            <translation>Raster</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Monat</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
    </context>
    <context>
        <name>NoAccountsPage</name>
        <message>
            <source>Add a Quillon Calendar account to store calendars on this device, connect Google or Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).</source>
            <translation>Fügen Sie ein Quillon Calendar-Konto hinzu, um Kalender auf diesem Gerät zu speichern, verbinden Sie Google oder Microsoft, oder binden Sie einen beliebigen CalDAV-Server ein (Synology, Nextcloud, Radicale, iCloud).</translation>
        </message>
        <message>
            <source>No accounts configured</source>
            <translation>Keine Konten eingerichtet</translation>
        </message>
        <message>
            <source>  Add Account…</source>
            <translation>  Konto hinzufügen…</translation>
        </message>
    </context>
    <context>
        <name>OrderedListDialog</name>
        <message>
            <source>&amp;Add…</source>
            <translation>&amp;Hinzufügen…</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>&amp;Bearbeiten…</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>Move &amp;Up</source>
            <translation>Nach &amp;oben</translation>
        </message>
        <message>
            <source>Move D&amp;own</source>
            <translation>Nach &amp;unten</translation>
        </message>
    </context>
    <context>
        <name>PreferencesDialog</name>
        <message>
            <source>Preferences</source>
            <translation>Einstellungen</translation>
        </message>
        <message>
            <source>&amp;Appearance</source>
            <translation>&amp;Darstellung</translation>
        </message>
        <message>
            <source>&amp;Calendar</source>
            <translation>&amp;Kalender</translation>
        </message>
        <message>
            <source>&amp;General</source>
            <translation>&amp;Allgemein</translation>
        </message>
        <message>
            <source>Like the system</source>
            <translation>Wie das System</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>Hell</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>Dunkel</translation>
        </message>
        <message>
            <source>&amp;Reset</source>
            <translation>&amp;Zurücksetzen</translation>
        </message>
        <message>
            <source>&amp;Theme</source>
            <translation>&amp;Farbschema</translation>
        </message>
        <message>
            <source>Accent c&amp;olor</source>
            <translation>Akzentfa&amp;rbe</translation>
        </message>
        <message>
            <source>&amp;Font size</source>
            <translation>&amp;Schriftgröße</translation>
        </message>
        <message>
            <source>Workday begins</source>
            <translation>Beginn des Arbeitstags</translation>
        </message>
        <message>
            <source>Workday ends</source>
            <translation>Ende des Arbeitstags</translation>
        </message>
        <message>
            <source>12 hours (1:30 PM)</source>
            <translation>12 Stunden (1:30 PM)</translation>
        </message>
        <message>
            <source>24 hours (13:30)</source>
            <translation>24 Stunden (13:30)</translation>
        </message>
        <message>
            <source>&amp;First day of the week</source>
            <translation>&amp;Erster Tag der Woche</translation>
        </message>
        <message>
            <source>&amp;Workday</source>
            <translation>Ar&amp;beitstag</translation>
        </message>
        <message>
            <source>&amp;Time format</source>
            <translation>&amp;Zeitformat</translation>
        </message>
        <message>
            <source>Calendar for &amp;new events</source>
            <translation>Kalender für &amp;neue Termine</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automatisch</translation>
        </message>
        <message>
            <source>The one used last</source>
            <translation>Zuletzt verwendeter Kalender</translation>
        </message>
        <message>
            <source>&amp;Language</source>
            <translation>&amp;Sprache</translation>
        </message>
        <message>
            <source>A new language takes effect at the next launch.</source>
            <translation>Eine neue Sprache wird beim nächsten Start wirksam.</translation>
        </message>
        <message>
            <source>Start &amp;minimized</source>
            <translation>&amp;Minimiert starten</translation>
        </message>
    </context>
    <context>
        <name>QuillonUpdate::UpdateDialog</name>
        <message>
            <source>Update Available</source>
            <translation>Aktualisierung verfügbar</translation>
        </message>
        <message>
            <source>%1 %2 is available. You have version %3.</source>
            <translation>%1 %2 ist verfügbar. Sie haben Version %3.</translation>
        </message>
        <message>
            <source>What's new</source>
            <translation>Neuerungen</translation>
        </message>
        <message>
            <source>Download</source>
            <translation>Herunterladen</translation>
        </message>
        <message>
            <source>Later</source>
            <translation>Später</translation>
        </message>
    </context>
    <context>
        <name>Reminder</name>
        <message>
            <source>At time of event</source>
            <translation>Zum Zeitpunkt des Termins</translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s) before</source>
            <translation>
                <numerusform>%n Minute vorher</numerusform>
                <numerusform>%n Minuten vorher</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n hour(s) before</source>
            <translation>
                <numerusform>%n Stunde vorher</numerusform>
                <numerusform>%n Stunden vorher</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n day(s) before</source>
            <translation>
                <numerusform>%n Tag vorher</numerusform>
                <numerusform>%n Tage vorher</numerusform>
            </translation>
        </message>
        <message>
            <source>%1 minutes before</source>
            <translation>%1 Minuten vorher</translation>
        </message>
    </context>
    <context>
        <name>Sidebar</name>
        <message>
            <source>Calendars</source>
            <translation>Kalender</translation>
        </message>
        <message>
            <source>New calendar</source>
            <translation>Neuer Kalender</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>Alle anzeigen</translation>
        </message>
        <message>
            <source>Leave the group: the check boxes decide again what is shown</source>
            <translation>Gruppe verlassen: Die Kontrollkästchen bestimmen wieder, was angezeigt wird</translation>
        </message>
        <message>
            <source>Showing group “%1”</source>
            <translation>Gruppe „%1“ wird angezeigt</translation>
        </message>
    </context>
    <context>
        <name>TimeFormat</name>
        <message>
            <source>HH:mm</source>
            <extracomment>A time of day with 24 hours, see the Qt documentation of QTime::toString()</extracomment>
            <translation>HH:mm</translation>
        </message>
        <message>
            <source>h:mm AP</source>
            <translation>h:mm AP</translation>
        </message>
    </context>
    <context>
        <name>TimelineHeader</name>
        <message>
            <source>ddd
MMM d</source>
            <extracomment>weekday and date above a column of the week, as a date pattern in two lines</extracomment>
            <translation>ddd
d. MMM</translation>
        </message>
        <message>
            <source>dddd, MMMM d, yyyy</source>
            <extracomment>a whole date, as a date pattern</extracomment>
            <translation>dddd, d. MMMM yyyy</translation>
        </message>
    </context>
    <context>
        <name>TimelineWidget</name>
        <message>
            <source>Events</source>
            <translation>Termine</translation>
        </message>
    </context>
    <context>
        <name>ViewArea</name>
        <message>
            <source>Previous</source>
            <translation>Vorheriger Zeitraum</translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Heute</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Nächster Zeitraum</translation>
        </message>
    </context>
    <context>
        <name>ViewFormDialog</name>
        <message>
            <source>New Calendar Group</source>
            <translation>Neue Kalendergruppe</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Erstellen</translation>
        </message>
        <message>
            <source>Edit Calendar Group</source>
            <translation>Kalendergruppe bearbeiten</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Group name</source>
            <translation>Gruppenname</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Name</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Farbe</translation>
        </message>
        <message>
            <source>C&amp;alendars</source>
            <translation>&amp;Kalender</translation>
        </message>
        <message>
            <source>This group shows all visible calendars, unless you check some here.</source>
            <translation>Diese Gruppe zeigt alle sichtbaren Kalender, sofern Sie hier keine auswählen.</translation>
        </message>
        <message>
            <source>With none checked, the group shows all visible calendars.</source>
            <translation>Ist keiner ausgewählt, zeigt die Gruppe alle sichtbaren Kalender.</translation>
        </message>
        <message>
            <source>Enter a name for the group.</source>
            <translation>Geben Sie einen Namen für die Gruppe ein.</translation>
        </message>
        <message>
            <source>This group was deleted in the meantime.</source>
            <translation>Diese Gruppe wurde inzwischen gelöscht.</translation>
        </message>
        <message>
            <source>The group could not be saved.</source>
            <translation>Die Gruppe konnte nicht gespeichert werden.</translation>
        </message>
    </context>
    <context>
        <name>ViewModes</name>
        <message>
            <source>MMM d</source>
            <comment>start of days within one month</comment>
            <translation>d.</translation>
        </message>
        <message>
            <source>MMM d</source>
            <comment>start of days</comment>
            <translation>d. MMM</translation>
        </message>
        <message>
            <source>d, yyyy</source>
            <comment>end of days within one month</comment>
            <translation>d. MMM yyyy</translation>
        </message>
        <message>
            <source>MMM d, yyyy</source>
            <comment>end of days</comment>
            <translation>d. MMM yyyy</translation>
        </message>
        <message>
            <source>dddd, MMMM d, yyyy</source>
            <comment>one day</comment>
            <translation>dddd, d. MMMM yyyy</translation>
        </message>
        <message>
            <source>Today · %1</source>
            <translation>Heute · %1</translation>
        </message>
        <message>
            <source>yyyy</source>
            <comment>a year</comment>
            <translation>yyyy</translation>
        </message>
        <message>
            <source>MMMM yyyy</source>
            <comment>a month</comment>
            <translation>MMMM yyyy</translation>
        </message>
    </context>
</TS>
