<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>Führt die Tests von VxPrinterStatus auf diesem Computer aus und schreibt einen Bericht darüber.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>Führt die Tests aus, ohne zu fragen.</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>Erlaubt den Tests ohne Rückfrage, die Druckwarteschlange anzuhalten und zu starten.</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>Lässt ohne Rückfrage die Tests weg, die die Druckwarteschlange anhalten.</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>Lässt die Tests weg, die Administratorrechte brauchen.</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>Führt nur die Tests aus, auf deren Namen dieser reguläre Ausdruck passt.</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>Beendet einen Test, der so viele Sekunden lang nichts ausgibt (180).</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>Schreibt den Bericht in diesen Ordner.</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>Spricht diese Sprache: de, en, es, fr, it, ja oder zh.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop und --no-spooler-stop widersprechen einander</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>„%1“ ist kein regulärer Ausdruck: %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence: eine Anzahl von Sekunden von 1 bis %1 wird erwartet, gefunden wurde „%2“</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FEHLGESCHLAGEN</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>ABGESTÜRZT</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>HÄNGT, wurde beendet</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>übersprungen</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>nicht ausgeführt</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>Ein früherer Lauf ist nicht von selbst zu Ende gegangen. Was er zurückgelassen hat, wird jetzt entfernt.</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>%1 kann nicht gelesen werden, also ist nicht bekannt, was es vor jenem Lauf gab. Löschen Sie die Datei, wenn seine Drucker nicht mehr da sind.</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>Tests von VxPrinterStatus %1</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>Dieses Programm führt die Tests von VxPrinterStatus auf diesem Computer aus. Es fügt Drucker, Treiber und Anschlüsse mit eigenen Namen hinzu, druckt aber nichts auf Ihren Druckern. Es schreibt eigene Schlüssel in die Registrierung, fügt einen eigenen Dienst hinzu und zeigt Fenster, die kommen und gehen. All das entfernt es wieder. Einen Moment lang ist einer seiner Drucker der Standarddrucker.</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>Es hinterlässt eine Datei, einen Bericht, den Sie lesen können, bevor Sie ihn senden. Namen von Personen, Computern und Ihren Druckern stehen nicht darin. Von selbst wird nichts gesendet.</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>Es dauert 10 bis 30 Minuten. Strg+C beendet es jederzeit; es entfernt dann, was es hinzugefügt hat.</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>Es hat keine Administratorrechte, daher können %1 von %2 Tests nicht laufen. Damit alle laufen, antworten Sie mit Nein, klicken dann mit der rechten Maustaste auf run-tests.cmd und wählen „Als Administrator ausführen“.</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>Windows ist hier nicht auf Englisch. Manche Tests vergleichen englische Texte und können allein deshalb fehlschlagen. Das steht auch im Bericht.</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>Die Tests ausführen?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>Manche Tests halten die Druckwarteschlange einige Sekunden lang an und starten sie wieder. In dieser Zeit kann niemand mit diesem Computer drucken, und Aufträge warten. Ohne sie laufen die übrigen Tests.</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>Dürfen sie die Druckwarteschlange anhalten?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 bestanden, %2 fehlgeschlagen, %3 übersprungen, %4 nicht ausgeführt</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>Nicht so, wie es vorher war:</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>Bitte senden Sie diese Datei zurück:</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>Die Tests laufen auf diesem Computer bereits.</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>Drücken Sie die Eingabetaste, um zu schließen.</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[j/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>Entfernt: %1. Konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1: der Test „%2“ hat kein Programm in diesem Ordner</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 führt keine Tests auf</translation>
    </message>
</context>
</TS>
