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
    <name>AccountDetails</name>
    <message>
        <source>Manually</source>
        <translation>Manuellement</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hour(s)</source>
        <translation>
            <numerusform>Intervalle de %n heure</numerusform>
            <numerusform>Intervalle de %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n minute(s)</source>
        <translation>
            <numerusform>Intervalle de %n minute</numerusform>
            <numerusform>Intervalle de %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>S&amp;ync this account</source>
        <translation>S&amp;ynchroniser ce compte</translation>
    </message>
    <message>
        <source>E&amp;xclude from cloud sync</source>
        <translation>E&amp;xclure de la synchronisation dans le nuage</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendriers</translation>
    </message>
    <message>
        <source>Last sync</source>
        <translation>Dernière synchronisation</translation>
    </message>
    <message>
        <source>Sync &amp;interval</source>
        <translation>&amp;Intervalle de synchronisation</translation>
    </message>
    <message>
        <source>C&amp;olor</source>
        <translation>C&amp;ouleur</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Ac&amp;tualiser</translation>
    </message>
    <message>
        <source>Remo&amp;ve…</source>
        <translation>&amp;Retirer…</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Saisir le mot de &amp;passe…</translation>
    </message>
    <message>
        <source>Review &amp;Certificate…</source>
        <translation>Examiner le &amp;certificat…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>AccountHealth</name>
    <message>
        <source>On this device</source>
        <translation>Sur cet appareil</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>Certificat modifié</translation>
    </message>
    <message>
        <source>The server shows a certificate that you have not trusted. Nothing syncs until you have reviewed it.</source>
        <translation>Le serveur présente un certificat auquel vous n’avez pas fait confiance. Rien n’est synchronisé tant que vous ne l’avez pas examiné.</translation>
    </message>
    <message>
        <source>The password of this account is not on this device. Nothing syncs until you enter it.</source>
        <translation>Le mot de passe de ce compte n’est pas sur cet appareil. Rien n’est synchronisé tant que vous ne l’avez pas saisi.</translation>
    </message>
    <message>
        <source>Sign in required</source>
        <translation>Connexion requise</translation>
    </message>
    <message>
        <source>The sign-in of this account has ended.</source>
        <translation>La connexion de ce compte a expiré.</translation>
    </message>
    <message>
        <source>Sync failed</source>
        <translation>Échec de la synchronisation</translation>
    </message>
    <message>
        <source>Last sync: %1</source>
        <translation>Dernière synchronisation : %1</translation>
    </message>
    <message>
        <source>Not synced yet</source>
        <translation>Pas encore synchronisé</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Calendars on this device</source>
        <translation>Calendriers sur cet appareil</translation>
    </message>
    <message>
        <source>Web feed</source>
        <translation>Flux web</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>calendars, error</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Password rejected</source>
        <translation>Mot de passe refusé</translation>
    </message>
</context>
<context>
    <name>AccountPill</name>
    <message numerus="yes">
        <source>%n account(s) need attention</source>
        <translation>
            <numerusform>%n compte demande votre attention</numerusform>
            <numerusform>%n comptes demandent votre attention</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and resolve the issues.</source>
        <translation>Cliquez pour ouvrir les comptes de calendrier et résoudre les problèmes.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need sign-in</source>
        <translation>
            <numerusform>%n compte demande une connexion</numerusform>
            <numerusform>%n comptes demandent une connexion</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and sign in.</source>
        <translation>Cliquez pour ouvrir les comptes de calendrier et vous connecter.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need password</source>
        <translation>
            <numerusform>%n compte demande un mot de passe</numerusform>
            <numerusform>%n comptes demandent un mot de passe</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and re-enter the password.</source>
        <translation>Cliquez pour ouvrir les comptes de calendrier et saisir à nouveau le mot de passe.</translation>
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
        <extracomment>the short form of &quot;+%1 more&quot;</extracomment>
        <translation>+%1</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <comment>first day of a dragged event</comment>
        <translation>ddd d MMM</translation>
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

Dossier des données&#xa0;: %1

Veuillez vérifier les autorisations des fichiers et réessayer.</translation>
    </message>
</context>
<context>
    <name>AttendeesEditor</name>
    <message>
        <source>+ Add attendee</source>
        <translation>+ Ajouter un participant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the attendee</source>
        <translation>Nom du participant</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nom@example.com</translation>
    </message>
    <message>
        <source>Address of the attendee</source>
        <translation>Adresse du participant</translation>
    </message>
    <message>
        <source>Remove attendee</source>
        <translation>Retirer le participant</translation>
    </message>
</context>
<context>
    <name>CalDavCertificateDialog</name>
    <message>
        <source>Untrusted certificate</source>
        <translation>Certificat non approuvé</translation>
    </message>
    <message>
        <source>Trust this certificate?</source>
        <translation>Faire confiance à ce certificat ?</translation>
    </message>
    <message>
        <source>%1:%2 presented a TLS certificate that doesn&apos;t chain to a trusted root. Review it before trusting it, anyone with this fingerprint can impersonate the server.</source>
        <translation>%1:%2 a présenté un certificat TLS qui ne remonte à aucune autorité approuvée. Examinez-le avant de lui faire confiance : quiconque possède cette empreinte peut se faire passer pour le serveur.</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(inconnu)</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Émetteur</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Valable du</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valable jusqu’au</translation>
    </message>
    <message>
        <source>SHA-256</source>
        <translation>SHA-256</translation>
    </message>
    <message>
        <source>Previously trusted</source>
        <translation>Approuvé auparavant</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Only trust this certificate if you control the server and recognize the fingerprint. Trusting a malicious certificate gives attackers full access to your calendar data.</source>
        <translation>Ne faites confiance à ce certificat que si vous administrez le serveur et reconnaissez l’empreinte. Un certificat malveillant donne aux attaquants un accès complet à vos données de calendrier.</translation>
    </message>
    <message>
        <source>Trust certificate</source>
        <translation>Faire confiance</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>The connection was closed before the server answered.</source>
        <translation>La connexion a été fermée avant que le serveur réponde.</translation>
    </message>
