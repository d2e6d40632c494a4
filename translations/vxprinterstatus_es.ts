<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Desconectada</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>No se puede obtener la información de la impresora. (Código 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La impresora está conectada de forma remota.
No se puede obtener la información de la impresora.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>La impresora no está administrada.
No se puede obtener la información de la impresora.</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>La impresora está desconectada</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>La impresora está lista</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>La impresora se ha quedado sin etiquetas</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>La cinta se ha agotado</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>La cubierta está abierta</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>Las etiquetas están atascadas</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>El cortador está atascado</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>La cubierta del cortador está abierta</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>El cabezal de impresión está demasiado caliente</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>El cabezal de impresión no está conectado</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>El motor está demasiado caliente</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>No hay etiquetas cargadas</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>No hay ninguna cinta cargada</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>No se reconocen las etiquetas</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>No se reconoce la cinta</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>La cinta no es adecuada para las etiquetas</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>No se ha encontrado el inicio de la etiqueta</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>La cinta está rota o floja</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>Es necesario calibrar el sensor de etiquetas</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>La impresora está en pausa</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La memoria de la impresora está llena</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>Se está actualizando el firmware</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>La actualización del firmware ha fallado</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>La batería está baja</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>El administrador de trabajos de impresión no está en ejecución</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>No se conoce el estado de la impresora</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>La impresora está conectada a través de una red</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>La impresora está sin conexión</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>La impresora no está administrada</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>Error de impresora %1</translation>
    </message>
</context>
</TS>
