<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1, no está en el catálogo</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1, %n etiqueta</numerusform>
            <numerusform>%1, %n etiquetas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1, %2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>material</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>cinta 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>cinta 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>eliminada de Windows</translation>
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
