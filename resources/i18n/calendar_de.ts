<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quillon Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SIL Open Font License 1.1 (OFL-1.1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apache License 2.0 (Apache-2.0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AllDayStrip</name>
    <message>
        <source>All-day events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all-day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+%1 more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarChecklist</name>
    <message>
        <source>Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarFormDialog</name>
    <message>
        <source>New Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This calendar is read-only. Its name and color change on this device only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a name for the calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The calendar could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarListDelegate</name>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarListWidget</name>
    <message>
        <source>Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not in the active group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar of account %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarMenu</name>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make &amp;Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Only This</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete Calendar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete calendar?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and all its events? This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorButton</name>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sky</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventContextMenu</name>
    <message>
        <source>Edit filter &quot;%1&quot;…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Filter from Event…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventText</name>
    <message>
        <source>ddd, MMM d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, all day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Untitled)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>h AP</source>
        <extracomment>the label of an hour line, as a time pattern</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterEventChoice</name>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An event that is not on this device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterFormDialog</name>
    <message>
        <source>New Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text in the event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day or start time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All-day events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &amp;repeating events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In all calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only in chosen calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dim the events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Silence their reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminders of hidden events are always silent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of several filters that match an event, the one with the lowest number decides.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter is &amp;on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter at least one text to look for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose at least one day or time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the event that the filter is for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose at least one calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This filter was deleted in the meantime.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filter could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete filter?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? The events it hides or dims show again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterPatternEditor</name>
    <message>
        <source>Add Te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Match upper and lower case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title is exactly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description contains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location contains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove this text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterPreview</name>
    <message numerus="yes">
        <source>%n event(s) in the next 30 days match</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterText</name>
    <message>
        <source>title is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title contains &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>description contains &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>location contains &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>starts at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>starts from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>starts until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>repeating only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the event &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no calendar of this device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>repeating all-day events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all-day events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dims</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>matches nothing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterTimeEditor</name>
    <message>
        <source>Only &amp;repeating events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts e&amp;xactly at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts at or af&amp;ter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts at or &amp;before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A range over midnight matches nothing. Make two filters: one for the evening, with only &quot;at or after&quot;, and one for the morning.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FiltersPill</name>
    <message>
        <source>Manage filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n filter(s) applied</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Disable all filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable all filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Filter…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage Filters…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupButton</name>
    <message>
        <source>Calendar group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar group: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Calendar Group…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Current Group…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Current Group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupMenu</name>
    <message>
        <source>Calendar groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HorizonChip</name>
    <message>
        <source>Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1d</source>
        <comment>number of days</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <source>Importing… %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading… %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calendars configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No events found in &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated 1 existing event in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated %1 existing events in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported 1 event into %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1 events into %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> Skipped %n event(s) without an identifier or a start.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n event(s) could not be stored.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import 1 event from %1 files into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import %1 events from %2 files into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyboardHelpDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No shortcut matches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Calendar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import ICS File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compact Density</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days Timeline S&amp;pan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gr&amp;id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A &amp;Week Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A W&amp;eek Earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A &amp;Month Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A M&amp;onth Earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Filter…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manage Filters…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Calendar &amp;Group…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage Calendar Gr&amp;oups…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calendar Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Quillon Calendar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillon Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import ICS file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iCalendar files (*.ics);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManageFiltersDialog</name>
    <message>
        <source>Manage Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No filters yet. A filter hides or dims events on this device; it never changes them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManageViewsDialog</name>
    <message>
        <source>Manage Calendar Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No groups yet. A group shows the calendars you choose, under one name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete group?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can recreate it later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All visible calendars</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MiniMonthCalendar</name>
    <message>
        <source>Previous month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month to pick a day from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>Title of the small month in the sidebar: a date pattern, M is for month and y for year.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModeBar</name>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoAccountsPage</name>
    <message>
        <source>Add a Quillon Calendar account to store calendars on this device, connect Google or Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No accounts configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Add Account…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderedListDialog</name>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accent c&amp;olor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workday begins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workday ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12 hours (1:30 PM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 hours (13:30)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First day of the week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Workday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar for &amp;new events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The one used last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new language takes effect at the next launch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;minimized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close to tra&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuillonUpdate::UpdateDialog</name>
    <message>
        <source>Update Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is available. You have version %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the group: the check boxes decide again what is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Showing group “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>HH:mm</source>
        <extracomment>A time of day with 24 hours, see the Qt documentation of QTime::toString()</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimelineHeader</name>
    <message>
        <source>ddd
MMM d</source>
        <extracomment>weekday and date above a column of the week, as a date pattern in two lines</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dddd, MMMM d, yyyy</source>
        <extracomment>a whole date, as a date pattern</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimelineWidget</name>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewArea</name>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewFormDialog</name>
    <message>
        <source>New Calendar Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Calendar Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This group shows all visible calendars, unless you check some here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With none checked, the group shows all visible calendars.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a name for the group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This group was deleted in the meantime.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewModes</name>
    <message>
        <source>MMM d</source>
        <comment>start of days within one month</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MMM d</source>
        <comment>start of days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d, yyyy</source>
        <comment>end of days within one month</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <comment>end of days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dddd, MMMM d, yyyy</source>
        <comment>one day</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today · %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yyyy</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>a month</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
