<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Label printers</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Supply</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Ribbon 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ribbon 2</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>A printer needs your attention.</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>Look for new printers</translation>
    </message>
</context>
</TS>
