<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>Ejecuta las pruebas de VxPrinterStatus en este equipo y escribe un informe sobre ellas.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>Ejecuta las pruebas sin preguntar.</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>Permite a las pruebas, sin preguntar, detener e iniciar el administrador de trabajos de impresión.</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>Omite, sin preguntar, las pruebas que detienen el administrador de trabajos de impresión.</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>Omite las pruebas que necesitan derechos de administrador.</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>Ejecuta solo las pruebas cuyo nombre coincide con esta expresión regular.</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>Termina una prueba que no muestra nada durante estos segundos (180).</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>Escribe el informe en esta carpeta.</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>Habla este idioma: de, en, es, fr, it, ja o zh.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop y --no-spooler-stop se contradicen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>«%1» no es una expresión regular: %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence: se esperaba un número de segundos de 1 a %1, se encontró «%2»</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superada</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALLIDA</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>SE HA INTERRUMPIDO POR UN ERROR</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>NO RESPONDE, se ha terminado</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitida</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>no ejecutada</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpida</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>Una ejecución anterior no terminó por sí misma. Ahora se elimina lo que dejó.</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>No se puede leer %1, así que no se sabe qué había antes de esa ejecución. Elimine el archivo si sus impresoras ya no están.</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>Pruebas de VxPrinterStatus %1</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>Este programa ejecuta las pruebas de VxPrinterStatus en este equipo. Agrega impresoras, controladores y puertos con nombres propios, pero no imprime nada en sus impresoras. Escribe claves propias en el Registro, agrega un servicio propio y muestra ventanas que aparecen y desaparecen. Después elimina todo esto. Por un momento, una de sus impresoras es la predeterminada.</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>Deja un archivo, un informe, que puede leer antes de enviarlo. No contiene nombres de personas, de equipos ni de sus impresoras. No se envía nada automáticamente.</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>Tarda de 10 a 30 minutos. Ctrl+C lo termina en cualquier momento; entonces elimina lo que ha agregado.</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>No tiene derechos de administrador, así que %1 de %2 pruebas no pueden ejecutarse. Para ejecutarlas todas, responda que no, haga clic con el botón derecho en run-tests.cmd y elija «Ejecutar como administrador».</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>Windows no está aquí en inglés. Algunas pruebas comparan textos en inglés y pueden fallar solo por eso. El informe lo indica.</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>¿Ejecutar las pruebas?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>Algunas pruebas detienen el administrador de trabajos de impresión unos segundos y lo vuelven a iniciar. En ese tiempo nadie puede imprimir con este equipo y los trabajos esperan. Sin ellas se ejecutan las demás pruebas.</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>¿Pueden detener el administrador de trabajos de impresión?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 superadas, %2 fallidas, %3 omitidas, %4 no ejecutadas</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>No está como antes:</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>Envíe este archivo:</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>Las pruebas ya se están ejecutando en este equipo.</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>Pulse Entrar para cerrar.</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[s/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>Eliminados: %1. No se pudieron eliminar: %2.</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1: la prueba «%2» no tiene ningún programa en esta carpeta</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 no enumera ninguna prueba</translation>
    </message>
</context>
</TS>
