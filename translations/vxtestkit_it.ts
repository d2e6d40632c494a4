<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>Esegue i test di VxPrinterStatus su questo computer e ne scrive un rapporto.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra questa guida.</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>Esegue i test senza chiedere.</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>Consente ai test, senza chiedere, di arrestare e avviare lo spooler di stampa.</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>Tralascia, senza chiedere, i test che arrestano lo spooler di stampa.</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>Tralascia i test che richiedono diritti di amministratore.</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>Esegue solo i test il cui nome corrisponde a questa espressione regolare.</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>Termina un test che non mostra nulla per questo numero di secondi (180).</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>Scrive il rapporto in questa cartella.</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>Parla questa lingua: de, en, es, fr, it, ja o zh.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argomento imprevisto «%1»</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop e --no-spooler-stop si contraddicono</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>«%1» non è un&apos;espressione regolare: %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence: atteso un numero di secondi da 1 a %1, trovato «%2»</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superato</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>NON SUPERATO</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>ARRESTO ANOMALO</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>NON RISPONDE, è stato terminato</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>saltato</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>non eseguito</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrotto</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>Un&apos;esecuzione precedente non è terminata da sola. Ora viene rimosso ciò che ha lasciato.</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>Impossibile leggere %1, quindi non si sa che cosa c&apos;era prima di quell&apos;esecuzione. Eliminare il file se le sue stampanti non ci sono più.</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>Test di VxPrinterStatus %1</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>Questo programma esegue i test di VxPrinterStatus su questo computer. Aggiunge stampanti, driver e porte con nomi propri, ma non stampa nulla sulle vostre stampanti. Scrive chiavi proprie nel Registro di sistema, aggiunge un proprio servizio e mostra finestre che compaiono e scompaiono. Poi rimuove tutto questo. Per un momento una delle sue stampanti è quella predefinita.</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>Lascia un file, un rapporto, che si può leggere prima di inviarlo. Non contiene nomi di persone, di computer né delle vostre stampanti. Nulla viene inviato automaticamente.</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>Dura da 10 a 30 minuti. Ctrl+C lo termina in qualsiasi momento; in tal caso rimuove ciò che ha aggiunto.</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>Non ha diritti di amministratore, quindi %1 test su %2 non possono essere eseguiti. Per eseguirli tutti, rispondere no, poi fare clic con il pulsante destro su run-tests.cmd e scegliere «Esegui come amministratore».</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>Qui Windows non è in inglese. Alcuni test confrontano testi inglesi e possono fallire solo per questo. Il rapporto lo indica.</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>Eseguire i test?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>Alcuni test arrestano lo spooler di stampa per qualche secondo e lo riavviano. In quel tempo nessuno può stampare con questo computer e i processi attendono. Senza di essi vengono eseguiti gli altri test.</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>Possono arrestare lo spooler di stampa?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 superati, %2 non superati, %3 saltati, %4 non eseguiti</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>Non è come prima:</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>Inviare questo file:</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>I test sono già in esecuzione su questo computer.</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>Premere Invio per chiudere.</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[s/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>Rimossi: %1. Non è stato possibile rimuovere: %2.</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1: il test «%2» non ha alcun programma in questa cartella</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 non elenca alcun test</translation>
    </message>
</context>
</TS>
