<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1, not in the catalogue</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1, %n label</numerusform>
            <numerusform>%1, %n labels</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1, %2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>supply</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ribbon 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ribbon 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>removed from Windows</translation>
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
