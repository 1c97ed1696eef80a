<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quillon Calendar</source>
        <translation>Acerca de Quillon Calendar</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Creado con</translation>
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
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>AccountDetails</name>
    <message>
        <source>Manually</source>
        <translation>Manualmente</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hour(s)</source>
        <translation>
            <numerusform>Cada %n hora</numerusform>
            <numerusform>Cada %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n minute(s)</source>
        <translation>
            <numerusform>Cada %n minuto</numerusform>
            <numerusform>Cada %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>S&amp;ync this account</source>
        <translation>&amp;Sincronizar esta cuenta</translation>
    </message>
    <message>
        <source>E&amp;xclude from cloud sync</source>
        <translation>E&amp;xcluir de la sincronización en la nube</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>Last sync</source>
        <translation>Última sincronización</translation>
    </message>
    <message>
        <source>Sync &amp;interval</source>
        <translation>&amp;Intervalo de sincronización</translation>
    </message>
    <message>
        <source>C&amp;olor</source>
        <translation>C&amp;olor</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Act&amp;ualizar</translation>
    </message>
    <message>
        <source>Remo&amp;ve…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Introducir co&amp;ntraseña…</translation>
    </message>
    <message>
        <source>Review &amp;Certificate…</source>
        <translation>&amp;Revisar certificado…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>AccountHealth</name>
    <message>
        <source>On this device</source>
        <translation>En este dispositivo</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>El certificado ha cambiado</translation>
    </message>
    <message>
        <source>The server shows a certificate that you have not trusted. Nothing syncs until you have reviewed it.</source>
        <translation>El servidor presenta un certificado que usted no ha marcado como de confianza. No se sincronizará nada hasta que lo revise.</translation>
    </message>
    <message>
        <source>The password of this account is not on this device. Nothing syncs until you enter it.</source>
        <translation>La contraseña de esta cuenta no está en este dispositivo. No se sincronizará nada hasta que la introduzca.</translation>
    </message>
    <message>
        <source>Sign in required</source>
        <translation>Es necesario iniciar sesión</translation>
    </message>
    <message>
        <source>The sign-in of this account has ended.</source>
        <translation>La sesión de esta cuenta ha caducado.</translation>
    </message>
    <message>
        <source>Sync failed</source>
        <translation>Error de sincronización</translation>
    </message>
    <message>
        <source>Last sync: %1</source>
        <translation>Última sincronización: %1</translation>
    </message>
    <message>
        <source>Not synced yet</source>
        <translation>Aún sin sincronizar</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Calendars on this device</source>
        <translation>Calendarios de este dispositivo</translation>
    </message>
    <message>
        <source>Web feed</source>
        <translation>Suscripción web</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>calendars, error</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Password rejected</source>
        <translation>Contraseña rechazada</translation>
    </message>
</context>
<context>
    <name>AccountPill</name>
    <message numerus="yes">
        <source>%n account(s) need attention</source>
        <translation>
            <numerusform>%n cuenta requiere atención</numerusform>
            <numerusform>%n cuentas requieren atención</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and resolve the issues.</source>
        <translation>Haga clic para abrir las cuentas de calendario y resolver los problemas.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need sign-in</source>
        <translation>
            <numerusform>%n cuenta requiere iniciar sesión</numerusform>
            <numerusform>%n cuentas requieren iniciar sesión</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and sign in.</source>
        <translation>Haga clic para abrir las cuentas de calendario e iniciar sesión.</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need password</source>
        <translation>
            <numerusform>%n cuenta requiere contraseña</numerusform>
            <numerusform>%n cuentas requieren contraseña</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and re-enter the password.</source>
        <translation>Haga clic para abrir las cuentas de calendario y volver a introducir la contraseña.</translation>
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
        <translation>Eventos de todo el día</translation>
    </message>
    <message>
        <source>all-day</source>
        <translation>todo el día</translation>
    </message>
    <message>
        <source>+%1 more</source>
        <translation>+%1 más</translation>
    </message>
    <message>
        <source>+%1</source>
        <extracomment>the short form of &quot;+%1 more&quot;</extracomment>
        <translation>+%1</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <comment>first day of a dragged event</comment>
        <translation>ddd, d MMM</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation>Error de la base de datos</translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>No se pudo inicializar la base de datos.

Carpeta de datos: %1

Compruebe los permisos de los archivos e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>AttendeesEditor</name>
    <message>
        <source>+ Add attendee</source>
        <translation>+ Añadir asistente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name of the attendee</source>
        <translation>Nombre del asistente</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nombre@example.com</translation>
    </message>
    <message>
        <source>Address of the attendee</source>
        <translation>Dirección del asistente</translation>
    </message>
    <message>
        <source>Remove attendee</source>
        <translation>Quitar asistente</translation>
    </message>
</context>
<context>
    <name>CalDavCertificateDialog</name>
    <message>
        <source>Untrusted certificate</source>
        <translation>Certificado no fiable</translation>
    </message>
    <message>
        <source>Trust this certificate?</source>
        <translation>¿Confiar en este certificado?</translation>
    </message>
    <message>
        <source>%1:%2 presented a TLS certificate that doesn&apos;t chain to a trusted root. Review it before trusting it, anyone with this fingerprint can impersonate the server.</source>
        <translation>%1:%2 ha presentado un certificado TLS que no procede de una entidad raíz de confianza. Revíselo antes de confiar en él: cualquiera que tenga esta huella digital puede suplantar al servidor.</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(desconocido)</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujeto</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Emisor</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Válido desde</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>SHA-256</source>
        <translation>SHA-256</translation>
    </message>
    <message>
        <source>Previously trusted</source>
        <translation>De confianza hasta ahora</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Only trust this certificate if you control the server and recognize the fingerprint. Trusting a malicious certificate gives attackers full access to your calendar data.</source>
        <translation>Confíe en este certificado solo si controla el servidor y reconoce la huella digital. Confiar en un certificado malicioso da a los atacantes acceso completo a los datos de su calendario.</translation>
    </message>
    <message>
        <source>Trust certificate</source>
        <translation>Confiar en el certificado</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>The connection was closed before the server answered.</source>
        <translation>La conexión se cerró antes de que el servidor respondiera.</translation>
    </message>
</context>
<context>
    <name>CalDavConnectionDialog</name>
    <message>
        <source>Add CalDAV Account</source>
        <translation>Añadir cuenta CalDAV</translation>
    </message>
    <message>
        <source>Add Calendars</source>
        <translation>Añadir calendarios</translation>
    </message>
    <message>
        <source>Edit CalDAV Account</source>
        <translation>Editar cuenta CalDAV</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The server&apos;s name, unless you give another</source>
        <translation>El nombre del servidor, si no indica otro</translation>
    </message>
    <message>
        <source>Server &amp;URL</source>
        <translation>&amp;URL del servidor</translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation>&amp;Nombre de usuario</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>C&amp;ontraseña</translation>
    </message>
    <message>
        <source>Account na&amp;me</source>
        <translation>Nombre de la cuen&amp;ta</translation>
    </message>
    <message>
        <source>Discover Calendars</source>
        <translation>Buscar calendarios</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows what the server has, and lets you pick again.</source>
        <translation>«Buscar calendarios» muestra lo que hay en el servidor y le permite volver a elegir.</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows here what the server has.</source>
        <translation>«Buscar calendarios» muestra aquí lo que hay en el servidor.</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Calendarios</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>Enter the server URL and your username first.</source>
        <translation>Introduzca primero la URL del servidor y su nombre de usuario.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to have on this device.</source>
        <translation>Calendarios encontrados: %1. Elija cuáles quiere tener en este dispositivo.</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to add.</source>
        <translation>Calendarios encontrados: %1. Elija cuáles quiere añadir.</translation>
    </message>
    <message>
        <source>Discover first</source>
        <translation>Busque primero</translation>
    </message>
    <message>
        <source>Click &quot;Discover Calendars&quot; before saving.</source>
        <translation>Haga clic en «Buscar calendarios» antes de guardar.</translation>
    </message>
    <message>
        <source>Pick at least one</source>
        <translation>Elija al menos uno</translation>
    </message>
    <message>
        <source>Select one or more calendars to add.</source>
        <translation>Seleccione uno o más calendarios para añadir.</translation>
    </message>
    <message>
        <source>Already added</source>
        <translation>Ya añadido</translation>
    </message>
    <message>
        <source>This server is already added as &quot;%1&quot;. Its calendars are already available — no need to add it again.</source>
        <translation>Este servidor ya está añadido como «%1». Sus calendarios ya están disponibles; no hace falta añadirlo de nuevo.</translation>
    </message>
    <message>
        <source>Remove calendars?</source>
        <translation>¿Quitar calendarios?</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Esta cuenta se ha quitado entretanto.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Error de la base de datos</translation>
    </message>
    <message>
        <source>Could not save the account.</source>
        <translation>No se pudo guardar la cuenta.</translation>
    </message>
    <message>
        <source>Saving the password…</source>
        <translation>Guardando la contraseña…</translation>
    </message>
    <message>
        <source>Password not saved</source>
        <translation>Contraseña no guardada</translation>
    </message>
    <message>
        <source>The system&apos;s password store cannot be used. Calendars sync until Quillon Calendar is closed; after that you have to enter the password of &quot;%1&quot; again.</source>
        <translation>No se puede usar el almacén de contraseñas del sistema. Los calendarios se sincronizarán hasta que cierre Quillon Calendar; después tendrá que volver a introducir la contraseña de «%1».</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation>¿Guardar de todos modos?</translation>
    </message>
    <message>
        <source>Save the account all the same?</source>
        <translation>¿Desea guardar la cuenta de todos modos?</translation>
    </message>
