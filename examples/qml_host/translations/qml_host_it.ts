<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 etichetta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etichette</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>quantità non nota</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: vuoto</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1: non è nel catalogo</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: non noto</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>Non è stata trovata alcuna stampante di etichette.</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (attiva)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Rimossa da Windows</translation>
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
        <source>Label printers</source>
        <translation>Stampanti di etichette</translation>
    </message>
</context>
</TS>
