<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1, absent du catalogue</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1, %n étiquette</numerusform>
            <numerusform>%1, %n étiquettes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1, %2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>consommable</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ruban 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ruban 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>supprimée de Windows</translation>
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
