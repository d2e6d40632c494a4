<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>Diagnóstico: %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo que se encontró</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>No hay ningún problema.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Problemas encontrados: %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Qué ocurrió</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Impresoras de etiquetas</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>&amp;Impresoras</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>&amp;Buscar impresoras</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Guardar un caso para soporte…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnóstico…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Eventos</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colores</translation>
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
        <source>&amp;Notices</source>
        <translation>&amp;Avisos</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>&amp;Ninguno durante una hora</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>Ninguno de la im&amp;presora elegida</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>De nuevo de &amp;todas las impresoras y tipos</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>Avisar de &amp;pocas etiquetas…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>&amp;Permanecer en el área de notificación al cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Acerca de…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>Eventos, el más reciente primero</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>Detalles de la impresora elegida</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>Cuántas impresoras hay en cada estado</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>No se pudo guardar %1: %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>Impresoras: %1 con error, %2 con advertencia, %3 otras</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>No se pudo abrir la cola de %1.</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>Imprimir una etiqueta de prueba</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>El comando se envía a %1 tal como está:</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>El comando está en la cola de %1.</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>Guardar un caso para soporte</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>Casos (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>Avisar de pocas etiquetas</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>Avisar cuando queden menos etiquetas que (0: nunca):</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>Mostrar la im&amp;presora</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>Sin avisos de esta imp&amp;resora</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>Sin avisos de este &amp;tipo</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>Muestra las impresoras de etiquetas de este equipo.</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>Versión %1, con Qt %2 (en uso: %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>Copyright de los autores de VxPrinterStatus, con licencia MIT. Qt se usa con la GNU Lesser General Public License, versión 3; SQLite es de dominio público. Los textos completos acompañan al programa.</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>Impresoras de etiquetas: %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>Solo para las impresoras de este ordenador. Estas son las de un centro, tal como las publican sus agentes.</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>Muestra las impresoras de etiquetas de un centro, tal como las publican sus agentes.</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>Se consultan las impresoras del administrador de trabajos de impresión. Tarda más si hay impresoras de red que no responden.</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>No hay ninguna impresora de etiquetas instalada</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>Conecte una impresora por USB, enciéndala e instale su controlador. Aparecerá aquí por sí sola. No se muestran impresoras de otros fabricantes.</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>El administrador de trabajos de impresión está detenido</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>Sin él no se puede imprimir nada ni se sabe nada de ninguna impresora. Inicie el servicio «Cola de impresión» (services.msc) o reinicie el equipo. Las impresoras vuelven por sí solas.</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>&amp;Mostrar el último estado conocido</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>No tiene permiso para administrar estas impresoras</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows solo comunica su estado a quienes pueden administrarlas. Pida a un administrador el permiso «Administrar esta impresora» (propiedades de impresora, Seguridad).</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>&amp;Mostrar las impresoras de todos modos</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>Conectando con el bróker…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>No se puede leer nada del bróker</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>Se vuelve a intentar la conexión, y las impresoras aparecen por sí solas.</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>Ningún agente ha publicado una impresora</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>En cada ordenador con impresoras, un agente (vxprintagent) las publica en este bróker. Compruebe que se ejecute alguno y que su configuración indique este bróker y este centro. Las impresoras aparecen aquí por sí solas.</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 error</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errores</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 advertencia</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 advertencias</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 indicación</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 indicaciones</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 listas</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>Mostrar solo estas impresoras; pulse de nuevo para mostrarlas todas</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción desconocida «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opciones desconocidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta un valor después de «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado después de «%1».</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>Sin conexión con el bróker desde %1. Todo se muestra como estaba entonces. Se vuelve a intentar la conexión.</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>Agentes sin conexión: %1 y %2 más</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>Agentes sin conexión: %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>Mensajes que no se pueden leer: %1. El último: %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>Hay más impresoras o agentes de los que muestra este programa. Mensajes omitidos: %1</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>&amp;Sin avisos durante una hora</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>mostrar un registro de lo ocurrido en las impresoras</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>un archivo</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log: solo los sucesos de la impresora NAME y de la cola de impresión</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log: solo los sucesos desde TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (hoy), o hace 30m, 2h o 7d</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log: solo los sucesos que son ok, information, warning o error, o peores</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since: se esperaba algo como 2026-11-22, 2026-11-22T10:30, 10:30 o 2h, no «%1»</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity: se esperaba ok, information, warning o error, no «%1»</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>líneas omitidas porque no son sucesos: %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>No hay ningún suceso de esa clase.</translation>
    </message>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (véase %2 --help)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>no se pudo escribir en la salida estándar: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>Código de salida: 0 correcto, 1 error, 2 uso incorrecto. No poder escribir la salida es un error, salvo que el lector haya cerrado la tubería.</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>el carácter U+%1 es invisible; elimínelo</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>más largo de %1 caracteres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>«%1» no es un número entero entre %2 y %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>«%1» no es un SKU: como máximo %2 letras de la A a la Z, cifras, puntos, guiones bajos y guiones, empezando por una letra o cifra</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>«%1» no es un color de la forma #RRGGBB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>«%1» no es ni yes ni no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1: el archivo no existe o no se puede leer</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>falta la columna %1</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>el mismo idioma que la columna %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>«%1» no es un número entre %2 y %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>«%1» no es mayor que 0</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>color «%1» duplicado</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>material %1 duplicado</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>formato %1 duplicado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>«%1» no es ninguno de %2</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>número %1 duplicado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>«%1» no es un nombre de archivo simple</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>no se puede leer %1%2</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 ocupa más de %3 KiB</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 no es una imagen legible</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 tiene %3 por %4 píxeles; el máximo es %5 por %5</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>más de %1 filas</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>SKU %1 duplicado</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>un segundo color y su ancho deben indicarse juntos o no indicarse</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>se indica una longitud de etiqueta, pero el formato es continuo</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>vacío, pero el formato no es continuo</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>se indica una separación, pero solo hay una etiqueta a lo ancho</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>vacío, pero hay varias etiquetas a lo ancho</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 es el SKU de un material</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 paneles; una cinta tiene de 1 a %2</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>ajuste de impresión duplicado para el panel %1 de %2 con %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>«%1» es el mismo modelo que «%2»</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>formato %1 duplicado para %2</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: no existe ese directorio</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1: no se puede crear en %2: %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1: ocupa más de 16 MiB</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2, columna %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>más de %1 columnas</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>un retorno de carro sin avance de línea</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>texto después de las comillas de cierre</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>un campo de más de %1 caracteres</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>un carácter NUL</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>unas comillas dentro de un campo sin entrecomillar</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>unas comillas sin cerrar</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>vacío; se esperaba una línea con los nombres de las columnas</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>una columna sin nombre</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>columna duplicada</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>%1 campos, pero hay %2 columnas</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>los paneles de la cinta %1 no están numerados consecutivamente desde 1</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 es a la vez un material y una cinta</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>el material %1 tiene una longitud de etiqueta y un formato continuo, o ninguno de los dos</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>los formatos del modelo de impresora «%1» no están numerados consecutivamente desde 0</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>el idioma 0 es «%1», no el inglés</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>dañado: %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>sus tablas no son las de la versión %1 del esquema</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1: no es un archivo, por lo que no se reemplaza</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 materiales, %2 cintas, %3 ajustes de impresión, %4 idiomas</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: correcto, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>«%1» no es un idioma conocido</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>material</translation>
    </message>
    <message>
        <source>material</source>
        <translation>material</translation>
    </message>
    <message>
        <source>format</source>
        <translation>formato</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>color</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>segundo color</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>franja</translation>
    </message>
    <message>
        <source>width</source>
        <translation>ancho</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longitud</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>longitud de etiqueta</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>separador</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>una junto a otra</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>separación</translation>
    </message>
    <message>
        <source>background</source>
        <translation>fondo</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>se imprime con</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 panel %2: calor %3, desplazamiento %4, velocidad %5, tensión %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>cinta</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panel</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1: no hay ningún material ni cinta «%2»</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>no existe el método %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>los argumentos no se ajustan a %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>servicio desconocido «%1»; se esperaba supplyd, m4, printqd, status, un número o un nombre mostrado por list</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>un SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>un SERVICE, un METHOD y sus argumentos</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>se esperaba list, describe, call o watch</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>comando desconocido «%1»; %2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1: argumentos esperados: %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>Llama a los puntos de conexión que se ejecutan para este usuario.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>enumerar los puntos de conexión: nombre, servicio, proceso, aplicación</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>enumerar los métodos y las señales de un punto de conexión</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>llamar a un método y mostrar su resultado</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrar JSON</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>esperar hasta MS milisegundos a un punto de conexión (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>mostrar esta ayuda</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>lo que sigue no es una opción</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>mostrar una línea JSON por cada emisión de las señales, o de todas, hasta que se interrumpa</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>observar solo durante SECONDS segundos</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for espera un número de segundos</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 no admite --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>un SERVICE y nombres SIGNAL</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1: no tiene señales</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1: la conexión ha terminado; se espera al punto de conexión</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1: se observa de nuevo; faltan los cambios ocurridos entretanto</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout espera un número de milisegundos</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción desconocida %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual: esta versión utiliza el administrador de trabajos de impresión del sistema</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>mostrar JSON: un array o un objeto por línea</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch: terminar tras SECONDS; si no, al interrumpirse</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>añadir el registro de la biblioteca a FILE</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch: acelerar FACTOR veces la historia de las impresoras virtuales</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title: todos los códigos, qué significan y qué hacer</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>mostrar la versión</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>Enumera y supervisa las impresoras de etiquetas del administrador de trabajos de impresión.</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1: se esperaba un nombre de archivo</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1: se esperaba un número mayor que 0 y hasta 1000000; encontrado: «%2»</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>comando desconocido «%1»; se esperaba uno de %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1: argumentos esperados: %2; encontrados: %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>se esperaba un comando: %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 solo es válido con %2</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>enumerar las impresoras del administrador de trabajos de impresión</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>mostrar el estado de todas las impresoras de etiquetas o de una</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>una impresora como máximo</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>enviar un comando en el lenguaje de la impresora</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>una impresora y un comando</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>mostrar el título de un código de estado</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>un código de estado o --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>no se puede escribir el registro %1: %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>otro</translation>
    </message>
    <message>
        <source>default</source>
        <translation>predeterminada</translation>
    </message>
    <message>
        <source>network</source>
        <translation>red</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>compartida</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>no administrada</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>No hay impresoras o el administrador de trabajos de impresión no está en ejecución.</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>IMPRESORA</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>MODELO</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>PUERTO</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>SERIE</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>CONTROLADOR</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>INDICADORES</translation>
    </message>
    <message>
        <source>none</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>status</source>
        <translation>estado</translation>
    </message>
    <message>
        <source>online</source>
        <translation>en línea</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>cinta 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>cinta 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se conoce</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>Todavía no hay impresoras de etiquetas.</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>ESTADO</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>MATERIAL</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>CINTA 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>CINTA 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>FIRMWARE</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>impresora</translation>
    </message>
    <message>
        <source>active</source>
        <translation>activa</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>Trabajo de impresión %1, «%2»: %3, páginas: %4, bytes: %5.</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>Enviado a %1: %2</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title espera un código de estado entre -2147483648 y 2147483647; encontrado: «%1»</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Qué hacer: %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title espera un código de estado o --all, no ambos</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title espera un código de estado o --all; no se encontró nada</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send: esperar hasta que el trabajo se imprima o salga de la cola</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send: también a impresoras de otros fabricantes y comandos vacíos</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>Trabajo de impresión %1, bytes: %2.</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>interrumpido mientras el trabajo de impresión %1 estaba en la cola de «%2»</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force lo envía de todos modos.</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>el comando no se envió: %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>el trabajo de impresión %1 no se imprimió: %2</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>los materiales y las cintas no tienen nombre: no se puede leer nada del catálogo %1; «rolldb check» dice qué le pasa</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>los materiales y las cintas no tienen nombre: no existe el catálogo %1; póngalo ahí o indique otro con --catalogue o VX_ROLL_DB</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch: añadir también a FILE lo que ocurre</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch: mostrar los segundos desde el inicio en lugar de la hora</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch: mostrar cada cambio de un nivel</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json: mostrar las señales que recibe un programa anfitrión</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>tomar de FILE los nombres de materiales y cintas</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>usar las impresoras virtuales que describe FILE, o las integradas («built-in»)</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>mostrar esta ayuda como JSON</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>mostrar esta ayuda o la de un comando</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>Los nombres de colores y materiales proceden del archivo roll.db situado junto a este programa o del catálogo instalado con él, salvo que --catalogue o la variable de entorno VX_ROLL_DB indiquen otro. Solo la versión para Windows ve las impresoras del sistema; las demás solo tienen impresoras virtuales: las de --virtual, las que indica VX_VIRTUAL_FLEET o seis integradas.</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Las tablas caben en el terminal, en el ancho que indica COLUMNS o en 80 columnas; lo que se acorta termina con puntos suspensivos. Los colores se omiten si la salida no es un terminal o si NO_COLOR está definida. Los caracteres que podrían controlar el terminal se muestran como \u001b y similares.</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help admite como máximo un comando, se encontró «%1»</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>mostrar una línea por cada cosa que ocurre en las impresoras de etiquetas</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>Empieza con las impresoras tal como están y después muestra una línea por cada suceso hasta que se interrumpe. Si se indican impresoras, solo lo que les ocurre a estas. Un nivel que solo disminuye se muestra al bajar al 25, 10 y 5 %. Con --json, cada línea es un objeto; el primero contiene todas las impresoras.</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>En el nombre de una impresora no importan mayúsculas ni minúsculas. Con --json espera hasta que todas las impresoras que muestra hayan informado y hayan pasado 0,1 segundos sin otro informe, pero no más de 2 segundos. Después dedica hasta medio segundo más a los informes llegados hasta ese momento.</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>no hay ninguna impresora «%1»; ¿quería decir %2?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>no hay ninguna impresora «%1»; «vxprintmon list» muestra todas las impresoras</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>«%1» no tiene estado: su controlador «%2» no es del fabricante de las impresoras de etiquetas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>«%1» no tiene estado: su controlador «%2» es de un modelo no compatible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>«%1» no tiene estado: está sin conexión desde que se encontró; enciéndala y compruebe su cable</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>Impresora de red</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>No administrada</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>tipo desconocido</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1, nivel desconocido</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 etiqueta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etiquetas</translation>
    </message>
    <message>
        <source>no, it is a network printer</source>
        <translation>no, es una impresora de red</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>no, usted no puede administrarla</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>no, se quitó y se volvió a agregar</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>no, se quitó</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>Sin conexión desde que se encontraron y por tanto sin estado: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1, resto</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>Impresora activa: %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>significado</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>qué hacer</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>cargador</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modelo</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>controlador</translation>
    </message>
    <message>
        <source>port</source>
        <translation>puerto</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>número de serie</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>vigilada</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>no se puede escribir el registro %1: %2; se intenta de nuevo cada segundo</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals solo es válido con --json</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals no admite impresoras: muestra todas las señales</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative y --verbose no son válidos con --json</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (antes %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>Material retirado</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>Cinta 1 retirada</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>Cinta 2 retirada</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 colocado</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>Cinta 1: %1 colocada</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>Cinta 2: %1 colocada</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>ahora la impresora activa</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>Actualización del firmware: %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 agotado</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (antes: %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>, antes %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrada</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help admite como máximo un comando</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>muestra esta ayuda, o más sobre un comando</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>vacío; se espera un texto de %1 caracteres como máximo</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1: también existe %2; elimine uno de los dos</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>no es una columna de esta tabla; se espera %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>ni una columna de esta tabla ni un idioma conocido; se esperan %1 e idiomas como en o de</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>«%1» no está en %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>«%1» contiene un espacio; se espera una clave sin espacios</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>el formato %1 no está en %2</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>el material %1 no está en %2</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>CLASES</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>CINTA</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>NÚMEROS</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>tiene contenido que las tablas no pueden expresar</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1: archivos escritos: %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1: no se puede escribir como tablas:</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>crea una base de datos de consumibles con las tablas de DIRECTORY</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>Se muestran todos los errores de las tablas, hasta 50, y FILE solo se escribe si no hay ninguno. Los campos de una tabla se separan con comas, puntos y comas o tabuladores; con tabuladores, también en un archivo .tsv.</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>comprueba una base de datos de consumibles o un directorio de tablas</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>No se escribe nada. Se muestra todo lo que está mal, hasta 50 líneas.</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>enumera los consumibles y cintas de FILE</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>Con los números que los representan en los identificadores, y sus nombres.</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>muestra lo que FILE tiene sobre un consumible o una cinta</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>muestra qué representa el identificador de un rollo o de una cinta</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER es lo que publica un controlador: los 20 caracteres de un consumible o el número de una cinta. Si FILE no lo tiene, el estado de salida es 1.</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>escribe las tablas e imágenes de FILE en DIRECTORY</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>Una base de datos creada con ellas tiene los mismos bytes.</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>escribe tablas con ejemplos en DIRECTORY</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>Un comienzo para un catálogo propio: cada columna con su nombre y un ejemplo.</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>Crea y lee las bases de datos de consumibles de las impresoras.</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>muestra los nombres en el idioma TAG («de», «ja») y no en inglés</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>sustituye los archivos existentes</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>no es texto UTF-8; guarde la tabla como UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>una fila de %1 se refiere a una fila de %2 que falta</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>falta el inglés</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 ya existe; --force lo sustituye</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>no es un directorio</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>«%1» es lo que indica una impresora cuando no hay nada cargado</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>ningún consumible de la clase %1</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>Rollo %1 de la clase %2, que medía %3 pies (%4 pulgadas) cuando era nuevo.</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>El catálogo tiene otra longitud, así que la biblioteca no puede decir cuánto queda del rollo.</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>ninguna cinta con el número %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>«%1» es un SKU; show muestra lo que el archivo tiene sobre él</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>«%1» no es un identificador; se esperan los 20 caracteres de un consumible (8 dígitos hexadecimales, 6 decimales y 6 hexadecimales) o el número de una cinta de 1 a %2</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1; parecidos: %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... y %1 más</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>clases</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 bytes</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>números</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>imprime en</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE es supplyd, m4, printqd, status, un número o un nombre que muestra list.</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>También se enumera un punto de conexión que no responde, con el motivo en lugar de su proceso.</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>Los argumentos de parámetros de texto se toman tal cual; los demás se leen como JSON. De varios métodos con ese nombre se llama a aquel cuyos parámetros se ajustan a los argumentos.</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>Si el punto de conexión desaparece, watch lo espera y continúa.</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>comprobar todo desde la cola de impresión hasta el catálogo</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>mostrar todas las impresoras de etiquetas en una tabla que se actualiza</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>Inicie el servicio «Spooler»: ejecute «net start spooler» como administrador.</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>Reinicie el servicio «Spooler»: ejecute «net stop spooler» y «net start spooler» como administrador.</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>Conecte la impresora por USB, enciéndala e instale su controlador.</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>Quite la impresora de Windows y vuelva a instalarla con su controlador.</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>Tome el nombre de la salida de «vxprintmon list».</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>Pida a un administrador que le permita administrar esta impresora, en las propiedades de la impresora, en «Seguridad».</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Abra la cola de la impresora en Windows y desactive «Usar impresora sin conexión» en su menú.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>Encienda la impresora y compruebe los dos extremos del cable USB.</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>Conecte la impresora a este equipo por USB o ejecute el programa en el equipo al que está conectada.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Abra la cola de la impresora en Windows. Reanúdela si está en pausa y resuelva lo que indica.</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>Apague la impresora y vuelva a encenderla. Si no sirve de nada, instale su controlador actual.</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>Vuelva a conectar el cable USB de la impresora o elija el puerto en el que está en las propiedades de la impresora, en «Puertos».</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>Coloque un archivo roll.db junto al programa o indique uno con --catalogue o VX_ROLL_DB. «rolldb build» crea uno y «rolldb check» dice qué le pasa.</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>Consiga un roll.db actual o añada lo cargado a sus tablas y ejecute «rolldb build».</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>Si otros programas deben consultar las impresoras, inicie el programa que las supervisa.</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>Cierre el programa que no responde y vuelva a iniciarlo.</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>Pida a un administrador que quite lo que el otro usuario ha puesto allí.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>No hay que hacer nada, salvo que sea una impresora de etiquetas que se deba supervisar: en ese caso, instale su controlador.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>No hay que hacer nada: no todas las impresoras tienen este valor.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>note</source>
        <translation>aviso</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>Todo está en orden.</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>Todo lo demás está en orden.</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>Valores que el controlador no publica: %1.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>No hay ninguna impresora «%1».</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>Nombres parecidos: %1.</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>problemas encontrados: %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>El servicio «Spooler» no está en ejecución (estado %1).</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>El servicio «Spooler» está en ejecución.</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>La cola de impresión muestra una impresora sin nombre, puerto o controlador, por lo que la biblioteca no puede buscar impresoras.</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>La cola de impresión no muestra ninguna impresora de etiquetas que se pueda supervisar. Impresoras: %1.</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>La cola de impresión responde. Impresoras: %1, impresoras de etiquetas: %2.</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>El registro de dispositivos no contiene ningún dispositivo USB de una impresora de etiquetas.</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>Dispositivos USB de la clase %1: %2.</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>No existe el catálogo %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>No se puede leer el catálogo %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>El archivo %1 no es un catálogo de materiales.</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>El catálogo %1 tiene la versión de esquema %2; solo se puede leer la versión %3.</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>El catálogo %1 está dañado o vacío.</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>Catálogo %1, versión de esquema %2. Materiales: %3, cintas: %4.</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>El punto de conexión %1 no está en ejecución.</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>El punto de conexión %1 no responde: %2.</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>El punto de conexión %1 responde: %2, proceso %3.</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1: no se publica; este modelo tiene una sola cinta</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1: no se publica</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1; se esperaba el tipo %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1; se esperaban de %2 a %3 bytes</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1; es plausible un número de hasta %2</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>El código de estado «%1» no es un número.</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>Estado %1: %2. %3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1: no hay nada cargado.</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1: el catálogo no conoce %2.</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1: %2 es %3 en el catálogo.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>El controlador «%1» es de otro fabricante, por lo que la impresora no se supervisa.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>El controlador «%1» es de un modelo no compatible, por lo que la impresora no se supervisa.</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>Modelo %1, controlador «%2».</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>Usted puede administrar la impresora.</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>Usted no puede administrar la impresora, por lo que no se supervisa.</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>Se accede a la impresora por la red (puerto %1), por lo que se muestra, pero no se supervisa.</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>En el puerto %1 de la impresora no hay ningún dispositivo USB de una impresora de etiquetas.</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>Puerto %1, con el dispositivo %2.</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>La impresora está configurada para usarse sin conexión.</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows indica que la impresora está sin conexión.</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>La impresora está en línea.</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>La cola no indica nada.</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>La cola indica: %1.</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 ha fallado: %2 (error %3).</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top dibuja en un terminal, pero su entrada o salida no lo es; use status o top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>no se puede usar el terminal: %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>esta consola no admite secuencias de escape; use la de Windows 10 o posterior</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>Impresoras: %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>con errores: %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>se muestran: %1 a %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminada</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q salir</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s por gravedad</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n por nombre</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l por nivel</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>flechas, Re Pág, Av Pág: desplazar</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>un archivo que leer y otro que escribir</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case: se esperaba show, explain, redact o verify, se encontró &quot;%1&quot;</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>línea %1, tras %2 s</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>Señales y líneas de registro que no tratan de ninguna impresora: la primera diferencia está en el número %1</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>Señales y líneas de registro de &quot;%1&quot;: la primera diferencia está en el número %2</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>grabado</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>reproducido</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>Pruebas, desde %1: líneas %2 y otras: %3</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>Pruebas, desde %1: líneas %2</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>No se reconoce nada en este caso.</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>byte %1: %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>se esperaba un objeto con la lista &quot;findings&quot;</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>hay más de %1 hallazgos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; debe ser %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>no existe el miembro &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>una condición o una lista de condiciones</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>una lista de textos</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>un número de segundos</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>un texto, o textos por idioma con &quot;en&quot; entre ellos</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1: el archivo tiene más de %2 bytes</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1: ya existe ese archivo; indique otro</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1: líneas escritas: %2, omitidas: %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>Léalo antes de enviarlo: es texto sin formato.</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>un hilo de supervisión no llega a detenerse</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1, durante %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>con</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>pasos: %1, señales: %2, líneas de registro: %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>nombres</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>sustituidos por otros</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>tal como son; &quot;vxprintmon case redact&quot; los sustituye</translation>
    </message>
    <message>
        <source>end</source>
        <translation>final</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>falta: la grabación se interrumpió</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>más rápido</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>veces que los valores cambiaron más rápido de lo que se leían: %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Advertencias y errores</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>Qué estaba cargado</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>no estaba</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>este programa no tiene impresoras virtuales y no puede reproducir un caso; ejecute &quot;vxprintmon case verify&quot; en Linux</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>La grabación se interrumpió; se compara hasta ahí.</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>No se grabaron señales; solo se compara el registro.</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>Igual: %1 señales y %2 líneas de registro en %3 pasos.</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>la biblioteca hace algo distinto de lo que se grabó</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain: reconocer también lo que describe la tabla FILE</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>mostrar, explicar, anonimizar o verificar un archivo de caso</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>una acción y uno o dos archivos</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; cuenta lo que hay en un archivo de caso. &quot;case explain FILE&quot; nombra los fallos que reconoce, con las líneas que los muestran y qué hacer. &quot;case redact IN OUT&quot; escribe una copia sin nombres de personas, equipos e impresoras, números de serie ni direcciones. &quot;case verify FILE&quot; reproduce el caso y compara lo que hace ahora la biblioteca con lo que se grabó.</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1: no se puede escribir su catálogo en un archivo temporal: %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2: una fila no encaja en la tabla &quot;%3&quot; de un catálogo: %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record: mantener el archivo por debajo de SIZE, p. ej. 64M; entonces conserva el principio y lo último</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record: dejar nombres, números de serie y direcciones tal como son</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>grabar lo que hacen las impresoras, para quienes ayudan</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>Graba, junto a otros programas que usan las impresoras, todo lo que la cola de impresión dice a la biblioteca y lo que la biblioteca hace con ello, hasta que se interrumpe. FILE está completo también tras un fallo y es un archivo de caso para &quot;case&quot;, --virtual y quienes ayudan. No debe existir. Cada medio minuto muestra lo que ha grabado.</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  impresoras %2, cambios %3, señales %4, líneas de registro %5, %6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Señales</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>Líneas de registro</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>Más rápido que la lectura</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>Omitido por el límite</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>No escrito</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>El archivo contiene los nombres de impresoras, personas y equipos. &quot;vxprintmon case redact&quot; los quita.</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>Los nombres, números de serie y direcciones están sustituidos. &quot;vxprintmon case show&quot; muestra lo que hay en el archivo.</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit: se esperaba un tamaño de 1M a 1G, como 64M, se encontró &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 existe y no se sustituye; elija otro nombre o elimínelo antes</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>no se puede crear %1: %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>Grabando en %1.</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>Grabando en %1, hasta que se interrumpa (Ctrl-C).</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>no se puede escribir %1: %2; se vuelve a intentar cada segundo</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch: registrar también lo que se consume, en el historial del usuario o en --file</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history: mostrar una tabla para hojas de cálculo (CSV)</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>mostrar lo que han consumido las impresoras</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>Muestra una línea por cada rollo y cada cinta: qué estaba cargado, desde cuándo hasta cuándo, cuánto se consumió y cuánto al día de media. Una impresora se indica por su nombre o por su número de serie. «vxprintmon watch --history» registra todo esto.</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>decir cuándo se acabarán los rollos y las cintas</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>decir si un trabajo cabe: el material y la cinta correctos, y suficientes</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>una impresora, el SKU de un material, un número de etiquetas y SKU de cintas</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>El estado de salida es 0 si el trabajo se puede imprimir con lo que está cargado, 3 si no, y 4 si no se sabe. Cada cinta indicada debe estar cargada; si no se indica ninguna, basta una cinta cargada que sea adecuada para el material y suficiente.</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough espera un número de etiquetas entre 1 y 2147483647, se encontró «%1»</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>el catálogo no tiene %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>el catálogo no tiene %1; ¿quería decir %2?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>LUGAR</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>QUEDA</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>DURA UNOS</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>PROBABLEMENTE</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>las previsiones necesitan un historial de consumo; «vxprintmon watch --history» lo registra</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>más de 2 años</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún no se sabe</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>no se puede leer el historial: %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>aún cargado</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>CARGADO</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>DESDE</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>HASTA</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>USADO</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>ETIQUETAS</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>AL DÍA</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (número de serie %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>Cambios que no se pudieron registrar: %1, de %2 a %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>el historial no contiene ninguna impresora «%1»</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>el historial no contiene ninguna impresora «%1»; ¿quería decir %2?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv y --json no se pueden usar a la vez</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>Aún no se ha registrado nada. «vxprintmon watch --history» registra lo que se consume.</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>el historial estaba dañado, ahora se llama %1 y se ha empezado de nuevo: %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>no se puede escribir el historial %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>no se puede escribir el historial %1; se vuelve a intentar cada segundo</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1: duración</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>unos %1, probablemente de %2 a %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>DURA</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file solo es válido con --history</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history, forecast, watch --history: FILE en lugar del historial del usuario</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch, forecast: avisar cuando quedan menos etiquetas (LABELS) en un rollo; watch: 100 por defecto, 0 para nunca</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch, forecast: avisar de los rollos que tienen menos etiquetas (LABELS) de las que necesita un trabajo</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch, forecast: avisar de lo que probablemente se acabará antes que el turno; TIMES, por ejemplo 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1: se esperaba un número entero de %2 a 2147483647; encontrado: «%3»</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1: se esperaban horas como 14:00,22:00; encontrado: «%2»</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>Aprende del historial del usuario, que registra «vxprintmon watch --history». En cuatro de cada cinco casos, lo que está cargado se acaba entre los dos tiempos de la última columna. Con --warn-below, --job o --shift-end, muestra también de qué avisaría «watch».</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1: su catálogo solo se puede reproducir con una base de datos de consumibles del propio producto</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>líneas omitidas de %1 a %2: %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>AL PRINCIPIO</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>AL FINAL</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language: se esperaba en, de, es, fr, it, ja o zh_CN, se encontró «%1»</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>no se puede escribir la imagen %1</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>mostrar las impresoras virtuales que describe FILE, o las integradas («built-in»)</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>acelerar FACTOR veces la historia de las impresoras virtuales</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>registrar el consumo en FILE y mostrarlo</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>guardar en FILE los ajustes de la ventana</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>iniciar sin abrir la ventana</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>usar el idioma TAG: en, de, es, fr, it, ja o zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>usar los colores SCHEME: light (claro), dark (oscuro) o system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>abrir la ventana con este tamaño</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>guardar una imagen de la ventana en FILE.png y terminar</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>con --screenshot: SECONDS después del inicio, 3 de forma predeterminada</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>Muestra en una ventana las impresoras de etiquetas de este equipo.</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1: se esperaba un número mayor que 0 y hasta %2, se encontró «%3»</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size: se esperaba por ejemplo 1200x800, se encontró «%1»</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1: se esperaba un valor</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>solo se esperaban opciones, se encontró «%1»</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after acompaña a --screenshot</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors: se esperaba light, dark o system, se encontró «%1»</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>Vigila las impresoras de etiquetas de este equipo y publica lo que ve en un bróker y para un sistema de monitorización.</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>vigilar y publicar hasta que se interrumpa</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>decir qué está mal en una configuración</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>instalar el agente como servicio de Windows que funciona con la configuración</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>quitar el servicio de Windows</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>la configuración, un archivo JSON</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>usar las impresoras virtuales que describe FILE</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>reproducir la historia de las impresoras virtuales FACTOR veces más rápido</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed espera un número mayor que 0 y hasta 1000</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 necesita un valor</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 necesita --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 es una configuración válida</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 no admite más palabras</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>solo Windows tiene servicios que instalar; en otros sistemas use la unidad de systemd, deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>lo que inicia el administrador de servicios de Windows</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1: Windows solo lo permite a los administradores; use una consola iniciada como administrador</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1: %2 (error %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>no se puede instalar el servicio %1</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>no se puede quitar el servicio %1</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>no se conocen los permisos de %1</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%2 puede modificar %1 y obtendría así los permisos del servicio; muévalo adonde solo los administradores puedan modificarlo, por ejemplo, dentro de «C:\Program Files»</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 está en una unidad de red, que un servicio no ve; cópielo en este equipo</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1: no se detiene; finalice vxprintagent.exe en el Administrador de tareas e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>la orden «service» es para el administrador de servicios; en una consola use «vxprintagent run --config FILE»</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>el administrador de servicios no responde</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1: ya está instalado; ejecute primero «vxprintagent uninstall»</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>el servicio %1 está instalado y se inicia con Windows; para iniciarlo ahora: net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>el servicio %1 no está instalado</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1 todavía: otro programa lo tiene abierto; cierre la lista de servicios y el Visor de eventos</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 no permite a este usuario leer lo que publican los agentes (%2); consulte a quien administra el bróker</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>un nombre vacío o con más de %1 caracteres</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>se esperaba online u offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>no es un objeto JSON</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>hay más de %1 impresoras</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>un mensaje no se puede leer: %1 (hasta ahora: %2)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1; las que exceden no se muestran</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>hay más de %1 agentes</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1: se esperaba %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 no indica ningún bróker: indíquelo con --broker o con &quot;url&quot; en &quot;mqtt&quot;</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>los certificados de %1 no tienen efecto sin TLS; se esperaba una URL que empiece por mqtts://</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>la contraseña atraviesa la red de forma legible; use mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker: esta versión no tiene MQTT; compílela con libmosquitto</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top: muestra lo que los agentes publican en el bróker de URL, como mqtts://broker.example/SITE; sin SITE, todos los centros</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top: toma el bróker, el usuario y los certificados de FILE, que es como la configuración de un agente</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>Con --broker o --broker-config, las impresoras son las de un centro entero, tal como las publican sus agentes por MQTT. FILE indica en &quot;mqtt&quot; el usuario y el archivo con la contraseña; una URL no contiene ninguno de los dos.</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>Sin agente desde %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente sin conexión</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 no se puede combinar con --broker</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>sin conexión desde %1</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>agentes sin conexión: %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>mensajes ilegibles: %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando con %1…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>Ningún agente ha publicado todavía una impresora.</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>Ningún agente del centro &quot;%1&quot; ha publicado todavía una impresora.</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>muestra lo que los agentes publican en el bróker de URL, como mqtts://broker.example/SITE; sin SITE, todos los centros</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>toma el bróker, el usuario y los certificados de FILE, que es como la configuración de un agente</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>omitidos: %1</translation>
    </message>
</context>
</TS>
