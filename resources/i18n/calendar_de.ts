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
    <name>AccountDetails</name>
    <message>
        <source>Manually</source>
        <translation>Von Hand</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hour(s)</source>
        <translation>
            <numerusform>Im Abstand von %n Stunde</numerusform>
            <numerusform>Im Abstand von %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n minute(s)</source>
        <translation>
            <numerusform>Im Abstand von %n Minute</numerusform>
            <numerusform>Im Abstand von %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>S&amp;ync this account</source>
        <translation>Dieses Konto s&amp;ynchronisieren</translation>
    </message>
    <message>
        <source>E&amp;xclude from cloud sync</source>
        <translation>Von der Cloud-Synchronisierung aus&amp;nehmen</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Last sync</source>
        <translation>Letzte Synchronisierung</translation>
    </message>
    <message>
        <source>Sync &amp;interval</source>
        <translation>Synchronisierungs&amp;intervall</translation>
    </message>
    <message>
        <source>C&amp;olor</source>
        <translation>&amp;Farbe</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Remo&amp;ve…</source>
        <translation>&amp;Entfernen…</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>&amp;Passwort eingeben…</translation>
    </message>
    <message>
        <source>Review &amp;Certificate…</source>
        <translation>&amp;Zertifikat prüfen…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>AccountHealth</name>
    <message>
        <source>On this device</source>
        <translation>Auf diesem Gerät</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>Zertifikat geändert</translation>
    </message>
    <message>
        <source>The server shows a certificate that you have not trusted. Nothing syncs until you have reviewed it.</source>
        <translation>Der Server zeigt ein Zertifikat, dem nicht vertraut wird. Bis es geprüft ist, wird nichts synchronisiert.</translation>
    </message>
    <message>
        <source>The password of this account is not on this device. Nothing syncs until you enter it.</source>
        <translation>Das Passwort dieses Kontos ist nicht auf diesem Gerät. Bis es eingegeben ist, wird nichts synchronisiert.</translation>
    </message>
    <message>
        <source>Sign in required</source>
        <translation>Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>The sign-in of this account has ended.</source>
        <translation>Die Anmeldung dieses Kontos ist abgelaufen.</translation>
    </message>
    <message>
        <source>Sync failed</source>
        <translation>Synchronisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Last sync: %1</source>
        <translation>Letzte Synchronisierung: %1</translation>
    </message>
    <message>
        <source>Not synced yet</source>
        <translation>Noch nicht synchronisiert</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Calendars on this device</source>
        <translation>Kalender auf diesem Gerät</translation>
    </message>
    <message>
        <source>Web feed</source>
        <translation>Abonnierter Kalender</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>calendars, error</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Password rejected</source>
        <translation>Passwort abgelehnt</translation>
    </message>
</context>
<context>
    <name>AccountPill</name>
    <message numerus="yes">
        <source>%n account(s) need attention</source>
        <translation>
            <numerusform>%n Konto braucht Aufmerksamkeit</numerusform>
            <numerusform>%n Konten brauchen Aufmerksamkeit</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and resolve the issues.</source>
        <translation>Klicken, um die Kalenderkonten zu öffnen und die Probleme zu beheben.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need sign-in</source>
        <translation>
            <numerusform>%n Konto braucht eine Anmeldung</numerusform>
            <numerusform>%n Konten brauchen eine Anmeldung</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and sign in.</source>
        <translation>Klicken, um die Kalenderkonten zu öffnen und sich anzumelden.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need password</source>
        <translation>
            <numerusform>%n Konto braucht ein Passwort</numerusform>
            <numerusform>%n Konten brauchen ein Passwort</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and re-enter the password.</source>
        <translation>Klicken, um die Kalenderkonten zu öffnen und das Passwort neu einzugeben.</translation>
    </message>
</context>
<context>
    <name>AccountSetup</name>
    <message>
        <source>CalDAV (%1)</source>
        <translation>CalDAV (%1)</translation>
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
        <extracomment>the short form of &quot;+%1 more&quot;</extracomment>
        <translation>+%1</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <comment>first day of a dragged event</comment>
        <translation>ddd, d. MMM</translation>
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
    <name>AttendeesEditor</name>
    <message>
        <source>+ Add attendee</source>
        <translation>+ Teilnehmer hinzufügen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the attendee</source>
        <translation>Name des Teilnehmers</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Address of the attendee</source>
        <translation>Adresse des Teilnehmers</translation>
    </message>
    <message>
        <source>Remove attendee</source>
        <translation>Teilnehmer entfernen</translation>
    </message>
</context>
<context>
    <name>CalDavCertificateDialog</name>
    <message>
        <source>Untrusted certificate</source>
        <translation>Nicht vertrauenswürdiges Zertifikat</translation>
    </message>
    <message>
        <source>Trust this certificate?</source>
        <translation>Diesem Zertifikat vertrauen?</translation>
    </message>
    <message>
        <source>%1:%2 presented a TLS certificate that doesn&apos;t chain to a trusted root. Review it before trusting it, anyone with this fingerprint can impersonate the server.</source>
        <translation>%1:%2 zeigt ein TLS-Zertifikat, das auf keine vertrauenswürdige Stammzertifizierungsstelle zurückgeht. Prüfen Sie es, bevor Sie ihm vertrauen: Wer diesen Fingerabdruck hat, kann sich als der Server ausgeben.</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(unbekannt)</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Inhaber</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Aussteller</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>SHA-256</source>
        <translation>SHA-256</translation>
    </message>
    <message>
        <source>Previously trusted</source>
        <translation>Bisher vertraut</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Only trust this certificate if you control the server and recognize the fingerprint. Trusting a malicious certificate gives attackers full access to your calendar data.</source>
        <translation>Vertrauen Sie diesem Zertifikat nur, wenn der Server Ihnen untersteht und Sie den Fingerabdruck wiedererkennen. Ein bösartiges Zertifikat gibt Angreifern vollen Zugriff auf Ihre Kalenderdaten.</translation>
    </message>
    <message>
        <source>Trust certificate</source>
        <translation>Zertifikat vertrauen</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>The connection was closed before the server answered.</source>
        <translation>Die Verbindung wurde geschlossen, bevor der Server geantwortet hat.</translation>
    </message>
