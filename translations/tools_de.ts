<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>Diagnose: %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Es wird geprüft …</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Es ist alles in Ordnung.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Gefundene Probleme: %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschehen ist</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Etikettendrucker</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>&amp;Drucker</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>Nach Druckern &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Fall für den Support speichern …</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnose …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
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
        <source>&amp;Notices</source>
        <translation>&amp;Meldungen</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>Eine Stunde lang &amp;keine</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>Keine vom ausgewählten &amp;Drucker</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>Wieder von &amp;allen Druckern und Arten</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>Vor &amp;wenigen Etiketten warnen …</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>Nach dem Schließen des Fensters im &amp;Infobereich bleiben</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Info …</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>Ereignisse, das neueste zuerst</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>Details des ausgewählten Druckers</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>Wie viele Drucker in welchem Zustand sind</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>Drucker: %1 mit Fehler, %2 mit Warnung, %3 andere</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>Die Warteschlange von %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>Testetikett drucken</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>Der Befehl wird unverändert an %1 gesendet:</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>Der Befehl ist in der Warteschlange von %1.</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>Fall für den Support speichern</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>Fälle (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>Vor wenigen Etiketten warnen</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>Warnen, wenn weniger Etiketten übrig sind als (0: nie):</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>&amp;Drucker zeigen</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>Keine Meldungen von diesem D&amp;rucker</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>Keine Meldungen dieser &amp;Art</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>Zeigt die Etikettendrucker dieses Computers.</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>Version %1, mit Qt %2 (verwendet: %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>Copyright der Autoren von VxPrinterStatus, unter der MIT-Lizenz. Qt wird unter der GNU Lesser General Public License, Version 3, verwendet; SQLite ist gemeinfrei. Die vollständigen Texte liegen dem Programm bei.</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>Etikettendrucker: %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>Nur für die Drucker dieses Computers. Dies sind die Drucker eines Standorts, wie dessen Agenten sie melden.</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>Zeigt die Etikettendrucker eines Standorts, wie dessen Agenten sie melden.</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>Es wird nach Druckern gesucht …</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>Die Druckwarteschlange wird nach ihren Druckern gefragt. Das dauert länger, wenn Drucker im Netzwerk nicht antworten.</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>Es ist kein Etikettendrucker installiert</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>Schließen Sie einen Drucker über USB an, schalten Sie ihn ein und installieren Sie seinen Treiber. Er erscheint hier von selbst. Drucker anderer Hersteller werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>Noch einmal &amp;suchen</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Die Druckwarteschlange läuft nicht</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>Ohne sie kann nichts gedruckt werden, und über keinen Drucker ist etwas bekannt. Starten Sie den Dienst „Druckwarteschlange“ (services.msc) oder den Computer neu. Die Drucker kommen von selbst zurück.</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>Den letzten bekannten Stand &amp;zeigen</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>Sie dürfen diese Drucker nicht verwalten</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows teilt ihren Zustand nur Personen mit, die sie verwalten dürfen. Bitten Sie einen Administrator um die Berechtigung „Diesen Drucker verwalten“ (Druckereigenschaften, Sicherheit).</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>Die Drucker trotzdem &amp;zeigen</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>Verbindung zum Broker wird aufgebaut …</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>Vom Broker kann nichts gelesen werden</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>Die Verbindung wird erneut versucht, und die Drucker erscheinen von selbst.</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>Kein Agent hat einen Drucker gemeldet</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>Auf jedem Computer mit Druckern meldet sie ein Agent (vxprintagent) an diesen Broker. Prüfen Sie, ob einer läuft und ob seine Konfiguration diesen Broker und diesen Standort nennt. Drucker erscheinen hier von selbst.</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 Hinweis</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 bereit</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>Nur diese Drucker zeigen; noch einmal drücken, um alle zu zeigen</translation>
    </message>
</context>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>Keine Verbindung zum Broker seit %1. Alles wird so gezeigt, wie es da war. Die Verbindung wird erneut versucht.</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>Agenten offline: %1 und %2 weitere</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>Agenten offline: %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>Nicht lesbare Meldungen: %1. Die letzte: %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>Es gibt mehr Drucker oder Agenten, als dieses Programm zeigt. Ausgelassene Meldungen: %1</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>Eine Stunde lang &amp;keine Meldungen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>ein Protokoll der Ereignisse an Druckern ausgeben</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>eine Datei</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log: nur Ereignisse des Druckers NAME und der Druckwarteschlange</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log: nur Ereignisse seit TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (heute), oder vor 30m, 2h oder 7d</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log: nur Ereignisse, die ok, information, warning oder error oder schlimmer sind</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since: erwartet wird etwa 2026-11-22, 2026-11-22T10:30, 10:30 oder 2h, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity: erwartet wird ok, information, warning oder error, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>ausgelassene Zeilen, die keine Ereignisse sind: %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>Es gibt keine solchen Ereignisse.</translation>
    </message>
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
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 Etikettenmaterialien, %2 Farbbänder, %3 Druckeinstellungen, %4 Sprachen</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: in Ordnung, %2</translation>
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
        <translation>ohne Rechte</translation>
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
        <translation>SERIENNR.</translation>
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
        <source>status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>Farbband 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>Firmware</translation>
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
        <source>printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>active</source>
        <translation>aktiv</translation>
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
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>Etiketten und Farbbänder haben keine Namen: aus dem Katalog %1 lässt sich nichts lesen; „rolldb check“ sagt, was damit nicht stimmt</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>Etiketten und Farbbänder haben keine Namen: es gibt keinen Katalog %1; legen Sie ihn dort ab oder nennen Sie mit --catalogue oder VX_ROLL_DB einen anderen</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch: was geschieht, auch an FILE anhängen</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch: Sekunden seit dem Beginn statt der Uhrzeit ausgeben</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch: jede Änderung eines Füllstands ausgeben</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json: die Signale ausgeben, die ein Hostprogramm empfängt</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>die Namen von Etiketten und Farbbändern aus FILE nehmen</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>die virtuellen Drucker verwenden, die FILE beschreibt, oder die eingebauten („built-in“)</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>diese Hilfe als JSON ausgeben</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>diese Hilfe oder die eines Befehls ausgeben</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>Die Namen der Farben und Materialien kommen aus der Datei roll.db neben diesem Programm oder aus dem Katalog, der mit ihm installiert wurde, außer wenn --catalogue oder die Umgebungsvariable VX_ROLL_DB eine andere nennt. Nur die Fassung für Windows sieht die Drucker des Systems; jede andere hat nur virtuelle Drucker: die von --virtual, die von VX_VIRTUAL_FLEET oder sechs eingebaute.</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Tabellen passen in das Terminal, in die Breite, die COLUMNS nennt, oder in 80 Spalten; was gekürzt ist, endet mit Auslassungspunkten. Farben entfallen, wenn die Ausgabe kein Terminal ist oder NO_COLOR gesetzt ist. Zeichen, die das Terminal steuern könnten, werden als \u001b und dergleichen gezeigt.</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help nimmt höchstens einen Befehl, gefunden: „%1“</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>für alles, was bei den Etikettendruckern geschieht, eine Zeile ausgeben</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>Zuerst werden die Drucker gezeigt, wie sie sind, danach für jedes Ereignis eine Zeile, bis zur Unterbrechung. Sind Drucker angegeben, nur was bei diesen geschieht. Ein Füllstand, der nur abnimmt, wird bei 25, 10 und 5 % gezeigt. Mit --json ist jede Zeile ein Objekt; das erste enthält alle Drucker.</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>Groß- und Kleinschreibung ist bei Druckernamen gleichgültig. Mit --json wartet status, bis jeder gezeigte Drucker sich gemeldet hat und 0,1 Sekunden ohne weitere Meldung vergangen sind, aber höchstens 2 Sekunden. Danach nimmt es sich noch bis zu eine halbe Sekunde für Meldungen, die bis dahin eingetroffen sind.</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>es gibt keinen Drucker „%1“; meinten Sie %2?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>es gibt keinen Drucker „%1“; „vxprintmon list“ zeigt alle Drucker</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>„%1“ hat keinen Status: der Treiber „%2“ ist nicht vom Hersteller der Etikettendrucker</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>„%1“ hat keinen Status: der Treiber „%2“ gehört zu einem Modell, das nicht unterstützt wird</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>„%1“ hat keinen Status: er ist offline, seit er gefunden wurde; schalten Sie ihn ein und prüfen Sie sein Kabel</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>Im Netzwerk</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>Nicht verwaltet</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>unbekannte Art</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1, Rest nicht bekannt</translation>
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
        <translation>%1 Etikett</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 Etiketten</translation>
    </message>
    <message>
        <source>no, it is a network printer</source>
        <translation>nein, es ist ein Netzwerkdrucker</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>nein, Sie dürfen ihn nicht verwalten</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>nein, er wurde entfernt und neu angelegt</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>nein, er wurde entfernt</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>Offline, seit sie gefunden wurden, und daher ohne Status: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1, Rest</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>Aktiver Drucker: %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>Bootloader</translation>
    </message>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <source>port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>überwacht</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>das Protokoll %1 kann nicht geschrieben werden: %2; jede Sekunde wird es wieder versucht</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals gilt nur mit --json</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals nimmt keine Drucker: es gibt jedes Signal aus</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative und --verbose gelten nicht mit --json</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (zuvor %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>Etiketten entnommen</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>Farbband 1 entnommen</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>Farbband 2 entnommen</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 eingelegt</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>Farbband 1: %1 eingelegt</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>Farbband 2: %1 eingelegt</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>jetzt der aktive Drucker</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>Firmware-Aktualisierung: %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 aufgebraucht</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (zuvor: %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>, zuvor %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help nimmt höchstens einen Befehl</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>diese Hilfe ausgeben, oder mehr über einen Befehl</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>leer; erwartet wird ein Text von höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1: es gibt auch %2; entfernen Sie eine der beiden Dateien</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>keine Spalte dieser Tabelle; erwartet wird %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>weder eine Spalte dieser Tabelle noch eine bekannte Sprache; erwartet werden %1 und Sprachen wie en oder de</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>„%1“ steht nicht in %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>„%1“ enthält ein Leerzeichen; erwartet wird ein Schlüssel ohne Leerzeichen</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>das Format %1 steht nicht in %2</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>das Material %1 steht nicht in %2</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>ARTEN</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>FARBBAND</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>NUMMERN</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>sie hat Inhalt, den die Tabellen nicht ausdrücken können</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1: geschriebene Dateien: %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1: kann nicht als Tabellen geschrieben werden:</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>eine Materialdatenbank aus den Tabellen in DIRECTORY erstellen</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>Alle Fehler in den Tabellen werden ausgegeben, höchstens 50, und FILE wird nur geschrieben, wenn es keine gibt. Die Felder einer Tabelle sind durch Kommas, Semikolons oder Tabulatoren getrennt, mit Tabulatoren auch in einer Datei .tsv.</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>eine Materialdatenbank oder ein Verzeichnis mit Tabellen prüfen</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>Es wird nichts geschrieben. Alles, was falsch ist, wird ausgegeben, höchstens 50 Zeilen.</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>die Materialien und Farbbänder in FILE auflisten</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>Mit den Nummern, die in Kennungen für sie stehen, und ihren Namen.</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>ausgeben, was FILE über ein Material oder ein Farbband enthält</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>ausgeben, wofür die Kennung einer Rolle oder eines Farbbands steht</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER ist, was ein Treiber veröffentlicht: die 20 Zeichen eines Materials oder die Nummer eines Farbbands. Kennt FILE sie nicht, ist der Exit-Status 1.</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>die Tabellen und Bilder von FILE nach DIRECTORY schreiben</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>Eine Datenbank, die daraus erstellt wird, hat dieselben Bytes.</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>Tabellen mit Beispielen nach DIRECTORY schreiben</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>Ein Anfang für einen eigenen Katalog: jede Spalte mit ihrem Namen und einem Beispiel.</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>Erstellt und liest die Materialdatenbanken von Druckern.</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>Namen in der Sprache TAG („de“, „ja“) und nicht auf Englisch ausgeben</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>vorhandene Dateien ersetzen</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>kein UTF-8-Text; speichern Sie die Tabelle als UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>eine Zeile von %1 verweist auf eine fehlende Zeile von %2</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>Englisch fehlt</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 ist schon vorhanden; --force ersetzt die Datei</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>kein Verzeichnis</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>„%1“ meldet ein Drucker, wenn nichts eingelegt ist</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>kein Material der Art %1</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>Rolle %1 der Art %2, die neu %3 Fuß (%4 Zoll) lang war.</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>Im Katalog steht eine andere Länge. Deshalb kann die Bibliothek nicht sagen, wie viel von der Rolle übrig ist.</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>kein Farbband mit der Nummer %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>„%1“ ist eine SKU; show gibt aus, was die Datei darüber enthält</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>„%1“ ist keine Kennung; erwartet werden die 20 Zeichen eines Materials (8 hexadezimale, 6 dezimale und 6 hexadezimale Ziffern) oder die Nummer eines Farbbands von 1 bis %2</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1; ähnlich: %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>Arten</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 Bytes</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>Nummern</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>druckt auf</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE ist supplyd, m4, printqd, status, eine Nummer oder ein Name, den list ausgibt.</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>Ein Endpunkt, der nicht antwortet, wird auch aufgelistet, mit dem Grund anstelle seines Prozesses.</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>Argumente für Textparameter werden unverändert übernommen, alle anderen als JSON gelesen. Von mehreren Methoden dieses Namens wird die aufgerufen, deren Parameter zu den Argumenten passen.</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>Verschwindet der Endpunkt, wartet watch auf ihn und macht dann weiter.</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>alles von der Druckwarteschlange bis zum Katalog prüfen</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>alle Etikettendrucker in einer laufend aktualisierten Tabelle zeigen</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>Starten Sie den Dienst „Spooler“: Führen Sie „net start spooler“ als Administrator aus.</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>Starten Sie den Dienst „Spooler“ neu: Führen Sie „net stop spooler“ und „net start spooler“ als Administrator aus.</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>Schließen Sie den Drucker per USB an, schalten Sie ihn ein und installieren Sie seinen Treiber.</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>Entfernen Sie den Drucker aus Windows und installieren Sie ihn mit seinem Treiber neu.</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>Übernehmen Sie den Namen aus der Ausgabe von „vxprintmon list“.</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>Bitten Sie einen Administrator, Ihnen in den Eigenschaften des Druckers unter „Sicherheit“ die Verwaltung dieses Druckers zu erlauben.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Öffnen Sie die Warteschlange des Druckers in Windows und schalten Sie in ihrem Menü „Drucker offline verwenden“ aus.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>Schalten Sie den Drucker ein und prüfen Sie sein USB-Kabel an beiden Enden.</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>Schließen Sie den Drucker per USB an diesen Computer an oder führen Sie das Programm auf dem Computer aus, an den er angeschlossen ist.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Öffnen Sie die Warteschlange des Druckers in Windows. Setzen Sie sie fort, wenn sie angehalten ist, und kümmern Sie sich um das, was sie meldet.</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>Schalten Sie den Drucker aus und wieder ein. Wenn das nicht hilft, installieren Sie seinen aktuellen Treiber.</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>Stecken Sie das USB-Kabel des Druckers neu ein oder wählen Sie in den Eigenschaften des Druckers unter „Anschlüsse“ den Anschluss, an dem er ist.</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>Legen Sie eine Datei roll.db neben das Programm oder nennen Sie eine mit --catalogue oder VX_ROLL_DB. „rolldb build“ erstellt eine, „rolldb check“ sagt, was an einer falsch ist.</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>Beschaffen Sie eine aktuelle roll.db oder tragen Sie das Eingelegte in ihre Tabellen ein und führen Sie „rolldb build“ aus.</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>Wenn andere Programme nach den Druckern fragen sollen, starten Sie das Programm, das sie überwacht.</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>Beenden Sie das Programm, das nicht antwortet, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>Bitten Sie einen Administrator, zu entfernen, was der andere Benutzer dort abgelegt hat.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>Es ist nichts zu tun, außer wenn dies ein Etikettendrucker ist, der überwacht werden soll: Dann installieren Sie seinen Treiber.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>Es ist nichts zu tun: Nicht jeder Drucker hat diesen Wert.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>Alles ist in Ordnung.</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>Alles andere ist in Ordnung.</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>Vom Treiber nicht veröffentlicht: %1.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Es gibt keinen Drucker „%1“.</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>Ähnliche Namen: %1.</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>gefundene Probleme: %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>Der Dienst „Spooler“ läuft nicht (Zustand %1).</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>Der Dienst „Spooler“ läuft.</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>Die Druckwarteschlange führt einen Drucker ohne Namen, Anschluss oder Treiber auf; deshalb kann die Bibliothek nicht nach Druckern suchen.</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>Die Druckwarteschlange führt keinen Etikettendrucker auf, der überwacht werden kann. Drucker: %1.</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>Die Druckwarteschlange antwortet. Drucker: %1, Etikettendrucker: %2.</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>In der Geräteregistrierung steht kein USB-Gerät eines Etikettendruckers.</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>USB-Geräte der Klasse %1: %2.</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>Es gibt keinen Katalog %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Der Katalog %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>Die Datei %1 ist kein Katalog von Etiketten und Farbbändern.</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>Der Katalog %1 hat die Schemaversion %2; nur Version %3 kann gelesen werden.</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>Der Katalog %1 ist beschädigt oder leer.</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>Katalog %1, Schemaversion %2. Etiketten: %3, Farbbänder: %4.</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>Der Endpunkt %1 läuft nicht.</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>Der Endpunkt %1 antwortet nicht: %2.</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>Der Endpunkt %1 antwortet: %2, Prozess %3.</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1: nicht veröffentlicht; dieses Modell hat ein Farbband</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1: nicht veröffentlicht</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1; erwartet wurde der Typ %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1; erwartet wurden %2 bis %3 Byte</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1; plausibel ist eine Zahl bis %2</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>Der Statuscode „%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>Status %1: %2. %3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1: Es ist nichts eingelegt.</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1: Der Katalog kennt %2 nicht.</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1: %2 ist im Katalog %3.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>Der Treiber „%1“ ist von einem anderen Hersteller; deshalb wird der Drucker nicht überwacht.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>Der Treiber „%1“ gehört zu einem Modell, das nicht unterstützt wird; deshalb wird der Drucker nicht überwacht.</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>Modell %1, Treiber „%2“.</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>Sie dürfen den Drucker verwalten.</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>Sie dürfen den Drucker nicht verwalten; deshalb wird er nicht überwacht.</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>Der Drucker wird über ein Netzwerk erreicht (Anschluss %1); deshalb wird er aufgeführt, aber nicht überwacht.</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>Am Anschluss %1 des Druckers ist kein USB-Gerät eines Etikettendruckers.</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>Anschluss %1 mit dem Gerät %2.</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>Der Drucker ist auf Offlineverwendung eingestellt.</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows meldet den Drucker als offline.</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>Der Drucker ist online.</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>Die Warteschlange meldet nichts.</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>Die Warteschlange meldet: %1.</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 ist fehlgeschlagen: %2 (Fehler %3).</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top zeichnet auf ein Terminal, aber seine Ein- oder Ausgabe ist keines; verwenden Sie status oder top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>das Terminal kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>diese Konsole kennt keine Escape-Sequenzen; verwenden Sie die von Windows 10 oder neuer</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>Drucker: %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>mit Fehlern: %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>angezeigt: %1 bis %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q Ende</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s nach Schwere</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n nach Namen</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l nach Füllstand</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>Pfeile, Bild auf, Bild ab: blättern</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>eine Datei zum Lesen und eine zum Schreiben</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case: erwartet wird show, explain, redact oder verify, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>Zeile %1, nach %2 s</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>Signale und Protokollzeilen, die keinen Drucker betreffen: Der erste Unterschied ist bei Nummer %1</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>Signale und Protokollzeilen von &quot;%1&quot;: Der erste Unterschied ist bei Nummer %2</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>aufgezeichnet</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>wiedergegeben</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>Belege, ab %1: Zeilen %2 und weitere: %3</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>Belege, ab %1: Zeilen %2</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>In diesem Fall wird nichts erkannt.</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>erwartet wird ein Objekt mit der Liste &quot;findings&quot;</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>es sind mehr als %1 Befunde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; muss sein: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>ein Element &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>eine Bedingung oder eine Liste von Bedingungen</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>eine Liste von Texten</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>eine Zahl von Sekunden</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>ein Text, oder Texte nach ihren Sprachen mit &quot;en&quot; darunter</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1: Die Datei ist größer als %2 Bytes</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1: Diese Datei gibt es schon; nennen Sie eine andere</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1: Zeilen geschrieben: %2, ausgelassen: %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>Lesen Sie die Datei, bevor Sie sie senden: Sie ist reiner Text.</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>ein überwachender Thread kommt nicht zur Ruhe</translation>
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
        <translation>%1, %2 lang</translation>
    </message>
    <message>
        <source>with</source>
        <translation>mit</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>Schritte: %1, Signale: %2, Protokollzeilen: %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>durch andere ersetzt</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>wie sie sind; &quot;vxprintmon case redact&quot; ersetzt sie</translation>
    </message>
    <message>
        <source>end</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>fehlt: Die Aufzeichnung wurde abgeschnitten</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>schneller</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>so oft änderten sich Werte schneller, als sie gelesen wurden: %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>Was eingelegt war</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>nicht da</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>dieses Programm hat keine virtuellen Drucker und kann deshalb keinen Fall wiedergeben; führen Sie &quot;vxprintmon case verify&quot; unter Linux aus</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>Die Aufzeichnung wurde abgeschnitten; verglichen wird bis dahin.</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>Es wurden keine Signale aufgezeichnet; verglichen wird nur das Protokoll.</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>Gleich: %1 Signale und %2 Protokollzeilen in %3 Schritten.</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>die Bibliothek tut etwas anderes, als aufgezeichnet wurde</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain: auch erkennen, was die Tabelle FILE beschreibt</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>eine Falldatei zeigen, erklären, anonymisieren oder prüfen</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>eine Aktion und eine oder zwei Dateien</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; erzählt, was in einer Falldatei steht. &quot;case explain FILE&quot; nennt die Fehler, die es erkennt, mit den Zeilen, die sie zeigen, und was zu tun ist. &quot;case redact IN OUT&quot; schreibt eine Kopie ohne die Namen von Personen, Computern und Druckern, ohne Seriennummern und Adressen. &quot;case verify FILE&quot; spielt den Fall noch einmal ab und vergleicht, was die Bibliothek jetzt tut, mit dem Aufgezeichneten.</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1: Sein Katalog kann nicht in eine temporäre Datei geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2: Eine Zeile passt nicht in die Tabelle &quot;%3&quot; eines Katalogs: %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record: die Datei unter SIZE halten, etwa 64M; dann bleiben der Anfang und das Neueste</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record: Namen, Seriennummern und Adressen lassen, wie sie sind</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>aufzeichnen, was die Drucker tun, für die, die helfen</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>Zeichnet neben anderen Programmen, die die Drucker verwenden, alles auf, was die Druckwarteschlange der Bibliothek mitteilt und was die Bibliothek daraus macht, bis es unterbrochen wird. FILE ist auch nach einem Absturz vollständig und ist eine Falldatei für &quot;case&quot;, --virtual und die, die helfen. Die Datei darf noch nicht existieren. Jede halbe Minute wird ausgegeben, was aufgezeichnet ist.</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  Drucker %2, Änderungen %3, Signale %4, Protokollzeilen %5, %6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>Protokollzeilen</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>Schneller als gelesen</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>Ausgelassen wegen der Grenze</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Nicht geschrieben</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>Die Datei enthält die Namen von Druckern, Personen und Computern. &quot;vxprintmon case redact&quot; nimmt sie heraus.</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>Namen, Seriennummern und Adressen sind ersetzt. &quot;vxprintmon case show&quot; zeigt, was in der Datei steht.</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit: erwartet wird eine Größe von 1M bis 1G wie 64M, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 gibt es schon und wird nicht ersetzt; wählen Sie einen anderen Namen, oder löschen Sie die Datei vorher</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>%1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>Aufgezeichnet wird in %1.</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>Aufgezeichnet wird in %1, bis es unterbrochen wird (Strg-C).</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>%1 kann nicht geschrieben werden: %2; es wird jede Sekunde wieder versucht</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch: auch aufzeichnen, was verbraucht wird, im Verlauf des Benutzers oder in --file</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history: eine Tabelle für Tabellenkalkulationen (CSV) ausgeben</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>ausgeben, was Drucker verbraucht haben</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>Ausgegeben wird eine Zeile für jede Rolle und jedes Farbband: was eingelegt war, von wann bis wann, wie viel davon verbraucht wurde und wie viel im Durchschnitt am Tag. Ein Drucker wird mit seinem Namen oder seiner Seriennummer angegeben. „vxprintmon watch --history“ zeichnet all das auf.</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>sagen, wann Rollen und Farbbänder enden</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>sagen, ob ein Auftrag passt: die richtigen Etiketten und das richtige Farbband, und genug davon</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>einen Drucker, die SKU von Etiketten, eine Anzahl von Etiketten und SKUs von Farbbändern</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>Der Exit-Status ist 0, wenn der Auftrag mit dem gedruckt werden kann, was eingelegt ist, 3, wenn nicht, und 4, wenn das nicht bekannt ist. Jedes genannte Farbband muss eingelegt sein; ohne Angabe genügt ein eingelegtes Farbband, das zu den Etiketten passt und ausreicht.</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough erwartet eine Anzahl von Etiketten zwischen 1 und 2147483647, gefunden: „%1“</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>der Katalog hat kein %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>der Katalog hat kein %1; meinten Sie %2?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>PLATZ</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>ÜBRIG</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>REICHT ETWA</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>WAHRSCHEINLICH</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>Vorhersagen brauchen einen Verlauf des Verbrauchs; „vxprintmon watch --history“ zeichnet ihn auf</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>über 2 Jahre</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>der Verlauf kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>noch eingelegt</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>EINGELEGT</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>VON</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>BIS</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>VERBRAUCH</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>ETIKETTEN</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>AM TAG</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (Seriennummer %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>Änderungen, die nicht aufgezeichnet werden konnten: %1, von %2 bis %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>im Verlauf gibt es keinen Drucker „%1“</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>im Verlauf gibt es keinen Drucker „%1“; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv und --json schließen einander aus</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>Es wurde noch nichts aufgezeichnet. „vxprintmon watch --history“ zeichnet auf, was verbraucht wird.</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>der Verlauf war beschädigt, heißt jetzt %1 und wurde neu begonnen: %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>der Verlauf kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>der Verlauf kann nicht geschrieben werden: %1; jede Sekunde wird es wieder versucht</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1 reicht</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>etwa %1, wahrscheinlich %2 bis %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>REICHT</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file gilt nur mit --history</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history, forecast, watch --history: FILE statt des Verlaufs des Benutzers</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch, forecast: warnen, wenn auf einer Rolle weniger Etiketten (LABELS) übrig sind; watch: ohne Angabe 100, 0 für nie</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch, forecast: vor Rollen warnen, die weniger Etiketten (LABELS) haben, als ein Auftrag braucht</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch, forecast: vor dem warnen, was wahrscheinlich vor der Schicht endet; TIMES zum Beispiel 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1: ganze Zahl von %2 bis 2147483647 erwartet, gefunden: „%3“</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1: Zeiten wie 14:00,22:00 erwartet, gefunden: „%2“</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>Der Befehl lernt aus dem Verlauf des Benutzers, den „vxprintmon watch --history“ aufzeichnet. In vier von fünf Fällen endet, was eingelegt ist, zwischen den beiden Zeiten der letzten Spalte. Mit --warn-below, --job oder --shift-end gibt er auch aus, wovor „watch“ warnen würde.</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1: Sein Katalog kann nur mit einer Materialdatenbank des Produkts selbst abgespielt werden</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>Zeilen von %1 bis %2 ausgelassen: %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>AM ANFANG</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>AM ENDE</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language: erwartet wird en, de, es, fr, it, ja oder zh_CN, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>das Bild %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>die virtuellen Drucker zeigen, die FILE beschreibt, oder die eingebauten („built-in“)</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>den Ablauf der virtuellen Drucker um FACTOR beschleunigen</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>den Verbrauch in FILE aufzeichnen und zeigen</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>die Einstellungen des Fensters in FILE aufbewahren</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>ohne offenes Fenster starten</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>die Sprache TAG verwenden: en, de, es, fr, it, ja oder zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>die Farben SCHEME verwenden: light (hell), dark (dunkel) oder system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>das Fenster in dieser Größe öffnen</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>ein Bild des Fensters in FILE.png speichern und enden</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>mit --screenshot: SECONDS nach dem Start, ohne Angabe 3</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>Zeigt die Etikettendrucker dieses Computers in einem Fenster.</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1: erwartet wird eine Zahl über 0 und bis %2, angegeben ist „%3“</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size: erwartet wird etwa 1200x800, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1: ein Wert wird erwartet</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>erwartet werden nur Optionen, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after gehört zu --screenshot</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors: erwartet wird light, dark oder system, angegeben ist „%1“</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>Überwacht die Etikettendrucker dieses Computers und veröffentlicht, was es sieht, bei einem Broker und für ein Überwachungssystem.</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>überwachen und veröffentlichen, bis es unterbrochen wird</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>sagen, was an einer Konfiguration falsch ist</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>den Agenten als Windows-Dienst installieren, der mit der Konfiguration läuft</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>den Windows-Dienst entfernen</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>die Konfiguration, eine JSON-Datei</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>die virtuellen Drucker verwenden, die FILE beschreibt</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>die Geschichte virtueller Drucker FACTOR-mal so schnell abspielen</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed erwartet eine Zahl über 0 und bis 1000</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 braucht --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 ist eine gültige Konfiguration</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 erwartet keine weiteren Wörter</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>nur unter Windows gibt es Dienste zu installieren; sonst dient die Unit für systemd, deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>was die Dienstverwaltung von Windows startet</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1: Windows erlaubt es nur Administratoren; verwenden Sie eine Konsole, die als Administrator gestartet wurde</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1: %2 (Fehler %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>der Dienst %1 kann nicht installiert werden</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>der Dienst %1 kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>die Rechte an %1 sind nicht bekannt</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%1 kann von %2 geändert werden, und damit wären die Rechte des Dienstes zu erlangen; verschieben Sie es dorthin, wo es nur Administratoren ändern dürfen, etwa unter „C:\Program Files“</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 liegt auf einem Netzlaufwerk, das ein Dienst nicht sieht; kopieren Sie es auf diesen Computer</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1: er hält nicht an; beenden Sie vxprintagent.exe im Task-Manager und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>der Befehl „service“ ist für die Dienstverwaltung; verwenden Sie in einer Konsole „vxprintagent run --config FILE“</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>die Dienstverwaltung antwortet nicht</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1: er ist schon installiert; führen Sie zuerst „vxprintagent uninstall“ aus</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>der Dienst %1 ist installiert und startet mit Windows; um ihn jetzt zu starten: net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>der Dienst %1 ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1, solange ihn ein anderes Programm geöffnet hat; schließen Sie die Liste der Dienste und die Ereignisanzeige</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 erlaubt diesem Benutzer nicht zu lesen, was Agenten melden (%2); fragen Sie die Betreuer des Brokers</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>ein Name, der leer ist oder mehr als %1 Zeichen hat</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>erwartet wird online oder offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>kein JSON-Objekt</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>es gibt mehr als %1 Drucker</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>eine Meldung kann nicht gelesen werden: %1 (bisher: %2)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1; die darüber hinaus werden nicht gezeigt</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>es gibt mehr als %1 Agenten</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1: erwartet wird %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 nennt keinen Broker: geben Sie ihn mit --broker an oder mit &quot;url&quot; in &quot;mqtt&quot;</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>die Zertifikate in %1 haben ohne TLS keine Wirkung; erwartet wird eine URL, die mit mqtts:// beginnt</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>das Passwort geht lesbar durch das Netzwerk; verwenden Sie mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker: dieses Programm ist ohne MQTT gebaut; bauen Sie es mit libmosquitto</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top: zeigt, was Agenten an den Broker unter URL melden, etwa mqtts://broker.example/SITE; ohne SITE alle Standorte</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top: nimmt Broker, Benutzer und Zertifikate aus FILE, das wie die Konfiguration eines Agenten aufgebaut ist</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>Mit --broker oder --broker-config sind es die Drucker eines ganzen Standorts, wie dessen Agenten sie über MQTT melden. FILE nennt in &quot;mqtt&quot; den Benutzer und die Datei mit dem Passwort; eine URL hat beides nicht.</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>Kein Agent seit %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 passt nicht zu --broker</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>keine Verbindung seit %1</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>keine Verbindung</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>Agenten offline: %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>nicht lesbare Meldungen: %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Verbindung zu %1 wird aufgebaut …</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>Noch hat kein Agent einen Drucker gemeldet.</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>Noch hat kein Agent des Standorts &quot;%1&quot; einen Drucker gemeldet.</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>zeigt, was Agenten an den Broker unter URL melden, etwa mqtts://broker.example/SITE; ohne SITE alle Standorte</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>nimmt Broker, Benutzer und Zertifikate aus FILE, das wie die Konfiguration eines Agenten aufgebaut ist</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>ausgelassen: %1</translation>
    </message>
</context>
</TS>