</context>
<context>
    <name>CalDavDiscovery</name>
    <message>
        <source>Enter a CalDAV URL starting with http:// or https://</source>
        <translation>Introduzca una URL de CalDAV que empiece por http:// o https://</translation>
    </message>
    <message>
        <source>The server rejected the username or password.</source>
        <translation>El servidor rechazó el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>Could not find a CalDAV account on that server. Check the URL.</source>
        <translation>No se encontró ninguna cuenta CalDAV en ese servidor. Compruebe la URL.</translation>
    </message>
    <message>
        <source>Could not reach the server: %1</source>
        <translation>No se pudo contactar con el servidor: %1</translation>
    </message>
    <message>
        <source>Lost connection during calendar-home-set discovery: %1</source>
        <translation>Se perdió la conexión al buscar la carpeta de calendarios (calendar-home-set): %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during home-set discovery.</source>
        <translation>El servidor devolvió HTTP %1 al buscar la carpeta de calendarios.</translation>
    </message>
    <message>
        <source>Lost connection during calendar enumeration: %1</source>
        <translation>Se perdió la conexión al enumerar los calendarios: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during calendar enumeration.</source>
        <translation>El servidor devolvió HTTP %1 al enumerar los calendarios.</translation>
    </message>
    <message>
        <source>No calendars found at the discovered home set.</source>
        <translation>No se encontraron calendarios en la carpeta de calendarios hallada.</translation>
    </message>
    <message>
        <source>The server refers to another one, which was not given your password. If you trust it, enter its address instead: %1</source>
        <translation>El servidor remite a otro, al que no se ha enviado su contraseña. Si confía en él, introduzca su dirección en su lugar: %1</translation>
    </message>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>La respuesta del servidor llegó incompleta.</translation>
    </message>
</context>
<context>
    <name>CalDavSyncRun</name>
    <message>
        <source>Network error: %1</source>
        <translation>Error de red: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during ctag check</source>
        <translation>El servidor devolvió HTTP %1 al comprobar el ctag</translation>
    </message>
    <message>
        <source>Server returned HTTP %1</source>
        <translation>El servidor devolvió HTTP %1</translation>
    </message>
    <message>
        <source>Network error during task pull: %1</source>
        <translation>Error de red al descargar las tareas: %1</translation>
    </message>
    <message>
        <source>Task push error: %1</source>
        <translation>Error al enviar la tarea: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing task &quot;%2&quot;</source>
        <translation>El servidor devolvió HTTP %1 al enviar la tarea «%2»</translation>
    </message>
    <message>
        <source>Push error: %1</source>
        <translation>Error de envío: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing &quot;%2&quot;</source>
        <translation>El servidor devolvió HTTP %1 al enviar «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was moved to your local task list: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>«%1» se ha trasladado a su lista de tareas local: este calendario no admite tareas. Se han desactivado las tareas en él.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was rejected: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>«%1» se ha rechazado: este calendario no admite tareas. Se han desactivado las tareas en él.</translation>
    </message>
</context>
<context>
    <name>CalendarAccess</name>
    <message>
        <source>The calendar no longer exists.</source>
        <translation>El calendario ya no existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is read-only.</source>
        <translation>«%1» es de solo lectura.</translation>
    </message>
</context>
<context>
    <name>CalendarChecklist</name>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
</context>
<context>
    <name>CalendarFormDialog</name>
    <message>
        <source>New Calendar</source>
        <translation>Nuevo calendario</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Edit Calendar</source>
        <translation>Editar calendario</translation>
    </message>
    <message>
        <source>This calendar is read-only. Its name and color change on this device only.</source>
        <translation>Este calendario es de solo lectura. Su nombre y su color cambian solo en este dispositivo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Calendar name</source>
        <translation>Nombre del calendario</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Color</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Descripción</translation>
    </message>
    <message>
        <source>Enter a name for the calendar.</source>
        <translation>Introduzca un nombre para el calendario.</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>Este calendario se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>The calendar could not be saved.</source>
        <translation>No se pudo guardar el calendario.</translation>
    </message>
    <message>
        <source>On this device</source>
        <translation>En este dispositivo</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>C&amp;uenta</translation>
    </message>
    <message>
        <source>Allow tasks on this calendar</source>
        <translation>Permitir tareas en este calendario</translation>
    </message>
    <message>
        <source>Missing password</source>
        <translation>Falta la contraseña</translation>
    </message>
    <message>
        <source>No saved password for this account. Edit the account first to re-enter your credentials.</source>
        <translation>No hay ninguna contraseña guardada para esta cuenta. Edite primero la cuenta para volver a introducir sus credenciales.</translation>
    </message>
</context>
<context>
    <name>CalendarListDelegate</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
</context>
<context>
    <name>CalendarListWidget</name>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>default calendar</source>
        <translation>calendario predeterminado</translation>
    </message>
    <message>
        <source>not in the active group</source>
        <translation>fuera del grupo activo</translation>
    </message>
    <message>
        <source>Calendar of account %1</source>
        <translation>Calendario de la cuenta %1</translation>
    </message>
</context>
<context>
    <name>CalendarMenu</name>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>Make &amp;Default</source>
        <translation>Establecer como &amp;predeterminado</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Color</translation>
    </message>
    <message>
        <source>Show &amp;Only This</source>
        <translation>Mostrar &amp;solo este</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Mostrar &amp;todos</translation>
    </message>
    <message>
        <source>De&amp;lete Calendar…</source>
        <translation>E&amp;liminar calendario…</translation>
    </message>
    <message>
        <source>Delete calendar?</source>
        <translation>¿Eliminar calendario?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and all its events? This cannot be undone.</source>
        <translation>¿Eliminar «%1» y todos sus eventos? Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Re&amp;move from This Device…</source>
        <translation>&amp;Quitar de este dispositivo…</translation>
    </message>
</context>
<context>
    <name>CalendarPull</name>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>La respuesta del servidor llegó incompleta.</translation>
    </message>
    <message>
        <source>Some of the calendar could not be stored.</source>
        <translation>No se pudo guardar una parte del calendario.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is not a list of calendar objects.</source>
        <translation>La respuesta del servidor no es una lista de objetos de calendario.</translation>
    </message>
</context>
<context>
    <name>CalendarRemoval</name>
    <message numerus="yes">
        <source>%n change(s) made here have not reached the server yet and will be lost.</source>
        <translation>
            <numerusform>%n cambio hecho aquí aún no ha llegado al servidor y se perderá.</numerusform>
            <numerusform>%n cambios hechos aquí aún no han llegado al servidor y se perderán.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Remove %1 from this device? The server keeps what is in it.</source>
        <comment>names of calendars</comment>
        <translation>¿Quitar %1 de este dispositivo? El servidor conserva su contenido.</translation>
    </message>
    <message>
        <source>Remove calendar?</source>
        <translation>¿Quitar calendario?</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>CollectionJob</name>
    <message>
        <source>Creating calendar on server…</source>
        <translation>Creando el calendario en el servidor…</translation>
    </message>
    <message>
        <source>Network error: %1</source>
        <translation>Error de red: %1</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). Your account may not have permission to create calendars on this server.</source>
        <translation>El servidor lo ha rechazado (HTTP %1). Es posible que su cuenta no tenga permiso para crear calendarios en este servidor.</translation>
    </message>
    <message>
        <source>Server returned success but the new calendar isn&apos;t reachable. This server may not support MKCALENDAR.</source>
        <translation>El servidor indicó que la operación se completó, pero no se puede acceder al nuevo calendario. Es posible que este servidor no admita MKCALENDAR.</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>Esta cuenta se ha quitado entretanto.</translation>
    </message>
    <message>
        <source>Created on server, but couldn&apos;t save locally. Run sync to recover.</source>
        <translation>Se creó en el servidor, pero no se pudo guardar localmente. Sincronice para recuperarlo.</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>Este calendario se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>Checking whether this calendar accepts tasks…</source>
        <translation>Comprobando si este calendario admite tareas…</translation>
    </message>
    <message>
        <source>Couldn&apos;t verify task support: %1</source>
        <translation>No se pudo comprobar si admite tareas: %1</translation>
    </message>
    <message>
        <source>This calendar does not accept tasks (server returned HTTP %1).</source>
        <translation>Este calendario no admite tareas (el servidor devolvió HTTP %1).</translation>
    </message>
    <message>
        <source>Saving changes to server…</source>
        <translation>Guardando los cambios en el servidor…</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). You may not have permission to rename or recolour this calendar.</source>
        <translation>El servidor lo ha rechazado (HTTP %1). Es posible que no tenga permiso para cambiar el nombre o el color de este calendario.</translation>
    </message>
    <message>
        <source>Saved on server, but couldn&apos;t update locally.</source>
        <translation>Se guardó en el servidor, pero no se pudo actualizar localmente.</translation>
    </message>