</context>
<context>
    <name>CalDavConnectionDialog</name>
    <message>
        <source>Add CalDAV Account</source>
        <translation>CalDAV-Konto hinzufügen</translation>
    </message>
    <message>
        <source>Add Calendars</source>
        <translation>Kalender hinzufügen</translation>
    </message>
    <message>
        <source>Edit CalDAV Account</source>
        <translation>CalDAV-Konto bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The server&apos;s name, unless you give another</source>
        <translation>Der Name des Servers, wenn nichts anderes dasteht</translation>
    </message>
    <message>
        <source>Server &amp;URL</source>
        <translation>Server-&amp;URL</translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation>Benutzer&amp;name</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>Account na&amp;me</source>
        <translation>Na&amp;me des Kontos</translation>
    </message>
    <message>
        <source>Discover Calendars</source>
        <translation>Kalender suchen</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows what the server has, and lets you pick again.</source>
        <translation>„Kalender suchen“ zeigt, was der Server hat, und lässt neu auswählen.</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows here what the server has.</source>
        <translation>„Kalender suchen“ zeigt hier, was der Server hat.</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Enter the server URL and your username first.</source>
        <translation>Geben Sie zuerst die Server-URL und den Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to have on this device.</source>
        <translation>%1 Kalender gefunden. Wählen Sie, welche auf diesem Gerät sein sollen.</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to add.</source>
        <translation>%1 Kalender gefunden. Wählen Sie, welche hinzukommen sollen.</translation>
    </message>
    <message>
        <source>Discover first</source>
        <translation>Zuerst suchen</translation>
    </message>
    <message>
        <source>Click &quot;Discover Calendars&quot; before saving.</source>
        <translation>Klicken Sie vor dem Speichern auf „Kalender suchen“.</translation>
    </message>
    <message>
        <source>Pick at least one</source>
        <translation>Mindestens einen auswählen</translation>
    </message>
    <message>
        <source>Select one or more calendars to add.</source>
        <translation>Wählen Sie einen oder mehrere Kalender aus.</translation>
    </message>
    <message>
        <source>Already added</source>
        <translation>Schon hinzugefügt</translation>
    </message>
    <message>
        <source>This server is already added as &quot;%1&quot;. Its calendars are already available — no need to add it again.</source>
        <translation>Dieser Server ist schon als „%1“ hinzugefügt. Seine Kalender sind schon da – er muss nicht noch einmal hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Remove calendars?</source>
        <translation>Kalender entfernen?</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Dieses Konto wurde inzwischen entfernt.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Datenbankfehler</translation>
    </message>
    <message>
        <source>Could not save the account.</source>
        <translation>Das Konto konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Saving the password…</source>
        <translation>Das Passwort wird gespeichert…</translation>
    </message>
    <message>
        <source>Password not saved</source>
        <translation>Passwort nicht gespeichert</translation>
    </message>
    <message>
        <source>The system&apos;s password store cannot be used. Calendars sync until Quillon Calendar is closed; after that you have to enter the password of &quot;%1&quot; again.</source>
        <translation>Der Passwortspeicher des Systems ist nicht verfügbar. Die Kalender werden synchronisiert, bis Quillon Calendar beendet wird; danach müssen Sie das Passwort von „%1“ neu eingeben.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation>Trotzdem speichern?</translation>
    </message>
    <message>
        <source>Save the account all the same?</source>
        <translation>Das Konto trotzdem speichern?</translation>
    </message>
</context>
<context>
    <name>CalDavDiscovery</name>
    <message>
        <source>Enter a CalDAV URL starting with http:// or https://</source>
        <translation>Geben Sie eine CalDAV-URL ein, die mit http:// oder https:// beginnt</translation>
    </message>
    <message>
        <source>The server rejected the username or password.</source>
        <translation>Der Server hat Benutzername oder Passwort abgelehnt.</translation>
    </message>
    <message>
        <source>Could not find a CalDAV account on that server. Check the URL.</source>
        <translation>Auf diesem Server wurde kein CalDAV-Konto gefunden. Prüfen Sie die URL.</translation>
    </message>
    <message>
        <source>Could not reach the server: %1</source>
        <translation>Der Server ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>Lost connection during calendar-home-set discovery: %1</source>
        <translation>Verbindung bei der Suche nach dem Kalenderverzeichnis verloren: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during home-set discovery.</source>
        <translation>Der Server hat bei der Suche nach dem Kalenderverzeichnis HTTP %1 geantwortet.</translation>
    </message>
    <message>
        <source>Lost connection during calendar enumeration: %1</source>
        <translation>Verbindung beim Auflisten der Kalender verloren: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during calendar enumeration.</source>
        <translation>Der Server hat beim Auflisten der Kalender HTTP %1 geantwortet.</translation>
    </message>
    <message>
        <source>No calendars found at the discovered home set.</source>
        <translation>Im gefundenen Kalenderverzeichnis sind keine Kalender.</translation>
    </message>
    <message>
        <source>The server refers to another one, which was not given your password. If you trust it, enter its address instead: %1</source>
        <translation>Der Server verweist auf einen anderen, der Ihr Passwort nicht bekommen hat. Wenn Sie ihm vertrauen, geben Sie stattdessen dessen Adresse ein: %1</translation>
    </message>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>Die Antwort des Servers ist abgebrochen.</translation>
    </message>
</context>
<context>
    <name>CalDavSyncRun</name>
    <message>
        <source>Network error: %1</source>
        <translation>Netzwerkfehler: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during ctag check</source>
        <translation>Der Server hat bei der ctag-Prüfung HTTP %1 geantwortet</translation>
    </message>
    <message>
        <source>Server returned HTTP %1</source>
        <translation>Der Server hat HTTP %1 geantwortet</translation>
    </message>
    <message>
        <source>Network error during task pull: %1</source>
        <translation>Netzwerkfehler beim Abrufen der Aufgaben: %1</translation>
    </message>
    <message>
        <source>Task push error: %1</source>
        <translation>Fehler beim Senden einer Aufgabe: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing task &quot;%2&quot;</source>
        <translation>Der Server hat beim Senden der Aufgabe „%2“ HTTP %1 geantwortet</translation>
    </message>
    <message>
        <source>Push error: %1</source>
        <translation>Fehler beim Senden: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing &quot;%2&quot;</source>
        <translation>Der Server hat beim Senden von „%2“ HTTP %1 geantwortet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was moved to your local task list: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>„%1“ wurde in Ihre lokale Aufgabenliste verschoben: Dieser Kalender nimmt keine Aufgaben an. Aufgaben sind für ihn jetzt ausgeschaltet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was rejected: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>„%1“ wurde abgelehnt: Dieser Kalender nimmt keine Aufgaben an. Aufgaben sind für ihn jetzt ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>CalendarAccess</name>
    <message>
        <source>The calendar no longer exists.</source>
        <translation>Der Kalender existiert nicht mehr.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is read-only.</source>
        <translation>„%1“ ist schreibgeschützt.</translation>
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
    <message>
        <source>On this device</source>
        <translation>Auf diesem Gerät</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>Allow tasks on this calendar</source>
        <translation>Aufgaben in diesem Kalender erlauben</translation>
    </message>
    <message>
        <source>Missing password</source>
        <translation>Passwort fehlt</translation>
    </message>
    <message>
        <source>No saved password for this account. Edit the account first to re-enter your credentials.</source>
        <translation>Für dieses Konto ist kein Passwort gespeichert. Bearbeiten Sie zuerst das Konto und geben Sie die Zugangsdaten neu ein.</translation>
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
        <source>Delete &quot;%1&quot; and all its events? This cannot be undone.</source>
        <translation>„%1“ und alle zugehörigen Termine löschen? Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Re&amp;move from This Device…</source>
        <translation>Von diesem Gerät &amp;entfernen…</translation>
    </message>
</context>
<context>
    <name>CalendarPull</name>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>Die Antwort des Servers ist abgebrochen.</translation>
    </message>
    <message>
        <source>Some of the calendar could not be stored.</source>
        <translation>Ein Teil des Kalenders konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is not a list of calendar objects.</source>
        <translation>Die Antwort des Servers ist keine Liste von Kalenderobjekten.</translation>
    </message>
