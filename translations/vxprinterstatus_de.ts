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
</TS>