</context>
<context>
    <name>CalDavConnectionDialog</name>
    <message>
        <source>Add CalDAV Account</source>
        <translation>Ajouter un compte CalDAV</translation>
    </message>
    <message>
        <source>Add Calendars</source>
        <translation>Ajouter les calendriers</translation>
    </message>
    <message>
        <source>Edit CalDAV Account</source>
        <translation>Modifier le compte CalDAV</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The server&apos;s name, unless you give another</source>
        <translation>Le nom du serveur, sauf si vous en donnez un autre</translation>
    </message>
    <message>
        <source>Server &amp;URL</source>
        <translation>&amp;URL du serveur</translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation>&amp;Nom d’utilisateur</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>Mot de &amp;passe</translation>
    </message>
    <message>
        <source>Account na&amp;me</source>
        <translation>No&amp;m du compte</translation>
    </message>
    <message>
        <source>Discover Calendars</source>
        <translation>Rechercher les calendriers</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows what the server has, and lets you pick again.</source>
        <translation>« Rechercher les calendriers » montre ce que le serveur contient et permet de choisir à nouveau.</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows here what the server has.</source>
        <translation>« Rechercher les calendriers » montre ici ce que le serveur contient.</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Calendriers</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendriers</translation>
    </message>
    <message>
        <source>Enter the server URL and your username first.</source>
        <translation>Saisissez d’abord l’URL du serveur et votre nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to have on this device.</source>
        <translation>%1 calendrier(s) trouvé(s). Choisissez ceux à garder sur cet appareil.</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to add.</source>
        <translation>%1 calendrier(s) trouvé(s). Choisissez ceux à ajouter.</translation>
    </message>
    <message>
        <source>Discover first</source>
        <translation>Recherchez d’abord</translation>
    </message>
    <message>
        <source>Click &quot;Discover Calendars&quot; before saving.</source>
        <translation>Cliquez sur « Rechercher les calendriers » avant d’enregistrer.</translation>
    </message>
    <message>
        <source>Pick at least one</source>
        <translation>Choisissez-en au moins un</translation>
    </message>
    <message>
        <source>Select one or more calendars to add.</source>
        <translation>Sélectionnez un ou plusieurs calendriers à ajouter.</translation>
    </message>
    <message>
        <source>Already added</source>
        <translation>Déjà ajouté</translation>
    </message>
    <message>
        <source>This server is already added as &quot;%1&quot;. Its calendars are already available — no need to add it again.</source>
        <translation>Ce serveur est déjà ajouté sous le nom « %1 ». Ses calendriers sont déjà disponibles — inutile de l’ajouter de nouveau.</translation>
    </message>
    <message>
        <source>Remove calendars?</source>
        <translation>Retirer des calendriers ?</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Ce compte a été retiré entre-temps.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Erreur de base de données</translation>
    </message>
    <message>
        <source>Could not save the account.</source>
        <translation>Impossible d’enregistrer le compte.</translation>
    </message>
    <message>
        <source>Saving the password…</source>
        <translation>Enregistrement du mot de passe…</translation>
    </message>
    <message>
        <source>Password not saved</source>
        <translation>Mot de passe non enregistré</translation>
    </message>
    <message>
        <source>The system&apos;s password store cannot be used. Calendars sync until Quillon Calendar is closed; after that you have to enter the password of &quot;%1&quot; again.</source>
        <translation>Le trousseau de mots de passe du système n’est pas disponible. Les calendriers sont synchronisés jusqu’à la fermeture de Quillon Calendar ; ensuite, vous devrez saisir à nouveau le mot de passe de « %1 ».</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation>Enregistrer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Save the account all the same?</source>
        <translation>Voulez-vous enregistrer le compte quand même&#xa0;?</translation>
    </message>
</context>
<context>
    <name>CalDavDiscovery</name>
    <message>
        <source>Enter a CalDAV URL starting with http:// or https://</source>
        <translation>Saisissez une URL CalDAV qui commence par http:// ou https://</translation>
    </message>
    <message>
        <source>The server rejected the username or password.</source>
        <translation>Le serveur a refusé le nom d’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>Could not find a CalDAV account on that server. Check the URL.</source>
        <translation>Aucun compte CalDAV trouvé sur ce serveur. Vérifiez l’URL.</translation>
    </message>
    <message>
        <source>Could not reach the server: %1</source>
        <translation>Impossible de joindre le serveur : %1</translation>
    </message>
    <message>
        <source>Lost connection during calendar-home-set discovery: %1</source>
        <translation>Connexion perdue pendant la recherche du dossier des calendriers : %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during home-set discovery.</source>
        <translation>Le serveur a répondu HTTP %1 pendant la recherche du dossier des calendriers.</translation>
    </message>
    <message>
        <source>Lost connection during calendar enumeration: %1</source>
        <translation>Connexion perdue pendant l’énumération des calendriers : %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during calendar enumeration.</source>
        <translation>Le serveur a répondu HTTP %1 pendant l’énumération des calendriers.</translation>
    </message>
    <message>
        <source>No calendars found at the discovered home set.</source>
        <translation>Aucun calendrier dans le dossier trouvé.</translation>
    </message>
    <message>
        <source>The server refers to another one, which was not given your password. If you trust it, enter its address instead: %1</source>
        <translation>Le serveur renvoie vers un autre, auquel votre mot de passe n’a pas été transmis. Si vous lui faites confiance, saisissez plutôt son adresse&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>La réponse du serveur a été interrompue.</translation>
    </message>
</context>
<context>
    <name>CalDavSyncRun</name>
    <message>
        <source>Network error: %1</source>
        <translation>Erreur réseau : %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during ctag check</source>
        <translation>Le serveur a répondu HTTP %1 pendant la vérification du ctag</translation>
    </message>
    <message>
        <source>Server returned HTTP %1</source>
        <translation>Le serveur a répondu HTTP %1</translation>
    </message>
    <message>
        <source>Network error during task pull: %1</source>
        <translation>Erreur réseau pendant la récupération des tâches : %1</translation>
    </message>
    <message>
        <source>Task push error: %1</source>
        <translation>Erreur d’envoi d’une tâche : %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing task &quot;%2&quot;</source>
        <translation>Le serveur a répondu HTTP %1 à l’envoi de la tâche « %2 »</translation>
    </message>
    <message>
        <source>Push error: %1</source>
        <translation>Erreur d’envoi : %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing &quot;%2&quot;</source>
        <translation>Le serveur a répondu HTTP %1 à l’envoi de « %2 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was moved to your local task list: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>« %1 » a été déplacée dans votre liste de tâches locale : ce calendrier n’accepte pas les tâches. Les tâches y ont été désactivées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was rejected: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>« %1 » a été refusée : ce calendrier n’accepte pas les tâches. Les tâches y ont été désactivées.</translation>
    </message>
</context>
<context>
    <name>CalendarAccess</name>
    <message>
        <source>The calendar no longer exists.</source>
        <translation>Le calendrier n’existe plus.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is read-only.</source>
        <translation>«&#xa0;%1&#xa0;» est en lecture seule.</translation>
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
    <message>
        <source>On this device</source>
        <translation>Sur cet appareil</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>Comp&amp;te</translation>
    </message>
    <message>
        <source>Allow tasks on this calendar</source>
        <translation>Autoriser les tâches dans ce calendrier</translation>
    </message>
    <message>
        <source>Missing password</source>
        <translation>Mot de passe manquant</translation>
    </message>
    <message>
        <source>No saved password for this account. Edit the account first to re-enter your credentials.</source>
        <translation>Aucun mot de passe enregistré pour ce compte. Modifiez d’abord le compte pour saisir à nouveau vos identifiants.</translation>
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
        <translation>Supprimer le calendrier&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and all its events? This cannot be undone.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;» et tous ses événements&#xa0;? Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Re&amp;move from This Device…</source>
        <translation>Retirer de cet appareil (&amp;m)…</translation>
    </message>
</context>
<context>
    <name>CalendarPull</name>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>La réponse du serveur a été interrompue.</translation>
    </message>
    <message>
        <source>Some of the calendar could not be stored.</source>
        <translation>Une partie du calendrier n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is not a list of calendar objects.</source>
        <translation>La réponse du serveur n’est pas une liste d’objets de calendrier.</translation>
    </message>
