<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>nichts eingelegt</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>etwa %1 %</translation>
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
        <translation>%1 Etikett</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 Etiketten</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>nicht im Katalog</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>nicht im Katalog (%1)</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Farbband 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Farbband 2</translation>
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
        <translation>Voraussichtlich aufgebraucht: %1, zwischen %2 und %3</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>Seit der Druckersuche offline. Schalten Sie den Drucker ein und suchen Sie dann noch einmal nach Druckern.</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>Ein Netzwerkdrucker, der nicht überwacht werden kann.</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>Sie dürfen diesen Drucker nicht verwalten, daher kann er nicht überwacht werden.</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>Neu. Suchen Sie nach Druckern, um ihn zu überwachen.</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>Entfernt und wieder hinzugefügt. Starten Sie das Programm neu, um ihn zu überwachen.</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>Entfernt am %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>Statuscode</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>Bootloader</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Fortschritt der Aktualisierung</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Fehler der Aktualisierung</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1, Kennung</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1, Rest in Prozent</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1, Rest in Millimetern</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Letzte Meldung</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>Die letzten 24 Stunden</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Die letzten sieben Tage</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>Seit diese Rolle oder dieses Farbband eingelegt wurde</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Letzte Ereignisse</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>Was der Treiber meldet</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Firmware-Aktualisierung</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>Wählen Sie einen Drucker aus, um alles über ihn zu sehen.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Es gibt keinen Drucker „%1“.</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>Firmware-Aktualisierung: %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Firmware-Aktualisierung fehlgeschlagen, Fehler %1</translation>
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
        <translation>Noch ist nichts geschehen.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>Der Verlauf kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Aktiver Drucker</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
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
        <translation>&amp;Testetikett drucken …</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>&amp;Druckerwarteschlange öffnen</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnose …</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Fall für den Support speichern …</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>Drucker filtern</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>Wörter aus Name, Modell, Treiber, Anschluss, Seriennummer, Status oder Etiketten</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>Schlimmste zuerst</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>Reihenfolge der Drucker</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>Kein Drucker passt zum Filter. Die Escape-Taste zeigt alle.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>Details &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>Entfernt %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>Netzwerkdrucker, nicht überwacht</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>Nicht überwacht: Sie dürfen ihn nicht verwalten</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>Noch nicht überwacht</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>Ersetzt: nach einem Neustart wieder überwacht</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Noch keine Meldung</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>Letzte Meldung: %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>aktiver Drucker</translation>
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
        <translation>Das ist der aktive Drucker.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1 (%2, Code %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Letzte Meldung</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>Agent offline seit %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>Stand von %1</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 Tagen</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
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
        <translation>Voraussichtlich aufgebraucht in %1 (%2 bis %3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Aktiver Drucker</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Veralteter Wert</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Firmware-Aktualisierung</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Farbband</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>Druckwarteschlange angehalten</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>Hinweise stumm</translation>
    </message>
</context>
</TS>
