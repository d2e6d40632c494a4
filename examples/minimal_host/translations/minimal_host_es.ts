<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1: %2, material %3 %4 %, cinta %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>ninguna impresora</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>impresora activa: %1</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>se esperaba un número de segundos</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>no se pudo escribir en la salida estándar: %1</translation>
    </message>
</context>
</TS>
