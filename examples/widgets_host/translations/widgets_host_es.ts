<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Impresoras de etiquetas</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Cinta 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Cinta 2</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>Una impresora requiere su atención.</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>Buscar impresoras nuevas</translation>
    </message>
</context>
</TS>