</context>
<context>
    <name>ColorButton</name>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Ámbar</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Índigo</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Grafito</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personalizado…</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Color: %1</translation>
    </message>
</context>
<context>
    <name>ColorField</name>
    <message>
        <source>Use calendar color</source>
        <translation>Usar el color del calendario</translation>
    </message>
</context>
<context>
    <name>ConflictResolutionDialog</name>
    <message>
        <source>Sync conflicts</source>
        <translation>Conflictos de sincronización</translation>
    </message>
    <message>
        <source>No conflicts. Run a sync to detect any.</source>
        <translation>No hay conflictos. Sincronice para detectarlos.</translation>
    </message>
    <message>
        <source>These events were edited both locally and on the server. Pick which version to keep for each one.</source>
        <translation>Estos eventos se han editado tanto localmente como en el servidor. Elija qué versión conservar de cada uno.</translation>
    </message>
    <message>
        <source>Your version (local)</source>
        <translation>Su versión (local)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Versión del servidor</translation>
    </message>
    <message>
        <source>Keep local</source>
        <translation>Conservar la local</translation>
    </message>
    <message>
        <source>Use server version</source>
        <translation>Usar la del servidor</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir más tarde</translation>
    </message>
    <message>
        <source>Conflict: %1</source>
        <translation>Conflicto: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Title:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Título:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;When:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Cuándo:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Where:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Lugar:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Notes:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;Notas:&lt;/b&gt; %1</translation>
    </message>
</context>
<context>
    <name>DateTimePicker</name>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <extracomment>a date in a form, as a date pattern</extracomment>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
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
        <translation>Unirse a la reunión de Microsoft Teams</translation>
    </message>
</context>
<context>
    <name>DetailsPopover</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>¿Eliminar evento?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>¿Eliminar «%1»? Puede deshacerlo con %2.</translation>
    </message>
</context>
<context>
    <name>EventCanvas</name>
    <message>
        <source>&quot;%1&quot; belongs to a read-only calendar.</source>
        <translation>«%1» pertenece a un calendario de solo lectura.</translation>
    </message>
</context>
<context>
    <name>EventContextMenu</name>
    <message>
        <source>Edit filter &quot;%1&quot;…</source>
        <translation>Editar el filtro «%1»…</translation>
    </message>
    <message>
        <source>Create Filter from Event…</source>
        <translation>Crear filtro a partir del evento…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>EventDetailsPopover</name>
    <message>
        <source>%1 (cancelled)</source>
        <comment>date and time</comment>
        <translation>%1 (cancelado)</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (solo lectura)</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Video call</source>
        <translation>Videollamada</translation>
    </message>
    <message>
        <source>Where (opens a map)</source>
        <translation>Lugar (abre un mapa)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>aceptado</translation>
    </message>
    <message>
        <source>declined</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>provisional</translation>
    </message>
    <message>
        <source>delegated</source>
        <translation>delegado</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>sin respuesta todavía</translation>
    </message>
    <message>
        <source>%1 (organizer)</source>
        <translation>%1 (organizador)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>attendee, answer</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Asistentes</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
</context>
<context>
    <name>EventEdits</name>
    <message>
        <source>The event no longer exists.</source>
        <translation>El evento ya no existe.</translation>
    </message>
    <message>
        <source>Created &quot;%1&quot;</source>
        <translation>Creación de «%1»</translation>
    </message>
    <message>
        <source>Moved &quot;%1&quot;</source>
        <translation>Traslado de «%1»</translation>
    </message>
    <message>
        <source>Resized &quot;%1&quot;</source>
        <translation>Cambio de duración de «%1»</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>Eliminación de «%1»</translation>
    </message>
    <message>
        <source>Could not save the event.</source>
        <translation>No se pudo guardar el evento.</translation>
    </message>
    <message>
        <source>Changed &quot;%1&quot;</source>
        <translation>Modificación de «%1»</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>El otro calendario ya contiene «%1».</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <source>New Event</source>
        <translation>Nuevo evento</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>Crear evento</translation>
    </message>
    <message>
        <source>Edit Event</source>
        <translation>Editar evento</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>Nuevo evento</translation>
    </message>
    <message>
        <source>Edit event</source>
        <translation>Editar evento</translation>
    </message>
    <message>
        <source>Fill in the basics. Start time and calendar are required.</source>
        <translation>Rellene lo básico. La hora de inicio y el calendario son obligatorios.</translation>
    </message>
    <message>
        <source>Update the details below and save to apply.</source>
        <translation>Modifique los datos siguientes y guárdelos para aplicarlos.</translation>
    </message>
    <message>
        <source>Changes apply to all events in the series.</source>
        <translation>Los cambios se aplican a todos los eventos de la serie.</translation>
    </message>
    <message>
        <source>Lunch with Sarah, sprint planning…</source>
        <translation>Comida con Sara, planificación del sprint…</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Color del evento</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Dirección, sala o enlace de vídeo</translation>
    </message>
    <message>
        <source>Notes, agenda, links…</source>
        <translation>Notas, orden del día, enlaces…</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Título</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendario</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>&amp;Ends</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Repetición</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ubicación</translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>Asistentes</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Recor&amp;datorios</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
    </message>
    <message>
        <source>From template…</source>
        <translation>Desde plantilla…</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Fecha de fin</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>Todo e&amp;l día</translation>
    </message>
    <message>
        <source>Times are shown as your clock has them. The event is planned in %1.</source>
        <translation>Las horas se muestran según su reloj. El evento está planificado en %1.</translation>
    </message>
    <message>
        <source>This event belongs to a read-only calendar.</source>
        <translation>Este evento pertenece a un calendario de solo lectura.</translation>
    </message>
    <message>
        <source>No templates</source>
        <translation>No hay plantillas</translation>
    </message>
    <message>
        <source>You haven&apos;t created any event templates yet. Open Tools → Manage Templates to create one.</source>
        <translation>Aún no ha creado ninguna plantilla de evento. Abra Herramientas → Gestionar plantillas para crear una.</translation>
    </message>
    <message>
        <source>Title required</source>
        <translation>Falta el título</translation>
    </message>
    <message>
        <source>Please enter a title for the event.</source>
        <translation>Introduzca un título para el evento.</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>No hay calendarios</translation>
    </message>
    <message>
        <source>Create a calendar first.</source>
        <translation>Cree primero un calendario.</translation>
    </message>
    <message>
        <source>End before start</source>
        <translation>El fin es anterior al inicio</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>La hora de fin es anterior a la de inicio.</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>Error de la base de datos</translation>
    </message>
    <message>
        <source>This is one event of a series, changed on its own.</source>
        <translation>Este es un evento de una serie, modificado por separado.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No se ha guardado</translation>
    </message>
</context>
<context>
    <name>EventText</name>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>weekday and date of an event, as a date pattern</extracomment>
        <translation>ddd, d MMM</translation>
    </message>
    <message>
        <source>%1, all day</source>
        <extracomment>%1 is a date, or two with a dash</extracomment>
        <translation>%1, todo el día</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>(Untitled)</source>
        <translation>(Sin título)</translation>
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
        <translation>El evento no tiene hora de inicio.</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>La hora de fin es anterior a la de inicio.</translation>
    </message>
    <message>
        <source>The series ends before its first event. Choose a later last day.</source>
        <translation>La serie termina antes de su primer evento. Elija un último día posterior.</translation>
    </message>
</context>
<context>
    <name>EventUndo</name>
    <message>
        <source>The change could not be taken back.</source>
        <translation>No se pudo deshacer el cambio.</translation>
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
        <translation>(sin título)</translation>
    </message>
    <message>
        <source>Choose an event</source>
        <translation>Elija un evento</translation>
    </message>
    <message>
        <source>An event that is not on this device</source>
        <translation>Un evento que no está en este dispositivo</translation>
    </message>
</context>
<context>
    <name>FilterFormDialog</name>
    <message>
        <source>New Filter</source>
        <translation>Nuevo filtro</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Edit Filter</source>
        <translation>Editar filtro</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Text in the event</source>
        <translation>Texto en el evento</translation>
    </message>
    <message>
        <source>Day or start time</source>
        <translation>Día u hora de inicio</translation>
    </message>
    <message>
        <source>All-day events</source>
        <translation>Eventos de todo el día</translation>
    </message>
    <message>
        <source>One event</source>
        <translation>Un solo evento</translation>
    </message>
    <message>
        <source>Only &amp;repeating events</source>
        <translation>Solo eventos &amp;recurrentes</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>&amp;Filter by</source>
        <translation>&amp;Filtrar por</translation>
    </message>
    <message>
        <source>In all calendars</source>
        <translation>En todos los calendarios</translation>
    </message>
    <message>
        <source>Only in chosen calendars</source>
        <translation>Solo en los calendarios elegidos</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Calendarios</translation>
    </message>
    <message>
        <source>Hide the events</source>
        <translation>Ocultar los eventos</translation>
    </message>
    <message>
        <source>Dim the events</source>
        <translation>Atenuar los eventos</translation>
    </message>
    <message>
        <source>&amp;Silence their reminders</source>
        <translation>&amp;Silenciar sus recordatorios</translation>
    </message>
    <message>
        <source>Reminders of hidden events are always silent.</source>
        <translation>Los recordatorios de los eventos ocultos siempre están silenciados.</translation>
    </message>
    <message>
        <source>Of several filters that match an event, the one with the lowest number decides.</source>
        <translation>Si varios filtros coinciden con un evento, decide el que tiene el número más bajo.</translation>
    </message>
    <message>
        <source>Filter is &amp;on</source>
        <translation>Filtro ac&amp;tivado</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Efecto</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translation>&amp;Prioridad</translation>
    </message>
    <message>
        <source>Filter name</source>
        <translation>Nombre del filtro</translation>
    </message>
    <message>
        <source>Enter at least one text to look for.</source>
        <translation>Introduzca al menos un texto que buscar.</translation>
    </message>
    <message>
        <source>Choose at least one day or time.</source>
        <translation>Elija al menos un día o una hora.</translation>
    </message>
    <message>
        <source>Choose the event that the filter is for.</source>
        <translation>Elija el evento al que se aplica el filtro.</translation>
    </message>
    <message>
        <source>Choose at least one calendar.</source>
        <translation>Elija al menos un calendario.</translation>
    </message>
    <message>
        <source>This filter was deleted in the meantime.</source>
        <translation>Este filtro se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>The filter could not be saved.</source>
        <translation>No se pudo guardar el filtro.</translation>
    </message>
    <message>
        <source>Delete filter?</source>
        <translation>¿Eliminar filtro?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? The events it hides or dims show again.</source>
        <translation>¿Eliminar «%1»? Los eventos que oculta o atenúa volverán a mostrarse.</translation>
    </message>
