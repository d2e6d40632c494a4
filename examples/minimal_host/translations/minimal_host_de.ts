<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1: %2, Etiketten %3 %4 %, Farbband %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>keine Drucker</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>aktiver Drucker: %1</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>eine Anzahl von Sekunden wird erwartet</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>die Standardausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
</TS>
