<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>Druckerinformationen können nicht abgerufen werden. (Code 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>Der Drucker ist über ein Netzwerk angeschlossen.
Druckerinformationen können nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>Der Drucker wird nicht verwaltet.
Druckerinformationen können nicht abgerufen werden.</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>Der Drucker ist nicht verbunden</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>Der Drucker ist bereit</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>Die Etiketten sind aufgebraucht</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>Das Farbband ist aufgebraucht</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>Die Abdeckung ist offen</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>Die Etiketten haben sich gestaut</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>Der Schneider ist blockiert</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>Die Abdeckung des Schneiders ist offen</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>Der Druckkopf ist zu heiß</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>Der Druckkopf ist nicht angeschlossen</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>Der Motor ist zu heiß</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>Es sind keine Etiketten eingelegt</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>Es ist kein Farbband eingelegt</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>Die Etiketten werden nicht erkannt</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>Das Farbband wird nicht erkannt</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>Das Farbband passt nicht zu den Etiketten</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>Der Etikettenanfang wurde nicht gefunden</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>Das Farbband ist gerissen oder nicht gespannt</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>Der Etikettensensor muss kalibriert werden</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>Der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>Der Speicher des Druckers ist voll</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>Die Firmware wird aktualisiert</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>Die Aktualisierung der Firmware ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>Der Akku ist schwach</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Die Druckwarteschlange wird nicht ausgeführt</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>Der Status des Druckers ist nicht bekannt</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>Der Drucker ist über ein Netzwerk angeschlossen</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>Der Drucker ist offline</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>Der Drucker wird nicht verwaltet</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>Druckerfehler %1</translation>
    </message>
</context>
</TS>
