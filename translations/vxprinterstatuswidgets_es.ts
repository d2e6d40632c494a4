<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>nada cargado</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se conoce</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>aprox. %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 etiqueta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etiquetas</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>no está en el catálogo</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>no figura en el catálogo (%1)</translation>
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
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VxKit::LevelPlot</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a percentage and a length</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Will probably be used up %1, between %2 and %3</source>
        <translation>Se agotará probablemente: %1, entre %2 y %3</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se conoce</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>Sin conexión desde que se buscaron impresoras. Enciéndala y vuelva a buscar impresoras.</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>Una impresora de red, que no se puede supervisar.</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>No tiene permiso para administrar esta impresora, por lo que no se puede supervisar.</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>Nueva. Busque impresoras para supervisarla.</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>Eliminada y añadida de nuevo. Reinicie el programa para supervisarla.</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>Eliminada el %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminada</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>Código de estado</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Controlador</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>Cargador de arranque</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Progreso de la actualización</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Error de la actualización</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1, identificador</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1, resto en porcentaje</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1, resto en milímetros</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Último informe</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se conoce</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>Las últimas 24 horas</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Los últimos siete días</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>Desde que se cargó este rollo o esta cinta</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Últimos eventos</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>Lo que informa el controlador</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Actualización del firmware</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>Elija una impresora para ver todo sobre ella.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>No existe la impresora «%1».</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>Actualización del firmware: %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>No se pudo actualizar el firmware, error %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and its value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and what happened</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>Aún no ha ocurrido nada.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>No se puede leer el historial: %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Impresora activa</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a reason and an explanation</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterListView</name>
    <message>
        <source>Print a &amp;test label…</source>
        <translation>Imprimir una etiqueta de &amp;prueba…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>Abrir la &amp;cola de impresión</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnóstico…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Guardar un caso para soporte…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>Filtrar las impresoras</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>Palabras del nombre, modelo, controlador, puerto, número de serie, estado o material</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>Peores primero</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>Orden de las impresoras</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>Ninguna impresora coincide con el filtro. Pulse Escape para mostrarlas todas.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copiar detalles</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>No se conoce</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>Eliminada %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminada</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>Impresora de red, no vigilada</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>No vigilada: no puede administrarla</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>Aún no vigilada</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>Sustituida: se vigilará tras reiniciar</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>hace %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>hace %1 h</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Aún sin informe</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>Último informe: %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>impresora activa</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is a status, %2 is such as &quot;error&quot;</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 is a sentence without its full stop</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>This is the active printer.</source>
        <translation>Esta es la impresora activa.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Controlador</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1 (%2, código %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicación</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Último informe</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>Agente sin conexión desde %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente sin conexión</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>Tal como estaba a las %1</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 días</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 horas</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a percentage and amounts</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Will probably be used up in %1 (%2 to %3)</source>
        <translation>Se agotará probablemente en %1 (%2 a %3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminada</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Impresora activa</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Valor antiguo</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Actualización del firmware</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>Cola de impresión detenida</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>Avisos silenciados</translation>
    </message>
</context>
</TS>
