<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Desconectada</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>No se puede obtener la información de la impresora. (Código 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La impresora está conectada de forma remota.
No se puede obtener la información de la impresora.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La impresora no está administrada.
No se puede obtener la información de la impresora.</translation>
    </message>
</context>
</TS>
