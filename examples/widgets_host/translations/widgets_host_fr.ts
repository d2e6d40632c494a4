<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Ruban 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ruban 2</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>Une imprimante requiert votre attention.</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>Rechercher de nouvelles imprimantes</translation>
    </message>
</context>
</TS>