</context>
<context>
    <name>CalendarRemoval</name>
    <message numerus="yes">
        <source>%n change(s) made here have not reached the server yet and will be lost.</source>
        <translation>
            <numerusform>%n hier gemachte Änderung hat den Server noch nicht erreicht und geht verloren.</numerusform>
            <numerusform>%n hier gemachte Änderungen haben den Server noch nicht erreicht und gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Remove %1 from this device? The server keeps what is in it.</source>
        <comment>names of calendars</comment>
        <translation>%1 von diesem Gerät entfernen? Auf dem Server bleibt der Inhalt erhalten.</translation>
    </message>
    <message>
        <source>Remove calendar?</source>
        <translation>Kalender entfernen?</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>CollectionJob</name>
    <message>
        <source>Creating calendar on server…</source>
        <translation>Der Kalender wird auf dem Server erstellt…</translation>
    </message>
    <message>
        <source>Network error: %1</source>
        <translation>Netzwerkfehler: %1</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). Your account may not have permission to create calendars on this server.</source>
        <translation>Der Server hat abgelehnt (HTTP %1). Ihr Konto darf auf diesem Server vielleicht keine Kalender erstellen.</translation>
    </message>
    <message>
        <source>Server returned success but the new calendar isn&apos;t reachable. This server may not support MKCALENDAR.</source>
        <translation>Der Server hat Erfolg gemeldet, aber der neue Kalender ist nicht erreichbar. Vielleicht unterstützt der Server MKCALENDAR nicht.</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Dieses Konto wurde inzwischen entfernt.</translation>
    </message>
    <message>
        <source>Created on server, but couldn&apos;t save locally. Run sync to recover.</source>
        <translation>Auf dem Server erstellt, konnte aber hier nicht gespeichert werden. Eine Synchronisierung holt ihn.</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>Dieser Kalender wurde inzwischen gelöscht.</translation>
    </message>
    <message>
        <source>Checking whether this calendar accepts tasks…</source>
        <translation>Es wird geprüft, ob dieser Kalender Aufgaben annimmt…</translation>
    </message>
    <message>
        <source>Couldn&apos;t verify task support: %1</source>
        <translation>Ob Aufgaben möglich sind, konnte nicht geprüft werden: %1</translation>
    </message>
    <message>
        <source>This calendar does not accept tasks (server returned HTTP %1).</source>
        <translation>Dieser Kalender nimmt keine Aufgaben an (der Server hat HTTP %1 geantwortet).</translation>
    </message>
    <message>
        <source>Saving changes to server…</source>
        <translation>Die Änderungen werden auf dem Server gespeichert…</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). You may not have permission to rename or recolour this calendar.</source>
        <translation>Der Server hat abgelehnt (HTTP %1). Sie dürfen diesen Kalender vielleicht nicht umbenennen oder umfärben.</translation>
    </message>
    <message>
        <source>Saved on server, but couldn&apos;t update locally.</source>
        <translation>Auf dem Server gespeichert, konnte aber hier nicht geändert werden.</translation>
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
    <name>ColorField</name>
    <message>
        <source>Use calendar color</source>
        <translation>Kalenderfarbe verwenden</translation>
    </message>
</context>
<context>
    <name>ConflictResolutionDialog</name>
    <message>
        <source>Sync conflicts</source>
        <translation>Synchronisierungskonflikte</translation>
    </message>
    <message>
        <source>No conflicts. Run a sync to detect any.</source>
        <translation>Keine Konflikte. Eine Synchronisierung findet sie.</translation>
    </message>
    <message>
        <source>These events were edited both locally and on the server. Pick which version to keep for each one.</source>
        <translation>Diese Termine wurden hier und auf dem Server geändert. Wählen Sie für jeden, welche Fassung bleibt.</translation>
    </message>
    <message>
        <source>Your version (local)</source>
        <translation>Ihre Fassung (lokal)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Fassung des Servers</translation>
    </message>
    <message>
        <source>Keep local</source>
        <translation>Lokale behalten</translation>
    </message>
    <message>
        <source>Use server version</source>
        <translation>Fassung des Servers nehmen</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Später entscheiden</translation>
    </message>
    <message>
        <source>Conflict: %1</source>
        <translation>Konflikt: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Title:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Titel:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;When:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Wann:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Where:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Wo:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Notes:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Notizen:&lt;/b&gt; %1</translation>
    </message>
</context>
<context>
    <name>DateTimePicker</name>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <extracomment>a date in a form, as a date pattern</extracomment>
        <translation>ddd, d. MMM yyyy</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 hr %2 min</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
</context>
<context>
    <name>DescriptionFormat</name>
    <message>
        <source>Join Microsoft Teams Meeting</source>
        <translation>An Microsoft Teams-Besprechung teilnehmen</translation>
    </message>
</context>
<context>
    <name>DetailsPopover</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind of detail, its text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>EventActions</name>
    <message>
        <source>Delete event?</source>
        <translation>Termin löschen?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>„%1“ löschen? Dies kann mit %2 rückgängig gemacht werden.</translation>
    </message>
</context>
<context>
    <name>EventCanvas</name>
    <message>
        <source>&quot;%1&quot; belongs to a read-only calendar.</source>
        <translation>„%1“ gehört zu einem schreibgeschützten Kalender.</translation>
    </message>
</context>
<context>
    <name>EventContextMenu</name>
    <message>
        <source>Edit filter &quot;%1&quot;…</source>
        <translation>Filter „%1“ bearbeiten…</translation>
    </message>
    <message>
        <source>Create Filter from Event…</source>
        <translation>Filter aus Termin erstellen…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>EventDetailsPopover</name>
    <message>
        <source>%1 (cancelled)</source>
        <comment>date and time</comment>
        <translation>%1 (abgesagt)</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Video call</source>
        <translation>Videoanruf</translation>
    </message>
    <message>
        <source>Where (opens a map)</source>
        <translation>Ort (öffnet eine Karte)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>zugesagt</translation>
    </message>
    <message>
        <source>declined</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>mit Vorbehalt</translation>
    </message>
    <message>
        <source>delegated</source>
        <translation>delegiert</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>noch keine Antwort</translation>
    </message>
    <message>
        <source>%1 (organizer)</source>
        <translation>%1 (Organisator)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>attendee, answer</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Teilnehmer</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
