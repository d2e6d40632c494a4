<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>Der Druckauftrag kann nicht verfolgt werden: %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>Die Druckwarteschlange antwortet nicht: %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>Der Drucker ist offline.</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>Die Etiketten sind aufgebraucht.</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>Der Drucker hat eine Störung.</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>Der Drucker braucht Aufmerksamkeit.</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>Der Auftrag ist angehalten.</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>Der Auftrag wird gelöscht.</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>Der Treiber kann den Auftrag nicht drucken.</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>Der Drucker ist angehalten.</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>Etiketten haben sich gestaut.</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>Der Drucker hat ein Problem mit seinen Etiketten.</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>Der Drucker ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>Der Drucker ist offen.</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>Der Drucker ist auf „Drucker offline verwenden“ gestellt.</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>Der Befehl ist leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>„%1“ ist kein Etikettendrucker eines unterstützten Modells.</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>Die Druckwarteschlange hat nur die ersten %1 Byte des Befehls angenommen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>Der Treiber von „%1“ kann nicht abgefragt werden: %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>Der Befehl kann nicht an „%1“ gesendet werden: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>Der Auftrag wartet in der Druckwarteschlange.</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>Der Auftrag wird gedruckt.</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>Der Auftrag wurde gedruckt.</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>Der Auftrag wurde gelöscht.</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>Der Auftrag hat die Druckwarteschlange verlassen; ob er gedruckt wurde, ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1: Zeile %2: %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>sie ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>die Datei ist größer als %1 Bytes</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>das Element &quot;kind&quot; fehlt</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>sie ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>hinter dem Ende des Falls steht noch eine Zeile</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; ist keine Zahl von Sekunden seit dem Beginn</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>das ist keine Falldatei</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>die Falldatei hat Version %1, dieses Programm liest aber Version %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>es wird nichts im Speicher gehalten</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1: es ist nichts eingelegt, der Auftrag benötigt %2.</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1: eingelegt ist %2, der Auftrag benötigt %3.</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>Der Auftrag benötigt auch das Farbband %1, aber der Drucker hat keinen Platz dafür.</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>Es ist kein Farbband eingelegt.</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>Das Farbband %1 passt nicht zu den Etiketten %2: der Katalog hat keine Druckeinstellungen für die beiden.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1: zu wenig. Verbleibende Etiketten: %2, benötigt: %3, es fehlen: %4.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1: zu wenig. Verbleibende Etiketten: %2, benötigt: %3, es fehlen: mindestens %4.</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>Es gibt keinen Etikettendrucker „%1“.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>Es ist nicht bekannt, was eingelegt ist, weil der Drucker nicht überwacht wird.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>Es ist nicht bekannt, was eingelegt ist, weil der Drucker noch nichts gemeldet hat.</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>Es ist nicht bekannt, ob der Drucker drucken kann, weil er seinen Status nicht gemeldet hat.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1: es ist nicht bekannt, was eingelegt ist, weil der Drucker es nicht meldet.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1: es ist nicht bekannt, was eingelegt ist, weil %2 nicht im Katalog ist.</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1: es ist nicht bekannt, wie viel übrig ist.</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1: es ist nicht bekannt, ob %2 zu den Etiketten passt, weil der Katalog nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1: es ist nicht bekannt, wie viele Etiketten übrig sind, weil der Katalog für %2 keine Etikettenlänge hat.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1: es ist nicht bekannt, ob es reicht, weil der Drucker nur ganze Prozente meldet. Verbleibende Etiketten: %2, benötigt: %3.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1: es ist nicht bekannt, ob es reicht, weil ein Etikett mehrere seiner Farben benötigen kann. Verbleibende Etiketten: %2, benötigt: %3.</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>Der Drucker ist nicht bereit: %1.</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>Bereit. Verbleibende Etiketten: %1, benötigt: %2.</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>Bereit: was der Auftrag benötigt, ist eingelegt.</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>Farbband 1: %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>Farbband 2: %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>Etiketten: %1</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 Etikett</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 Etiketten</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>noch %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>nichts eingelegt</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>nicht im Katalog (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Firmware-Aktualisierung fehlgeschlagen, Fehler %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>Firmware %1, vorher %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>Befehl fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>Drucker hinzugefügt</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>Drucker entfernt</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>Drucker umbenannt, vorher %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Druckwarteschlange beendet, kein Drucker kann gelesen werden</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Druckwarteschlange läuft wieder</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>%1 Ereignis fehlt seit %2, weil das Protokoll nicht geschrieben werden konnte</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>%1 Ereignisse fehlen seit %2, weil das Protokoll nicht geschrieben werden konnte</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1: nur noch wenige: %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1: zu wenig für den Auftrag. Verbleibende Etiketten: %2, benötigt: %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1: endet wahrscheinlich vor der Schicht, die bis %2 dauert</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Farbband 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Etiketten</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>Der Drucker ist ausgeschaltet oder nicht mit diesem Computer verbunden. Sein Treiber ist installiert, und es wurde keine Störung gemeldet.</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>Schalten Sie den Drucker ein. Prüfen Sie das Netzkabel und das USB-Kabel an beiden Enden. Bleibt er getrennt, verwenden Sie einen anderen USB-Anschluss des Computers.</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>Der Drucker ist eingeschaltet, verbunden und kann drucken.</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Sie müssen nichts tun.</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>Die eingelegten Etiketten sind aufgebraucht. Was noch nicht gedruckt ist, wartet in der Druckwarteschlange.</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>Öffnen Sie die Abdeckung, nehmen Sie den leeren Kern heraus und legen Sie eine neue Rolle derselben Etiketten ein. Schließen Sie die Abdeckung; der Druck wird fortgesetzt.</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>Das Farbband ist bis zum Ende aufgebraucht. An den Etiketten liegt es nicht.</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>Öffnen Sie die Abdeckung und nehmen Sie das verbrauchte Farbband mit beiden Kernen heraus. Legen Sie ein neues Farbband derselben Art ein, straffen Sie es und schließen Sie die Abdeckung.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>Die Abdeckung des Druckers ist offen oder nicht eingerastet. Zur Sicherheit druckt der Drucker nicht mit offener Abdeckung.</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>Schließen Sie die Abdeckung und drücken Sie sie auf beiden Seiten an, bis sie einrastet. Lässt sie sich nicht schließen, prüfen Sie, ob Etiketten und Farbband richtig sitzen.</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>Die Etiketten werden nicht durch den Drucker transportiert. Möglicherweise klebt ein Etikett an der Walze oder am Druckkopf.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>Schalten Sie den Drucker aus und öffnen Sie die Abdeckung. Entfernen Sie festklebende Etiketten von Hand, ohne scharfe Werkzeuge. Legen Sie die Etiketten neu ein, schließen Sie die Abdeckung und schalten Sie den Drucker ein.</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>Der Schneider kann sein Messer nicht bewegen. Meist klemmt ein Etikett oder Klebstoff zwischen den Messern.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>Schalten Sie den Drucker aus und öffnen Sie die Abdeckung des Schneiders. Entfernen Sie, was klemmt, ohne die Messer zu berühren. Schließen Sie die Abdeckung und schalten Sie den Drucker ein. Blockiert der Schneider erneut, lassen Sie ihn warten.</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>Die Abdeckung des Schneiders ist offen oder nicht eingerastet. Zur Sicherheit schneidet und druckt der Drucker nicht, bis sie geschlossen ist.</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>Schließen Sie die Abdeckung des Schneiders, bis sie einrastet. Lässt sie sich nicht schließen, schalten Sie den Drucker aus und entfernen Sie Etikettenreste aus dem Schneider.</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>Der Druckkopf ist zu heiß geworden und muss abkühlen. Das kommt bei langen Aufträgen und dunklen Drucken vor und ist kein Defekt.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>Lassen Sie den Drucker eingeschaltet und warten Sie einige Minuten; der Druck wird von selbst fortgesetzt. Kommt dies oft vor, verringern Sie die Druckstärke oder die Geschwindigkeit und halten Sie die Lüftungsöffnungen frei.</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>Der Drucker erkennt seinen Druckkopf nicht. Der Kopf oder sein Kabel kann lose oder defekt sein.</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>Schalten Sie den Drucker aus, warten Sie zehn Sekunden und schalten Sie ihn ein. Erscheint die Meldung wieder, schalten Sie ihn aus, ziehen Sie den Netzstecker und lassen Sie den Druckkopf vom Kundendienst prüfen.</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>Der Motor ist zu heiß geworden und muss abkühlen. Das kommt bei langen Aufträgen vor oder wenn die Etiketten schwer laufen.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>Lassen Sie den Drucker eingeschaltet und warten Sie einige Minuten; der Druck wird von selbst fortgesetzt. Kommt dies oft vor, prüfen Sie, ob sich die Rolle leicht dreht.</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>Im Drucker sind keine Etiketten, oder sie reichen nicht bis zum Sensor.</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>Legen Sie eine Rolle Etiketten ein. Schieben Sie den Anfang unter den Führungen hindurch bis zum Druckkopf und schließen Sie die Abdeckung.</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>Im Drucker ist kein Farbband, aber die Etiketten benötigen eines.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>Legen Sie ein Farbband ein, das zu den Etiketten passt, straffen Sie es und schließen Sie die Abdeckung.</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>Der Drucker kann nicht feststellen, welche Etiketten eingelegt sind. Ihre Kennung ist nicht lesbar, oder der Drucker kennt diese Art nicht.</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>Nehmen Sie die Rolle heraus und setzen Sie sie richtig herum wieder ein. Reinigen Sie die Stelle, an der der Drucker die Rolle liest. Versuchen Sie es mit einer anderen Rolle. Werden auch neue Rollen nicht erkannt, aktualisieren Sie die Firmware.</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>Der Drucker kann nicht feststellen, welches Farbband eingelegt ist. Seine Kennung ist nicht lesbar, oder der Drucker kennt diese Art nicht.</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>Nehmen Sie das Farbband heraus und setzen Sie es wieder ein. Reinigen Sie die Stelle, an der der Drucker es liest. Versuchen Sie es mit einem anderen Farbband. Werden auch neue Farbbänder nicht erkannt, aktualisieren Sie die Firmware.</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>Farbband und Etiketten passen nicht zusammen. Jedes für sich ist in Ordnung, aber der Druck würde nicht halten.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>Legen Sie ein Farbband ein, das zu den Etiketten passt, oder Etiketten, die zum Farbband passen. Die Verpackung und der Katalog des Etikettenmaterials nennen die Paare.</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>Der Drucker findet nicht, wo ein Etikett beginnt. Die eingelegten Etiketten weichen von den eingestellten ab, oder eine Marke oder Lücke ist nicht zu erkennen.</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>Prüfen Sie, ob die Etikettenrolle gerade zwischen den Führungen läuft. Vergleichen Sie die Etikettengröße in den Druckeinstellungen mit den eingelegten Etiketten. Reinigen Sie den Etikettensensor und kalibrieren Sie ihn dann.</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>Das Farbband ist gerissen oder nicht straff. Es muss nicht aufgebraucht sein.</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>Öffnen Sie die Abdeckung. Ist das Farbband gerissen, befestigen Sie sein Ende mit Klebeband am Aufwickelkern. Drehen Sie den Aufwickelkern, bis das Farbband straff und glatt ist. Schließen Sie die Abdeckung.</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>Der Etikettensensor muss auf die eingelegten Etiketten eingestellt werden. Das ist nach einem Wechsel des Etikettenmaterials üblich und kein Defekt.</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>Prüfen Sie, ob die Etiketten gerade liegen und die Abdeckung geschlossen ist. Starten Sie die Kalibrierung am Drucker oder in den Einstellungen seines Treibers. Warten Sie, bis er einige Etiketten vorgeschoben hat und anhält.</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>Jemand hat den Drucker am Gerät angehalten. Nichts ist defekt; die Aufträge warten, bis er fortgesetzt wird.</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>Drücken Sie die Pausentaste am Drucker, um den Druck fortzusetzen.</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>Der Auftrag braucht mehr Speicher, als im Drucker frei ist. Der Speicher dieses Computers ist nicht gemeint.</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>Löschen Sie den Auftrag aus der Druckwarteschlange. Schalten Sie den Drucker aus und wieder ein. Drucken Sie weniger Etiketten auf einmal, mit kleineren oder weniger Bildern.</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>Der Drucker installiert neue Firmware und druckt währenddessen nicht. Das ist keine Störung.</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>Warten Sie, bis die Aktualisierung abgeschlossen ist. Schalten Sie den Drucker nicht aus und ziehen Sie keine Kabel ab.</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>Der Drucker konnte die neue Firmware nicht installieren. Möglicherweise arbeitet er mit der alten weiter.</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>Schalten Sie den Drucker aus und wieder ein. Prüfen Sie, ob die Firmware zu diesem Modell gehört, und starten Sie die Aktualisierung erneut. Schlägt sie wieder fehl, wenden Sie sich an den Kundendienst.</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>Der Akku des Druckers ist fast leer. Der Drucker druckt noch, schaltet sich aber bald aus.</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>Schließen Sie den Drucker an sein Netzteil an oder wechseln Sie den Akku.</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>Der Windows-Dienst, über den alles Drucken läuft, ist beendet. Daher kann kein Drucker dieses Computers drucken oder gelesen werden. An den Druckern selbst liegt es nicht.</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>Öffnen Sie als Administrator services.msc, wählen Sie „Druckwarteschlange“ und dann „Starten“. Einige Sekunden später werden die Drucker wieder gelesen. Wird der Dienst erneut beendet, starten Sie den Computer neu.</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>Der Drucker hat seinen Status noch nicht gemeldet, oder der Status konnte nicht gelesen werden. Ob der Drucker drucken kann, ist damit nicht gesagt.</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>Warten Sie einige Sekunden. Bleibt der Status unbekannt, schalten Sie den Drucker aus und wieder ein und prüfen Sie, ob sein Treiber richtig installiert ist.</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>Der Drucker wird über ein Netzwerk erreicht. Er wird aufgeführt, aber von diesem Computer nie überwacht. Drucken kann er trotzdem.</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>Um seinen Status und das eingelegte Material zu sehen, verwenden Sie den Computer, an den der Drucker angeschlossen ist.</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows führt den Drucker als offline. Er ist ausgeschaltet, nicht verbunden oder auf „Drucker offline verwenden“ gestellt; Aufträge warten in der Druckwarteschlange.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>Schalten Sie den Drucker ein und prüfen Sie sein Kabel. Öffnen Sie seine Druckwarteschlange und vergewissern Sie sich, dass „Drucker offline verwenden“ nicht angehakt ist.</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>Der aktuelle Benutzer darf drucken, aber diesen Drucker nicht verwalten. Daher können sein Status und das eingelegte Material nicht gelesen werden. Der Drucker selbst kann in Ordnung sein.</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>Bitten Sie einen Administrator, Ihrem Konto das Recht „Diesen Drucker verwalten“ zu geben (Druckereigenschaften, Sicherheit). Starten Sie dieses Programm danach neu.</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>Der Drucker meldet den Statuscode %1, für den es keine Beschreibung gibt. Er ist verbunden und meldet dies selbst.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>Sehen Sie auf der Anzeige des Druckers und in seinem Handbuch nach. Schalten Sie den Drucker aus und wieder ein. Erscheint der Code erneut, nennen Sie dem Kundendienst die Nummer %1 und das Modell des Druckers.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>Vom Agenten auf dem Computer des Druckers kommt nichts. Was eingelegt ist, wird so gezeigt, wie es zuletzt gemeldet wurde.</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>Prüfen Sie, ob der Computer eingeschaltet und mit dem Netzwerk verbunden ist und ob vxprintagent dort läuft.</translation>
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
        <translation>%1: keine SQLite-Datenbank</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1: keine Datei</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1: größer als 1 GiB</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: keine solche Datei</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1: noch nicht im Format dieser Version</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1: Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1: von einer neueren Version geschrieben (Format %2; diese Version kennt Formate bis %3)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1: nicht die Tabellen eines Verlaufs</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>ein anderes Programm benutzt sie gerade</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1: ein anderes Programm schreibt darin</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1: ein anderes Programm liest sie schon zu lange</translation>
    </message>
</context>
</TS>
