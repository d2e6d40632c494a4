<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
    <name>tools</name>
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
        <source>the column en is missing</source>
        <translation>falta la columna en</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>no es una columna de esta tabla ni un idioma conocido</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>no es una columna de esta tabla</translation>
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
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>«%1» no está en colours.csv</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>un espacio en la clave de un color</translation>
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
        <source>format %1 is not in formats.csv</source>
        <translation>el formato %1 no está en formats.csv</translation>
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
        <source>material %1 is not in materials.csv</source>
        <translation>el material %1 no está en materials.csv</translation>
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
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>«%1» no está en ribbons.csv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>«%1» no está en supplies.csv</translation>
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
        <source>not UTF-8 text</source>
        <translation>no es texto UTF-8</translation>
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
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1, columna %2 (%3): %4</translation>
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
        <source>English is missing%1</source>
        <translation>falta el inglés%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>una fila de %1 hace referencia a una fila que falta</translation>
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
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build crea la base de datos de materiales FILE a partir de las tablas de DIRECTORY.</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check comprueba FILE.</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show muestra lo que FILE contiene sobre un material o una cinta, con los nombres en inglés o en el idioma TAG («de», «ja»).</translation>
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
        <source>expected build, check or show</source>
        <translation>se esperaba build, check o show</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>comando desconocido «%1»; se esperaba build, check o show</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 espera %2 argumentos, no %3</translation>
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
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
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
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE es supplyd, m4, printqd, status, un número o un nombre mostrado por list. Los argumentos para parámetros de texto se toman tal cual; los demás se leen como JSON.</translation>
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
        <source>use the virtual printers that FILE describes</source>
        <translation>usar las impresoras virtuales que describe FILE</translation>
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
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status espera hasta que todas las impresoras que muestra hayan informado y hayan pasado 0,1 segundos sin otro informe, pero no más de 2 segundos. Después dedica hasta medio segundo más a los informes llegados hasta ese momento.</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>Los nombres de colores y materiales proceden del archivo roll.db situado junto a este programa. Solo la versión para Windows ve las impresoras del sistema; las demás solo tienen impresoras virtuales, seis de forma predeterminada.</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Los colores se omiten si la salida no es un terminal o si NO_COLOR está definida. Los caracteres que podrían controlar el terminal se muestran como \u001b y similares.</translation>
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
        <source>print a line for each change to the label printers</source>
        <translation>mostrar una línea por cada cambio en las impresoras de etiquetas</translation>
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
        <source>of an unknown kind</source>
        <translation>de tipo desconocido</translation>
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
        <source>supply left</source>
        <translation>resto de material</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>cinta 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>resto de cinta 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>cinta 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>resto de cinta 2</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>tiene cinta 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>impresora de red</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>administrada</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>ha estado activa</translation>
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
        <source>ACTIVE</source>
        <translation>ACTIVA</translation>
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
        <source>errors</source>
        <translation>errores</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>cintas</translation>
    </message>
    <message>
        <source>found</source>
        <translation>hallada</translation>
    </message>
    <message>
        <source>records</source>
        <translation>datos</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>una impresora tiene un error</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>ninguna impresora tiene errores</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>cambiado o retirado</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>es la impresora activa</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>es la impresora activa, pero no tiene registro</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>ahora se supervisa</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>sin cambios</translation>
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
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>no hay registro de ninguna impresora «%1»; «vxprintmon status» muestra las impresoras que lo tienen</translation>
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
</context>
</TS>