</context>
<context>
    <name>EventEdits</name>
    <message>
        <source>The event no longer exists.</source>
        <translation>Der Termin existiert nicht mehr.</translation>
    </message>
    <message>
        <source>Created &quot;%1&quot;</source>
        <translation>„%1“ erstellt</translation>
    </message>
    <message>
        <source>Moved &quot;%1&quot;</source>
        <translation>„%1“ verschoben</translation>
    </message>
    <message>
        <source>Resized &quot;%1&quot;</source>
        <translation>Dauer von „%1“ geändert</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>„%1“ gelöscht</translation>
    </message>
    <message>
        <source>Could not save the event.</source>
        <translation>Der Termin konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Changed &quot;%1&quot;</source>
        <translation>„%1“ geändert</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>Der andere Kalender enthält „%1“ bereits.</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <source>New Event</source>
        <translation>Neuer Termin</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>Termin erstellen</translation>
    </message>
    <message>
        <source>Edit Event</source>
        <translation>Termin bearbeiten</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>Neuer Termin</translation>
    </message>
    <message>
        <source>Edit event</source>
        <translation>Termin bearbeiten</translation>
    </message>
    <message>
        <source>Fill in the basics. Start time and calendar are required.</source>
        <translation>Geben Sie das Wichtigste ein. Beginn und Kalender sind erforderlich.</translation>
    </message>
    <message>
        <source>Update the details below and save to apply.</source>
        <translation>Ändern Sie die Angaben unten und speichern Sie sie.</translation>
    </message>
    <message>
        <source>Changes apply to all events in the series.</source>
        <translation>Änderungen gelten für alle Termine der Serie.</translation>
    </message>
    <message>
        <source>Lunch with Sarah, sprint planning…</source>
        <translation>Mittagessen mit Sarah, Sprintplanung…</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Terminfarbe</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Adresse, Raum oder Videolink</translation>
    </message>
    <message>
        <source>Notes, agenda, links…</source>
        <translation>Notizen, Tagesordnung, Links…</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;Ends</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Wiederholung</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Teilnehmer</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Er&amp;innerungen</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>From template…</source>
        <translation>Aus Vorlage…</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Anfangsdatum</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Anfangszeit</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Enddatum</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>&amp;Ganztägig</translation>
    </message>
    <message>
        <source>Times are shown as your clock has them. The event is planned in %1.</source>
        <translation>Die Zeiten entsprechen Ihrer Uhr. Der Termin ist in %1 geplant.</translation>
    </message>
    <message>
        <source>This event belongs to a read-only calendar.</source>
        <translation>Dieser Termin gehört zu einem schreibgeschützten Kalender.</translation>
    </message>
    <message>
        <source>No templates</source>
        <translation>Keine Vorlagen</translation>
    </message>
    <message>
        <source>You haven&apos;t created any event templates yet. Open Tools → Manage Templates to create one.</source>
        <translation>Sie haben noch keine Terminvorlagen erstellt. Öffnen Sie Extras → Vorlagen verwalten, um eine zu erstellen.</translation>
    </message>
    <message>
        <source>Title required</source>
        <translation>Titel erforderlich</translation>
    </message>
    <message>
        <source>Please enter a title for the event.</source>
        <translation>Geben Sie einen Titel für den Termin ein.</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>Keine Kalender</translation>
    </message>
    <message>
        <source>Create a calendar first.</source>
        <translation>Erstellen Sie zuerst einen Kalender.</translation>
    </message>
    <message>
        <source>End before start</source>
        <translation>Ende vor Beginn</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>Das Ende liegt vor dem Beginn.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Datenbankfehler</translation>
    </message>
    <message>
        <source>This is one event of a series, changed on its own.</source>
        <translation>Dies ist ein einzeln geänderter Termin einer Serie.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
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
    <name>EventTimes</name>
    <message>
        <source>The event has no start time.</source>
        <translation>Der Termin hat keinen Beginn.</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>Das Ende liegt vor dem Beginn.</translation>
    </message>
    <message>
        <source>The series ends before its first event. Choose a later last day.</source>
        <translation>Die Serie endet vor ihrem ersten Termin. Wählen Sie einen späteren letzten Tag.</translation>
    </message>
</context>
<context>
    <name>EventUndo</name>
    <message>
        <source>The change could not be taken back.</source>
        <translation>Die Änderung konnte nicht rückgängig gemacht werden.</translation>
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
        <source>Delete &quot;%1&quot;? The events it hides or dims show again.</source>
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
        <source>title is &quot;%1&quot;</source>
        <translation>Titel ist „%1“</translation>
    </message>
    <message>
        <source>title contains &quot;%1&quot;</source>
        <translation>Titel enthält „%1“</translation>
    </message>
    <message>
        <source>description contains &quot;%1&quot;</source>
        <translation>Beschreibung enthält „%1“</translation>
    </message>
    <message>
        <source>location contains &quot;%1&quot;</source>
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
        <source>the event &quot;%1&quot;</source>
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
        <source>A range over midnight matches nothing. Make two filters: one for the evening, with only &quot;at or after&quot;, and one for the morning.</source>
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
    <name>FormDialog</name>
    <message>
        <source>Discard changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Your changes have not been saved.</source>
        <translation>Ihre Änderungen wurden nicht gespeichert.</translation>
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
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Fügen Sie zuerst einen beschreibbaren Kalender hinzu und importieren Sie dann „%1“ erneut.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>„%1“ konnte nicht zum Lesen geöffnet werden.</translation>
    </message>
    <message>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>Keine Termine in „%1“ gefunden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
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
        <source>&quot;%1&quot; is too large to import.</source>
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
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>1 Termin aus „%1“ importieren in:</translation>
    </message>
    <message>
        <source>Import %1 events from &quot;%2&quot; into:</source>
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
    <message>
        <source>&amp;New Event…</source>
        <translation>Neuer &amp;Termin…</translation>
    </message>
    <message>
        <source>New &amp;Task…</source>
        <translation>Neue &amp;Aufgabe…</translation>
    </message>
    <message>
        <source>Quick &amp;Add…</source>
        <translation>&amp;Schnelleingabe…</translation>
    </message>
    <message>
        <source>Type an event in plain English (&quot;lunch Thursday 1pm&quot;)</source>
        <translation>Einen Termin auf Englisch eintippen („lunch Thursday 1pm“)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Toggle &amp;Tasks Pane</source>
        <translation>A&amp;ufgabenbereich ein-/ausblenden</translation>
    </message>
    <message>
        <source>Manage Fil&amp;ters…</source>
        <translation>Filter &amp;verwalten…</translation>
    </message>
    <message>
        <source>Manage Te&amp;mplates…</source>
        <translation>V&amp;orlagen verwalten…</translation>
    </message>
    <message>
        <source>&amp;What&apos;s New</source>
        <translation>&amp;Neuerungen</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Feedback senden…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Aktualisierungen suchen…</translation>
    </message>
    <message>
        <source>Events in the calendar</source>
        <translation>Termine im Kalender</translation>
    </message>
    <message>
        <source>All-day events that do not all fit</source>
        <translation>Ganztägige Termine, die nicht alle Platz haben</translation>
    </message>
    <message>
        <source>Select the next one or the one before</source>
        <translation>Nächsten oder vorherigen auswählen</translation>
    </message>
    <message>
        <source>Open the selected one</source>
        <translation>Ausgewählten öffnen</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move it by a day</source>
        <translation>Um einen Tag verschieben</translation>
    </message>
    <message>
        <source>Move it by a quarter of an hour</source>
        <translation>Um eine Viertelstunde verschieben</translation>
    </message>
    <message>
        <source>Let it end later or earlier</source>
        <translation>Später oder früher enden lassen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Show the first ones only</source>
        <translation>Nur die ersten anzeigen</translation>
    </message>
    <message>
        <source>Show more or fewer, while none is selected</source>
        <translation>Mehr oder weniger anzeigen, solange keiner ausgewählt ist</translation>
    </message>
    <message>
        <source>Undo (drag/resize/delete)</source>
        <translation>Rückgängig (Ziehen/Größe ändern/Löschen)</translation>
    </message>
    <message>
        <source>Calendar Acc&amp;ounts…</source>
        <translation>Kalenderk&amp;onten…</translation>
    </message>
    <message>
        <source>&amp;Sync Now</source>
        <translation>Jetzt s&amp;ynchronisieren</translation>
    </message>
    <message>
        <source>Force F&amp;ull Sync…</source>
        <translation>&amp;Vollständige Synchronisierung erzwingen…</translation>
    </message>
    <message>
        <source>Re-pull every event from every account, ignoring sync tokens</source>
        <translation>Alle Termine aller Konten neu abrufen, ohne Rücksicht auf Synchronisierungsmarken</translation>
    </message>
    <message>
        <source>&amp;Sync Conflicts…</source>
        <translation>&amp;Synchronisierungskonflikte…</translation>
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
    <message>
        <source>Undid: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Schnelleingabe ignoriert: Keine Kalender eingerichtet.</translation>
    </message>
    <message>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>Schnelleingabe nicht verstanden: „%1“</translation>
    </message>
    <message>
        <source>Force full sync?</source>
        <translation>Vollständige Synchronisierung erzwingen?</translation>
    </message>
    <message>
        <source>Re-fetch every event and task from every account, ignoring saved sync tokens. Useful when items look stale or out of date.

