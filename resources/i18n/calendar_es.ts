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
            <extracomment>the short form of "+%1 more"</extracomment>
            <translation>+%1</translation>
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
            <source>Delete "%1" and all its events? This cannot be undone.</source>
            <translation>¿Eliminar «%1» y todos sus eventos? Esta acción no se puede deshacer.</translation>
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
        <name>EventContextMenu</name>
        <message>
            <source>Edit filter "%1"…</source>
            <translation>Editar el filtro «%1»…</translation>
        </message>
        <message>
            <source>Create Filter from Event…</source>
            <translation>Crear filtro a partir del evento…</translation>
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
            <source>Delete "%1"? The events it hides or dims show again.</source>
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
            <source>title is "%1"</source>
            <translation>el título es «%1»</translation>
        </message>
        <message>
            <source>title contains "%1"</source>
            <translation>el título contiene «%1»</translation>
        </message>
        <message>
            <source>description contains "%1"</source>
            <translation>la descripción contiene «%1»</translation>
        </message>
        <message>
            <source>location contains "%1"</source>
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
            <source>the event "%1"</source>
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
            <source>A range over midnight matches nothing. Make two filters: one for the evening, with only "at or after", and one for the morning.</source>
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
            <translation>Importando… %1 %</translation>
        </message>
        <message>
            <source>Reading… %1%</source>
            <translation>Leyendo… %1 %</translation>
        </message>
        <message>
            <source>No calendars configured</source>
            <translation>No hay calendarios configurados</translation>
        </message>
        <message>
            <source>Add a writable calendar first; then re-import "%1".</source>
            <translation>Añada primero un calendario en el que se pueda escribir y vuelva a importar «%1».</translation>
        </message>
        <message>
            <source>Couldn't open "%1" for reading.</source>
            <translation>No se pudo abrir «%1» para leerlo.</translation>
        </message>
        <message>
            <source>No events found in "%1".</source>
            <translation>No se encontraron eventos en «%1».</translation>
        </message>
        <message>
            <source>Couldn't open file</source>
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
            <source>"%1" is too large to import.</source>
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
            <source>Import 1 event from "%1" into:</source>
            <translation>Importar 1 evento de «%1» en:</translation>
        </message>
        <message>
            <source>Import %1 events from "%2" into:</source>
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
            <source>&amp;Manage Filters…</source>
            <translation>&amp;Gestionar filtros…</translation>
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
            <source>Delete "%1"? You can recreate it later.</source>
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
            <source>What's new</source>
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
            <translation>dddd, d 'de' MMMM 'de' yyyy</translation>
        </message>
    </context>
    <context>
        <name>TimelineWidget</name>
        <message>
            <source>Events</source>
            <translation>Eventos</translation>
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
            <translation>dddd, d 'de' MMMM 'de' yyyy</translation>
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
            <translation>MMMM 'de' yyyy</translation>
        </message>
    </context>
</TS>
