<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>niente caricato</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non noto</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>circa %1 %</translation>
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
        <translation>%1 etichetta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etichette</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>non in catalogo</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>non presente nel catalogo (%1)</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Materiale</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Nastro 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Nastro 2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VxKit::LevelPlot</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a percentage and a length</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Will probably be used up %1, between %2 and %3</source>
        <translation>Si esaurirà probabilmente: %1, tra %2 e %3</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non noto</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rotolo</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>Offline da quando sono state cercate le stampanti. Accenderla, poi cercare di nuovo le stampanti.</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>Una stampante di rete, che non può essere sorvegliata.</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>Non si hanno i diritti per gestire questa stampante, quindi non può essere sorvegliata.</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>Nuova. Cercare le stampanti per sorvegliarla.</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>Rimossa e aggiunta di nuovo. Riavviare il programma per sorvegliarla.</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>Rimossa il %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimossa</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>Codice di stato</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Driver</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>Boot loader</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Avanzamento dell&apos;aggiornamento</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Errore dell&apos;aggiornamento</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1, identificatore</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1, resto in percentuale</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1, resto in millimetri</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Ultimo rapporto</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non noto</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>Le ultime 24 ore</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Gli ultimi sette giorni</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>Da quando è stato caricato questo rotolo o nastro</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Ultimi eventi</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>Che cosa segnala il driver</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Aggiornamento del firmware</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>Scegliere una stampante per vederne tutti i dettagli.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Non esiste alcuna stampante &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>Aggiornamento del firmware: %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Aggiornamento del firmware non riuscito, errore %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and its value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and what happened</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>Non è ancora successo nulla.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>Impossibile leggere la cronologia: %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Stampante attiva</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a reason and an explanation</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterListView</name>
    <message>
        <source>Print a &amp;test label…</source>
        <translation>Stampa un’etichetta di &amp;prova…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>Apri la &amp;coda di stampa</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnosi…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Salva un caso per l’assistenza…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>Filtra le stampanti</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>Parole di nome, modello, driver, porta, numero di serie, stato o materiale</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>Peggiori per prime</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Per nome</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>Ordine delle stampanti</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>Nessuna stampante corrisponde al filtro. Premere Esc per mostrarle tutte.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copia i dettagli</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>Non noto</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>Rimossa %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimossa</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>Stampante di rete, non sorvegliata</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>Non sorvegliata: non si può gestirla</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>Non ancora sorvegliata</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>Sostituita: sorvegliata dopo un riavvio</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>proprio ora</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min fa</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 h fa</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Ancora nessun rapporto</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>Ultimo rapporto: %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>stampante attiva</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is a status, %2 is such as &quot;error&quot;</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 is a sentence without its full stop</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>This is the active printer.</source>
        <translation>Questa è la stampante attiva.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Driver</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1 (%2, codice %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Spiegazione</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Che cosa fare</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Ultimo rapporto</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>Agente offline da %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente offline</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>Situazione delle %1</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 giorni</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 ore</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minuti</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a percentage and amounts</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Will probably be used up in %1 (%2 to %3)</source>
        <translation>Si esaurirà probabilmente tra %1 (da %2 a %3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimossa</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Stampante attiva</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Valore non aggiornato</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Aggiornamento del firmware</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Materiale</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Nastro</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>Spooler di stampa arrestato</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nessuna autorizzazione</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>Notifiche disattivate</translation>
    </message>
</context>
</TS>
