<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1 : %2, consommable %3 %4 %, ruban %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>aucune imprimante</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>imprimante active : %1</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>un nombre de secondes est attendu</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>impossible d’écrire sur la sortie standard : %1</translation>
    </message>
</context>
</TS>
