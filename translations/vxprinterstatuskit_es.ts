<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>No se puede seguir el trabajo de impresión: %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>El administrador de trabajos de impresión no responde: %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>La impresora está sin conexión.</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>La impresora se ha quedado sin etiquetas.</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>La impresora tiene un error.</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>La impresora requiere atención.</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>El trabajo está en pausa.</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>El trabajo se está eliminando.</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>El controlador no puede imprimir el trabajo.</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>La impresora está en pausa.</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>Hay etiquetas atascadas.</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>La impresora tiene un problema con las etiquetas.</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>La impresora no está disponible.</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>La impresora está abierta.</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>La impresora está configurada para trabajar sin conexión.</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>El comando está vacío.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>«%1» no es una impresora de etiquetas de un modelo compatible.</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>El administrador de trabajos de impresión solo aceptó los primeros %1 bytes del comando.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>No se puede abrir «%1»: %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>No se puede consultar el controlador de «%1»: %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>No se puede enviar el comando a «%1»: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>El trabajo espera en la cola.</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>El trabajo se está imprimiendo.</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>El trabajo se ha impreso.</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>El trabajo se ha eliminado.</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>El trabajo ha salido de la cola; no se sabe si se ha impreso.</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1: línea %2: %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>el archivo tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>falta el miembro &quot;kind&quot;</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>no es un objeto JSON</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>hay una línea después del final del caso</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; no es un número de segundos desde el comienzo</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>esto no es un archivo de caso</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>el archivo de caso tiene la versión %1, pero este programa lee la versión %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>no se guarda nada en memoria</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1: no hay nada cargado, el trabajo necesita %2.</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1: está cargado %2, el trabajo necesita %3.</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>El trabajo necesita también la cinta %1, pero la impresora no tiene sitio para ella.</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>No hay ninguna cinta cargada.</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>La cinta %1 no es adecuada para el material %2: el catálogo no tiene ajustes de impresión para ambos.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1: insuficiente. Etiquetas restantes: %2, necesarias: %3, faltan: %4.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1: insuficiente. Etiquetas restantes: %2, necesarias: %3, faltan: al menos %4.</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>No hay ninguna impresora de etiquetas «%1».</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>No se sabe qué está cargado, porque la impresora no se supervisa.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>No se sabe qué está cargado, porque la impresora aún no ha comunicado nada.</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>No se sabe si la impresora puede imprimir, porque no ha comunicado su estado.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1: no se sabe qué está cargado, porque la impresora no lo comunica.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1: no se sabe qué está cargado, porque %2 no figura en el catálogo.</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1: no se sabe cuánto queda.</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1: no se sabe si %2 es adecuada para el material, porque no se puede leer el catálogo.</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1: no se sabe cuántas etiquetas quedan, porque el catálogo no tiene la longitud de una etiqueta de %2.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1: no se sabe si alcanza, porque la impresora solo comunica porcentajes enteros. Etiquetas restantes: %2, necesarias: %3.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1: no se sabe si alcanza, porque una etiqueta puede gastar varios de sus colores. Etiquetas restantes: %2, necesarias: %3.</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>La impresora no está lista: %1.</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>Lista. Etiquetas restantes: %1, necesarias: %2.</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>Lista: está cargado lo que necesita el trabajo.</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>Cinta 1: %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>Cinta 2: %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>Material: %1</translation>
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
        <source>%1 % left</source>
        <translation>queda el %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>nada cargado</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>no figura en el catálogo (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>No se pudo actualizar el firmware, error %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>Firmware %1, antes %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>No se pudo enviar un comando: %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>Impresora añadida</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>Impresora eliminada</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>Impresora renombrada, antes %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Cola de impresión detenida, no se puede leer ninguna impresora</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>La cola de impresión vuelve a funcionar</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>Falta %1 suceso desde %2 porque no se pudo escribir el registro</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>Faltan %1 sucesos desde %2 porque no se pudo escribir el registro</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1: quedan pocas etiquetas: %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1: insuficiente para el trabajo. Etiquetas restantes: %2, necesarias: %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1: probablemente se acabará antes que el turno, a las %2</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>Cinta 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Cinta 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Material</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>La impresora está apagada o no está conectada a este equipo. Su controlador está instalado y no se ha notificado ninguna avería.</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>Encienda la impresora. Compruebe el cable de alimentación y el cable USB en ambos extremos. Si sigue desconectada, utilice otro puerto USB del equipo.</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>La impresora está encendida y conectada, y puede imprimir.</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>No es necesario hacer nada.</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>Las etiquetas cargadas se han agotado. Lo que aún no se ha impreso espera en la cola de impresión.</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>Abra la cubierta, retire el núcleo vacío y cargue un rollo nuevo de las mismas etiquetas. Cierre la cubierta; la impresión continuará.</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>La cinta se ha usado hasta el final. Las etiquetas no son la causa.</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>Abra la cubierta y retire la cinta usada con sus dos núcleos. Cargue una cinta nueva del mismo tipo, ténsela y cierre la cubierta.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>La cubierta de la impresora está abierta o no ha encajado. Por seguridad, la impresora no imprime con la cubierta abierta.</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>Cierre la cubierta y presiónela por ambos lados hasta que encaje. Si no se cierra, compruebe que las etiquetas y la cinta estén bien colocadas.</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>Las etiquetas no avanzan por la impresora. Puede que una etiqueta se haya pegado al rodillo o al cabezal de impresión.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>Apague la impresora y abra la cubierta. Retire a mano las etiquetas pegadas, sin herramientas afiladas. Cargue de nuevo las etiquetas, cierre la cubierta y encienda la impresora.</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>El cortador no puede mover la cuchilla. Normalmente hay una etiqueta o adhesivo atascado entre las cuchillas.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>Apague la impresora y abra la cubierta del cortador. Retire lo que esté atascado sin tocar las cuchillas. Cierre la cubierta y encienda la impresora. Si el cortador se atasca de nuevo, solicite su reparación.</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>La cubierta del cortador está abierta o no ha encajado. Por seguridad, la impresora no corta ni imprime hasta que se cierre.</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>Cierre la cubierta del cortador hasta que encaje. Si no se cierra, apague la impresora y retire los restos de etiquetas del cortador.</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>El cabezal de impresión se ha calentado demasiado y debe enfriarse. Ocurre con trabajos largos e impresiones oscuras y no es un defecto.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>Deje la impresora encendida y espere unos minutos; la impresión continuará sola. Si ocurre a menudo, reduzca la intensidad o la velocidad y mantenga despejadas las rejillas de ventilación.</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>La impresora no detecta su cabezal de impresión. El cabezal o su cable pueden estar sueltos o defectuosos.</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>Apague la impresora, espere diez segundos y enciéndala. Si el mensaje vuelve a aparecer, apáguela, desenchúfela y solicite al servicio técnico que revise el cabezal.</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>El motor se ha calentado demasiado y debe enfriarse. Ocurre con trabajos largos o cuando las etiquetas avanzan con dificultad.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>Deje la impresora encendida y espere unos minutos; la impresión continuará sola. Si ocurre a menudo, compruebe que el rollo gire libremente.</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>No hay etiquetas en la impresora, o no llegan hasta el sensor.</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>Cargue un rollo de etiquetas. Introduzca el inicio por debajo de las guías hasta el cabezal de impresión y cierre la cubierta.</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>No hay cinta en la impresora, pero las etiquetas la necesitan.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>Cargue una cinta adecuada para las etiquetas, ténsela y cierre la cubierta.</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>La impresora no puede determinar qué etiquetas están cargadas. No se puede leer su identificación o la impresora no conoce este tipo.</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>Retire el rollo y vuelva a colocarlo en el sentido correcto. Limpie el lugar donde la impresora lee el rollo. Pruebe con otro rollo. Si tampoco se reconocen los rollos nuevos, actualice el firmware.</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>La impresora no puede determinar qué cinta está cargada. No se puede leer su identificación o la impresora no conoce este tipo.</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>Retire la cinta y vuelva a colocarla. Limpie el lugar donde la impresora la lee. Pruebe con otra cinta. Si tampoco se reconocen las cintas nuevas, actualice el firmware.</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>La cinta y las etiquetas no son compatibles. Por separado están bien, pero la impresión no se fijaría.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>Cargue una cinta adecuada para las etiquetas, o etiquetas adecuadas para la cinta. El embalaje y el catálogo de consumibles indican las combinaciones.</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>La impresora no encuentra dónde empieza una etiqueta. Las etiquetas cargadas no son las configuradas, o no se distingue una marca o separación.</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>Compruebe que el rollo de etiquetas esté recto entre las guías. Compare el tamaño de etiqueta de los ajustes de impresión con las etiquetas cargadas. Limpie el sensor de etiquetas y después calíbrelo.</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>La cinta está rota o no está tensa. No tiene por qué estar agotada.</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>Abra la cubierta. Si la cinta está rota, fije su extremo al núcleo de recogida con cinta adhesiva. Gire el núcleo de recogida hasta que la cinta quede tensa y lisa. Cierre la cubierta.</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>El sensor de etiquetas debe ajustarse a las etiquetas cargadas. Es habitual tras cambiar el material y no es un defecto.</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>Compruebe que las etiquetas estén rectas y la cubierta cerrada. Inicie la calibración en la impresora o en los ajustes de su controlador. Espere hasta que haya avanzado unas etiquetas y se detenga.</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>Alguien ha puesto la impresora en pausa desde la propia impresora. No hay ninguna avería; los trabajos esperan hasta que se reanude.</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>Pulse la tecla de pausa de la impresora para reanudar la impresión.</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>El trabajo necesita más memoria de la que queda libre en la impresora. No se trata de la memoria de este equipo.</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>Elimine el trabajo de la cola de impresión. Apague y encienda la impresora. Imprima menos etiquetas a la vez, con menos imágenes o más pequeñas.</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>La impresora está instalando un firmware nuevo y entretanto no imprime. No es una avería.</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>Espere a que termine la actualización. No apague ni desconecte la impresora.</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>La impresora no ha podido instalar el firmware nuevo. Es posible que siga funcionando con el anterior.</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>Apague y encienda la impresora. Compruebe que el firmware corresponda a este modelo e inicie de nuevo la actualización. Si vuelve a fallar, póngase en contacto con el servicio técnico.</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>La batería de la impresora está casi agotada. La impresora aún imprime, pero se apagará pronto.</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>Conecte la impresora a su fuente de alimentación o cambie la batería.</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>El servicio de Windows por el que pasa toda la impresión está detenido, así que ninguna impresora de este equipo puede imprimir ni consultarse. Las impresoras no son la causa.</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>Como administrador, abra services.msc, seleccione «Cola de impresión» (Print Spooler) y elija Iniciar. Unos segundos después se vuelven a leer las impresoras. Si el servicio se detiene otra vez, reinicie el equipo.</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>La impresora aún no ha notificado su estado, o no se ha podido leer. Esto no indica si la impresora puede imprimir.</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>Espere unos segundos. Si el estado sigue siendo desconocido, apague y encienda la impresora y compruebe que su controlador esté bien instalado.</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>Se accede a la impresora a través de una red. Aparece en la lista, pero nunca se supervisa desde este equipo. Aun así, puede imprimir.</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>Para ver su estado y el material cargado, utilice el equipo al que está conectada la impresora.</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows considera que la impresora está sin conexión. Está apagada, desconectada o en «Usar impresora sin conexión»; los trabajos esperan en la cola de impresión.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>Encienda la impresora y compruebe el cable. Abra su cola de impresión y asegúrese de que «Usar impresora sin conexión» no esté marcado.</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>El usuario actual puede imprimir, pero no administrar esta impresora, por lo que no se pueden leer su estado ni el material cargado. La impresora puede estar en orden.</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>Pida a un administrador que conceda a su cuenta el permiso «Administrar esta impresora» (Propiedades de impresora, Seguridad). Después, reinicie este programa.</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>La impresora notifica el código de estado %1, para el que no hay descripción. Está conectada y lo notifica ella misma.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>Consulte la pantalla de la impresora y su manual. Apague y encienda la impresora. Si el código vuelve a aparecer, comunique al servicio técnico el número %1 y el modelo de la impresora.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>information</source>
        <translation>información</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>advertencia</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente sin conexión</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>No se recibe nada del agente en el ordenador de la impresora. Lo que está cargado se muestra como se notificó por última vez.</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>Compruebe que el ordenador esté encendido y conectado a la red, y que vxprintagent se ejecute en él.</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%2 %1</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1: no es una base de datos SQLite</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1: no es un archivo</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1: mayor de 1 GiB</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: no existe el archivo</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1: aún no tiene el formato de esta versión</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1: es una base de datos de otro programa</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1: escrito por una versión más reciente (su formato es %2; esta versión conoce formatos hasta %3)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1: sus tablas no son las de un historial</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>otro programa lo está usando</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1: otro programa está escribiendo en él</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1: otro programa lleva demasiado tiempo leyéndolo</translation>
    </message>
</context>
</TS>