</context>
<context>
    <name>CalendarRemoval</name>
    <message numerus="yes">
        <source>%n change(s) made here have not reached the server yet and will be lost.</source>
        <translation>
            <numerusform>%n modification faite ici n’a pas encore atteint le serveur et sera perdue.</numerusform>
            <numerusform>%n modifications faites ici n’ont pas encore atteint le serveur et seront perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>Remove %1 from this device? The server keeps what is in it.</source>
        <comment>names of calendars</comment>
        <translation>Retirer %1 de cet appareil ? Le serveur garde son contenu.</translation>
    </message>
    <message>
        <source>Remove calendar?</source>
        <translation>Retirer le calendrier ?</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>CollectionJob</name>
    <message>
        <source>Creating calendar on server…</source>
        <translation>Création du calendrier sur le serveur…</translation>
    </message>
    <message>
        <source>Network error: %1</source>
        <translation>Erreur réseau : %1</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). Your account may not have permission to create calendars on this server.</source>
        <translation>Le serveur a refusé (HTTP %1). Votre compte n’a peut-être pas le droit de créer des calendriers sur ce serveur.</translation>
    </message>
    <message>
        <source>Server returned success but the new calendar isn&apos;t reachable. This server may not support MKCALENDAR.</source>
        <translation>Le serveur a annoncé un succès, mais le nouveau calendrier est introuvable. Ce serveur ne prend peut-être pas en charge MKCALENDAR.</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Ce compte a été retiré entre-temps.</translation>
    </message>
    <message>
        <source>Created on server, but couldn&apos;t save locally. Run sync to recover.</source>
        <translation>Créé sur le serveur, mais impossible de l’enregistrer ici. Lancez une synchronisation pour le récupérer.</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>Ce calendrier a été supprimé entre-temps.</translation>
    </message>
    <message>
        <source>Checking whether this calendar accepts tasks…</source>
        <translation>Vérification de la prise en charge des tâches…</translation>
    </message>
    <message>
        <source>Couldn&apos;t verify task support: %1</source>
        <translation>Impossible de vérifier la prise en charge des tâches : %1</translation>
    </message>
    <message>
        <source>This calendar does not accept tasks (server returned HTTP %1).</source>
        <translation>Ce calendrier n’accepte pas les tâches (le serveur a répondu HTTP %1).</translation>
    </message>
    <message>
        <source>Saving changes to server…</source>
        <translation>Enregistrement des modifications sur le serveur…</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). You may not have permission to rename or recolour this calendar.</source>
        <translation>Le serveur a refusé (HTTP %1). Vous n’avez peut-être pas le droit de renommer ou de recolorer ce calendrier.</translation>
    </message>
    <message>
        <source>Saved on server, but couldn&apos;t update locally.</source>
        <translation>Enregistré sur le serveur, mais impossible de le mettre à jour ici.</translation>
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
        <translation>Couleur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ColorField</name>
    <message>
        <source>Use calendar color</source>
        <translation>Utiliser la couleur du calendrier</translation>
    </message>
</context>
<context>
    <name>ConflictResolutionDialog</name>
    <message>
        <source>Sync conflicts</source>
        <translation>Conflits de synchronisation</translation>
    </message>
    <message>
        <source>No conflicts. Run a sync to detect any.</source>
        <translation>Aucun conflit. Lancez une synchronisation pour en détecter.</translation>
    </message>
    <message>
        <source>These events were edited both locally and on the server. Pick which version to keep for each one.</source>
        <translation>Ces événements ont été modifiés ici et sur le serveur. Choisissez pour chacun la version à garder.</translation>
    </message>
    <message>
        <source>Your version (local)</source>
        <translation>Votre version (locale)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Version du serveur</translation>
    </message>
    <message>
        <source>Keep local</source>
        <translation>Garder la version locale</translation>
    </message>
    <message>
        <source>Use server version</source>
        <translation>Prendre celle du serveur</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Décider plus tard</translation>
    </message>
    <message>
        <source>Conflict: %1</source>
        <translation>Conflit : %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Title:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Titre :&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;When:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Quand :&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Where:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Où :&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Notes:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Notes :&lt;/b&gt; %1</translation>
    </message>
</context>
<context>
    <name>DateTimePicker</name>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <extracomment>a date in a form, as a date pattern</extracomment>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 hr %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>DescriptionFormat</name>
    <message>
        <source>Join Microsoft Teams Meeting</source>
        <translation>Rejoindre la réunion Microsoft Teams</translation>
    </message>
</context>
<context>
    <name>DetailsPopover</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind of detail, its text</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>EventActions</name>
    <message>
        <source>Delete event?</source>
        <translation>Supprimer l’événement&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Vous pourrez annuler avec %2.</translation>
    </message>
</context>
<context>
    <name>EventCanvas</name>
    <message>
        <source>&quot;%1&quot; belongs to a read-only calendar.</source>
        <translation>«&#xa0;%1&#xa0;» appartient à un calendrier en lecture seule.</translation>
    </message>
</context>
<context>
    <name>EventContextMenu</name>
    <message>
        <source>Edit filter &quot;%1&quot;…</source>
        <translation>Modifier le filtre «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Create Filter from Event…</source>
        <translation>Créer un filtre à partir de l’événement…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>EventDetailsPopover</name>
    <message>
        <source>%1 (cancelled)</source>
        <comment>date and time</comment>
        <translation>%1 (annulé)</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Rappels</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Video call</source>
        <translation>Appel vidéo</translation>
    </message>
    <message>
        <source>Where (opens a map)</source>
        <translation>Lieu (ouvre une carte)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>accepté</translation>
    </message>
    <message>
        <source>declined</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>provisoire</translation>
    </message>
    <message>
        <source>delegated</source>
        <translation>délégué</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>pas encore de réponse</translation>
    </message>
    <message>
        <source>%1 (organizer)</source>
        <translation>%1 (organisateur)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>attendee, answer</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Participants</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
