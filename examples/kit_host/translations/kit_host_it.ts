<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>non noto</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1, non è nel catalogo</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1, %n etichetta</numerusform>
            <numerusform>%1, %n etichette</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1, %2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>materiale</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>nastro 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>nastro 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>rimossa da Windows</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>previsto un numero di secondi</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>impossibile scrivere sullo standard output: %1</translation>
    </message>
</context>
</TS>