</context>
<context>
    <name>FilterPatternEditor</name>
    <message>
        <source>Add Te&amp;xt</source>
        <translation>Añadir te&amp;xto</translation>
    </message>
    <message>
        <source>&amp;Match upper and lower case</source>
        <translation>Distinguir &amp;mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>El título contiene</translation>
    </message>
    <message>
        <source>Title is exactly</source>
        <translation>El título es exactamente</translation>
    </message>
    <message>
        <source>Description contains</source>
        <translation>La descripción contiene</translation>
    </message>
    <message>
        <source>Location contains</source>
        <translation>La ubicación contiene</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Dónde buscar</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Texto que buscar</translation>
    </message>
    <message>
        <source>Remove this text</source>
        <translation>Quitar este texto</translation>
    </message>
</context>
<context>
    <name>FilterPreview</name>
    <message numerus="yes">
        <source>%n event(s) in the next 30 days match</source>
        <translation>
            <numerusform>%n evento coincide en los próximos 30 días</numerusform>
            <numerusform>%n eventos coinciden en los próximos 30 días</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterText</name>
    <message>
        <source>title is &quot;%1&quot;</source>
        <translation>el título es «%1»</translation>
    </message>
    <message>
        <source>title contains &quot;%1&quot;</source>
        <translation>el título contiene «%1»</translation>
    </message>
    <message>
        <source>description contains &quot;%1&quot;</source>
        <translation>la descripción contiene «%1»</translation>
    </message>
    <message>
        <source>location contains &quot;%1&quot;</source>
        <translation>la ubicación contiene «%1»</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>starts at %1</source>
        <translation>empieza a las %1</translation>
    </message>
    <message>
        <source>starts from %1</source>
        <translation>empieza a partir de las %1</translation>
    </message>
    <message>
        <source>starts until %1</source>
        <translation>empieza a más tardar a las %1</translation>
    </message>
    <message>
        <source>repeating only</source>
        <translation>solo recurrentes</translation>
    </message>
    <message>
        <source>the event &quot;%1&quot;</source>
        <translation>el evento «%1»</translation>
    </message>
    <message>
        <source>one event</source>
        <translation>un solo evento</translation>
    </message>
    <message>
        <source>no calendar of this device</source>
        <translation>ningún calendario de este dispositivo</translation>
    </message>
    <message>
        <source>repeating all-day events</source>
        <translation>eventos recurrentes de todo el día</translation>
    </message>
    <message>
        <source>all-day events</source>
        <translation>eventos de todo el día</translation>
    </message>
    <message>
        <source>Hides</source>
        <translation>Oculta</translation>
    </message>
    <message>
        <source>Dims</source>
        <translation>Atenúa</translation>
    </message>
    <message>
        <source>matches nothing</source>
        <translation>no coincide con nada</translation>
    </message>
</context>
<context>
    <name>FilterTimeEditor</name>
    <message>
        <source>Only &amp;repeating events</source>
        <translation>Solo eventos &amp;recurrentes</translation>
    </message>
    <message>
        <source>Starts e&amp;xactly at</source>
        <translation>Empieza e&amp;xactamente a las</translation>
    </message>
    <message>
        <source>Starts at or af&amp;ter</source>
        <translation>Empieza a partir &amp;de las</translation>
    </message>
    <message>
        <source>Starts at or &amp;before</source>
        <translation>Empieza a más tardar a l&amp;as</translation>
    </message>
    <message>
        <source>A range over midnight matches nothing. Make two filters: one for the evening, with only &quot;at or after&quot;, and one for the morning.</source>
        <translation>Un intervalo que pasa de medianoche no coincide con nada. Cree dos filtros: uno para la noche, solo con «a partir de las», y otro para la mañana.</translation>
    </message>
</context>
<context>
    <name>FiltersPill</name>
    <message>
        <source>Manage filters</source>
        <translation>Gestionar filtros</translation>
    </message>
    <message>
        <source>No filters</source>
        <translation>Sin filtros</translation>
    </message>
    <message numerus="yes">
        <source>%n filter(s) applied</source>
        <translation>
            <numerusform>%n filtro aplicado</numerusform>
            <numerusform>%n filtros aplicados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden</source>
        <translation>
            <numerusform>%n oculto</numerusform>
            <numerusform>%n ocultos</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable all filters</source>
        <translation>Desactivar todos los filtros</translation>
    </message>
    <message>
        <source>Enable all filters</source>
        <translation>Activar todos los filtros</translation>
    </message>
    <message>
        <source>Add Filter…</source>
        <translation>Añadir filtro…</translation>
    </message>
    <message>
        <source>Manage Filters…</source>
        <translation>Gestionar filtros…</translation>
    </message>
</context>
<context>
    <name>FormDialog</name>
    <message>
        <source>Discard changes?</source>
        <translation>¿Descartar los cambios?</translation>
    </message>
    <message>
        <source>Your changes have not been saved.</source>
        <translation>Los cambios no se han guardado.</translation>
    </message>
</context>
<context>
    <name>GroupButton</name>
    <message>
        <source>Calendar group</source>
        <translation>Grupo de calendarios</translation>
    </message>
    <message>
        <source>Calendar group: %1</source>
        <translation>Grupo de calendarios: %1</translation>
    </message>
    <message>
        <source>Add Calendar Group…</source>
        <translation>Añadir grupo de calendarios…</translation>
    </message>
    <message>
        <source>Edit Current Group…</source>
        <translation>Editar el grupo actual…</translation>
    </message>
    <message>
        <source>Delete Current Group</source>
        <translation>Eliminar el grupo actual</translation>
    </message>
</context>
<context>
    <name>GroupMenu</name>
    <message>
        <source>Calendar groups</source>
        <translation>Grupos de calendarios</translation>
    </message>
    <message>
        <source>&amp;Next Group</source>
        <translation>Grupo &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Group</source>
        <translation>Grupo &amp;anterior</translation>
    </message>
</context>
<context>
    <name>GroupName</name>
    <message>
        <source>All Calendars</source>
        <translation>Todos los calendarios</translation>
    </message>
