<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 étiquette</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 étiquettes</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>quantité inconnue</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1 : vide</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1 : %2, %3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1 : absent du catalogue</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1 : inconnu</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>Aucune imprimante d’étiquettes n’a été trouvée.</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (active)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Supprimée de Windows</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Ruban 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ruban 2</translation>
    </message>
    <message>
        <source>Label printers</source>
        <translation>Imprimantes d’étiquettes</translation>
    </message>
</context>
</TS>
