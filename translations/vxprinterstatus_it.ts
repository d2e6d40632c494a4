<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Disconnessa</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>Impossibile recuperare le informazioni della stampante. (Codice 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La stampante è connessa in remoto.
Impossibile recuperare le informazioni della stampante.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La stampante non è gestita.
Impossibile recuperare le informazioni della stampante.</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>La stampante è scollegata</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>La stampante è pronta</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>Le etichette sono esaurite</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>Il nastro è esaurito</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>Il coperchio è aperto</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>Le etichette sono inceppate</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>La taglierina è inceppata</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>Il coperchio della taglierina è aperto</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>La testina di stampa è troppo calda</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>La testina di stampa non è collegata</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>Il motore è troppo caldo</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>Nessuna etichetta caricata</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>Nessun nastro caricato</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>Le etichette non sono riconosciute</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>Il nastro non è riconosciuto</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>Il nastro non è adatto alle etichette</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>L’inizio dell’etichetta non è stato trovato</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>Il nastro è strappato o allentato</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>Il sensore delle etichette deve essere calibrato</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>La stampante è in pausa</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La memoria della stampante è piena</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>Aggiornamento del firmware in corso</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>L’aggiornamento del firmware non è riuscito</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>La batteria è quasi scarica</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Lo spooler di stampa non è in esecuzione</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>Lo stato della stampante non è noto</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>La stampante è collegata tramite una rete</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>La stampante è offline</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>La stampante non è gestita</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>Errore della stampante %1</translation>
    </message>
</context>
</TS>