</context>
<context>
    <name>HorizonChip</name>
    <message>
        <source>Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days</source>
        <translation>Número de días visibles — Ctrl+Mayús+1..5 para 3 / 5 / 7 / 10 / 14 días</translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation>Número de días visibles</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
    <message>
        <source>%1d</source>
        <comment>number of days</comment>
        <translation>%1 d</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <source>Importing… %1%</source>
        <translation>Importando… %1&#xa0;%</translation>
    </message>
    <message>
        <source>Reading… %1%</source>
        <translation>Leyendo… %1&#xa0;%</translation>
    </message>
    <message>
        <source>No calendars configured</source>
        <translation>No hay calendarios configurados</translation>
    </message>
    <message>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Añada primero un calendario en el que se pueda escribir y vuelva a importar «%1».</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>No se pudo abrir «%1» para leerlo.</translation>
    </message>
    <message>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>No se encontraron eventos en «%1».</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>Nada que importar</translation>
    </message>
    <message>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>Eventos importados en %3: %1; actualizados: %2.</translation>
    </message>
    <message>
        <source>Updated 1 existing event in %1.</source>
        <translation>Se actualizó 1 evento existente en %1.</translation>
    </message>
    <message>
        <source>Updated %1 existing events in %2.</source>
        <translation>Se actualizaron %1 eventos existentes en %2.</translation>
    </message>
    <message>
        <source>Imported 1 event into %1.</source>
        <translation>Se importó 1 evento en %1.</translation>
    </message>
    <message>
        <source>Imported %1 events into %2.</source>
        <translation>Se importaron %1 eventos en %2.</translation>
    </message>
    <message numerus="yes">
        <source> Skipped %n event(s) without an identifier or a start.</source>
        <translation>
            <numerusform> Se omitió %n evento sin identificador o sin inicio.</numerusform>
            <numerusform> Se omitieron %n eventos sin identificador o sin inicio.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n event(s) could not be stored.</source>
        <translation>
            <numerusform> No se pudo guardar %n evento.</numerusform>
            <numerusform> No se pudieron guardar %n eventos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>Error al importar</translation>
    </message>
    <message>
        <source>The chosen calendar was deleted in the meantime.</source>
        <translation>El calendario elegido se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>Import incomplete</source>
        <translation>Importación incompleta</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to import.</source>
        <translation>«%1» es demasiado grande para importarlo.</translation>
    </message>
    <message numerus="yes">
        <source> Skipped %n event(s) that are too large.</source>
        <translation>
            <numerusform> Se ha omitido %n evento demasiado grande.</numerusform>
            <numerusform> Se han omitido %n eventos demasiado grandes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>Importar 1 evento de «%1» en:</translation>
    </message>
    <message>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>Importar %1 eventos de «%2» en:</translation>
    </message>
    <message>
        <source>Import 1 event from %1 files into:</source>
        <translation>Importar 1 evento de %1 archivos en:</translation>
    </message>
    <message>
        <source>Import %1 events from %2 files into:</source>
        <translation>Importar %1 eventos de %2 archivos en:</translation>
    </message>
    <message>
        <source>Import events</source>
        <translation>Importar eventos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>KeyboardHelpDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>No shortcut matches.</source>
        <translation>Ningún atajo coincide.</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Buscar atajos</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>New &amp;Calendar…</source>
        <translation>Nuevo &amp;calendario…</translation>
    </message>
    <message>
        <source>&amp;Import ICS File…</source>
        <translation>&amp;Importar archivo ICS…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>Mostrar u ocultar la &amp;barra lateral</translation>
    </message>
    <message>
        <source>&amp;Compact Density</source>
        <translation>Densidad &amp;compacta</translation>
    </message>
    <message>
        <source>Days Timeline S&amp;pan</source>
        <translation>&amp;Número de días visibles</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>Día&amp;s</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>S&amp;emana</translation>
    </message>
    <message>
        <source>Gr&amp;id</source>
        <translation>C&amp;uadrícula</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mes</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>&amp;Año</translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation>Número de días visibles</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Hoy</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>A &amp;Week Later</source>
        <translation>Una s&amp;emana después</translation>
    </message>
    <message>
        <source>A W&amp;eek Earlier</source>
        <translation>&amp;Una semana antes</translation>
    </message>
    <message>
        <source>A &amp;Month Later</source>
        <translation>Un &amp;mes después</translation>
    </message>
    <message>
        <source>A M&amp;onth Earlier</source>
        <translation>Un mes a&amp;ntes</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>Am&amp;pliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Add &amp;Filter…</source>
        <translation>Añadir &amp;filtro…</translation>
    </message>
    <message>
        <source>Add Calendar &amp;Group…</source>
        <translation>Añadir grupo de &amp;calendarios…</translation>
    </message>
    <message>
        <source>Manage Calendar Gr&amp;oups…</source>
        <translation>Gestionar gru&amp;pos de calendarios…</translation>
    </message>
    <message>
        <source>&amp;Calendar Groups</source>
        <translation>Grup&amp;os de calendarios</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;About Quillon Calendar</source>
        <translation>Acerca &amp;de Quillon Calendar</translation>
    </message>
    <message>
        <source>&amp;New Event…</source>
        <translation>Nuevo &amp;evento…</translation>
    </message>
    <message>
        <source>New &amp;Task…</source>
        <translation>Nueva &amp;tarea…</translation>
    </message>
    <message>
        <source>Quick &amp;Add…</source>
        <translation>Entrada &amp;rápida…</translation>
    </message>
    <message>
        <source>Type an event in plain English (&quot;lunch Thursday 1pm&quot;)</source>
        <translation>Escriba un evento en inglés («lunch Thursday 1pm»)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Toggle &amp;Tasks Pane</source>
        <translation>Mostrar u ocultar el panel de &amp;tareas</translation>
    </message>
    <message>
        <source>Manage Fil&amp;ters…</source>
        <translation>&amp;Gestionar filtros…</translation>
    </message>
    <message>
        <source>Manage Te&amp;mplates…</source>
        <translation>Gestionar p&amp;lantillas…</translation>
    </message>
    <message>
        <source>&amp;What&apos;s New</source>
        <translation>&amp;Novedades</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Enviar comentarios…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Events in the calendar</source>
        <translation>Eventos del calendario</translation>
    </message>
    <message>
        <source>All-day events that do not all fit</source>
        <translation>Eventos de todo el día que no caben</translation>
    </message>
    <message>
        <source>Select the next one or the one before</source>
        <translation>Seleccionar el siguiente o el anterior</translation>
    </message>
    <message>
        <source>Open the selected one</source>
        <translation>Abrir el seleccionado</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Eliminarlo</translation>
    </message>
    <message>
        <source>Move it by a day</source>
        <translation>Moverlo un día</translation>
    </message>
    <message>
        <source>Move it by a quarter of an hour</source>
        <translation>Moverlo un cuarto de hora</translation>
    </message>
    <message>
        <source>Let it end later or earlier</source>
        <translation>Hacer que termine más tarde o antes</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Anular la selección</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todos</translation>
    </message>
    <message>
        <source>Show the first ones only</source>
        <translation>Mostrar solo los primeros</translation>
    </message>
    <message>
        <source>Show more or fewer, while none is selected</source>
        <translation>Mostrar más o menos, si no hay ninguno seleccionado</translation>
    </message>
    <message>
        <source>Undo (drag/resize/delete)</source>
        <translation>Deshacer (mover/redimensionar/eliminar)</translation>
    </message>
    <message>
        <source>Calendar Acc&amp;ounts…</source>
        <translation>C&amp;uentas de calendario…</translation>
    </message>
    <message>
        <source>&amp;Sync Now</source>
        <translation>Sincronizar &amp;ahora</translation>
    </message>
    <message>
        <source>Force F&amp;ull Sync…</source>
        <translation>&amp;Forzar sincronización completa…</translation>
    </message>
    <message>
        <source>Re-pull every event from every account, ignoring sync tokens</source>
        <translation>Volver a descargar todos los eventos de todas las cuentas, sin tener en cuenta los tokens de sincronización</translation>
    </message>
    <message>
        <source>&amp;Sync Conflicts…</source>
        <translation>Co&amp;nflictos de sincronización…</translation>
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
        <translation>Importar archivo ICS</translation>
    </message>
    <message>
        <source>iCalendar files (*.ics);;All files (*)</source>
        <translation>Archivos iCalendar (*.ics);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Añadido: %1</translation>
    </message>
    <message>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Entrada rápida omitida: no hay calendarios configurados.</translation>
    </message>
    <message>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>No se pudo interpretar la entrada rápida: «%1»</translation>
    </message>
    <message>
        <source>Force full sync?</source>
        <translation>¿Forzar la sincronización completa?</translation>
    </message>
    <message>
        <source>Re-fetch every event and task from every account, ignoring saved sync tokens. Useful when items look stale or out of date.

Any unsynced local edits will be discarded in favour of the server&apos;s copy. Pending deletions are preserved.

Heavy accounts may take a minute or two and use more bandwidth than usual.</source>
        <translation>Se volverán a descargar todos los eventos y tareas de todas las cuentas, sin tener en cuenta los tokens de sincronización guardados. Resulta útil cuando hay elementos que parecen desactualizados.

Los cambios locales sin sincronizar se descartarán en favor de la copia del servidor. Las eliminaciones pendientes se conservan.

Las cuentas con mucho contenido pueden tardar uno o dos minutos y consumir más ancho de banda de lo habitual.</translation>
    </message>
</context>
<context>
    <name>ManageFiltersDialog</name>
    <message>
        <source>Manage Filters</source>
        <translation>Gestionar filtros</translation>
    </message>
    <message>
        <source>No filters yet. A filter hides or dims events on this device; it never changes them.</source>
        <translation>Aún no hay filtros. Un filtro oculta o atenúa eventos en este dispositivo; nunca los modifica.</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <source>Calendar Accounts</source>
        <translation>Cuentas de calendario</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>&amp;CalDAV account…</source>
        <translation>Cuenta &amp;CalDAV…</translation>
    </message>
    <message>
        <source>&amp;Local calendar…</source>
        <translation>Calendario &amp;local…</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; and its calendars from this device? The server keeps what is in them.</source>
        <translation>¿Quitar «%1» y sus calendarios de este dispositivo? El servidor conserva su contenido.</translation>
    </message>
    <message>
        <source>Remove account?</source>
        <translation>¿Quitar cuenta?</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>Se ha encontrado %n calendario nuevo.</numerusform>
            <numerusform>Se han encontrado %n calendarios nuevos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ManageTemplatesDialog</name>
    <message>
        <source>Manage Templates</source>
        <translation>Gestionar plantillas</translation>
    </message>
    <message>
        <source>No templates yet. A template fills in a new event: title, place, length, reminders.</source>
        <translation>Aún no hay plantillas. Una plantilla rellena un evento nuevo: título, lugar, duración, recordatorios.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>title, length</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Delete template?</source>
        <translation>¿Eliminar plantilla?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Events made from it stay.</source>
        <translation>¿Eliminar «%1»? Los eventos creados con ella se conservan.</translation>
    </message>
