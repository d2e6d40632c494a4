<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 label</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 labels</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>amount not known</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: empty</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1: not in the catalogue</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: not known</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>No label printers were found.</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (active)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Removed from Windows</translation>
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
        <source>Label printers</source>
        <translation>Label printers</translation>
    </message>
</context>
</TS>