Any unsynced local edits will be discarded in favour of the server&apos;s copy. Pending deletions are preserved.

Heavy accounts may take a minute or two and use more bandwidth than usual.</source>
        <translation>Alle Termine und Aufgaben aller Konten werden neu abgerufen, ohne Rücksicht auf gespeicherte Synchronisierungsmarken. Das hilft, wenn Einträge veraltet aussehen.

Noch nicht synchronisierte lokale Änderungen werden zugunsten der Fassung des Servers verworfen. Ausstehende Löschungen bleiben erhalten.

Bei großen Konten kann das ein bis zwei Minuten dauern und mehr Datenvolumen brauchen als sonst.</translation>
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
    <name>ManageSourcesDialog</name>
    <message>
        <source>Calendar Accounts</source>
        <translation>Kalenderkonten</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>&amp;CalDAV account…</source>
        <translation>&amp;CalDAV-Konto…</translation>
    </message>
    <message>
        <source>&amp;Local calendar…</source>
        <translation>&amp;Lokaler Kalender…</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; and its calendars from this device? The server keeps what is in them.</source>
        <translation>„%1“ mit den Kalendern von diesem Gerät entfernen? Auf dem Server bleibt der Inhalt erhalten.</translation>
    </message>
    <message>
        <source>Remove account?</source>
        <translation>Konto entfernen?</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n neuer Kalender gefunden.</numerusform>
            <numerusform>%n neue Kalender gefunden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ManageTemplatesDialog</name>
    <message>
        <source>Manage Templates</source>
        <translation>Vorlagen verwalten</translation>
    </message>
    <message>
        <source>No templates yet. A template fills in a new event: title, place, length, reminders.</source>
        <translation>Noch keine Vorlagen. Eine Vorlage füllt einen neuen Termin aus: Titel, Ort, Dauer, Erinnerungen.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>title, length</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Delete template?</source>
        <translation>Vorlage löschen?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Events made from it stay.</source>
        <translation>„%1“ löschen? Damit erstellte Termine bleiben erhalten.</translation>
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
        <source>Delete &quot;%1&quot;? You can recreate it later.</source>
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
    <name>OptionalDateField</name>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Has a date: %1</source>
        <translation>Hat ein Datum: %1</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
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
    <name>PasswordField</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Das Passwort anzeigen</translation>
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
    <message>
        <source>Show week n&amp;umbers</source>
        <translation>Kalender&amp;wochen anzeigen</translation>
    </message>
</context>
<context>
    <name>QuickAdd</name>
    <message>
        <source>There is no such date or time.</source>
        <translation>Dieses Datum oder diese Uhrzeit gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no calendar that can be written to. Create one first.</source>
        <translation>Es gibt keinen beschreibbaren Kalender. Erstellen Sie zuerst einen.</translation>
    </message>
</context>
<context>
    <name>QuickAddDialog</name>
    <message>
        <source>Quick Add</source>
        <translation>Schnelleingabe</translation>
    </message>
    <message>
        <source>lunch with Sam tomorrow at 12:30pm for 90 min</source>
        <translation>lunch with Sam tomorrow at 12:30pm for 90 min</translation>
    </message>
    <message>
        <source>What to add, in plain English</source>
        <translation>Was hinzugefügt werden soll, auf Englisch</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Creates</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Begin with &quot;task:&quot; or &quot;remind me to&quot; for a task or a reminder. #tags become categories of tasks.</source>
        <translation>Nur auf Englisch. Beginnen Sie mit „task:“ oder „remind me to“ für eine Aufgabe oder eine Erinnerung. #Tags werden zu Kategorien von Aufgaben.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Termin</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>This could not be added.</source>
        <translation>Dies konnte nicht hinzugefügt werden.</translation>
    </message>
</context>
<context>
    <name>QuillonFeedback::FeedbackDialog</name>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Add these &amp;lines about the program and the system</source>
        <translation>Diese &amp;Angaben über Programm und System hinzufügen</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Ihre &amp;Nachricht</translation>
    </message>
    <message>
        <source>What works well? What went wrong, and what had you expected?</source>
        <translation>Was funktioniert gut? Was ging schief, und was hatten Sie erwartet?</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>&amp;Write E-Mail…</source>
        <translation>&amp;E-Mail schreiben…</translation>
    </message>
    <message>
        <source>Copy &amp;Text</source>
        <translation>&amp;Text kopieren</translation>
    </message>
    <message>
        <source>Only what you see here is sent, to %1.</source>
        <translation>Nur das, was Sie hier sehen, wird an %1 gesendet.</translation>
    </message>
    <message>
        <source>Your mail program opens with the text, for you to read once more and send.</source>
        <translation>Ihr Mailprogramm öffnet sich mit dem Text, damit Sie ihn noch einmal lesen und senden können.</translation>
    </message>
    <message>
        <source>This build has no address for feedback. Copy the text, and send it to whoever gave you the program.</source>
        <translation>Diese Programmversion hat keine Adresse für Feedback. Kopieren Sie den Text und senden Sie ihn an die Stelle, von der Sie das Programm haben.</translation>
    </message>
    <message>
        <source>Write a message first.</source>
        <translation>Schreiben Sie zuerst eine Nachricht.</translation>
    </message>
    <message>
        <source>Feedback on Quillon Calendar</source>
        <translation>Feedback zu Quillon Calendar</translation>
    </message>
    <message>
        <source>No mail program could be opened. Copy the text instead.</source>
        <translation>Es konnte kein Mailprogramm geöffnet werden. Kopieren Sie stattdessen den Text.</translation>
    </message>
    <message>
        <source>The text is on the clipboard.</source>
        <translation>Der Text ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet…</translation>
    </message>
    <message>
        <source>Thank you. Your feedback was sent.</source>
        <translation>Vielen Dank. Ihr Feedback wurde gesendet.</translation>
    </message>
    <message>
        <source>The feedback could not be sent: %1</source>
        <translation>Das Feedback konnte nicht gesendet werden: %1</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate</name>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>You&apos;re up to date. %1 %2 is the newest version.</source>
        <translation>Sie sind auf dem neuesten Stand. %1 %2 ist die neueste Version.</translation>
    </message>
    <message>
        <source>The check for updates failed.

