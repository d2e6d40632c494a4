<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1: %2, materiale %3 %4 %, nastro %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>nessuna stampante</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>stampante attiva: %1</translation>
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