</context>
<context>
    <name>ManageViewsDialog</name>
    <message>
        <source>Manage Calendar Groups</source>
        <translation>Gestionar grupos de calendarios</translation>
    </message>
    <message>
        <source>No groups yet. A group shows the calendars you choose, under one name.</source>
        <translation>Aún no hay grupos. Un grupo muestra los calendarios que usted elija bajo un mismo nombre.</translation>
    </message>
    <message>
        <source>Delete group?</source>
        <translation>¿Eliminar grupo?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can recreate it later.</source>
        <translation>¿Eliminar «%1»? Podrá volver a crearlo más adelante.</translation>
    </message>
    <message>
        <source>All visible calendars</source>
        <translation>Todos los calendarios visibles</translation>
    </message>
</context>
<context>
    <name>MiniMonthCalendar</name>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Month to pick a day from</source>
        <translation>Mes en el que elegir un día</translation>
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
        <translation>Vista</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>NoAccountsPage</name>
    <message>
        <source>Add a Quillon Calendar account to store calendars on this device, connect Google or Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).</source>
        <translation>Añada una cuenta de Quillon Calendar para guardar calendarios en este dispositivo, conecte Google o Microsoft, o enlace cualquier servidor CalDAV (Synology, Nextcloud, Radicale, iCloud).</translation>
    </message>
    <message>
        <source>No accounts configured</source>
        <translation>No hay cuentas configuradas</translation>
    </message>
    <message>
        <source>  Add Account…</source>
        <translation>  Añadir cuenta…</translation>
    </message>
</context>
<context>
    <name>OptionalDateField</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Has a date: %1</source>
        <translation>Tiene fecha: %1</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
</context>
<context>
    <name>OrderedListDialog</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>&amp;Bajar</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendario</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Accent c&amp;olor</source>
        <translation>C&amp;olor de énfasis</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Tamaño de &amp;letra</translation>
    </message>
    <message>
        <source>Workday begins</source>
        <translation>Inicio de la jornada laboral</translation>
    </message>
    <message>
        <source>Workday ends</source>
        <translation>Fin de la jornada laboral</translation>
    </message>
    <message>
        <source>12 hours (1:30 PM)</source>
        <translation>12 horas (1:30 PM)</translation>
    </message>
    <message>
        <source>24 hours (13:30)</source>
        <translation>24 horas (13:30)</translation>
    </message>
    <message>
        <source>&amp;First day of the week</source>
        <translation>&amp;Primer día de la semana</translation>
    </message>
    <message>
        <source>&amp;Workday</source>
        <translation>&amp;Jornada laboral</translation>
    </message>
    <message>
        <source>&amp;Time format</source>
        <translation>&amp;Formato de hora</translation>
    </message>
    <message>
        <source>Calendar for &amp;new events</source>
        <translation>Calendario para eventos &amp;nuevos</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>The one used last</source>
        <translation>El último utilizado</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>A new language takes effect at the next launch.</source>
        <translation>El nuevo idioma se aplicará la próxima vez que se inicie la aplicación.</translation>
    </message>
    <message>
        <source>Start &amp;minimized</source>
        <translation>Iniciar &amp;minimizado</translation>
    </message>
    <message>
        <source>Show week n&amp;umbers</source>
        <translation>Mostrar números de &amp;semana</translation>
    </message>
</context>
<context>
    <name>QuickAdd</name>
    <message>
        <source>There is no such date or time.</source>
        <translation>Esa fecha u hora no existe.</translation>
    </message>
    <message>
        <source>There is no calendar that can be written to. Create one first.</source>
        <translation>No hay ningún calendario en el que se pueda escribir. Cree uno primero.</translation>
    </message>
</context>
<context>
    <name>QuickAddDialog</name>
    <message>
        <source>Quick Add</source>
        <translation>Entrada rápida</translation>
    </message>
    <message>
        <source>lunch with Sam tomorrow at 12:30pm for 90 min</source>
        <translation>lunch with Sam tomorrow at 12:30pm for 90 min</translation>
    </message>
    <message>
        <source>What to add, in plain English</source>
        <translation>Qué añadir, en inglés</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Creates</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Begin with &quot;task:&quot; or &quot;remind me to&quot; for a task or a reminder. #tags become categories of tasks.</source>
        <translation>Solo en inglés. Empiece con «task:» o «remind me to» para una tarea o un recordatorio. Las #etiquetas se convierten en categorías de las tareas.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>This could not be added.</source>
        <translation>No se pudo añadir.</translation>
    </message>
</context>
<context>
    <name>QuillonFeedback::FeedbackDialog</name>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Add these &amp;lines about the program and the system</source>
        <translation>Añadir estas &amp;líneas sobre el programa y el sistema</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Su &amp;mensaje</translation>
    </message>
    <message>
        <source>What works well? What went wrong, and what had you expected?</source>
        <translation>¿Qué funciona bien? ¿Qué ha fallado y qué esperaba?</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>&amp;Write E-Mail…</source>
        <translation>Escri&amp;bir correo…</translation>
    </message>
    <message>
        <source>Copy &amp;Text</source>
        <translation>Copiar &amp;texto</translation>
    </message>
    <message>
        <source>Only what you see here is sent, to %1.</source>
        <translation>Solo se envía lo que ve aquí, a %1.</translation>
    </message>
    <message>
        <source>Your mail program opens with the text, for you to read once more and send.</source>
        <translation>Su programa de correo se abrirá con el texto para que lo revise y lo envíe.</translation>
    </message>
    <message>
        <source>This build has no address for feedback. Copy the text, and send it to whoever gave you the program.</source>
        <translation>Esta compilación no tiene dirección para comentarios. Copie el texto y envíelo a quien le facilitó el programa.</translation>
    </message>
    <message>
        <source>Write a message first.</source>
        <translation>Escriba primero un mensaje.</translation>
    </message>
    <message>
        <source>Feedback on Quillon Calendar</source>
        <translation>Comentarios sobre Quillon Calendar</translation>
    </message>
    <message>
        <source>No mail program could be opened. Copy the text instead.</source>
        <translation>No se pudo abrir ningún programa de correo. Copie el texto en su lugar.</translation>
    </message>
    <message>
        <source>The text is on the clipboard.</source>
        <translation>El texto está en el portapapeles.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Thank you. Your feedback was sent.</source>
        <translation>Gracias. Sus comentarios se han enviado.</translation>
    </message>
    <message>
        <source>The feedback could not be sent: %1</source>
        <translation>No se pudieron enviar los comentarios: %1</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate</name>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>You&apos;re up to date. %1 %2 is the newest version.</source>
        <translation>Está al día. %1 %2 es la versión más reciente.</translation>
    </message>
    <message>
        <source>The check for updates failed.

%1</source>
        <translation>No se pudieron buscar actualizaciones.

%1</translation>
    </message>
    <message>
        <source>This copy of %1 does not look for updates. They come from where you got the program, such as your system&apos;s package manager.</source>
        <translation>Esta copia de %1 no busca actualizaciones. Llegan de donde obtuvo el programa, por ejemplo, del gestor de paquetes de su sistema.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate::UpdateDialog</name>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>%1 %2 is available. You have version %3.</source>
        <translation>%1 %2 está disponible. Usted tiene la versión %3.</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>RecurrenceButton</name>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Do not repeat</source>
        <translation>No repetir</translation>
    </message>
    <message>
        <source>Does not repeat</source>
        <translation>No se repite</translation>
    </message>
</context>
<context>
    <name>RecurrenceEditDialog</name>
    <message>
        <source>Repeat</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diaria</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensual</translation>
    </message>
    <message>
        <source>Yearly</source>
        <translation>Anual</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Frecuencia</translation>
    </message>
    <message>
        <source>&amp;Every</source>
        <translation>&amp;Cada</translation>
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
        <translation>X</translation>
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
        <translation>El &amp;día</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Día del mes</translation>
    </message>
    <message>
        <source>On the &amp;nth weekday</source>
        <translation>Un día de la &amp;semana</translation>
    </message>
    <message>
        <source>Which one</source>
        <translation>Cuál de ellos</translation>
    </message>
    <message>
        <source>first</source>
        <translation>primer</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundo</translation>
    </message>
    <message>
        <source>third</source>
        <translation>tercer</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>cuarto</translation>
    </message>
    <message>
        <source>last</source>
        <translation>último</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>of every month</source>
        <translation>de cada mes</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Ne&amp;ver</source>
        <translation>&amp;Nunca</translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation>Des&amp;pués de</translation>
    </message>
    <message>
        <source>Number of occurrences</source>
        <translation>Número de repeticiones</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>E&amp;l</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>occurrences</source>
        <translation>repeticiones</translation>
    </message>
    <message numerus="yes">
        <source>day(s)</source>
        <translation>
            <numerusform>día</numerusform>
            <numerusform>días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>week(s)</source>
        <translation>
            <numerusform>semana</numerusform>
            <numerusform>semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>month(s)</source>
        <translation>
            <numerusform>mes</numerusform>
            <numerusform>meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>year(s)</source>
        <translation>
            <numerusform>año</numerusform>
            <numerusform>años</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecurringEditScopeDialog</name>
    <message>
        <source>This event only</source>
        <translation>Solo este evento</translation>
    </message>
    <message>
        <source>Only this occurrence is changed; the rest of the series stays as it was.</source>
        <translation>Solo cambia esta repetición; el resto de la serie queda como estaba.</translation>
    </message>
    <message>
        <source>This and following events</source>
        <translation>Este evento y los siguientes</translation>
    </message>
    <message>
        <source>This occurrence and every later one inherit the change. Past occurrences keep their original times.</source>
        <translation>Esta repetición y todas las posteriores reciben el cambio. Las pasadas conservan sus horas originales.</translation>
    </message>
    <message>
        <source>All events in the series</source>
        <translation>Todos los eventos de la serie</translation>
    </message>
    <message>
        <source>The master event shifts; every occurrence — past and future — moves with it.</source>
        <translation>El evento principal se desplaza; todas las repeticiones, pasadas y futuras, se mueven con él.</translation>
    </message>
    <message>
        <source>Edit Recurring Event</source>
        <translation>Editar evento recurrente</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;</source>
        <translation>Editar «%1»</translation>
    </message>
    <message>
        <source>This event repeats. Apply your changes to:</source>
        <translation>Este evento se repite. Aplicar los cambios a:</translation>
    </message>