%1</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen.

%1</translation>
    </message>
    <message>
        <source>This copy of %1 does not look for updates. They come from where you got the program, such as your system&apos;s package manager.</source>
        <translation>Diese Kopie von %1 sucht nicht nach Aktualisierungen. Sie kommen von dort, woher Sie das Programm haben, etwa aus der Paketverwaltung Ihres Systems.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Aktualisierungen…</translation>
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
        <source>What&apos;s new</source>
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
    <name>RecurrenceButton</name>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Do not repeat</source>
        <translation>Nicht wiederholen</translation>
    </message>
    <message>
        <source>Does not repeat</source>
        <translation>Keine Wiederholung</translation>
    </message>
</context>
<context>
    <name>RecurrenceEditDialog</name>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Yearly</source>
        <translation>Jährlich</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Häufigkeit</translation>
    </message>
    <message>
        <source>&amp;Every</source>
        <translation>&amp;Abstand</translation>
    </message>
    <message>
        <source>M</source>
        <comment>Monday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Tuesday</comment>
        <translation>D</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Wednesday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Thursday</comment>
        <translation>D</translation>
    </message>
    <message>
        <source>F</source>
        <comment>Friday</comment>
        <translation>F</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Saturday</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Sunday</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>On &amp;day of the month</source>
        <translation>Am &amp;Tag</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Tag des Monats</translation>
    </message>
    <message>
        <source>On the &amp;nth weekday</source>
        <translation>Am &amp;Wochentag</translation>
    </message>
    <message>
        <source>Which one</source>
        <translation>Der wievielte</translation>
    </message>
    <message>
        <source>first</source>
        <translation>ersten</translation>
    </message>
    <message>
        <source>second</source>
        <translation>zweiten</translation>
    </message>
    <message>
        <source>third</source>
        <translation>dritten</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>vierten</translation>
    </message>
    <message>
        <source>last</source>
        <translation>letzten</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>of every month</source>
        <translation>jedes Monats</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Ne&amp;ver</source>
        <translation>N&amp;ie</translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation>&amp;Nach</translation>
    </message>
    <message>
        <source>Number of occurrences</source>
        <translation>Anzahl der Wiederholungen</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>A&amp;m</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>occurrences</source>
        <translation>Wiederholungen</translation>
    </message>
    <message numerus="yes">
        <source>day(s)</source>
        <translation>
            <numerusform>Tag</numerusform>
            <numerusform>Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>week(s)</source>
        <translation>
            <numerusform>Woche</numerusform>
            <numerusform>Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>month(s)</source>
        <translation>
            <numerusform>Monat</numerusform>
            <numerusform>Monate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>year(s)</source>
        <translation>
            <numerusform>Jahr</numerusform>
            <numerusform>Jahre</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecurringEditScopeDialog</name>
    <message>
        <source>This event only</source>
        <translation>Nur dieser Termin</translation>
    </message>
    <message>
        <source>Only this occurrence is changed; the rest of the series stays as it was.</source>
        <translation>Nur dieser Termin wird geändert; der Rest der Serie bleibt, wie er war.</translation>
    </message>
    <message>
        <source>This and following events</source>
        <translation>Dieser und alle folgenden Termine</translation>
    </message>
    <message>
        <source>This occurrence and every later one inherit the change. Past occurrences keep their original times.</source>
        <translation>Dieser und jeder spätere Termin übernehmen die Änderung. Vergangene Termine behalten ihre ursprünglichen Zeiten.</translation>
    </message>
    <message>
        <source>All events in the series</source>
        <translation>Alle Termine der Serie</translation>
    </message>
    <message>
        <source>The master event shifts; every occurrence — past and future — moves with it.</source>
        <translation>Der Haupttermin verschiebt sich; jeder Termin – vergangen und zukünftig – verschiebt sich mit.</translation>
    </message>
    <message>
        <source>Edit Recurring Event</source>
        <translation>Wiederkehrenden Termin bearbeiten</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;</source>
        <translation>„%1“ bearbeiten</translation>
    </message>
    <message>
        <source>This event repeats. Apply your changes to:</source>
        <translation>Dieser Termin wiederholt sich. Änderungen anwenden auf:</translation>
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
    <name>RemindersEditor</name>
    <message>
        <source>At time of event</source>
        <translation>Zum Zeitpunkt des Termins</translation>
    </message>
    <message>
        <source>5 minutes before</source>
        <translation>5 Minuten vorher</translation>
    </message>
    <message>
        <source>10 minutes before</source>
        <translation>10 Minuten vorher</translation>
    </message>
    <message>
        <source>15 minutes before</source>
        <translation>15 Minuten vorher</translation>
    </message>
    <message>
        <source>30 minutes before</source>
        <translation>30 Minuten vorher</translation>
    </message>
    <message>
        <source>1 hour before</source>
        <translation>1 Stunde vorher</translation>
    </message>
    <message>
        <source>2 hours before</source>
        <translation>2 Stunden vorher</translation>
    </message>
    <message>
        <source>1 day before</source>
        <translation>1 Tag vorher</translation>
    </message>
    <message>
        <source>2 days before</source>
        <translation>2 Tage vorher</translation>
    </message>
    <message>
        <source>1 week before</source>
        <translation>1 Woche vorher</translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1 Minuten vorher</translation>
    </message>
    <message>
        <source>%1 hours %2 minutes before</source>
        <translation>%1 Stunden %2 Minuten vorher</translation>
    </message>
    <message>
        <source>%1 hours before</source>
        <translation>%1 Stunden vorher</translation>
    </message>
    <message>
        <source>%1 days before</source>
        <translation>%1 Tage vorher</translation>
    </message>
    <message>
        <source>+ Add reminder</source>
        <translation>+ Erinnerung hinzufügen</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>Remove reminder</source>
        <translation>Erinnerung entfernen</translation>
    </message>
