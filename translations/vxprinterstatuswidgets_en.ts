<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>nothing loaded</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>about %1 %</translation>
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
        <translation>%1 label</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 labels</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>not in the catalogue</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>not in the catalogue (%1)</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Supply</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Ribbon 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ribbon 2</translation>
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
        <translation>Will probably be used up %1, between %2 and %3</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>Offline since printers were looked for. Switch it on, then look for printers again.</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>A network printer, which cannot be watched.</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>You may not administer this printer, so it cannot be watched.</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>New. Look for printers to watch it.</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>Removed and added again. Restart the program to watch it.</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>Removed on %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removed</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>Status code</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Driver</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>Boot loader</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Update progress</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Update error</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1, identifier</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1, mileage in percent</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1, mileage in millimetres</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Last report</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>The last 24 hours</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>The last seven days</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>Since this roll or ribbon was loaded</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Last events</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>What the driver reports</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Firmware update</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>Choose a printer to see everything about it.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>There is no printer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>Firmware update: %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Firmware update failed, error %1</translation>
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
        <translation>Nothing has happened yet.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>The history cannot be read: %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Active printer</translation>
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
        <translation>Print a &amp;test label…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>Open the print &amp;queue</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Doctor…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Save a case for support…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>Filter the printers</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>Words of a name, model, driver, port, serial number, status or supply</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>Worst first</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>By name</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>Order of the printers</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>No printer fits the filter. Press Escape to show all.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copy details</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>Not known</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>Removed %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removed</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>Network printer, not watched</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>Not watched: you may not manage it</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>Not watched yet</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>Replaced: watched again after a restart</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>just now</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min ago</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 h ago</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>No report yet</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>Last report: %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>active printer</translation>
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
        <translation>This is the active printer.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Driver</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
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
        <translation>%1 (%2, code %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explanation</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Remedy</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Last report</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>Agent offline since %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>As it was at %1</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 hours</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
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
        <translation>Will probably be used up in %1 (%2 to %3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Not known</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removed</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Active printer</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Old value</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Firmware update</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Supply</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Ribbon</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>Print spooler stopped</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>No permission</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Notices</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>Notices muted</translation>
    </message>
</context>
</TS>
