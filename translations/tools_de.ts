<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unerwarteter Wert nach „%1“.</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (siehe %2 --help)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>die Standardausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>Exit-Status: 0 Erfolg, 1 Fehler, 2 falscher Aufruf. Kann die Ausgabe nicht geschrieben werden, ist das ein Fehler, außer wenn der Leser die Pipe geschlossen hat.</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>das Zeichen U+%1 ist unsichtbar; entfernen Sie es</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>„%1“ ist keine ganze Zahl zwischen %2 und %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>„%1“ ist keine SKU: höchstens %2 Buchstaben von A bis Z, Ziffern, Punkte, Unterstriche und Bindestriche, mit einem Buchstaben oder einer Ziffer am Anfang</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>„%1“ ist keine Farbe der Form #RRGGBB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>„%1“ ist weder yes noch no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1: diese Datei gibt es nicht, oder sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>die Spalte %1 fehlt</translation>
    </message>
    <message>
        <source>the column en is missing</source>
        <translation>die Spalte en fehlt</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>weder eine Spalte dieser Tabelle noch eine bekannte Sprache</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>keine Spalte dieser Tabelle</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>dieselbe Sprache wie die Spalte %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>„%1“ ist keine Zahl zwischen %2 und %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>„%1“ ist nicht größer als 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>„%1“ steht nicht in colours.csv</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>ein Leerzeichen im Schlüssel einer Farbe</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>doppelte Farbe „%1“</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>doppeltes Material %1</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>doppeltes Format %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>„%1“ ist keiner der Werte %2</translation>
    </message>
    <message>
        <source>format %1 is not in formats.csv</source>
        <translation>das Format %1 steht nicht in formats.csv</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>doppelte Nummer %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>„%1“ ist kein einfacher Dateiname</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>%1%2 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 ist größer als %3 KiB</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 hat %3 mal %4 Pixel; höchstens %5 mal %5 sind erlaubt</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>doppelte SKU %1</translation>
    </message>
    <message>
        <source>material %1 is not in materials.csv</source>
        <translation>das Material %1 steht nicht in materials.csv</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>eine zweite Farbe und ihre Breite müssen zusammen oder gar nicht angegeben werden</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>eine Etikettenlänge ist angegeben, aber das Format ist endlos</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>leer, aber das Format ist nicht endlos</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>ein Abstand ist angegeben, aber es liegt nur ein Etikett nebeneinander</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>leer, aber es liegen mehrere Etiketten nebeneinander</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 ist die SKU eines Etikettenmaterials</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 Felder; ein Farbband hat 1 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>„%1“ steht nicht in ribbons.csv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>„%1“ steht nicht in supplies.csv</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>doppelte Druckeinstellung für Feld %1 von %2 mit %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>„%1“ ist dasselbe Modell wie „%2“</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>doppeltes Format %1 für %2</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: dieses Verzeichnis gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1: kann nicht in %2 erstellt werden: %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1: größer als 16 MiB</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>kein UTF-8-Text</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2, Spalte %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>ein Wagenrücklauf ohne Zeilenvorschub</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>Text nach einem schließenden Anführungszeichen</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>ein Feld mit mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>ein Anführungszeichen in einem Feld ohne Anführungszeichen</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>ein nicht geschlossenes Anführungszeichen</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>leer; eine Zeile mit Spaltennamen wird erwartet</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>eine Spalte ohne Namen</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>doppelte Spalte</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>%1 Felder, aber es gibt %2 Spalten</translation>
    </message>
    <message>
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1, Spalte %2 (%3): %4</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>die Felder des Farbbands %1 sind nicht fortlaufend ab 1 nummeriert</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 ist zugleich Etikettenmaterial und Farbband</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>das Etikettenmaterial %1 hat eine Etikettenlänge und ein endloses Format oder keines von beiden</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>die Formate des Druckermodells „%1“ sind nicht fortlaufend ab 0 nummeriert</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>die Sprache 0 ist „%1“, nicht Englisch</translation>
    </message>
    <message>
        <source>English is missing%1</source>
        <translation>Englisch fehlt%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>eine Zeile von %1 verweist auf eine fehlende Zeile</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>beschädigt: %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>die Tabellen sind nicht die der Schemaversion %1</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1: keine Datei, wird daher nicht ersetzt</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build erstellt die Materialdatenbank FILE aus den Tabellen in DIRECTORY.</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check prüft FILE.</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show gibt aus, was FILE über ein Etikettenmaterial oder ein Farbband enthält, mit Namen auf Englisch oder in der Sprache TAG („de“, „ja“).</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 Etikettenmaterialien, %2 Farbbänder, %3 Druckeinstellungen, %4 Sprachen</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: in Ordnung, %2</translation>
    </message>
    <message>
        <source>expected build, check or show</source>
        <translation>build, check oder show wird erwartet</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>unbekannter Befehl „%1“; build, check oder show wird erwartet</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 erwartet %2 Argumente, nicht %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>„%1“ ist keine bekannte Sprache</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>zweite Farbe</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>Streifen</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>Etikettenlänge</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>Zwischenraum</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>nebeneinander</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>bedruckt mit</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 Feld %2: Wärme %3, Versatz %4, Geschwindigkeit %5, Spannung %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>Farbband</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1: kein Etikettenmaterial oder Farbband „%2“</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>es gibt keine Methode %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>die Argumente passen nicht zu %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>unbekannter Dienst „%1“; supplyd, m4, printqd, status, eine Zahl oder ein von list ausgegebener Name wird erwartet</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>keine Argumente</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>einen SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>einen SERVICE, eine METHOD und deren Argumente</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>list, describe, call oder watch wird erwartet</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>unbekannter Befehl „%1“; %2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 erwartet %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>Ruft die Endpunkte auf, die für diesen Benutzer laufen.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>die Endpunkte auflisten: Name, Dienst, Prozess, Anwendung</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>die Methoden und Signale eines Endpunkts auflisten</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>eine Methode aufrufen und ihr Ergebnis ausgeben</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE ist supplyd, m4, printqd, status, eine Zahl oder ein Name, den list ausgibt. Argumente für Textparameter werden übernommen, wie sie sind, alle anderen als JSON gelesen.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON ausgeben</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>bis zu MS Millisekunden auf einen Endpunkt warten (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>was folgt, ist keine Option</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>für jede Aussendung der Signale oder aller Signale eine Zeile JSON ausgeben, bis zur Unterbrechung</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>nur SECONDS Sekunden lang beobachten</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for erwartet eine Anzahl von Sekunden</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 erwartet kein --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>einen SERVICE und SIGNAL-Namen</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1: Er hat keine Signale</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1: Die Verbindung ist beendet; es wird auf den Endpunkt gewartet</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1: Die Beobachtung läuft wieder; was sich inzwischen geändert hat, fehlt</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout erwartet eine Anzahl von Millisekunden</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual: diese Fassung verwendet die Druckwarteschlange des Systems</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>JSON ausgeben: ein Array oder ein Objekt pro Zeile</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch: nach SECONDS Sekunden enden; sonst, wenn unterbrochen</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>das Protokoll der Bibliothek an FILE anhängen</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>die virtuellen Drucker verwenden, die FILE beschreibt</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch: den Ablauf der virtuellen Drucker um FACTOR beschleunigen</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title: alle Codes, mit Bedeutung und Abhilfe</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>die Version ausgeben</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>Listet die Etikettendrucker der Druckwarteschlange auf und überwacht sie.</translation>
    </message>
    <message>
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status wartet, bis jeder gezeigte Drucker sich gemeldet hat und 0,1 Sekunden ohne weitere Meldung vergangen sind, aber höchstens 2 Sekunden. Danach nimmt es sich noch bis zu eine halbe Sekunde für Meldungen, die bis dahin eingetroffen sind.</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>Die Namen der Farben und Materialien kommen aus der Datei roll.db neben diesem Programm. Nur die Fassung für Windows sieht die Drucker des Systems; jede andere hat nur virtuelle Drucker, normalerweise sechs.</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Farben entfallen, wenn die Ausgabe kein Terminal ist oder NO_COLOR gesetzt ist. Zeichen, die das Terminal steuern könnten, werden als \u001b und dergleichen gezeigt.</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1: Dateiname erwartet</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1: Zahl über 0 und bis 1000000 erwartet, gefunden: „%2“</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>unbekannter Befehl „%1“; erwartet wird einer von %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1 erwartet %2, gefunden: %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>ein Befehl wird erwartet: %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 gilt nur für %2</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>die Drucker der Druckwarteschlange auflisten</translation>
    </message>
    <message>
        <source>print a line for each change to the label printers</source>
        <translation>für jede Änderung an den Etikettendruckern eine Zeile ausgeben</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>den Status aller Etikettendrucker oder eines einzelnen zeigen</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>höchstens einen Drucker</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>einen Befehl in der Sprache des Druckers senden</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>einen Drucker und einen Befehl</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>den Titel eines Statuscodes ausgeben</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>einen Statuscode oder --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>das Protokoll %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>anderes</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>freigegeben</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>nicht verwaltet</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>Es gibt keine Drucker, oder die Druckwarteschlange wird nicht ausgeführt.</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>DRUCKER</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>MODELL</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>ANSCHLUSS</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>SERIENNUMMER</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>TREIBER</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>MERKMALE</translation>
    </message>
    <message>
        <source>none</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>von unbekannter Art</translation>
    </message>
    <message>
        <source>status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>supply left</source>
        <translation>Rest Etiketten</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>Rest Farbband 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>Farbband 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>Rest Farbband 2</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>hat Farbband 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>Netzwerkdrucker</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>verwaltet</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>war aktiv</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>Es gibt noch keine Etikettendrucker.</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>STATUS</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>ETIKETTEN</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>FARBBAND 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>FARBBAND 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>FIRMWARE</translation>
    </message>
    <message>
        <source>ACTIVE</source>
        <translation>AKTIV</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>active</source>
        <translation>aktiv</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>Störungen</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>Farbbänder</translation>
    </message>
    <message>
        <source>found</source>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>records</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>ein Drucker hat eine Störung</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>kein Drucker hat eine Störung</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>gewechselt oder entfernt</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>ist der aktive Drucker</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>ist der aktive Drucker, hat aber keinen Datensatz</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>wird jetzt überwacht</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>keine Änderungen</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>Druckauftrag %1, „%2“: %3, Seiten: %4, Byte: %5.</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>An %1 gesendet: %2</translation>
    </message>
    <message>
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>es gibt keinen Datensatz eines Druckers „%1“; „vxprintmon status“ zeigt die Drucker, die einen haben</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title erwartet einen Statuscode zwischen -2147483648 und 2147483647, gefunden: „%1“</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Was zu tun ist: %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title erwartet einen Statuscode oder --all, nicht beides</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title erwartet einen Statuscode oder --all, nichts gefunden</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send: warten, bis der Auftrag gedruckt ist oder die Warteschlange verlassen hat</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send: auch an Drucker anderer Hersteller, auch leere Befehle</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>Druckauftrag %1, Byte: %2.</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>unterbrochen, während der Druckauftrag %1 in der Druckwarteschlange von „%2“ war</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force sendet ihn trotzdem.</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>der Befehl wurde nicht gesendet: %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>der Druckauftrag %1 wurde nicht gedruckt: %2</translation>
    </message>
</context>
</TS>
