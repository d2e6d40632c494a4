<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Déconnectée</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>Impossible d’obtenir les informations de l’imprimante. (Code 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>L’imprimante est connectée à distance.
Impossible d’obtenir les informations de l’imprimante.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>L’imprimante n’est pas gérée.
Impossible d’obtenir les informations de l’imprimante.</translation>
    </message>
</context>
</TS>