</context>
<context>
    <name>RruleFormat</name>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>first</source>
        <translation>ersten</translation>
    </message>
    <message>
        <source>second</source>
        <translation>zweiten</translation>
    </message>
    <message>
        <source>third</source>
        <translation>dritten</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>vierten</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>fünften</translation>
    </message>
    <message>
        <source>last</source>
        <translation>letzten</translation>
    </message>
    <message>
        <source>second-to-last</source>
        <translation>vorletzten</translation>
    </message>
    <message>
        <source>%1th-from-last</source>
        <translation>%1.-letzten</translation>
    </message>
    <message>
        <source>%1nd</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1rd</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1th</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Repeats daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <translation>Alle %1 Tage</translation>
    </message>
    <message>
        <source>Repeats weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <translation>Alle %1 Wochen</translation>
    </message>
    <message>
        <source>Repeats monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <translation>Alle %1 Monate</translation>
    </message>
    <message>
        <source>Repeats yearly</source>
        <translation>Jährlich</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <translation>Alle %1 Jahre</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholt sich</translation>
    </message>
    <message>
        <source>on the %1 %2</source>
        <extracomment>as in &quot;on the second Tue&quot; of a month</extracomment>
        <translation>am %1 %2</translation>
    </message>
    <message>
        <source>on the %1</source>
        <extracomment>as in &quot;on the 22nd&quot; of a month</extracomment>
        <translation>am %1</translation>
    </message>
    <message numerus="yes">
        <source>%n time(s)</source>
        <translation>
            <numerusform>%n-mal</numerusform>
            <numerusform>%n-mal</numerusform>
        </translation>
    </message>
    <message>
        <source>until %1</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>At time of event</source>
        <translation>Zum Zeitpunkt des Termins</translation>
    </message>
    <message>
        <source>%1 min before</source>
        <translation>%1 Min. vorher</translation>
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
        <source>%1st</source>
        <comment>weekday of a month</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1st</source>
        <comment>day of a month</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>ServerLookup</name>
    <message>
        <source>Enter the password of this account first.</source>
        <translation>Geben Sie zuerst das Passwort dieses Kontos ein.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird hergestellt…</translation>
    </message>
    <message>
        <source>Connection cancelled, certificate not trusted.</source>
        <translation>Verbindung abgebrochen, dem Zertifikat wird nicht vertraut.</translation>
    </message>
    <message>
        <source>Certificate trusted. Retrying…</source>
        <translation>Dem Zertifikat wird vertraut. Neuer Versuch…</translation>
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
    <name>SilenceGuard</name>
    <message>
        <source>The server has stopped answering.</source>
        <translation>Der Server antwortet nicht mehr.</translation>
    </message>
</context>
<context>
    <name>SyncScheduler</name>
    <message>
        <source>All caught up, nothing waiting to sync.</source>
        <translation>Alles auf dem neuesten Stand, nichts zu synchronisieren.</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Passwort fehlt</translation>
    </message>
    <message>
        <source>Synced %1 events</source>
        <translation>%1 Termine synchronisiert</translation>
    </message>
    <message>
        <source>Syncing %1 account(s)…</source>
        <translation>%1 Konten werden synchronisiert…</translation>
    </message>
    <message>
        <source>No sync accounts configured. Add one in Calendar Accounts.</source>
        <translation>Keine Konten zum Synchronisieren eingerichtet. Fügen Sie eines in den Kalenderkonten hinzu.</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n neuer Kalender gefunden.</numerusform>
            <numerusform>%n neue Kalender gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared %n calendar sync token(s), running full sync…</source>
        <translation>
            <numerusform>%n Synchronisierungsmarke gelöscht, vollständige Synchronisierung läuft…</numerusform>
            <numerusform>%n Synchronisierungsmarken gelöscht, vollständige Synchronisierung läuft…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>Delete task?</source>
        <translation>Aufgabe löschen?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Its subtasks stay.</source>
        <translation>„%1“ löschen? Die Unteraufgaben bleiben erhalten.</translation>
    </message>
    <message>
        <source>Can&apos;t move task</source>
        <translation>Aufgabe kann nicht verschoben werden</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Mark as Not Completed</source>
        <translation>Als nicht erledigt markieren</translation>
    </message>
    <message>
        <source>Mark as Completed</source>
        <translation>Als erledigt markieren</translation>
    </message>
    <message>
        <source>Add Subtask…</source>
        <translation>Unteraufgabe hinzufügen…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>TaskDetailsPopover</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Part of</source>
        <translation>Gehört zu</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Starts</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>%1, %2%</source>
        <comment>status, progress</comment>
        <translation>%1, %2&#xa0;%</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Termin</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>Nicht erledigt</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
</context>
<context>
    <name>TaskDropHandler</name>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Set start date for &quot;%1&quot; to %2</source>
        <translation>Beginn von „%1“ festgelegt: %2</translation>
    </message>
    <message>
        <source>Set due date for &quot;%1&quot; to %2</source>
        <translation>Fälligkeit von „%1“ festgelegt: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Create event from task</source>
        <translation>Termin aus Aufgabe erstellen</translation>
    </message>
    <message>
        <source>Set start date</source>
        <translation>Beginn festlegen</translation>
    </message>
    <message>
        <source>Set due date</source>
        <translation>Fälligkeit festlegen</translation>
    </message>
</context>
<context>
    <name>TaskEdits</name>
    <message>
        <source>Couldn&apos;t update task — see log.</source>
        <translation>Aufgabe konnte nicht aktualisiert werden – siehe Protokoll.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold tasks.</source>
        <translation>„%1“ kann keine Aufgaben enthalten.</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>Die Aufgabe existiert nicht mehr.</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>Der andere Kalender enthält „%1“ bereits.</translation>
    </message>
    <message>
        <source>Subtasks must belong to the same calendar as their parent. Move &quot;%1&quot; to the same calendar first.</source>
        <translation>Unteraufgaben müssen im selben Kalender liegen wie die übergeordnete Aufgabe. Verschieben Sie „%1“ zuerst in diesen Kalender.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved below one of its own subtasks.</source>
        <translation>„%1“ kann nicht unter eine eigene Unteraufgabe verschoben werden.</translation>
    </message>
