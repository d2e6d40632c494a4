<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 etiqueta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etiquetas</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>cantidad desconocida</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: vacío</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1: no está en el catálogo</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: desconocido</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>No se encontró ninguna impresora de etiquetas.</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (activa)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Eliminada de Windows</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Cinta 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Cinta 2</translation>
    </message>
    <message>
        <source>Label printers</source>
        <translation>Impresoras de etiquetas</translation>
    </message>
</context>
</TS>