</context>
<context>
    <name>Reminder</name>
    <message>
        <source>At time of event</source>
        <translation>A la hora del evento</translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) before</source>
        <translation>
            <numerusform>%n minuto antes</numerusform>
            <numerusform>%n minutos antes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) before</source>
        <translation>
            <numerusform>%n hora antes</numerusform>
            <numerusform>%n horas antes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) before</source>
        <translation>
            <numerusform>%n día antes</numerusform>
            <numerusform>%n días antes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1 minutos antes</translation>
    </message>
</context>
<context>
    <name>RemindersEditor</name>
    <message>
        <source>At time of event</source>
        <translation>A la hora del evento</translation>
    </message>
    <message>
        <source>5 minutes before</source>
        <translation>5 minutos antes</translation>
    </message>
    <message>
        <source>10 minutes before</source>
        <translation>10 minutos antes</translation>
    </message>
    <message>
        <source>15 minutes before</source>
        <translation>15 minutos antes</translation>
    </message>
    <message>
        <source>30 minutes before</source>
        <translation>30 minutos antes</translation>
    </message>
    <message>
        <source>1 hour before</source>
        <translation>1 hora antes</translation>
    </message>
    <message>
        <source>2 hours before</source>
        <translation>2 horas antes</translation>
    </message>
    <message>
        <source>1 day before</source>
        <translation>1 día antes</translation>
    </message>
    <message>
        <source>2 days before</source>
        <translation>2 días antes</translation>
    </message>
    <message>
        <source>1 week before</source>
        <translation>1 semana antes</translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1 minutos antes</translation>
    </message>
    <message>
        <source>%1 hours %2 minutes before</source>
        <translation>%1 horas y %2 minutos antes</translation>
    </message>
    <message>
        <source>%1 hours before</source>
        <translation>%1 horas antes</translation>
    </message>
    <message>
        <source>%1 days before</source>
        <translation>%1 días antes</translation>
    </message>
    <message>
        <source>+ Add reminder</source>
        <translation>+ Añadir recordatorio</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>Remove reminder</source>
        <translation>Quitar recordatorio</translation>
    </message>
</context>
<context>
    <name>RruleFormat</name>
    <message>
        <source>Mon</source>
        <translation>lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mié</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>jue</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>vie</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sáb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dom</translation>
    </message>
    <message>
        <source>first</source>
        <translation>primer</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundo</translation>
    </message>
    <message>
        <source>third</source>
        <translation>tercer</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>cuarto</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>quinto</translation>
    </message>
    <message>
        <source>last</source>
        <translation>último</translation>
    </message>
    <message>
        <source>second-to-last</source>
        <translation>penúltimo</translation>
    </message>
    <message>
        <source>%1th-from-last</source>
        <translation>%1.º (desde el final)</translation>
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
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <translation>Cada %1 días</translation>
    </message>
    <message>
        <source>Repeats weekly</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <translation>Cada %1 semanas</translation>
    </message>
    <message>
        <source>Repeats monthly</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <translation>Cada %1 meses</translation>
    </message>
    <message>
        <source>Repeats yearly</source>
        <translation>Cada año</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <translation>Cada %1 años</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Se repite</translation>
    </message>
    <message>
        <source>on the %1 %2</source>
        <extracomment>as in &quot;on the second Tue&quot; of a month</extracomment>
        <translation>el %1 %2</translation>
    </message>
    <message>
        <source>on the %1</source>
        <extracomment>as in &quot;on the 22nd&quot; of a month</extracomment>
        <translation>el día %1</translation>
    </message>
    <message numerus="yes">
        <source>%n time(s)</source>
        <translation>
            <numerusform>%n vez</numerusform>
            <numerusform>%n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>until %1</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>hasta el %1</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>At time of event</source>
        <translation>A la hora del evento</translation>
    </message>
    <message>
        <source>%1 min before</source>
        <translation>%1 min antes</translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) before</source>
        <translation>
            <numerusform>%n hora antes</numerusform>
            <numerusform>%n horas antes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) before</source>
        <translation>
            <numerusform>%n día antes</numerusform>
            <numerusform>%n días antes</numerusform>
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
        <translation>Introduzca primero la contraseña de esta cuenta.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Connection cancelled, certificate not trusted.</source>
        <translation>Conexión cancelada: el certificado no es de confianza.</translation>
    </message>
    <message>
        <source>Certificate trusted. Retrying…</source>
        <translation>Certificado de confianza. Reintentando…</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>Nuevo calendario</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Leave the group: the check boxes decide again what is shown</source>
        <translation>Salir del grupo: las casillas vuelven a decidir qué se muestra</translation>
    </message>
    <message>
        <source>Showing group “%1”</source>
        <translation>Mostrando el grupo «%1»</translation>
    </message>
</context>
<context>
    <name>SilenceGuard</name>
    <message>
        <source>The server has stopped answering.</source>
        <translation>El servidor ha dejado de responder.</translation>
    </message>
</context>
<context>
    <name>SyncScheduler</name>
    <message>
        <source>All caught up, nothing waiting to sync.</source>
        <translation>Todo al día, nada pendiente de sincronizar.</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Falta la contraseña</translation>
    </message>
    <message>
        <source>Synced %1 events</source>
        <translation>Eventos sincronizados: %1</translation>
    </message>
    <message>
        <source>Syncing %1 account(s)…</source>
        <translation>Sincronizando %1 cuenta(s)…</translation>
    </message>
    <message>
        <source>No sync accounts configured. Add one in Calendar Accounts.</source>
        <translation>No hay cuentas de sincronización configuradas. Añada una en Cuentas de calendario.</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>Se ha encontrado %n calendario nuevo.</numerusform>
            <numerusform>Se han encontrado %n calendarios nuevos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared %n calendar sync token(s), running full sync…</source>
        <translation>
            <numerusform>Se ha borrado el token de sincronización de %n calendario; sincronización completa en curso…</numerusform>
            <numerusform>Se han borrado los tokens de sincronización de %n calendarios; sincronización completa en curso…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>Delete task?</source>
        <translation>¿Eliminar tarea?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Its subtasks stay.</source>
        <translation>¿Eliminar «%1»? Sus subtareas se conservan.</translation>
    </message>
    <message>
        <source>Can&apos;t move task</source>
        <translation>No se puede mover la tarea</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Mark as Not Completed</source>
        <translation>Marcar como no completada</translation>
    </message>
    <message>
        <source>Mark as Completed</source>
        <translation>Marcar como completada</translation>
    </message>
    <message>
        <source>Add Subtask…</source>
        <translation>Añadir subtarea…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>TaskDetailsPopover</name>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Part of</source>
        <translation>Parte de</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Starts</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>%1, %2%</source>
        <comment>status, progress</comment>
        <translation>%1, %2&#xa0;%</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completar</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>No completada</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
</context>
<context>
    <name>TaskDropHandler</name>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Set start date for &quot;%1&quot; to %2</source>
        <translation>Fecha de inicio de «%1» fijada: %2</translation>
    </message>
    <message>
        <source>Set due date for &quot;%1&quot; to %2</source>
        <translation>Fecha de vencimiento de «%1» fijada: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Create event from task</source>
        <translation>Crear evento a partir de la tarea</translation>
    </message>
    <message>
        <source>Set start date</source>
        <translation>Fijar la fecha de inicio</translation>
    </message>
    <message>
        <source>Set due date</source>
        <translation>Fijar la fecha de vencimiento</translation>
    </message>
</context>
<context>
    <name>TaskEdits</name>
    <message>
        <source>Couldn&apos;t update task — see log.</source>
        <translation>No se pudo actualizar la tarea; consulte el registro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold tasks.</source>
        <translation>«%1» no admite tareas.</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>La tarea ya no existe.</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>El otro calendario ya contiene «%1».</translation>
    </message>
    <message>
        <source>Subtasks must belong to the same calendar as their parent. Move &quot;%1&quot; to the same calendar first.</source>
        <translation>Las subtareas deben estar en el mismo calendario que su tarea principal. Mueva primero «%1» a ese calendario.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved below one of its own subtasks.</source>
        <translation>«%1» no se puede mover debajo de una de sus propias subtareas.</translation>
    </message>
