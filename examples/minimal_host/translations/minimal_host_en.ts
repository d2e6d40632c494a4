<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1: %2, supply %3 %4 %, ribbon %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>no printers</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>active printer: %1</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>expected a number of seconds</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>standard output could not be written: %1</translation>
    </message>
</context>
</TS>
