<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1, nicht im Katalog</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1, %n Etikett</numerusform>
            <numerusform>%1, %n Etiketten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1, %2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>Farbband 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>aus Windows entfernt</translation>
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
