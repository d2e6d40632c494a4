<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 Etikett</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 Etiketten</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>Menge nicht bekannt</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: leer</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1: nicht im Katalog</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: nicht bekannt</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>Es wurden keine Etikettendrucker gefunden.</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (aktiv)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Aus Windows entfernt</translation>
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
        <source>Label printers</source>
        <translation>Etikettendrucker</translation>
    </message>
</context>
</TS>
