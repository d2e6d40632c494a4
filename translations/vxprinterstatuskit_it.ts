<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>Impossibile seguire il lavoro di stampa: %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>Lo spooler di stampa non risponde: %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>La stampante è offline.</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>Le etichette sono esaurite.</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>La stampante è in errore.</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>La stampante richiede attenzione.</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>Il lavoro è in pausa.</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>Il lavoro è in fase di eliminazione.</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>Il driver non riesce a stampare il lavoro.</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>La stampante è in pausa.</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>Ci sono etichette inceppate.</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>La stampante ha un problema con le etichette.</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>La stampante non è disponibile.</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>La stampante è aperta.</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>La stampante è impostata per lavorare offline.</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>Il comando è vuoto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>&quot;%1&quot; non è una stampante di etichette di un modello supportato.</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>Lo spooler di stampa ha accettato solo i primi %1 byte del comando.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>Impossibile aprire &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>Impossibile interrogare il driver di &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>Impossibile inviare il comando a &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>Il lavoro attende nella coda.</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>Il lavoro è in fase di stampa.</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>Il lavoro è stato stampato.</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>Il lavoro è stato eliminato.</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>Il lavoro ha lasciato la coda; non si sa se sia stato stampato.</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1: riga %2: %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>supera %1 byte</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>il file supera %1 byte</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>manca il membro &quot;kind&quot;</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>non è un oggetto JSON</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>c&apos;è una riga dopo la fine del caso</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; non è un numero di secondi dall&apos;inizio</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>non è un file di caso</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>il file di caso ha la versione %1, ma questo programma legge la versione %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>non viene conservato nulla in memoria</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1: non è caricato nulla, il lavoro richiede %2.</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1: è caricato %2, il lavoro richiede %3.</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>Il lavoro richiede anche il nastro %1, ma la stampante non ha posto per esso.</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>Non è caricato alcun nastro.</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>Il nastro %1 non è adatto al materiale %2: il catalogo non ha impostazioni di stampa per i due.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1: insufficiente. Etichette rimaste: %2, necessarie: %3, mancanti: %4.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1: insufficiente. Etichette rimaste: %2, necessarie: %3, mancanti: almeno %4.</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>Non c’è nessuna stampante di etichette &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>Non si sa che cosa è caricato, perché la stampante non è sorvegliata.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>Non si sa che cosa è caricato, perché la stampante non ha ancora segnalato nulla.</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>Non si sa se la stampante può stampare, perché non ha segnalato il suo stato.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1: non si sa che cosa è caricato, perché la stampante non lo segnala.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1: non si sa che cosa è caricato, perché %2 non è nel catalogo.</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1: non si sa quanto ne rimane.</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1: non si sa se %2 è adatto al materiale, perché il catalogo non si può leggere.</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1: non si sa quante etichette rimangono, perché il catalogo non ha la lunghezza di un’etichetta per %2.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1: non si sa se basta, perché la stampante segnala solo percentuali intere. Etichette rimaste: %2, necessarie: %3.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1: non si sa se basta, perché un’etichetta può usare più colori del nastro. Etichette rimaste: %2, necessarie: %3.</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>La stampante non è pronta: %1.</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>Pronta. Etichette rimaste: %1, necessarie: %2.</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>Pronta: è caricato ciò che il lavoro richiede.</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>Nastro 1: %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>Nastro 2: %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>Materiale: %1</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 etichetta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etichette</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>resta il %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>niente caricato</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>non presente nel catalogo (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Aggiornamento del firmware non riuscito, errore %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>Firmware %1, prima %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>Comando non riuscito: %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>Stampante aggiunta</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>Stampante rimossa</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>Stampante rinominata, prima %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Spooler di stampa arrestato, nessuna stampante può essere letta</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Lo spooler di stampa è di nuovo in esecuzione</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>Manca %1 evento da %2 perché non è stato possibile scrivere il registro</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>Mancano %1 eventi da %2 perché non è stato possibile scrivere il registro</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1: restano poche etichette: %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1: insufficiente per il lavoro. Etichette rimaste: %2, necessarie: %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1: finirà probabilmente prima del turno, alle %2</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>Nastro 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Nastro 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Materiale</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>La stampante è spenta o non è collegata a questo computer. Il driver è installato e non è stato segnalato alcun guasto.</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>Accendere la stampante. Controllare il cavo di alimentazione e il cavo USB a entrambe le estremità. Se resta disconnessa, usare un’altra porta USB del computer.</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>La stampante è accesa, collegata e può stampare.</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Non è necessario fare nulla.</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>Le etichette caricate sono esaurite. Ciò che non è ancora stato stampato attende nella coda di stampa.</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>Aprire il coperchio, togliere l’anima vuota e caricare un nuovo rotolo delle stesse etichette. Chiudere il coperchio; la stampa riprende.</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>Il nastro è stato usato fino alla fine. Le etichette non sono la causa.</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>Aprire il coperchio e togliere il nastro usato con entrambe le anime. Caricare un nuovo nastro dello stesso tipo, tenderlo e chiudere il coperchio.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>Il coperchio della stampante è aperto o non è agganciato. Per sicurezza la stampante non stampa con il coperchio aperto.</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>Chiudere il coperchio e premerlo su entrambi i lati finché scatta. Se non si chiude, controllare che etichette e nastro siano inseriti correttamente.</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>Le etichette non scorrono nella stampante. Un’etichetta potrebbe essersi attaccata al rullo o alla testina di stampa.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>Spegnere la stampante e aprire il coperchio. Rimuovere a mano le etichette attaccate, senza utensili affilati. Ricaricare le etichette, chiudere il coperchio e accendere la stampante.</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>La taglierina non riesce a muovere la lama. Di solito un’etichetta o dell’adesivo è bloccato tra le lame.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>Spegnere la stampante e aprire il coperchio della taglierina. Rimuovere ciò che è bloccato senza toccare le lame. Chiudere il coperchio e accendere la stampante. Se la taglierina si inceppa di nuovo, farla revisionare.</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>Il coperchio della taglierina è aperto o non è agganciato. Per sicurezza la stampante non taglia e non stampa finché non viene chiuso.</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>Chiudere il coperchio della taglierina finché scatta. Se non si chiude, spegnere la stampante e togliere i resti di etichette dalla taglierina.</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>La testina di stampa si è surriscaldata e deve raffreddarsi. Succede con lavori lunghi e stampe scure e non è un difetto.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>Lasciare accesa la stampante e attendere alcuni minuti; la stampa riprende da sola. Se succede spesso, ridurre l’intensità o la velocità e tenere libere le aperture di ventilazione.</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>La stampante non rileva la testina di stampa. La testina o il suo cavo possono essere allentati o difettosi.</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>Spegnere la stampante, attendere dieci secondi e riaccenderla. Se il messaggio ricompare, spegnerla, staccare la spina e far controllare la testina dal servizio di assistenza.</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>Il motore si è surriscaldato e deve raffreddarsi. Succede con lavori lunghi o quando le etichette scorrono a fatica.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>Lasciare accesa la stampante e attendere alcuni minuti; la stampa riprende da sola. Se succede spesso, controllare che il rotolo giri liberamente.</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>Nella stampante non ci sono etichette, oppure non arrivano al sensore.</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>Caricare un rotolo di etichette. Far passare l’inizio sotto le guide fino alla testina di stampa e chiudere il coperchio.</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>Nella stampante non c’è un nastro, ma le etichette ne richiedono uno.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>Caricare un nastro adatto alle etichette, tenderlo e chiudere il coperchio.</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>La stampante non riesce a stabilire quali etichette sono caricate. L’identificazione non è leggibile o la stampante non conosce questo tipo.</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>Togliere il rotolo e reinserirlo nel verso giusto. Pulire il punto in cui la stampante legge il rotolo. Provare un altro rotolo. Se nemmeno i rotoli nuovi vengono riconosciuti, aggiornare il firmware.</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>La stampante non riesce a stabilire quale nastro è caricato. L’identificazione non è leggibile o la stampante non conosce questo tipo.</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>Togliere il nastro e reinserirlo. Pulire il punto in cui la stampante lo legge. Provare un altro nastro. Se nemmeno i nastri nuovi vengono riconosciuti, aggiornare il firmware.</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>Il nastro e le etichette non sono compatibili. Presi da soli sono a posto, ma la stampa non terrebbe.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>Caricare un nastro adatto alle etichette, o etichette adatte al nastro. La confezione e il catalogo dei materiali indicano le combinazioni.</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>La stampante non trova dove inizia un’etichetta. Le etichette caricate non sono quelle impostate, oppure un segno o uno spazio non è visibile.</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>Controllare che il rotolo di etichette sia diritto tra le guide. Confrontare il formato delle impostazioni di stampa con le etichette caricate. Pulire il sensore delle etichette, quindi calibrarlo.</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>Il nastro è strappato o non è teso. Non è detto che sia esaurito.</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>Aprire il coperchio. Se il nastro è strappato, fissarne l’estremità all’anima di avvolgimento con nastro adesivo. Girare l’anima di avvolgimento finché il nastro è teso e liscio. Chiudere il coperchio.</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>Il sensore delle etichette deve essere regolato per le etichette caricate. È normale dopo un cambio di materiale e non è un difetto.</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>Controllare che le etichette siano diritte e il coperchio chiuso. Avviare la calibrazione sulla stampante o nelle impostazioni del driver. Attendere che abbia fatto avanzare alcune etichette e si fermi.</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>Qualcuno ha messo in pausa la stampante dal pannello. Non c’è alcun guasto; i lavori attendono la ripresa.</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>Premere il tasto di pausa sulla stampante per riprendere la stampa.</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>Il lavoro richiede più memoria di quella libera nella stampante. Non si tratta della memoria di questo computer.</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>Eliminare il lavoro dalla coda di stampa. Spegnere e riaccendere la stampante. Stampare meno etichette per volta, con immagini più piccole o in numero minore.</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>La stampante sta installando un nuovo firmware e nel frattempo non stampa. Non è un guasto.</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>Attendere il termine dell’aggiornamento. Non spegnere e non scollegare la stampante.</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>La stampante non è riuscita a installare il nuovo firmware. Potrebbe funzionare ancora con quello vecchio.</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>Spegnere e riaccendere la stampante. Controllare che il firmware sia quello giusto per questo modello e riavviare l’aggiornamento. Se non riesce ancora, rivolgersi al servizio di assistenza.</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>La batteria della stampante è quasi scarica. La stampante stampa ancora, ma presto si spegnerà.</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>Collegare la stampante all’alimentatore o cambiare la batteria.</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>Il servizio di Windows da cui passano tutte le stampe è arrestato, quindi nessuna stampante di questo computer può stampare o essere letta. Le stampanti non sono la causa.</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>Come amministratore, aprire services.msc, selezionare &quot;Spooler di stampa&quot; e scegliere Avvia. Dopo alcuni secondi le stampanti vengono lette di nuovo. Se il servizio si arresta ancora, riavviare il computer.</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>La stampante non ha ancora comunicato il suo stato, oppure non è stato possibile leggerlo. Ciò non dice se la stampante può stampare.</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>Attendere alcuni secondi. Se lo stato resta sconosciuto, spegnere e riaccendere la stampante e controllare che il driver sia installato correttamente.</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>La stampante è raggiunta tramite una rete. Viene elencata, ma non è mai controllata da questo computer. Può comunque stampare.</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>Per vedere lo stato e il materiale caricato, usare il computer a cui la stampante è collegata.</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows considera la stampante offline. È spenta, scollegata o impostata su &quot;Usa stampante offline&quot;; i lavori attendono nella coda di stampa.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>Accendere la stampante e controllare il cavo. Aprire la coda di stampa e verificare che &quot;Usa stampante offline&quot; non sia selezionato.</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>L’utente attuale può stampare ma non gestire questa stampante, quindi non è possibile leggerne lo stato e il materiale caricato. La stampante può essere in ordine.</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>Chiedere a un amministratore di concedere al proprio account l’autorizzazione &quot;Gestione stampante&quot; (Proprietà stampante, Sicurezza). Quindi riavviare questo programma.</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>La stampante segnala il codice di stato %1, per il quale non esiste una descrizione. È collegata e lo segnala essa stessa.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>Consultare il display della stampante e il manuale. Spegnere e riaccendere la stampante. Se il codice ricompare, comunicare al servizio di assistenza il numero %1 e il modello della stampante.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>information</source>
        <translation>informazione</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avviso</translation>
    </message>
    <message>
        <source>error</source>
        <translation>errore</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente offline</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>Non arriva nulla dall’agente sul computer della stampante. Ciò che è caricato è mostrato come segnalato l’ultima volta.</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>Verificare che il computer sia acceso e collegato alla rete e che vxprintagent vi sia in esecuzione.</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%2 %1</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1: non è un database SQLite</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1: non è un file</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1: più grande di 1 GiB</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: il file non esiste</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1: non ancora nel formato di questa versione</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1: è un database di un altro programma</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1: scritto da una versione più recente (formato %2; questa versione conosce i formati fino a %3)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1: le tabelle non sono quelle di una cronologia</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>un altro programma lo sta usando</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1: un altro programma vi sta scrivendo</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1: un altro programma lo sta leggendo da troppo tempo</translation>
    </message>
</context>
</TS>
