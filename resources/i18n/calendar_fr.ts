<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name>AboutBox</name>
        <message>
            <source>About Quillon Calendar</source>
            <translation>À propos de Quillon Calendar</translation>
        </message>
        <message>
            <source>Built with</source>
            <translation>Conçu avec</translation>
        </message>
        <message>
            <source>GNU Lesser General Public License, version 3</source>
            <translation>GNU Lesser General Public License, version 3</translation>
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
            <translation>Événements d’une journée entière</translation>
        </message>
        <message>
            <source>all-day</source>
            <translation>journée</translation>
        </message>
        <message>
            <source>+%1 more</source>
            <translation>+%1 de plus</translation>
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
            <translation>Erreur de base de données</translation>
        </message>
        <message>
            <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
            <translation>Impossible d’initialiser la base de données.

Dossier des données : %1

Veuillez vérifier les autorisations des fichiers et réessayer.</translation>
        </message>
    </context>
    <context>
        <name>CalendarChecklist</name>
        <message>
            <source>Calendars</source>
            <translation>Calendriers</translation>
        </message>
        <message>
            <source>Other</source>
            <translation>Autres</translation>
        </message>
    </context>
    <context>
        <name>CalendarFormDialog</name>
        <message>
            <source>New Calendar</source>
            <translation>Nouveau calendrier</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Créer</translation>
        </message>
        <message>
            <source>Edit Calendar</source>
            <translation>Modifier le calendrier</translation>
        </message>
        <message>
            <source>This calendar is read-only. Its name and color change on this device only.</source>
            <translation>Ce calendrier est en lecture seule. Son nom et sa couleur ne changent que sur cet appareil.</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Calendar name</source>
            <translation>Nom du calendrier</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Nom</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Couleur</translation>
        </message>
        <message>
            <source>&amp;Description</source>
            <translation>&amp;Description</translation>
        </message>
        <message>
            <source>Enter a name for the calendar.</source>
            <translation>Saisissez un nom pour le calendrier.</translation>
        </message>
        <message>
            <source>This calendar was deleted in the meantime.</source>
            <translation>Ce calendrier a été supprimé entre-temps.</translation>
        </message>
        <message>
            <source>The calendar could not be saved.</source>
            <translation>Le calendrier n’a pas pu être enregistré.</translation>
        </message>
    </context>
    <context>
        <name>CalendarListDelegate</name>
        <message>
            <source>Default</source>
            <translation>Par défaut</translation>
        </message>
    </context>
    <context>
        <name>CalendarListWidget</name>
        <message>
            <source>Calendars</source>
            <translation>Calendriers</translation>
        </message>
        <message>
            <source>read-only</source>
            <translation>lecture seule</translation>
        </message>
        <message>
            <source>default calendar</source>
            <translation>calendrier par défaut</translation>
        </message>
        <message>
            <source>not in the active group</source>
            <translation>hors du groupe actif</translation>
        </message>
        <message>
            <source>Calendar of account %1</source>
            <translation>Calendrier du compte %1</translation>
        </message>
    </context>
    <context>
        <name>CalendarMenu</name>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Renommer</translation>
        </message>
        <message>
            <source>Make &amp;Default</source>
            <translation>Définir par &amp;défaut</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>&amp;Modifier…</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Couleur</translation>
        </message>
        <message>
            <source>Show &amp;Only This</source>
            <translation>Afficher &amp;uniquement celui-ci</translation>
        </message>
        <message>
            <source>Show &amp;All</source>
            <translation>&amp;Tout afficher</translation>
        </message>
        <message>
            <source>De&amp;lete Calendar…</source>
            <translation>&amp;Supprimer le calendrier…</translation>
        </message>
        <message>
            <source>Delete calendar?</source>
            <translation>Supprimer le calendrier ?</translation>
        </message>
        <message>
            <source>Delete "%1" and all its events? This cannot be undone.</source>
            <translation>Supprimer « %1 » et tous ses événements ? Cette action est irréversible.</translation>
        </message>
    </context>
    <context>
        <name>ColorButton</name>
        <message>
            <source>Blue</source>
            <translation>Bleu</translation>
        </message>
        <message>
            <source>Sky</source>
            <translation>Bleu ciel</translation>
        </message>
        <message>
            <source>Teal</source>
            <translation>Sarcelle</translation>
        </message>
        <message>
            <source>Green</source>
            <translation>Vert</translation>
        </message>
        <message>
            <source>Lime</source>
            <translation>Citron vert</translation>
        </message>
        <message>
            <source>Amber</source>
            <translation>Ambre</translation>
        </message>
        <message>
            <source>Orange</source>
            <translation>Orange</translation>
        </message>
        <message>
            <source>Red</source>
            <translation>Rouge</translation>
        </message>
        <message>
            <source>Pink</source>
            <translation>Rose</translation>
        </message>
        <message>
            <source>Purple</source>
            <translation>Violet</translation>
        </message>
        <message>
            <source>Indigo</source>
            <translation>Indigo</translation>
        </message>
        <message>
            <source>Graphite</source>
            <translation>Graphite</translation>
        </message>
        <message>
            <source>Custom…</source>
            <translation>Personnalisée…</translation>
        </message>
        <message>
            <source>Color: %1</source>
            <translation>Couleur : %1</translation>
        </message>
    </context>
    <context>
        <name>EventContextMenu</name>
        <message>
            <source>Edit filter "%1"…</source>
            <translation>Modifier le filtre « %1 »…</translation>
        </message>
        <message>
            <source>Create Filter from Event…</source>
            <translation>Créer un filtre à partir de l’événement…</translation>
        </message>
    </context>
    <context>
        <name>EventText</name>
        <message>
            <source>ddd, MMM d</source>
            <extracomment>weekday and date of an event, as a date pattern</extracomment>
            <translation>ddd d MMM</translation>
        </message>
        <message>
            <source>%1, all day</source>
            <extracomment>%1 is a date, or two with a dash</extracomment>
            <translation>%1, journée entière</translation>
        </message>
        <message>
            <source>Cancelled</source>
            <translation>Annulé</translation>
        </message>
        <message>
            <source>(Untitled)</source>
            <translation>(Sans titre)</translation>
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
            <translation>(sans titre)</translation>
        </message>
        <message>
            <source>Choose an event</source>
            <translation>Choisissez un événement</translation>
        </message>
        <message>
            <source>An event that is not on this device</source>
            <translation>Un événement absent de cet appareil</translation>
        </message>
    </context>
    <context>
        <name>FilterFormDialog</name>
        <message>
            <source>New Filter</source>
            <translation>Nouveau filtre</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Créer</translation>
        </message>
        <message>
            <source>Edit Filter</source>
            <translation>Modifier le filtre</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Supprimer</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Nom</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>Text in the event</source>
            <translation>Texte dans l’événement</translation>
        </message>
        <message>
            <source>Day or start time</source>
            <translation>Jour ou heure de début</translation>
        </message>
        <message>
            <source>All-day events</source>
            <translation>Événements d’une journée entière</translation>
        </message>
        <message>
            <source>One event</source>
            <translation>Un seul événement</translation>
        </message>
        <message>
            <source>Only &amp;repeating events</source>
            <translation>Uniquement les événements &amp;récurrents</translation>
        </message>
        <message>
            <source>Event</source>
            <translation>Événement</translation>
        </message>
        <message>
            <source>&amp;Filter by</source>
            <translation>&amp;Filtrer par</translation>
        </message>
        <message>
            <source>In all calendars</source>
            <translation>Dans tous les calendriers</translation>
        </message>
        <message>
            <source>Only in chosen calendars</source>
            <translation>Uniquement dans les calendriers choisis</translation>
        </message>
        <message>
            <source>&amp;Calendars</source>
            <translation>&amp;Calendriers</translation>
        </message>
        <message>
            <source>Hide the events</source>
            <translation>Masquer les événements</translation>
        </message>
        <message>
            <source>Dim the events</source>
            <translation>Estomper les événements</translation>
        </message>
        <message>
            <source>&amp;Silence their reminders</source>
            <translation>Rendre &amp;leurs rappels silencieux</translation>
        </message>
        <message>
            <source>Reminders of hidden events are always silent.</source>
            <translation>Les rappels des événements masqués sont toujours silencieux.</translation>
        </message>
        <message>
            <source>Of several filters that match an event, the one with the lowest number decides.</source>
            <translation>Si plusieurs filtres correspondent à un événement, celui dont le numéro est le plus petit l’emporte.</translation>
        </message>
        <message>
            <source>Filter is &amp;on</source>
            <translation>Filtre acti&amp;vé</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>&amp;Effet</translation>
        </message>
        <message>
            <source>&amp;Priority</source>
            <translation>&amp;Priorité</translation>
        </message>
        <message>
            <source>Filter name</source>
            <translation>Nom du filtre</translation>
        </message>
        <message>
            <source>Enter at least one text to look for.</source>
            <translation>Saisissez au moins un texte à rechercher.</translation>
        </message>
        <message>
            <source>Choose at least one day or time.</source>
            <translation>Choisissez au moins un jour ou une heure.</translation>
        </message>
        <message>
            <source>Choose the event that the filter is for.</source>
            <translation>Choisissez l’événement concerné par le filtre.</translation>
        </message>
        <message>
            <source>Choose at least one calendar.</source>
            <translation>Choisissez au moins un calendrier.</translation>
        </message>
        <message>
            <source>This filter was deleted in the meantime.</source>
            <translation>Ce filtre a été supprimé entre-temps.</translation>
        </message>
        <message>
            <source>The filter could not be saved.</source>
            <translation>Le filtre n’a pas pu être enregistré.</translation>
        </message>
        <message>
            <source>Delete filter?</source>
            <translation>Supprimer le filtre ?</translation>
        </message>
        <message>
            <source>Delete "%1"? The events it hides or dims show again.</source>
            <translation>Supprimer « %1 » ? Les événements qu’il masque ou estompe s’afficheront de nouveau.</translation>
        </message>
    </context>
    <context>
        <name>FilterPatternEditor</name>
        <message>
            <source>Add Te&amp;xt</source>
            <translation>Ajouter un te&amp;xte</translation>
        </message>
        <message>
            <source>&amp;Match upper and lower case</source>
            <translation>Respec&amp;ter la casse</translation>
        </message>
        <message>
            <source>Title contains</source>
            <translation>Le titre contient</translation>
        </message>
        <message>
            <source>Title is exactly</source>
            <translation>Le titre est exactement</translation>
        </message>
        <message>
            <source>Description contains</source>
            <translation>La description contient</translation>
        </message>
        <message>
            <source>Location contains</source>
            <translation>Le lieu contient</translation>
        </message>
        <message>
            <source>Where to look</source>
            <translation>Où rechercher</translation>
        </message>
        <message>
            <source>Text to look for</source>
            <translation>Texte à rechercher</translation>
        </message>
        <message>
            <source>Remove this text</source>
            <translation>Supprimer ce texte</translation>
        </message>
    </context>
    <context>
        <name>FilterPreview</name>
        <message numerus="yes">
            <source>%n event(s) in the next 30 days match</source>
            <translation>
                <numerusform>%n événement correspondant dans les 30 prochains jours</numerusform>
                <numerusform>%n événements correspondants dans les 30 prochains jours</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>FilterText</name>
        <message>
            <source>title is "%1"</source>
            <translation>le titre est « %1 »</translation>
        </message>
        <message>
            <source>title contains "%1"</source>
            <translation>le titre contient « %1 »</translation>
        </message>
        <message>
            <source>description contains "%1"</source>
            <translation>la description contient « %1 »</translation>
        </message>
        <message>
            <source>location contains "%1"</source>
            <translation>le lieu contient « %1 »</translation>
        </message>
        <message>
            <source> or </source>
            <translation> ou </translation>
        </message>
        <message>
            <source>starts at %1</source>
            <translation>commence à %1</translation>
        </message>
        <message>
            <source>starts from %1</source>
            <translation>commence à partir de %1</translation>
        </message>
        <message>
            <source>starts until %1</source>
            <translation>commence au plus tard à %1</translation>
        </message>
        <message>
            <source>repeating only</source>
            <translation>récurrents uniquement</translation>
        </message>
        <message>
            <source>the event "%1"</source>
            <translation>l’événement « %1 »</translation>
        </message>
        <message>
            <source>one event</source>
            <translation>un seul événement</translation>
        </message>
        <message>
            <source>no calendar of this device</source>
            <translation>aucun calendrier de cet appareil</translation>
        </message>
        <message>
            <source>repeating all-day events</source>
            <translation>événements récurrents d’une journée entière</translation>
        </message>
        <message>
            <source>all-day events</source>
            <translation>événements d’une journée entière</translation>
        </message>
        <message>
            <source>Hides</source>
            <translation>Masque</translation>
        </message>
        <message>
            <source>Dims</source>
            <translation>Estompe</translation>
        </message>
        <message>
            <source>matches nothing</source>
            <translation>ne correspond à rien</translation>
        </message>
    </context>
    <context>
        <name>FilterTimeEditor</name>
        <message>
            <source>Only &amp;repeating events</source>
            <translation>Uniquement les événements &amp;récurrents</translation>
        </message>
        <message>
            <source>Starts e&amp;xactly at</source>
            <translation>Commence e&amp;xactement à</translation>
        </message>
        <message>
            <source>Starts at or af&amp;ter</source>
            <translation>Commence à par&amp;tir de</translation>
        </message>
        <message>
            <source>Starts at or &amp;before</source>
            <translation>Commence au pl&amp;us tard à</translation>
        </message>
        <message>
            <source>A range over midnight matches nothing. Make two filters: one for the evening, with only "at or after", and one for the morning.</source>
            <translation>Une plage qui passe minuit ne correspond à rien. Créez deux filtres : un pour le soir, avec seulement « à partir de », et un pour le matin.</translation>
        </message>
    </context>
    <context>
        <name>FiltersPill</name>
        <message>
            <source>Manage filters</source>
            <translation>Gérer les filtres</translation>
        </message>
        <message>
            <source>No filters</source>
            <translation>Aucun filtre</translation>
        </message>
        <message numerus="yes">
            <source>%n filter(s) applied</source>
            <translation>
                <numerusform>%n filtre appliqué</numerusform>
                <numerusform>%n filtres appliqués</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n hidden</source>
            <translation>
                <numerusform>%n masqué</numerusform>
                <numerusform>%n masqués</numerusform>
            </translation>
        </message>
        <message>
            <source>Disable all filters</source>
            <translation>Désactiver tous les filtres</translation>
        </message>
        <message>
            <source>Enable all filters</source>
            <translation>Activer tous les filtres</translation>
        </message>
        <message>
            <source>Add Filter…</source>
            <translation>Ajouter un filtre…</translation>
        </message>
        <message>
            <source>Manage Filters…</source>
            <translation>Gérer les filtres…</translation>
        </message>
    </context>
    <context>
        <name>GroupButton</name>
        <message>
            <source>Calendar group</source>
            <translation>Groupe de calendriers</translation>
        </message>
        <message>
            <source>Calendar group: %1</source>
            <translation>Groupe de calendriers : %1</translation>
        </message>
        <message>
            <source>Add Calendar Group…</source>
            <translation>Ajouter un groupe de calendriers…</translation>
        </message>
        <message>
            <source>Edit Current Group…</source>
            <translation>Modifier le groupe actuel…</translation>
        </message>
        <message>
            <source>Delete Current Group</source>
            <translation>Supprimer le groupe actuel</translation>
        </message>
    </context>
    <context>
        <name>GroupMenu</name>
        <message>
            <source>Calendar groups</source>
            <translation>Groupes de calendriers</translation>
        </message>
        <message>
            <source>&amp;Next Group</source>
            <translation>Groupe &amp;suivant</translation>
        </message>
        <message>
            <source>&amp;Previous Group</source>
            <translation>Groupe &amp;précédent</translation>
        </message>
    </context>
    <context>
        <name>GroupName</name>
        <message>
            <source>All Calendars</source>
            <translation>Tous les calendriers</translation>
        </message>
    </context>
    <context>
        <name>HorizonChip</name>
        <message>
            <source>Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days</source>
            <translation>Nombre de jours affichés — Ctrl+Maj+1..5 pour 3 / 5 / 7 / 10 / 14 jours</translation>
        </message>
        <message>
            <source>Days timeline span</source>
            <translation>Nombre de jours affichés</translation>
        </message>
        <message numerus="yes">
            <source>%n days</source>
            <translation>
                <numerusform>%n jour</numerusform>
                <numerusform>%n jours</numerusform>
            </translation>
        </message>
        <message>
            <source>%1d</source>
            <comment>number of days</comment>
            <translation>%1 j</translation>
        </message>
    </context>
    <context>
        <name>IcsImportFlow</name>
        <message>
            <source>Importing… %1%</source>
            <translation>Importation… %1 %</translation>
        </message>
        <message>
            <source>Reading… %1%</source>
            <translation>Lecture… %1 %</translation>
        </message>
        <message>
            <source>No calendars configured</source>
            <translation>Aucun calendrier configuré</translation>
        </message>
        <message>
            <source>Add a writable calendar first; then re-import "%1".</source>
            <translation>Ajoutez d’abord un calendrier modifiable, puis réimportez « %1 ».</translation>
        </message>
        <message>
            <source>Couldn't open "%1" for reading.</source>
            <translation>Impossible d’ouvrir « %1 » en lecture.</translation>
        </message>
        <message>
            <source>No events found in "%1".</source>
            <translation>Aucun événement trouvé dans « %1 ».</translation>
        </message>
        <message>
            <source>Couldn't open file</source>
            <translation>Impossible d’ouvrir le fichier</translation>
        </message>
        <message>
            <source>Nothing to import</source>
            <translation>Rien à importer</translation>
        </message>
        <message>
            <source>Imported %1 and updated %2 in %3.</source>
            <translation>Événements importés dans %3 : %1 ; mis à jour : %2.</translation>
        </message>
        <message>
            <source>Updated 1 existing event in %1.</source>
            <translation>1 événement existant mis à jour dans %1.</translation>
        </message>
        <message>
            <source>Updated %1 existing events in %2.</source>
            <translation>%1 événements existants mis à jour dans %2.</translation>
        </message>
        <message>
            <source>Imported 1 event into %1.</source>
            <translation>1 événement importé dans %1.</translation>
        </message>
        <message>
            <source>Imported %1 events into %2.</source>
            <translation>%1 événements importés dans %2.</translation>
        </message>
        <message numerus="yes">
            <source> Skipped %n event(s) without an identifier or a start.</source>
            <translation>
                <numerusform> %n événement sans identifiant ou sans début ignoré.</numerusform>
                <numerusform> %n événements sans identifiant ou sans début ignorés.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source> %n event(s) could not be stored.</source>
            <translation>
                <numerusform> %n événement n’a pas pu être enregistré.</numerusform>
                <numerusform> %n événements n’ont pas pu être enregistrés.</numerusform>
            </translation>
        </message>
        <message>
            <source>Import failed</source>
            <translation>Échec de l’importation</translation>
        </message>
        <message>
            <source>The chosen calendar was deleted in the meantime.</source>
            <translation>Le calendrier choisi a été supprimé entre-temps.</translation>
        </message>
        <message>
            <source>Import incomplete</source>
            <translation>Importation incomplète</translation>
        </message>
        <message>
            <source>"%1" is too large to import.</source>
            <translation>« %1 » est trop volumineux pour être importé.</translation>
        </message>
        <message numerus="yes">
            <source> Skipped %n event(s) that are too large.</source>
            <translation>
                <numerusform> %n événement trop volumineux ignoré.</numerusform>
                <numerusform> %n événements trop volumineux ignorés.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>ImportDialog</name>
        <message>
            <source>Import 1 event from "%1" into:</source>
            <translation>Importer 1 événement de « %1 » dans :</translation>
        </message>
        <message>
            <source>Import %1 events from "%2" into:</source>
            <translation>Importer %1 événements de « %2 » dans :</translation>
        </message>
        <message>
            <source>Import 1 event from %1 files into:</source>
            <translation>Importer 1 événement de %1 fichiers dans :</translation>
        </message>
        <message>
            <source>Import %1 events from %2 files into:</source>
            <translation>Importer %1 événements de %2 fichiers dans :</translation>
        </message>
        <message>
            <source>Import events</source>
            <translation>Importer des événements</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Importer</translation>
        </message>
    </context>
    <context>
        <name>KeyboardHelpDialog</name>
        <message>
            <source>Keyboard Shortcuts</source>
            <translation>Raccourcis clavier</translation>
        </message>
        <message>
            <source>No shortcut matches.</source>
            <translation>Aucun raccourci ne correspond.</translation>
        </message>
        <message>
            <source>Search shortcuts</source>
            <translation>Rechercher des raccourcis</translation>
        </message>
        <message>
            <source>Action</source>
            <translation>Action</translation>
        </message>
        <message>
            <source>Keys</source>
            <translation>Touches</translation>
        </message>
    </context>
    <context>
        <name>MainMenus</name>
        <message>
            <source>General</source>
            <translation>Général</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message>
            <source>New &amp;Calendar…</source>
            <translation>Nouveau &amp;calendrier…</translation>
        </message>
        <message>
            <source>&amp;Import ICS File…</source>
            <translation>&amp;Importer un fichier ICS…</translation>
        </message>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Quitter</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>É&amp;dition</translation>
        </message>
        <message>
            <source>&amp;Preferences…</source>
            <translation>&amp;Préférences…</translation>
        </message>
        <message>
            <source>View</source>
            <translation>Affichage</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;Affichage</translation>
        </message>
        <message>
            <source>Toggle &amp;Sidebar</source>
            <translation>Afficher ou masquer la &amp;barre latérale</translation>
        </message>
        <message>
            <source>&amp;Compact Density</source>
            <translation>Densité &amp;compacte</translation>
        </message>
        <message>
            <source>Days Timeline S&amp;pan</source>
            <translation>Nombre de j&amp;ours affichés</translation>
        </message>
        <message>
            <source>&amp;Go</source>
            <translation>&amp;Aller à</translation>
        </message>
        <message>
            <source>&amp;Day</source>
            <translation>&amp;Jour</translation>
        </message>
        <message>
            <source>Da&amp;ys</source>
            <translation>Jour&amp;s</translation>
        </message>
        <message>
            <source>&amp;Week</source>
            <translation>S&amp;emaine</translation>
        </message>
        <message>
            <source>Gr&amp;id</source>
            <translation>&amp;Grille</translation>
        </message>
        <message>
            <source>&amp;Month</source>
            <translation>&amp;Mois</translation>
        </message>
        <message>
            <source>Yea&amp;r</source>
            <translation>A&amp;nnée</translation>
        </message>
        <message>
            <source>Days timeline span</source>
            <translation>Nombre de jours affichés</translation>
        </message>
        <message>
            <source>Navigation</source>
            <translation>Navigation</translation>
        </message>
        <message>
            <source>&amp;Today</source>
            <translation>&amp;Aujourd’hui</translation>
        </message>
        <message>
            <source>&amp;Next</source>
            <translation>&amp;Suivant</translation>
        </message>
        <message>
            <source>&amp;Previous</source>
            <translation>&amp;Précédent</translation>
        </message>
        <message>
            <source>A &amp;Week Later</source>
            <translation>Une se&amp;maine plus tard</translation>
        </message>
        <message>
            <source>A W&amp;eek Earlier</source>
            <translation>Une semaine plus tô&amp;t</translation>
        </message>
        <message>
            <source>A &amp;Month Later</source>
            <translation>Un m&amp;ois plus tard</translation>
        </message>
        <message>
            <source>A M&amp;onth Earlier</source>
            <translation>U&amp;n mois plus tôt</translation>
        </message>
        <message>
            <source>&amp;Back</source>
            <translation>&amp;Retour</translation>
        </message>
        <message>
            <source>&amp;Forward</source>
            <translation>A&amp;vancer</translation>
        </message>
        <message>
            <source>&amp;Zoom In</source>
            <translation>&amp;Zoom avant</translation>
        </message>
        <message>
            <source>Zoom &amp;Out</source>
            <translation>Zoom a&amp;rrière</translation>
        </message>
        <message>
            <source>&amp;Tools</source>
            <translation>&amp;Outils</translation>
        </message>
        <message>
            <source>Add &amp;Filter…</source>
            <translation>Ajouter un &amp;filtre…</translation>
        </message>
        <message>
            <source>&amp;Manage Filters…</source>
            <translation>&amp;Gérer les filtres…</translation>
        </message>
        <message>
            <source>Add Calendar &amp;Group…</source>
            <translation>Ajouter un groupe de &amp;calendriers…</translation>
        </message>
        <message>
            <source>Manage Calendar Gr&amp;oups…</source>
            <translation>Gérer les grou&amp;pes de calendriers…</translation>
        </message>
        <message>
            <source>&amp;Calendar Groups</source>
            <translation>Groupes de ca&amp;lendriers</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>A&amp;ide</translation>
        </message>
        <message>
            <source>&amp;Keyboard Shortcuts</source>
            <translation>&amp;Raccourcis clavier</translation>
        </message>
        <message>
            <source>&amp;About Quillon Calendar</source>
            <translation>À &amp;propos de Quillon Calendar</translation>
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
            <translation>Importer un fichier ICS</translation>
        </message>
        <message>
            <source>iCalendar files (*.ics);;All files (*)</source>
            <translation>Fichiers iCalendar (*.ics);;Tous les fichiers (*)</translation>
        </message>
    </context>
    <context>
        <name>ManageFiltersDialog</name>
        <message>
            <source>Manage Filters</source>
            <translation>Gérer les filtres</translation>
        </message>
        <message>
            <source>No filters yet. A filter hides or dims events on this device; it never changes them.</source>
            <translation>Aucun filtre pour l’instant. Un filtre masque ou estompe des événements sur cet appareil ; il ne les modifie jamais.</translation>
        </message>
    </context>
    <context>
        <name>ManageViewsDialog</name>
        <message>
            <source>Manage Calendar Groups</source>
            <translation>Gérer les groupes de calendriers</translation>
        </message>
        <message>
            <source>No groups yet. A group shows the calendars you choose, under one name.</source>
            <translation>Aucun groupe pour l’instant. Un groupe affiche les calendriers de votre choix sous un même nom.</translation>
        </message>
        <message>
            <source>Delete group?</source>
            <translation>Supprimer le groupe ?</translation>
        </message>
        <message>
            <source>Delete "%1"? You can recreate it later.</source>
            <translation>Supprimer « %1 » ? Vous pourrez le recréer plus tard.</translation>
        </message>
        <message>
            <source>All visible calendars</source>
            <translation>Tous les calendriers visibles</translation>
        </message>
    </context>
    <context>
        <name>MiniMonthCalendar</name>
        <message>
            <source>Previous month</source>
            <translation>Mois précédent</translation>
        </message>
        <message>
            <source>Next month</source>
            <translation>Mois suivant</translation>
        </message>
        <message>
            <source>Month to pick a day from</source>
            <translation>Mois où choisir un jour</translation>
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
            <translation>Affichage</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Jour</translation>
        </message>
        <message>
            <source>Week</source>
            <translation>Semaine</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Jours</translation>
        </message>
        <message>
            <source>Grid</source>
            <translation>Grille</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Mois</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Année</translation>
        </message>
    </context>
    <context>
        <name>NoAccountsPage</name>
        <message>
            <source>Add a Quillon Calendar account to store calendars on this device, connect Google or Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).</source>
            <translation>Ajoutez un compte Quillon Calendar pour conserver des calendriers sur cet appareil, connectez Google ou Microsoft, ou reliez n’importe quel serveur CalDAV (Synology, Nextcloud, Radicale, iCloud).</translation>
        </message>
        <message>
            <source>No accounts configured</source>
            <translation>Aucun compte configuré</translation>
        </message>
        <message>
            <source>  Add Account…</source>
            <translation>  Ajouter un compte…</translation>
        </message>
    </context>
    <context>
        <name>OrderedListDialog</name>
        <message>
            <source>&amp;Add…</source>
            <translation>&amp;Ajouter…</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>&amp;Modifier…</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Supprimer</translation>
        </message>
        <message>
            <source>Move &amp;Up</source>
            <translation>Mon&amp;ter</translation>
        </message>
        <message>
            <source>Move D&amp;own</source>
            <translation>&amp;Descendre</translation>
        </message>
    </context>
    <context>
        <name>PreferencesDialog</name>
        <message>
            <source>Preferences</source>
            <translation>Préférences</translation>
        </message>
        <message>
            <source>&amp;Appearance</source>
            <translation>&amp;Apparence</translation>
        </message>
        <message>
            <source>&amp;Calendar</source>
            <translation>&amp;Calendrier</translation>
        </message>
        <message>
            <source>&amp;General</source>
            <translation>&amp;Général</translation>
        </message>
        <message>
            <source>Like the system</source>
            <translation>Comme le système</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>Clair</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>Sombre</translation>
        </message>
        <message>
            <source>&amp;Reset</source>
            <translation>&amp;Réinitialiser</translation>
        </message>
        <message>
            <source>&amp;Theme</source>
            <translation>&amp;Thème</translation>
        </message>
        <message>
            <source>Accent c&amp;olor</source>
            <translation>Couleur d’accentuati&amp;on</translation>
        </message>
        <message>
            <source>&amp;Font size</source>
            <translation>Taille de la &amp;police</translation>
        </message>
        <message>
            <source>Workday begins</source>
            <translation>Début de la journée de travail</translation>
        </message>
        <message>
            <source>Workday ends</source>
            <translation>Fin de la journée de travail</translation>
        </message>
        <message>
            <source>12 hours (1:30 PM)</source>
            <translation>12 heures (1:30 PM)</translation>
        </message>
        <message>
            <source>24 hours (13:30)</source>
            <translation>24 heures (13:30)</translation>
        </message>
        <message>
            <source>&amp;First day of the week</source>
            <translation>&amp;Premier jour de la semaine</translation>
        </message>
        <message>
            <source>&amp;Workday</source>
            <translation>&amp;Journée de travail</translation>
        </message>
        <message>
            <source>&amp;Time format</source>
            <translation>&amp;Format de l’heure</translation>
        </message>
        <message>
            <source>Calendar for &amp;new events</source>
            <translation>Calendrier des &amp;nouveaux événements</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automatique</translation>
        </message>
        <message>
            <source>The one used last</source>
            <translation>Le dernier utilisé</translation>
        </message>
        <message>
            <source>&amp;Language</source>
            <translation>&amp;Langue</translation>
        </message>
        <message>
            <source>A new language takes effect at the next launch.</source>
            <translation>La nouvelle langue prend effet au prochain démarrage.</translation>
        </message>
        <message>
            <source>Start &amp;minimized</source>
            <translation>Démarrer en fenêtre &amp;réduite</translation>
        </message>
    </context>
    <context>
        <name>QuillonUpdate::UpdateDialog</name>
        <message>
            <source>Update Available</source>
            <translation>Mise à jour disponible</translation>
        </message>
        <message>
            <source>%1 %2 is available. You have version %3.</source>
            <translation>%1 %2 est disponible. Vous disposez de la version %3.</translation>
        </message>
        <message>
            <source>What's new</source>
            <translation>Nouveautés</translation>
        </message>
        <message>
            <source>Download</source>
            <translation>Télécharger</translation>
        </message>
        <message>
            <source>Later</source>
            <translation>Plus tard</translation>
        </message>
    </context>
    <context>
        <name>Reminder</name>
        <message>
            <source>At time of event</source>
            <translation>À l’heure de l’événement</translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s) before</source>
            <translation>
                <numerusform>%n minute avant</numerusform>
                <numerusform>%n minutes avant</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n hour(s) before</source>
            <translation>
                <numerusform>%n heure avant</numerusform>
                <numerusform>%n heures avant</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n day(s) before</source>
            <translation>
                <numerusform>%n jour avant</numerusform>
                <numerusform>%n jours avant</numerusform>
            </translation>
        </message>
        <message>
            <source>%1 minutes before</source>
            <translation>%1 minutes avant</translation>
        </message>
    </context>
    <context>
        <name>Sidebar</name>
        <message>
            <source>Calendars</source>
            <translation>Calendriers</translation>
        </message>
        <message>
            <source>New calendar</source>
            <translation>Nouveau calendrier</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>Tout afficher</translation>
        </message>
        <message>
            <source>Leave the group: the check boxes decide again what is shown</source>
            <translation>Quitter le groupe : les cases à cocher déterminent de nouveau ce qui est affiché</translation>
        </message>
        <message>
            <source>Showing group “%1”</source>
            <translation>Groupe affiché : « %1 »</translation>
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
d MMM</translation>
        </message>
        <message>
            <source>dddd, MMMM d, yyyy</source>
            <extracomment>a whole date, as a date pattern</extracomment>
            <translation>dddd d MMMM yyyy</translation>
        </message>
    </context>
    <context>
        <name>TimelineWidget</name>
        <message>
            <source>Events</source>
            <translation>Événements</translation>
        </message>
    </context>
    <context>
        <name>ViewArea</name>
        <message>
            <source>Previous</source>
            <translation>Précédent</translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Aujourd’hui</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Suivant</translation>
        </message>
    </context>
    <context>
        <name>ViewFormDialog</name>
        <message>
            <source>New Calendar Group</source>
            <translation>Nouveau groupe de calendriers</translation>
        </message>
        <message>
            <source>Create</source>
            <translation>Créer</translation>
        </message>
        <message>
            <source>Edit Calendar Group</source>
            <translation>Modifier le groupe de calendriers</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Group name</source>
            <translation>Nom du groupe</translation>
        </message>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Nom</translation>
        </message>
        <message>
            <source>&amp;Color</source>
            <translation>&amp;Couleur</translation>
        </message>
        <message>
            <source>C&amp;alendars</source>
            <translation>C&amp;alendriers</translation>
        </message>
        <message>
            <source>This group shows all visible calendars, unless you check some here.</source>
            <translation>Ce groupe affiche tous les calendriers visibles, sauf si vous en cochez certains ici.</translation>
        </message>
        <message>
            <source>With none checked, the group shows all visible calendars.</source>
            <translation>Si aucun n’est coché, le groupe affiche tous les calendriers visibles.</translation>
        </message>
        <message>
            <source>Enter a name for the group.</source>
            <translation>Saisissez un nom pour le groupe.</translation>
        </message>
        <message>
            <source>This group was deleted in the meantime.</source>
            <translation>Ce groupe a été supprimé entre-temps.</translation>
        </message>
        <message>
            <source>The group could not be saved.</source>
            <translation>Le groupe n’a pas pu être enregistré.</translation>
        </message>
    </context>
    <context>
        <name>ViewModes</name>
        <message>
            <source>MMM d</source>
            <comment>start of days within one month</comment>
            <translation>d</translation>
        </message>
        <message>
            <source>MMM d</source>
            <comment>start of days</comment>
            <translation>d MMM</translation>
        </message>
        <message>
            <source>d, yyyy</source>
            <comment>end of days within one month</comment>
            <translation>d MMM yyyy</translation>
        </message>
        <message>
            <source>MMM d, yyyy</source>
            <comment>end of days</comment>
            <translation>d MMM yyyy</translation>
        </message>
        <message>
            <source>dddd, MMMM d, yyyy</source>
            <comment>one day</comment>
            <translation>dddd d MMMM yyyy</translation>
        </message>
        <message>
            <source>Today · %1</source>
            <translation>Aujourd’hui · %1</translation>
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
