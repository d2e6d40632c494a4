<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Etikettendrucker</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Farbband 2</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>Ein Drucker braucht Ihre Aufmerksamkeit.</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>Nach neuen Druckern suchen</translation>
    </message>
</context>
</TS>