</context>
<context>
    <name>EventEdits</name>
    <message>
        <source>The event no longer exists.</source>
        <translation>L’événement n’existe plus.</translation>
    </message>
    <message>
        <source>Created &quot;%1&quot;</source>
        <translation>Création de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Moved &quot;%1&quot;</source>
        <translation>Déplacement de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Resized &quot;%1&quot;</source>
        <translation>Changement de durée de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>Suppression de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not save the event.</source>
        <translation>L’événement n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Changed &quot;%1&quot;</source>
        <translation>Modification de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>L’autre calendrier contient déjà «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <source>New Event</source>
        <translation>Nouvel événement</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>Créer l’événement</translation>
    </message>
    <message>
        <source>Edit Event</source>
        <translation>Modifier l’événement</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>Nouvel événement</translation>
    </message>
    <message>
        <source>Edit event</source>
        <translation>Modifier l’événement</translation>
    </message>
    <message>
        <source>Fill in the basics. Start time and calendar are required.</source>
        <translation>Saisissez l’essentiel. L’heure de début et le calendrier sont obligatoires.</translation>
    </message>
    <message>
        <source>Update the details below and save to apply.</source>
        <translation>Modifiez les détails ci-dessous, puis enregistrez pour les appliquer.</translation>
    </message>
    <message>
        <source>Changes apply to all events in the series.</source>
        <translation>Les modifications s’appliquent à tous les événements de la série.</translation>
    </message>
    <message>
        <source>Lunch with Sarah, sprint planning…</source>
        <translation>Déjeuner avec Sarah, planification de sprint…</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Couleur de l’événement</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Adresse, salle ou lien vidéo</translation>
    </message>
    <message>
        <source>Notes, agenda, links…</source>
        <translation>Notes, ordre du jour, liens…</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendrier</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>&amp;Ends</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Répétition</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Participants</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Ra&amp;ppels</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>From template…</source>
        <translation>À partir d’un modèle…</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>&amp;Journée entière</translation>
    </message>
    <message>
        <source>Times are shown as your clock has them. The event is planned in %1.</source>
        <translation>Les heures sont celles de votre horloge. L’événement est planifié dans le fuseau %1.</translation>
    </message>
    <message>
        <source>This event belongs to a read-only calendar.</source>
        <translation>Cet événement appartient à un calendrier en lecture seule.</translation>
    </message>
    <message>
        <source>No templates</source>
        <translation>Aucun modèle</translation>
    </message>
    <message>
        <source>You haven&apos;t created any event templates yet. Open Tools → Manage Templates to create one.</source>
        <translation>Vous n’avez encore créé aucun modèle d’événement. Ouvrez Outils → Gérer les modèles pour en créer un.</translation>
    </message>
    <message>
        <source>Title required</source>
        <translation>Titre requis</translation>
    </message>
    <message>
        <source>Please enter a title for the event.</source>
        <translation>Veuillez saisir un titre pour l’événement.</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>Aucun calendrier</translation>
    </message>
    <message>
        <source>Create a calendar first.</source>
        <translation>Créez d’abord un calendrier.</translation>
    </message>
    <message>
        <source>End before start</source>
        <translation>Fin avant le début</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>L’heure de fin précède l’heure de début.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Erreur de base de données</translation>
    </message>
    <message>
        <source>This is one event of a series, changed on its own.</source>
        <translation>C’est un événement d’une série, modifié séparément.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
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
    <name>EventTimes</name>
    <message>
        <source>The event has no start time.</source>
        <translation>L’événement n’a pas d’heure de début.</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>L’heure de fin précède l’heure de début.</translation>
    </message>
    <message>
        <source>The series ends before its first event. Choose a later last day.</source>
        <translation>La série se termine avant son premier événement. Choisissez un dernier jour plus tardif.</translation>
    </message>