</context>
<context>
    <name>TaskFormDialog</name>
    <message>
        <source>New Task</source>
        <translation>Nueva tarea</translation>
    </message>
    <message>
        <source>Create task</source>
        <translation>Crear tarea</translation>
    </message>
    <message>
        <source>Edit Reminder</source>
        <translation>Editar recordatorio</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Editar tarea</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Título</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendario</translation>
    </message>
    <message>
        <source>&amp;Part of</source>
        <translation>&amp;Parte de</translation>
    </message>
    <message>
        <source>&amp;Due</source>
        <translation>&amp;Vencimiento</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Repetición</translation>
    </message>
    <message>
        <source>Ne&amp;xt date</source>
        <translation>Próxima fec&amp;ha</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>Recor&amp;datorios</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>Pri&amp;oridad</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>&amp;Estado</translation>
    </message>
    <message>
        <source>Cate&amp;gories</source>
        <translation>Cate&amp;gorías</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>Qué hay que hacer</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fecha de vencimiento</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Hora de vencimiento</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>From the due date</source>
        <translation>Desde la fecha de vencimiento</translation>
    </message>
    <message>
        <source>From the day of completion</source>
        <translation>Desde el día en que se completa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Home, errands</source>
        <translation>Casa, recados</translation>
    </message>
    <message>
        <source>Task color</source>
        <translation>Color de la tarea</translation>
    </message>
    <message>
        <source>Notes, links…</source>
        <translation>Notas, enlaces…</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>Progress in percent</source>
        <translation>Progreso en porcentaje</translation>
    </message>
    <message>
        <source>No other task</source>
        <translation>Ninguna otra tarea</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>priority, its number</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This task belongs to a read-only calendar.</source>
        <translation>Esta tarea pertenece a un calendario de solo lectura.</translation>
    </message>
    <message>
        <source>Please enter a title for the task.</source>
        <translation>Introduzca un título para la tarea.</translation>
    </message>
    <message>
        <source>No calendar can hold tasks. Create a local calendar first.</source>
        <translation>Ningún calendario admite tareas. Cree primero un calendario local.</translation>
    </message>
    <message>
        <source>The task is due before it starts.</source>
        <translation>La tarea vence antes de empezar.</translation>
    </message>
    <message>
        <source>Could not save the task.</source>
        <translation>No se pudo guardar la tarea.</translation>
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
        <translation>(Sin título)</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completada</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelada</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Sin empezar</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>a date of this year, and one of another, as date patterns</extracomment>
        <translation>ddd, d MMM</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
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
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Filter tasks</source>
        <translation>Filtrar tareas</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Nueva tarea</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Esta semana</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Vencidas</translation>
    </message>
    <message>
        <source>Group by calendar</source>
        <translation>Agrupar por calendario</translation>
    </message>
    <message>
        <source>Hide completed</source>
        <translation>Ocultar las completadas</translation>
    </message>
    <message>
        <source>Show notes</source>
        <translation>Mostrar notas</translation>
    </message>
    <message>
        <source>Show categories</source>
        <translation>Mostrar categorías</translation>
    </message>
    <message>
        <source>Switch the filter to see other tasks.</source>
        <translation>Cambie el filtro para ver otras tareas.</translation>
    </message>
    <message>
        <source>No tasks yet</source>
        <translation>Aún no hay tareas</translation>
    </message>
    <message>
        <source>Create a task to track what needs doing.</source>
        <translation>Cree una tarea para no perder de vista lo que hay que hacer.</translation>
    </message>
    <message>
        <source>Nothing due today</source>
        <translation>Nada vence hoy</translation>
    </message>
    <message>
        <source>Nothing due this week</source>
        <translation>Nada vence esta semana</translation>
    </message>
    <message>
        <source>Nothing overdue</source>
        <translation>Nada vencido</translation>
    </message>
    <message>
        <source>You&apos;re caught up. Nice.</source>
        <translation>Está al día. ¡Bien hecho!</translation>
    </message>
    <message>
        <source>+ New Task</source>
        <translation>+ Nueva tarea</translation>
    </message>
    <message>
        <source>Filter tasks: %1</source>
        <extracomment>%1 is the name of a filter</extracomment>
        <translation>Filtrar tareas: %1</translation>
    </message>
</context>
<context>
    <name>TasksPaneRow</name>
    <message>
        <source>due %1</source>
        <comment>date</comment>
        <translation>vence: %1</translation>
    </message>
    <message>
        <source>priority %1</source>
        <translation>prioridad: %1</translation>
    </message>
    <message>
        <source>subtask</source>
        <translation>subtarea</translation>
    </message>
    <message>
        <source>IN PROGRESS</source>
        <translation>EN CURSO</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>CANCELADA</translation>
    </message>
    <message>
        <source>↳ subtask</source>
        <translation>↳ subtarea</translation>
    </message>
    <message>
        <source>Waiting to sync</source>
        <translation>Pendiente de sincronizar</translation>
    </message>
</context>
<context>
    <name>TemplateFormDialog</name>
    <message>
        <source>New Template</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Edit Template</source>
        <translation>Editar plantilla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nombre de la plantilla</translation>
    </message>
    <message>
        <source>Title of the event</source>
        <translation>Título del evento</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>Dirección, sala o enlace de vídeo</translation>
    </message>
    <message>
        <source>Any calendar</source>
        <translation>Cualquier calendario</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>Color del evento</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>&amp;Plantilla</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Título</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendario</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>&amp;Repetición</translation>
    </message>
    <message>
        <source>L&amp;ocation</source>
        <translation>&amp;Ubicación</translation>
    </message>
    <message>
        <source>Rem&amp;inders</source>
        <translation>Rec&amp;ordatorios</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
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
        <translation> día(s)</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>Todo e&amp;l día</translation>
    </message>
    <message>
        <source>Enter a name for the template.</source>
        <translation>Introduzca un nombre para la plantilla.</translation>
    </message>
    <message>
        <source>This template was deleted in the meantime.</source>
        <translation>Esta plantilla se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <translation>No se pudo guardar la plantilla.</translation>
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
        <translation>dddd, d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
</context>
<context>
    <name>TimelineWidget</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
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
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
<context>
    <name>ViewFormDialog</name>
    <message>
        <source>New Calendar Group</source>
        <translation>Nuevo grupo de calendarios</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Edit Calendar Group</source>
        <translation>Editar grupo de calendarios</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nombre del grupo</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Color</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>C&amp;alendarios</translation>
    </message>
    <message>
        <source>This group shows all visible calendars, unless you check some here.</source>
        <translation>Este grupo muestra todos los calendarios visibles, salvo que marque algunos aquí.</translation>
    </message>
    <message>
        <source>With none checked, the group shows all visible calendars.</source>
        <translation>Si no marca ninguno, el grupo muestra todos los calendarios visibles.</translation>
    </message>
    <message>
        <source>Enter a name for the group.</source>
        <translation>Introduzca un nombre para el grupo.</translation>
    </message>
    <message>
        <source>This group was deleted in the meantime.</source>
        <translation>Este grupo se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>The group could not be saved.</source>
        <translation>No se pudo guardar el grupo.</translation>
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
        <translation>dddd, d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Today · %1</source>
        <translation>Hoy · %1</translation>
    </message>
    <message>
        <source>yyyy</source>
        <comment>a year</comment>
        <translation>yyyy</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>a month</comment>
        <translation>MMMM &apos;de&apos; yyyy</translation>
    </message>
</context>
<context>
    <name>WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Welcome to Quillon Calendar</source>
        <translation>Le damos la bienvenida a Quillon Calendar</translation>
    </message>
    <message>
        <source>Your days at a glance, on your own computer.</source>
        <translation>Sus días de un vistazo, en su propio ordenador.</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Everything is kept on this computer, so it works offline.</source>
        <translation>Todo se guarda en este ordenador, así que funciona sin conexión.</translation>
    </message>
    <message>
        <source>Filters and groups show what matters, and delete nothing.</source>
        <translation>Los filtros y los grupos muestran lo que importa y no eliminan nada.</translation>
    </message>
    <message>
        <source>Events can be typed in plain English: “lunch Thursday 1pm”.</source>
        <translation>Los eventos se pueden escribir en inglés: «lunch Thursday 1pm».</translation>
    </message>
    <message>
        <source>As you like it</source>
        <translation>A su gusto</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Time &amp;format</source>
        <translation>&amp;Formato de hora</translation>
    </message>
    <message>
        <source>Your calendars</source>
        <translation>Sus calendarios</translation>
    </message>
    <message>
        <source>&amp;Import a calendar file…</source>
        <translation>&amp;Importar un archivo de calendario…</translation>
    </message>
    <message>
        <source>&amp;Add a calendar…</source>
        <translation>&amp;Añadir un calendario…</translation>
    </message>
    <message>
        <source>A first calendar is there already. You can do all of this later.</source>
        <translation>Ya hay un primer calendario. Todo esto puede hacerlo más tarde.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Listo</translation>
    </message>
    <message>
        <source>First day of the &amp;week</source>
        <translation>Primer día de la &amp;semana</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>What&apos;s New</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>What&apos;s new in %1</source>
        <translation>Novedades de %1</translation>
    </message>
    <message>
        <source>This build carries no release notes.</source>
        <translation>Esta compilación no incluye notas de la versión.</translation>
    </message>
</context>
</TS>