</context>
<context>
    <name>TaskFormDialog</name>
    <message>
        <source>New Task</source>
        <translation>Neue Aufgabe</translation>
    </message>
    <message>
        <source>Create task</source>
        <translation>Aufgabe erstellen</translation>
    </message>
    <message>
        <source>Edit Reminder</source>
        <translation>Erinnerung bearbeiten</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Aufgabe bearbeiten</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>&amp;Part of</source>
        <translation>&amp;Gehört zu</translation>
    </message>
    <message>
        <source>&amp;Due</source>
        <translation>&amp;Fällig</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Wiederholung</translation>
    </message>
    <message>
        <source>Ne&amp;xt date</source>
        <translation>Nä&amp;chstes Datum</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Er&amp;innerungen</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>&amp;Priorität</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>&amp;Status</translation>
    </message>
    <message>
        <source>Cate&amp;gories</source>
        <translation>Kateg&amp;orien</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fälligkeitsdatum</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Fälligkeitszeit</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Anfangsdatum</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Anfangszeit</translation>
    </message>
    <message>
        <source>From the due date</source>
        <translation>Ab dem Fälligkeitsdatum</translation>
    </message>
    <message>
        <source>From the day of completion</source>
        <translation>Ab dem Tag der Erledigung</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Home, errands</source>
        <translation>Zuhause, Besorgungen</translation>
    </message>
    <message>
        <source>Task color</source>
        <translation>Aufgabenfarbe</translation>
    </message>
    <message>
        <source>Notes, links…</source>
        <translation>Notizen, Links…</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>Progress in percent</source>
        <translation>Fortschritt in Prozent</translation>
    </message>
    <message>
        <source>No other task</source>
        <translation>Keine andere Aufgabe</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>priority, its number</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This task belongs to a read-only calendar.</source>
        <translation>Diese Aufgabe gehört zu einem schreibgeschützten Kalender.</translation>
    </message>
    <message>
        <source>Please enter a title for the task.</source>
        <translation>Geben Sie einen Titel für die Aufgabe ein.</translation>
    </message>
    <message>
        <source>No calendar can hold tasks. Create a local calendar first.</source>
        <translation>Kein Kalender kann Aufgaben enthalten. Erstellen Sie zuerst einen lokalen Kalender.</translation>
    </message>
    <message>
        <source>The task is due before it starts.</source>
        <translation>Die Aufgabe ist vor ihrem Beginn fällig.</translation>
    </message>
    <message>
        <source>Could not save the task.</source>
        <translation>Die Aufgabe konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>TaskListing</name>
    <message>
        <source>%1 / %2</source>
        <extracomment>account, calendar</extracomment>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>(Untitled)</source>
        <translation>(Unbenannt)</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In Bearbeitung</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Nicht begonnen</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>a date of this year, and one of another, as date patterns</extracomment>
        <translation>ddd, d. MMM</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd, d. MMM yyyy</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a date, %2 a time</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>TasksPane</name>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Filter tasks</source>
        <translation>Aufgaben filtern</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Neue Aufgabe</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Diese Woche</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Group by calendar</source>
        <translation>Nach Kalender gruppieren</translation>
    </message>
    <message>
        <source>Hide completed</source>
        <translation>Erledigte ausblenden</translation>
    </message>
    <message>
        <source>Show notes</source>
        <translation>Notizen anzeigen</translation>
    </message>
    <message>
        <source>Show categories</source>
        <translation>Kategorien anzeigen</translation>
    </message>
    <message>
        <source>Switch the filter to see other tasks.</source>
        <translation>Wechseln Sie den Filter, um andere Aufgaben zu sehen.</translation>
    </message>
    <message>
        <source>No tasks yet</source>
        <translation>Noch keine Aufgaben</translation>
    </message>
    <message>
        <source>Create a task to track what needs doing.</source>
        <translation>Erstellen Sie eine Aufgabe, um zu sehen, was zu tun ist.</translation>
    </message>
    <message>
        <source>Nothing due today</source>
        <translation>Heute ist nichts fällig</translation>
    </message>
    <message>
        <source>Nothing due this week</source>
        <translation>Diese Woche ist nichts fällig</translation>
    </message>
    <message>
        <source>Nothing overdue</source>
        <translation>Nichts überfällig</translation>
    </message>
    <message>
        <source>You&apos;re caught up. Nice.</source>
        <translation>Alles erledigt. Gut gemacht.</translation>
    </message>
    <message>
        <source>+ New Task</source>
        <translation>+ Neue Aufgabe</translation>
    </message>
    <message>
        <source>Filter tasks: %1</source>
        <extracomment>%1 is the name of a filter</extracomment>
        <translation>Aufgaben filtern: %1</translation>
    </message>
</context>
<context>
    <name>TasksPaneRow</name>
    <message>
        <source>due %1</source>
        <comment>date</comment>
        <translation>fällig: %1</translation>
    </message>
    <message>
        <source>priority %1</source>
        <translation>Priorität: %1</translation>
    </message>
    <message>
        <source>subtask</source>
        <translation>Unteraufgabe</translation>
    </message>
    <message>
        <source>IN PROGRESS</source>
        <translation>IN BEARBEITUNG</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>ABGEBROCHEN</translation>
    </message>
    <message>
        <source>↳ subtask</source>
        <translation>↳ Unteraufgabe</translation>
    </message>
    <message>
        <source>Waiting to sync</source>
        <translation>Wartet auf Abgleich</translation>
    </message>
</context>
<context>
    <name>TemplateFormDialog</name>
    <message>
        <source>New Template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Edit Template</source>
        <translation>Vorlage bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Vorlagenname</translation>
    </message>
    <message>
        <source>Title of the event</source>
        <translation>Titel des Termins</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Adresse, Raum oder Videolink</translation>
    </message>
    <message>
        <source>Any calendar</source>
        <translation>Beliebiger Kalender</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Terminfarbe</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>&amp;Dauer</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Wiederholung</translation>
    </message>
    <message>
        <source>L&amp;ocation</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>Rem&amp;inders</source>
        <translation>Er&amp;innerungen</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source> hr</source>
        <translation> Std.</translation>
    </message>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source> day(s)</source>
        <translation> Tag(e)</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>&amp;Ganztägig</translation>
    </message>
    <message>
        <source>Enter a name for the template.</source>
        <translation>Geben Sie einen Namen für die Vorlage ein.</translation>
    </message>
    <message>
        <source>This template was deleted in the meantime.</source>
        <translation>Diese Vorlage wurde inzwischen gelöscht.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <translation>Die Vorlage konnte nicht gespeichert werden.</translation>
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
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>from, to</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>weekday, time</comment>
        <translation>%1 %2</translation>
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
<context>
    <name>WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Welcome to Quillon Calendar</source>
        <translation>Willkommen bei Quillon Calendar</translation>
    </message>
    <message>
        <source>Your days at a glance, on your own computer.</source>
        <translation>Ihre Tage auf einen Blick, auf Ihrem eigenen Computer.</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Über&amp;springen</translation>
    </message>
    <message>
        <source>Everything is kept on this computer, so it works offline.</source>
        <translation>Alles bleibt auf diesem Computer und funktioniert daher auch offline.</translation>
    </message>
    <message>
        <source>Filters and groups show what matters, and delete nothing.</source>
        <translation>Filter und Gruppen zeigen, was wichtig ist, und löschen nichts.</translation>
    </message>
    <message>
        <source>Events can be typed in plain English: “lunch Thursday 1pm”.</source>
        <translation>Termine lassen sich auf Englisch eintippen: „lunch Thursday 1pm“.</translation>
    </message>
    <message>
        <source>As you like it</source>
        <translation>Wie es Ihnen gefällt</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>Time &amp;format</source>
        <translation>&amp;Zeitformat</translation>
    </message>
    <message>
        <source>Your calendars</source>
        <translation>Ihre Kalender</translation>
    </message>
    <message>
        <source>&amp;Import a calendar file…</source>
        <translation>Kalenderdatei &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Add a calendar…</source>
        <translation>&amp;Kalender hinzufügen…</translation>
    </message>
    <message>
        <source>A first calendar is there already. You can do all of this later.</source>
        <translation>Ein erster Kalender ist schon da. All dies können Sie auch später tun.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>F&amp;ertig</translation>
    </message>
    <message>
        <source>First day of the &amp;week</source>
        <translation>Erster Tag der &amp;Woche</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>What&apos;s New</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>What&apos;s new in %1</source>
        <translation>Neuerungen in %1</translation>
    </message>
    <message>
        <source>This build carries no release notes.</source>
        <translation>Diese Programmversion enthält keine Versionshinweise.</translation>
    </message>
</context>
</TS>
