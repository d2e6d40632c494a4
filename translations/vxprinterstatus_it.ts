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
</TS>