</context>
<context>
    <name>EventUndo</name>
    <message>
        <source>The change could not be taken back.</source>
        <translation>La modification n’a pas pu être annulée.</translation>
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
        <translation>Supprimer le filtre&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? The events it hides or dims show again.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Les événements qu’il masque ou estompe s’afficheront de nouveau.</translation>
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
        <source>title is &quot;%1&quot;</source>
        <translation>le titre est «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>title contains &quot;%1&quot;</source>
        <translation>le titre contient «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>description contains &quot;%1&quot;</source>
        <translation>la description contient «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>location contains &quot;%1&quot;</source>
        <translation>le lieu contient «&#xa0;%1&#xa0;»</translation>
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
        <source>the event &quot;%1&quot;</source>
        <translation>l’événement «&#xa0;%1&#xa0;»</translation>
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
        <source>A range over midnight matches nothing. Make two filters: one for the evening, with only &quot;at or after&quot;, and one for the morning.</source>
        <translation>Une plage qui passe minuit ne correspond à rien. Créez deux filtres&#xa0;: un pour le soir, avec seulement «&#xa0;à partir de&#xa0;», et un pour le matin.</translation>
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
    <name>FormDialog</name>
    <message>
        <source>Discard changes?</source>
        <translation>Abandonner les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Your changes have not been saved.</source>
        <translation>Vos modifications n’ont pas été enregistrées.</translation>
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
        <translation>Groupe de calendriers&#xa0;: %1</translation>
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
        <translation>Importation… %1&#xa0;%</translation>
    </message>
    <message>
        <source>Reading… %1%</source>
        <translation>Lecture… %1&#xa0;%</translation>
    </message>
    <message>
        <source>No calendars configured</source>
        <translation>Aucun calendrier configuré</translation>
    </message>
    <message>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Ajoutez d’abord un calendrier modifiable, puis réimportez «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;» en lecture.</translation>
    </message>
    <message>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>Aucun événement trouvé dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>Rien à importer</translation>
    </message>
    <message>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>Événements importés dans %3&#xa0;: %1&#xa0;; mis à jour&#xa0;: %2.</translation>
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
        <source>&quot;%1&quot; is too large to import.</source>
        <translation>«&#xa0;%1&#xa0;» est trop volumineux pour être importé.</translation>
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
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>Importer 1 événement de «&#xa0;%1&#xa0;» dans&#xa0;:</translation>
    </message>
    <message>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>Importer %1 événements de «&#xa0;%2&#xa0;» dans&#xa0;:</translation>
    </message>
    <message>
        <source>Import 1 event from %1 files into:</source>
        <translation>Importer 1 événement de %1 fichiers dans&#xa0;:</translation>
    </message>
    <message>
        <source>Import %1 events from %2 files into:</source>
        <translation>Importer %1 événements de %2 fichiers dans&#xa0;:</translation>
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
    <message>
        <source>&amp;New Event…</source>
        <translation>Nouvel é&amp;vénement…</translation>
    </message>
    <message>
        <source>New &amp;Task…</source>
        <translation>Nouvelle &amp;tâche…</translation>
    </message>
    <message>
        <source>Quick &amp;Add…</source>
        <translation>&amp;Ajout rapide…</translation>
    </message>
    <message>
        <source>Type an event in plain English (&quot;lunch Thursday 1pm&quot;)</source>
        <translation>Saisir un événement en anglais («&#xa0;lunch Thursday 1pm&#xa0;»)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Toggle &amp;Tasks Pane</source>
        <translation>Afficher ou masquer le volet des &amp;tâches</translation>
    </message>
    <message>
        <source>Manage Fil&amp;ters…</source>
        <translation>&amp;Gérer les filtres…</translation>
    </message>
    <message>
        <source>Manage Te&amp;mplates…</source>
        <translation>Gérer les &amp;modèles…</translation>
    </message>
    <message>
        <source>&amp;What&apos;s New</source>
        <translation>&amp;Nouveautés</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Envoyer un commentaire…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Rechercher des &amp;mises à jour…</translation>
    </message>
    <message>
        <source>Events in the calendar</source>
        <translation>Événements du calendrier</translation>
    </message>
    <message>
        <source>All-day events that do not all fit</source>
        <translation>Événements d’une journée entière trop nombreux pour tous tenir</translation>
    </message>
    <message>
        <source>Select the next one or the one before</source>
        <translation>Sélectionner le suivant ou le précédent</translation>
    </message>
    <message>
        <source>Open the selected one</source>
        <translation>Ouvrir la sélection</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Move it by a day</source>
        <translation>Déplacer d’un jour</translation>
    </message>
    <message>
        <source>Move it by a quarter of an hour</source>
        <translation>Déplacer d’un quart d’heure</translation>
    </message>
    <message>
        <source>Let it end later or earlier</source>
        <translation>Faire finir plus tard ou plus tôt</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show the first ones only</source>
        <translation>Afficher seulement les premiers</translation>
    </message>
    <message>
        <source>Show more or fewer, while none is selected</source>
        <translation>Afficher plus ou moins, si rien n’est sélectionné</translation>
    </message>
    <message>
        <source>Undo (drag/resize/delete)</source>
        <translation>Annuler (déplacement/redimensionnement/suppression)</translation>
    </message>
    <message>
        <source>Calendar Acc&amp;ounts…</source>
        <translation>C&amp;omptes de calendrier…</translation>
    </message>
    <message>
        <source>&amp;Sync Now</source>
        <translation>&amp;Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Force F&amp;ull Sync…</source>
        <translation>Forcer une s&amp;ynchronisation complète…</translation>
    </message>
    <message>
        <source>Re-pull every event from every account, ignoring sync tokens</source>
        <translation>Récupérer à nouveau tous les événements de tous les comptes, sans tenir compte des jetons de synchronisation</translation>
    </message>
    <message>
        <source>&amp;Sync Conflicts…</source>
        <translation>Conflits de &amp;synchronisation…</translation>
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
    <message>
        <source>Undid: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Ajout rapide ignoré&#xa0;: aucun calendrier configuré.</translation>
    </message>
    <message>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>Ajout rapide non compris&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Force full sync?</source>
        <translation>Forcer une synchronisation complète ?</translation>
    </message>
    <message>
        <source>Re-fetch every event and task from every account, ignoring saved sync tokens. Useful when items look stale or out of date.

Any unsynced local edits will be discarded in favour of the server&apos;s copy. Pending deletions are preserved.

Heavy accounts may take a minute or two and use more bandwidth than usual.</source>
        <translation>Tous les événements et tâches de tous les comptes sont récupérés à nouveau, sans tenir compte des jetons de synchronisation. Utile quand des éléments semblent périmés.

Les modifications locales non synchronisées sont abandonnées au profit de la copie du serveur. Les suppressions en attente sont conservées.

Pour de gros comptes, cela peut prendre une minute ou deux et consommer plus de données que d’habitude.</translation>
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
        <translation>Aucun filtre pour l’instant. Un filtre masque ou estompe des événements sur cet appareil&#xa0;; il ne les modifie jamais.</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <source>Calendar Accounts</source>
        <translation>Comptes de calendrier</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>&amp;CalDAV account…</source>
        <translation>Compte &amp;CalDAV…</translation>
    </message>
    <message>
        <source>&amp;Local calendar…</source>
        <translation>Calendrier &amp;local…</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; and its calendars from this device? The server keeps what is in them.</source>
        <translation>Retirer « %1 » et ses calendriers de cet appareil ? Le serveur garde leur contenu.</translation>
    </message>
    <message>
        <source>Remove account?</source>
        <translation>Retirer le compte ?</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n nouveau calendrier trouvé.</numerusform>
            <numerusform>%n nouveaux calendriers trouvés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ManageTemplatesDialog</name>
    <message>
        <source>Manage Templates</source>
        <translation>Gérer les modèles</translation>
    </message>
    <message>
        <source>No templates yet. A template fills in a new event: title, place, length, reminders.</source>
        <translation>Aucun modèle pour l’instant. Un modèle préremplit un nouvel événement&#xa0;: titre, lieu, durée, rappels.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Journée entière</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>title, length</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Delete template?</source>
        <translation>Supprimer le modèle&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Events made from it stay.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Les événements créés à partir de ce modèle sont conservés.</translation>
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
        <translation>Supprimer le groupe&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can recreate it later.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Vous pourrez le recréer plus tard.</translation>
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
    <name>OptionalDateField</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Has a date: %1</source>
        <translation>A une date&#xa0;: %1</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Aucune date</translation>
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
    <name>PasswordField</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
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
    <message>
        <source>Show week n&amp;umbers</source>
        <translation>Afficher les numéros de &amp;semaine</translation>
    </message>
</context>
<context>
    <name>QuickAdd</name>
    <message>
        <source>There is no such date or time.</source>
        <translation>Cette date ou cette heure n’existe pas.</translation>
    </message>
    <message>
        <source>There is no calendar that can be written to. Create one first.</source>
        <translation>Il n’y a aucun calendrier modifiable. Créez-en un d’abord.</translation>
    </message>
</context>
<context>
    <name>QuickAddDialog</name>
    <message>
        <source>Quick Add</source>
        <translation>Ajout rapide</translation>
    </message>
    <message>
        <source>lunch with Sam tomorrow at 12:30pm for 90 min</source>
        <translation>lunch with Sam tomorrow at 12:30pm for 90 min</translation>
    </message>
    <message>
        <source>What to add, in plain English</source>
        <translation>Ce qu’il faut ajouter, en anglais</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Creates</source>
        <translation>Crée</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Begin with &quot;task:&quot; or &quot;remind me to&quot; for a task or a reminder. #tags become categories of tasks.</source>
        <translation>En anglais seulement. Commencez par «&#xa0;task:&#xa0;» ou «&#xa0;remind me to&#xa0;» pour une tâche ou un rappel. Les #étiquettes deviennent des catégories de tâches.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Aucune date</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>This could not be added.</source>
        <translation>L’ajout n’a pas pu être effectué.</translation>
    </message>
</context>
<context>
    <name>QuillonFeedback::FeedbackDialog</name>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message>
        <source>Add these &amp;lines about the program and the system</source>
        <translation>Ajouter ces &amp;lignes sur le programme et le système</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Votre &amp;message</translation>
    </message>
    <message>
        <source>What works well? What went wrong, and what had you expected?</source>
        <translation>Qu’est-ce qui marche bien&#xa0;? Qu’est-ce qui n’a pas marché, et à quoi vous attendiez-vous&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>&amp;Write E-Mail…</source>
        <translation>&amp;Rédiger un e-mail…</translation>
    </message>
    <message>
        <source>Copy &amp;Text</source>
        <translation>Copier le &amp;texte</translation>
    </message>
    <message>
        <source>Only what you see here is sent, to %1.</source>
        <translation>Seul ce que vous voyez ici est envoyé, à %1.</translation>
    </message>
    <message>
        <source>Your mail program opens with the text, for you to read once more and send.</source>
        <translation>Votre logiciel de messagerie s’ouvrira avec le texte, pour que vous puissiez le relire et l’envoyer.</translation>
    </message>
    <message>
        <source>This build has no address for feedback. Copy the text, and send it to whoever gave you the program.</source>
        <translation>Cette version n’a pas d’adresse pour les commentaires. Copiez le texte et envoyez-le à la personne qui vous a fourni le programme.</translation>
    </message>
    <message>
        <source>Write a message first.</source>
        <translation>Rédigez d’abord un message.</translation>
    </message>
    <message>
        <source>Feedback on Quillon Calendar</source>
        <translation>Commentaire sur Quillon Calendar</translation>
    </message>
    <message>
        <source>No mail program could be opened. Copy the text instead.</source>
        <translation>Aucun logiciel de messagerie n’a pu être ouvert. Copiez plutôt le texte.</translation>
    </message>
    <message>
        <source>The text is on the clipboard.</source>
        <translation>Le texte est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Thank you. Your feedback was sent.</source>
        <translation>Merci. Votre commentaire a été envoyé.</translation>
    </message>
    <message>
        <source>The feedback could not be sent: %1</source>
        <translation>Le commentaire n’a pas pu être envoyé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate</name>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>You&apos;re up to date. %1 %2 is the newest version.</source>
        <translation>Vous êtes à jour. %1 %2 est la version la plus récente.</translation>
    </message>
    <message>
        <source>The check for updates failed.

%1</source>
        <translation>La recherche de mises à jour a échoué.

%1</translation>
    </message>
    <message>
        <source>This copy of %1 does not look for updates. They come from where you got the program, such as your system&apos;s package manager.</source>
        <translation>Cette copie de %1 ne recherche pas de mises à jour. Elles viennent de là où vous avez obtenu le programme, par exemple du gestionnaire de paquets de votre système.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
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
        <source>What&apos;s new</source>
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
    <name>RecurrenceButton</name>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Do not repeat</source>
        <translation>Ne pas répéter</translation>
    </message>
    <message>
        <source>Does not repeat</source>
        <translation>Aucune répétition</translation>
    </message>
</context>
<context>
    <name>RecurrenceEditDialog</name>
    <message>
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Quotidienne</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Hebdomadaire</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensuelle</translation>
    </message>
    <message>
        <source>Yearly</source>
        <translation>Annuelle</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Fréquence</translation>
    </message>
    <message>
        <source>&amp;Every</source>
        <translation>&amp;Intervalle</translation>
    </message>
    <message>
        <source>M</source>
        <comment>Monday</comment>
        <translation>L</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Tuesday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Wednesday</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Thursday</comment>
        <translation>J</translation>
    </message>
    <message>
        <source>F</source>
        <comment>Friday</comment>
        <translation>V</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Saturday</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Sunday</comment>
        <translation>D</translation>
    </message>
    <message>
        <source>On &amp;day of the month</source>
        <translation>Le &amp;jour</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Jour du mois</translation>
    </message>
    <message>
        <source>On the &amp;nth weekday</source>
        <translation>Un jour de la &amp;semaine</translation>
    </message>
    <message>
        <source>Which one</source>
        <translation>Lequel</translation>
    </message>
    <message>
        <source>first</source>
        <translation>premier</translation>
    </message>
    <message>
        <source>second</source>
        <translation>deuxième</translation>
    </message>
    <message>
        <source>third</source>
        <translation>troisième</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>quatrième</translation>
    </message>
    <message>
        <source>last</source>
        <translation>dernier</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Jour de la semaine</translation>
    </message>
    <message>
        <source>of every month</source>
        <translation>de chaque mois</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Ne&amp;ver</source>
        <translation>Ja&amp;mais</translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation>&amp;Après</translation>
    </message>
    <message>
        <source>Number of occurrences</source>
        <translation>Nombre d’occurrences</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>&amp;Le</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>occurrences</source>
        <translation>occurrences</translation>
    </message>
    <message numerus="yes">
        <source>day(s)</source>
        <translation>
            <numerusform>jour</numerusform>
            <numerusform>jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>week(s)</source>
        <translation>
            <numerusform>semaine</numerusform>
            <numerusform>semaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>month(s)</source>
        <translation>
            <numerusform>mois</numerusform>
            <numerusform>mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>year(s)</source>
        <translation>
            <numerusform>an</numerusform>
            <numerusform>ans</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecurringEditScopeDialog</name>
    <message>
        <source>This event only</source>
        <translation>Cet événement uniquement</translation>
    </message>
    <message>
        <source>Only this occurrence is changed; the rest of the series stays as it was.</source>
        <translation>Seule cette occurrence est modifiée&#xa0;; le reste de la série demeure tel quel.</translation>
    </message>
    <message>
        <source>This and following events</source>
        <translation>Cet événement et les suivants</translation>
    </message>
    <message>
        <source>This occurrence and every later one inherit the change. Past occurrences keep their original times.</source>
        <translation>Cette occurrence et toutes les suivantes reçoivent la modification. Les occurrences passées gardent leurs horaires d’origine.</translation>
    </message>
    <message>
        <source>All events in the series</source>
        <translation>Tous les événements de la série</translation>
    </message>
    <message>
        <source>The master event shifts; every occurrence — past and future — moves with it.</source>
        <translation>L’événement principal se décale&#xa0;; chaque occurrence — passée et future — se déplace avec lui.</translation>
    </message>
    <message>
        <source>Edit Recurring Event</source>
        <translation>Modifier un événement récurrent</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;</source>
        <translation>Modifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>This event repeats. Apply your changes to:</source>
        <translation>Cet événement se répète. Appliquer les modifications à&#xa0;:</translation>
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
    <name>RemindersEditor</name>
    <message>
        <source>At time of event</source>
        <translation>À l’heure de l’événement</translation>
    </message>
    <message>
        <source>5 minutes before</source>
        <translation>5 minutes avant</translation>
    </message>
    <message>
        <source>10 minutes before</source>
        <translation>10 minutes avant</translation>
    </message>
    <message>
        <source>15 minutes before</source>
        <translation>15 minutes avant</translation>
    </message>
    <message>
        <source>30 minutes before</source>
        <translation>30 minutes avant</translation>
    </message>
    <message>
        <source>1 hour before</source>
        <translation>1 heure avant</translation>
    </message>
    <message>
        <source>2 hours before</source>
        <translation>2 heures avant</translation>
    </message>
    <message>
        <source>1 day before</source>
        <translation>1 jour avant</translation>
    </message>
    <message>
        <source>2 days before</source>
        <translation>2 jours avant</translation>
    </message>
    <message>
        <source>1 week before</source>
        <translation>1 semaine avant</translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1 minutes avant</translation>
    </message>
    <message>
        <source>%1 hours %2 minutes before</source>
        <translation>%1 heures %2 minutes avant</translation>
    </message>
    <message>
        <source>%1 hours before</source>
        <translation>%1 heures avant</translation>
    </message>
    <message>
        <source>%1 days before</source>
        <translation>%1 jours avant</translation>
    </message>
    <message>
        <source>+ Add reminder</source>
        <translation>+ Ajouter un rappel</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Remove reminder</source>
        <translation>Supprimer le rappel</translation>
    </message>
</context>
<context>
    <name>RruleFormat</name>
    <message>
        <source>Mon</source>
        <translation>lun.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mer.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>jeu.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ven.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sam.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dim.</translation>
    </message>
    <message>
        <source>first</source>
        <translation>premier</translation>
    </message>
    <message>
        <source>second</source>
        <translation>deuxième</translation>
    </message>
    <message>
        <source>third</source>
        <translation>troisième</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>quatrième</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>cinquième</translation>
    </message>
    <message>
        <source>last</source>
        <translation>dernier</translation>
    </message>
    <message>
        <source>second-to-last</source>
        <translation>avant-dernier</translation>
    </message>
    <message>
        <source>%1th-from-last</source>
        <translation>%1e (en partant de la fin)</translation>
    </message>
    <message>
        <source>%1nd</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1rd</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1th</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Repeats daily</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <translation>Tous les %1 jours</translation>
    </message>
    <message>
        <source>Repeats weekly</source>
        <translation>Toutes les semaines</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <translation>Toutes les %1 semaines</translation>
    </message>
    <message>
        <source>Repeats monthly</source>
        <translation>Tous les mois</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <translation>Tous les %1 mois</translation>
    </message>
    <message>
        <source>Repeats yearly</source>
        <translation>Tous les ans</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <translation>Tous les %1 ans</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Se répète</translation>
    </message>
    <message>
        <source>on the %1 %2</source>
        <extracomment>as in &quot;on the second Tue&quot; of a month</extracomment>
        <translation>le %1 %2</translation>
    </message>
    <message>
        <source>on the %1</source>
        <extracomment>as in &quot;on the 22nd&quot; of a month</extracomment>
        <translation>le %1</translation>
    </message>
    <message numerus="yes">
        <source>%n time(s)</source>
        <translation>
            <numerusform>%n fois</numerusform>
            <numerusform>%n fois</numerusform>
        </translation>
    </message>
    <message>
        <source>until %1</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>jusqu’au %1</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>At time of event</source>
        <translation>À l’heure de l’événement</translation>
    </message>
    <message>
        <source>%1 min before</source>
        <translation>%1 min avant</translation>
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
        <source>%1st</source>
        <comment>weekday of a month</comment>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1st</source>
        <comment>day of a month</comment>
        <translation>%1</translation>
    </message>
</context>
<context>
    <name>ServerLookup</name>
    <message>
        <source>Enter the password of this account first.</source>
        <translation>Saisissez d’abord le mot de passe de ce compte.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Connection cancelled, certificate not trusted.</source>
        <translation>Connexion annulée, certificat non approuvé.</translation>
    </message>
    <message>
        <source>Certificate trusted. Retrying…</source>
        <translation>Certificat approuvé. Nouvel essai…</translation>
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
        <translation>Quitter le groupe&#xa0;: les cases à cocher déterminent de nouveau ce qui est affiché</translation>
    </message>
    <message>
        <source>Showing group “%1”</source>
        <translation>Groupe affiché&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>SilenceGuard</name>
    <message>
        <source>The server has stopped answering.</source>
        <translation>Le serveur ne répond plus.</translation>
    </message>
</context>
<context>
    <name>SyncScheduler</name>
    <message>
        <source>All caught up, nothing waiting to sync.</source>
        <translation>Tout est à jour, rien à synchroniser.</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Mot de passe manquant</translation>
    </message>
    <message>
        <source>Synced %1 events</source>
        <translation>%1 événements synchronisés</translation>
    </message>
    <message>
        <source>Syncing %1 account(s)…</source>
        <translation>Synchronisation de %1 compte(s)…</translation>
    </message>
    <message>
        <source>No sync accounts configured. Add one in Calendar Accounts.</source>
        <translation>Aucun compte à synchroniser. Ajoutez-en un dans les comptes de calendrier.</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n nouveau calendrier trouvé.</numerusform>
            <numerusform>%n nouveaux calendriers trouvés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared %n calendar sync token(s), running full sync…</source>
        <translation>
            <numerusform>%n jeton de synchronisation effacé, synchronisation complète en cours…</numerusform>
            <numerusform>%n jetons de synchronisation effacés, synchronisation complète en cours…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>Delete task?</source>
        <translation>Supprimer la tâche&#xa0;?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Its subtasks stay.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Ses sous-tâches sont conservées.</translation>
    </message>
    <message>
        <source>Can&apos;t move task</source>
        <translation>Impossible de déplacer la tâche</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Mark as Not Completed</source>
        <translation>Marquer comme non terminée</translation>
    </message>
    <message>
        <source>Mark as Completed</source>
        <translation>Marquer comme terminée</translation>
    </message>
    <message>
        <source>Add Subtask…</source>
        <translation>Ajouter une sous-tâche…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>TaskDetailsPopover</name>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Part of</source>
        <translation>Fait partie de</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Starts</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Rappels</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>%1, %2%</source>
        <comment>status, progress</comment>
        <translation>%1, %2&#xa0;%</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>Non terminée</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
</context>
<context>
    <name>TaskDropHandler</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Set start date for &quot;%1&quot; to %2</source>
        <translation>Date de début de «&#xa0;%1&#xa0;» définie&#xa0;: %2</translation>
    </message>
    <message>
        <source>Set due date for &quot;%1&quot; to %2</source>
        <translation>Échéance de «&#xa0;%1&#xa0;» définie&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Create event from task</source>
        <translation>Créer un événement à partir de la tâche</translation>
    </message>
    <message>
        <source>Set start date</source>
        <translation>Définir la date de début</translation>
    </message>
    <message>
        <source>Set due date</source>
        <translation>Définir l’échéance</translation>
    </message>
</context>
<context>
    <name>TaskEdits</name>
    <message>
        <source>Couldn&apos;t update task — see log.</source>
        <translation>Impossible de mettre à jour la tâche — voir le journal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold tasks.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas contenir de tâches.</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>La tâche n’existe plus.</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>L’autre calendrier contient déjà «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Subtasks must belong to the same calendar as their parent. Move &quot;%1&quot; to the same calendar first.</source>
        <translation>Les sous-tâches doivent appartenir au même calendrier que leur tâche parente. Déplacez d’abord «&#xa0;%1&#xa0;» vers ce calendrier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved below one of its own subtasks.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être déplacée sous l’une de ses propres sous-tâches.</translation>
    </message>
</context>
<context>
    <name>TaskFormDialog</name>
    <message>
        <source>New Task</source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message>
        <source>Create task</source>
        <translation>Créer la tâche</translation>
    </message>
    <message>
        <source>Edit Reminder</source>
        <translation>Modifier le rappel</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Modifier la tâche</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendrier</translation>
    </message>
    <message>
        <source>&amp;Part of</source>
        <translation>F&amp;ait partie de</translation>
    </message>
    <message>
        <source>&amp;Due</source>
        <translation>Éc&amp;héance</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Répétition</translation>
    </message>
    <message>
        <source>Ne&amp;xt date</source>
        <translation>Date &amp;suivante</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Ra&amp;ppels</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>Pri&amp;orité</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>Stat&amp;ut</translation>
    </message>
    <message>
        <source>Cate&amp;gories</source>
        <translation>Caté&amp;gories</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>Ce qui est à faire</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Date d’échéance</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Heure d’échéance</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>From the due date</source>
        <translation>À partir de la date d’échéance</translation>
    </message>
    <message>
        <source>From the day of completion</source>
        <translation>À partir du jour d’achèvement</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Home, errands</source>
        <translation>Maison, courses</translation>
    </message>
    <message>
        <source>Task color</source>
        <translation>Couleur de la tâche</translation>
    </message>
    <message>
        <source>Notes, links…</source>
        <translation>Notes, liens…</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>Progress in percent</source>
        <translation>Avancement en pourcentage</translation>
    </message>
    <message>
        <source>No other task</source>
        <translation>Aucune autre tâche</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>priority, its number</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This task belongs to a read-only calendar.</source>
        <translation>Cette tâche appartient à un calendrier en lecture seule.</translation>
    </message>
    <message>
        <source>Please enter a title for the task.</source>
        <translation>Veuillez saisir un titre pour la tâche.</translation>
    </message>
    <message>
        <source>No calendar can hold tasks. Create a local calendar first.</source>
        <translation>Aucun calendrier ne peut contenir de tâches. Créez d’abord un calendrier local.</translation>
    </message>
    <message>
        <source>The task is due before it starts.</source>
        <translation>L’échéance de la tâche précède son début.</translation>
    </message>
    <message>
        <source>Could not save the task.</source>
        <translation>La tâche n’a pas pu être enregistrée.</translation>
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
        <translation>(Sans titre)</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Non commencée</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>a date of this year, and one of another, as date patterns</extracomment>
        <translation>ddd d MMM</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
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
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Filter tasks</source>
        <translation>Filtrer les tâches</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Cette semaine</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Group by calendar</source>
        <translation>Grouper par calendrier</translation>
    </message>
    <message>
        <source>Hide completed</source>
        <translation>Masquer les tâches terminées</translation>
    </message>
    <message>
        <source>Show notes</source>
        <translation>Afficher les notes</translation>
    </message>
    <message>
        <source>Show categories</source>
        <translation>Afficher les catégories</translation>
    </message>
    <message>
        <source>Switch the filter to see other tasks.</source>
        <translation>Changez de filtre pour voir d’autres tâches.</translation>
    </message>
    <message>
        <source>No tasks yet</source>
        <translation>Aucune tâche pour l’instant</translation>
    </message>
    <message>
        <source>Create a task to track what needs doing.</source>
        <translation>Créez une tâche pour suivre ce qu’il y a à faire.</translation>
    </message>
    <message>
        <source>Nothing due today</source>
        <translation>Rien à échéance aujourd’hui</translation>
    </message>
    <message>
        <source>Nothing due this week</source>
        <translation>Rien à échéance cette semaine</translation>
    </message>
    <message>
        <source>Nothing overdue</source>
        <translation>Rien en retard</translation>
    </message>
    <message>
        <source>You&apos;re caught up. Nice.</source>
        <translation>Vous êtes à jour. Bravo.</translation>
    </message>
    <message>
        <source>+ New Task</source>
        <translation>+ Nouvelle tâche</translation>
    </message>
    <message>
        <source>Filter tasks: %1</source>
        <extracomment>%1 is the name of a filter</extracomment>
        <translation>Filtrer les tâches : %1</translation>
    </message>
</context>
<context>
    <name>TasksPaneRow</name>
    <message>
        <source>due %1</source>
        <comment>date</comment>
        <translation>échéance&#xa0;: %1</translation>
    </message>
    <message>
        <source>priority %1</source>
        <translation>priorité&#xa0;: %1</translation>
    </message>
    <message>
        <source>subtask</source>
        <translation>sous-tâche</translation>
    </message>
    <message>
        <source>IN PROGRESS</source>
        <translation>EN COURS</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>ANNULÉE</translation>
    </message>
    <message>
        <source>↳ subtask</source>
        <translation>↳ sous-tâche</translation>
    </message>
    <message>
        <source>Waiting to sync</source>
        <translation>En attente de synchronisation</translation>
    </message>
</context>
<context>
    <name>TemplateFormDialog</name>
    <message>
        <source>New Template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Edit Template</source>
        <translation>Modifier le modèle</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nom du modèle</translation>
    </message>
    <message>
        <source>Title of the event</source>
        <translation>Titre de l’événement</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Adresse, salle ou lien vidéo</translation>
    </message>
    <message>
        <source>Any calendar</source>
        <translation>N’importe quel calendrier</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Couleur de l’événement</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendrier</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>D&amp;urée</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Répétition</translation>
    </message>
    <message>
        <source>L&amp;ocation</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>Rem&amp;inders</source>
        <translation>Ra&amp;ppels</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source> hr</source>
        <translation> h</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> day(s)</source>
        <translation> jour(s)</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>&amp;Journée entière</translation>
    </message>
    <message>
        <source>Enter a name for the template.</source>
        <translation>Saisissez un nom pour le modèle.</translation>
    </message>
    <message>
        <source>This template was deleted in the meantime.</source>
        <translation>Ce modèle a été supprimé entre-temps.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <translation>Le modèle n’a pas pu être enregistré.</translation>
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
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
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
<context>
    <name>WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Welcome to Quillon Calendar</source>
        <translation>Bienvenue dans Quillon Calendar</translation>
    </message>
    <message>
        <source>Your days at a glance, on your own computer.</source>
        <translation>Vos journées en un coup d’œil, sur votre propre ordinateur.</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Pa&amp;sser</translation>
    </message>
    <message>
        <source>Everything is kept on this computer, so it works offline.</source>
        <translation>Tout est conservé sur cet ordinateur et fonctionne donc hors ligne.</translation>
    </message>
    <message>
        <source>Filters and groups show what matters, and delete nothing.</source>
        <translation>Les filtres et les groupes montrent l’essentiel et ne suppriment rien.</translation>
    </message>
    <message>
        <source>Events can be typed in plain English: “lunch Thursday 1pm”.</source>
        <translation>Les événements peuvent être saisis en anglais&#xa0;: «&#xa0;lunch Thursday 1pm&#xa0;».</translation>
    </message>
    <message>
        <source>As you like it</source>
        <translation>À votre goût</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>Time &amp;format</source>
        <translation>&amp;Format de l’heure</translation>
    </message>
    <message>
        <source>Your calendars</source>
        <translation>Vos calendriers</translation>
    </message>
    <message>
        <source>&amp;Import a calendar file…</source>
        <translation>&amp;Importer un fichier de calendrier…</translation>
    </message>
    <message>
        <source>&amp;Add a calendar…</source>
        <translation>&amp;Ajouter un calendrier…</translation>
    </message>
    <message>
        <source>A first calendar is there already. You can do all of this later.</source>
        <translation>Un premier calendrier existe déjà. Vous pourrez faire tout cela plus tard.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>T&amp;erminer</translation>
    </message>
    <message>
        <source>First day of the &amp;week</source>
        <translation>Premier jour de la &amp;semaine</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>What&apos;s New</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>What&apos;s new in %1</source>
        <translation>Nouveautés de %1</translation>
    </message>
    <message>
        <source>This build carries no release notes.</source>
        <translation>Cette version ne contient pas de notes de version.</translation>
    </message>
</context>
</TS>
