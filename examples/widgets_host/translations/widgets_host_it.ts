<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Stampanti di etichette</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
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
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>Una stampante richiede attenzione.</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>Cerca nuove stampanti</translation>
    </message>
</context>
</TS>
