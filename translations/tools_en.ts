<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>Doctor</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>Doctor: %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Checking…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>What was found</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Nothing is wrong.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Problems found: %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>What happened</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Label printers</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>&amp;Printers</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>&amp;Look for printers</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Save a case for support…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Doctor…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Events</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>As the system</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colours</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>&amp;Notices</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>&amp;None for an hour</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>None of the chosen &amp;printer</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>&amp;All printers and kinds again</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>&amp;Warn of few labels…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>&amp;Stay in the tray when the window is closed</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;About…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>Events, the newest first</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>Details of the chosen printer</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>How many printers there are of each state</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 could not be saved: %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>Printers: %1 with an error, %2 with a warning, %3 others</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>The queue of %1 could not be opened.</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>Print a test label</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>The command is sent to %1 as it is:</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>The command is in the queue of %1.</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>Save a case for support</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>Cases (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>Warn of few labels</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>Warn when fewer labels are left than (0: never):</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>Show the &amp;printer</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>No notices of this p&amp;rinter</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>No notices of this &amp;kind</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>Shows the label printers of this computer.</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>Version %1, with Qt %2 (used: %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>Label printers: %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>Only for the printers of this computer. These are those of a site, as its agents publish them.</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>Shows the label printers of a site, as its agents publish them.</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>Looking for printers…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>No label printer is installed</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Look again</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>The print spooler is not running</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>&amp;Show the last known state</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>You may not manage these printers</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>&amp;Show the printers all the same</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>Connecting to the broker…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>Nothing can be read from the broker</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>The connection is tried again, and the printers appear by themselves.</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>No agent has published a printer</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 error</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errors</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 warning</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 warnings</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 notice</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 notices</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 ready</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>Show only these printers; press again to show all</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unknown option &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unknown options: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Missing value after &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unexpected value after &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>Agents offline: %1 and %2 more</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>Agents offline: %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>Messages that cannot be read: %1. The last one: %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>There are more printers or agents than this program shows. Messages left out: %1</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>&amp;No notices for an hour</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>print a log of what happened to printers</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>a file</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log: only events of the printer NAME and of the spooler</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log: only events that are ok, information, warning or error, or worse</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity: expected ok, information, warning or error, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>lines that are no events and were left out: %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>There are no such events.</translation>
    </message>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (see %2 --help)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>standard output could not be written: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>the character U+%1 is invisible; remove it</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>longer than %1 characters</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>&quot;%1&quot; is not a whole number between %2 and %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>&quot;%1&quot; is not a colour of the form #RRGGBB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>&quot;%1&quot; is neither yes nor no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1: no such file, or it cannot be read</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>the column %1 is missing</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>the same language as the column %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>&quot;%1&quot; is not a number between %2 and %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>&quot;%1&quot; is not greater than 0</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>duplicate colour &quot;%1&quot;</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>duplicate material %1</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>duplicate format %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>&quot;%1&quot; is not one of %2</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>duplicate number %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>&quot;%1&quot; is not a plain file name</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>%1%2 cannot be read</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 is larger than %3 KiB</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 is not a readable image</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>more than %1 rows</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>duplicate SKU %1</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>a second colour and its width must be given together or not at all</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>a label length is given, but the format is continuous</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>empty, but the format is not continuous</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>a gap is given, but there is only one label across</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>empty, but there are several labels across</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 is a supply&apos;s SKU</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 panels; a ribbon has 1 to %2</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>duplicate print setting for panel %1 of %2 with %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>&quot;%1&quot; is the same model as &quot;%2&quot;</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>duplicate format %1 for %2</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: no such directory</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 is not a file</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1: cannot be created in %2: %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1: larger than 16 MiB</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2, column %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>more than %1 columns</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>a carriage return without a line feed</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>text after a closing quotation mark</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>a field of more than %1 characters</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>a NUL character</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>a quotation mark inside a field that is not quoted</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>an unclosed quotation mark</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>empty; expected a line of column names</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>a column without a name</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>duplicate column</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>%1 fields, but there are %2 columns</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>the panels of ribbon %1 are not numbered consecutively from 1</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 is both a supply and a ribbon</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>supply %1 has a label length and a continuous format, or neither</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>the language 0 is &quot;%1&quot;, not English</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>damaged: %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>its tables are not those of schema version %1</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1: not a file, so it is not replaced</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Usage: %1</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 supplies, %2 ribbons, %3 print settings, %4 languages</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: ok, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>&quot;%1&quot; is not a known language</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>supply</translation>
    </message>
    <message>
        <source>material</source>
        <translation>material</translation>
    </message>
    <message>
        <source>format</source>
        <translation>format</translation>
    </message>
    <message>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>colour</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>second colour</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>stripe</translation>
    </message>
    <message>
        <source>width</source>
        <translation>width</translation>
    </message>
    <message>
        <source>length</source>
        <translation>length</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>label length</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>separator</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>landscape</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>side by side</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>gap</translation>
    </message>
    <message>
        <source>background</source>
        <translation>background</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>printed with</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 panel %2: heat %3, offset %4, speed %5, tension %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>ribbon</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panel</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1: no supply or ribbon &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>there is no method %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>the arguments do not fit %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> or </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>no arguments</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>a SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>a SERVICE, a METHOD and its arguments</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>expected list, describe, call or watch</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>unknown command &quot;%1&quot;; %2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 takes %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>Calls the endpoints that run for this user.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>list the endpoints: name, service, process, application</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>list the methods and signals of an endpoint</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>call a method and print its result</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>print JSON</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>wait up to MS milliseconds for an endpoint (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>print this help</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>what follows is not an option</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>print a line of JSON for each emission of the signals, or of all signals, until interrupted</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>watch for SECONDS only</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for takes a number of seconds</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 takes no --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>a SERVICE and SIGNALs</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1: it has no signals</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1: the connection ended; waiting for the endpoint</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1: watching again; what changed meanwhile was missed</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout takes a number of milliseconds</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unknown option %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual: this build uses the system&apos;s own print spooler</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>print JSON: an array, or one object per line</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch: stop after SECONDS; by default, when interrupted</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>append the library&apos;s log to FILE</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch: speed up the virtual printers&apos; story by FACTOR</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title: all codes, with what they mean and what to do</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>print the version</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>Lists and watches the label printers of the print spooler.</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1: expected a file name</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>unknown command &quot;%1&quot;; expected one of %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1 takes %2, found %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>expected a command: %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 is valid only with %2</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>list the printers of the print spooler</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>show the status of all label printers, or of one</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>at most one printer</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>send a command in the printer&apos;s own language</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>a printer and a command</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>print the title of a status code</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>a status code or --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>cannot write the log %1: %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>other</translation>
    </message>
    <message>
        <source>default</source>
        <translation>default</translation>
    </message>
    <message>
        <source>network</source>
        <translation>network</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>shared</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>not managed</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>There are no printers, or the print spooler is not running.</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>PRINTER</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>MODEL</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>PORT</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>SERIAL</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>DRIVER</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>FLAGS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>status</source>
        <translation>status</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ribbon 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ribbon 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>There are no label printers yet.</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>STATUS</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>SUPPLY</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>RIBBON 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>RIBBON 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>FIRMWARE</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>printer</translation>
    </message>
    <message>
        <source>active</source>
        <translation>active</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>Sent to %1: %2</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrupted</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>What to do: %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title takes a status code or --all, not both</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title takes a status code or --all, found nothing</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send: wait until the job was printed or has left the queue</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send: also to a printer of another maker, also nothing</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>Print job %1, bytes: %2.</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>interrupted while print job %1 was in the queue of &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force sends it nevertheless.</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>the command was not sent: %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>print job %1 was not printed: %2</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch: append what happens to FILE as well</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch: print seconds since the start, not the time of day</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch: print every change of a level</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json: print the signals that a host receives</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>take the names of supplies and ribbons from FILE</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>print this help as JSON</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>print this help, or that of a command</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help takes at most one command, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>print a line for each thing that happens to the label printers</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>there is no printer &quot;%1&quot;; did you mean %2?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>Network printer</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>Not managed</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>unknown kind</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1, level not known</translation>
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
        <source>no, it is a network printer</source>
        <translation>no, it is a network printer</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>no, you may not manage it</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>no, it was removed and added again</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>no, it was removed</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>Offline since they were found, so without a status: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>Active printer: %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>meaning</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>what to do</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>boot loader</translation>
    </message>
    <message>
        <source>model</source>
        <translation>model</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>driver</translation>
    </message>
    <message>
        <source>port</source>
        <translation>port</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>serial number</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>watched</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>cannot write the log %1: %2; it is tried again every second</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals is valid only with --json</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals takes no printers: it prints every signal</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative and --verbose are not valid with --json</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (was %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>Supply removed</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>Ribbon 1 removed</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>Ribbon 2 removed</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 loaded</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>Ribbon 1: %1 loaded</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>Ribbon 2: %1 loaded</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>now the active printer</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>Firmware update: %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 used up</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (was: %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>, was %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help takes at most one command</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>print this help, or more about a command</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>empty; expected a text of at most %1 characters</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1: there is also %2; remove one of them</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>not a column of this table; expected %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>neither a column of this table nor a known language; expected %1 and languages such as en or de</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>&quot;%1&quot; is not in %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>&quot;%1&quot; has a space; expected a key without spaces</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>format %1 is not in %2</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>material %1 is not in %2</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>KINDS</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>RIBBON</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>NUMBERS</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>it has content that the tables cannot express</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1: files written: %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1: it cannot be written as tables:</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>create a supply database from the tables in DIRECTORY</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>verify a supply database or a directory of tables</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>Nothing is written. All that is wrong is printed, up to 50 lines.</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>list the supplies and ribbons in FILE</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>With the numbers in identifiers that stand for them, and their names.</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>print what FILE has about a supply or a ribbon</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>print what the identifier of a roll or a ribbon stands for</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>write the tables and pictures of FILE to DIRECTORY</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>A database that is built from them has the same bytes.</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>write tables with examples to DIRECTORY</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>A start for a catalogue of your own: every column with its name and an example.</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>Builds and reads the supply databases of printers.</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>replace existing files</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>not UTF-8 text; save the table as UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>a row of %1 refers to a missing row of %2</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>English is missing</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 exists already; --force replaces it</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>the folder cannot be created</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>not a directory</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>&quot;%1&quot; is what a printer reports when nothing is loaded</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>no supply of the kind %1</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>The catalogue has another length, so the library cannot tell how much of the roll is left.</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>no ribbon with the number %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>&quot;%1&quot; is a SKU; show prints what the file has about it</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1; similar: %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... and %1 more</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>kinds</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 bytes</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>numbers</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>prints on</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>An endpoint that does not answer is listed too, with the reason in place of its process.</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>If the endpoint goes away, watch waits for it and goes on.</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>check everything from the spooler to the catalogue</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>show all label printers in a live table</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>Connect the printer by USB, switch it on and install its driver.</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>Remove the printer from Windows and install it again with its driver.</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>Take the name from the output of &quot;vxprintmon list&quot;.</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>Switch the printer on and check its USB cable at both ends.</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>Switch the printer off and on again. If that does not help, install its current driver.</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>If other programs are to ask for the printers, start the program that watches them.</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>End the program that does not answer, and start it again.</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>Nothing needs to be done: not every printer has this value.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problem</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>Everything is in order.</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>Everything else is in order.</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>Driver values not published: %1.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>There is no printer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>Similar names: %1.</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>problems found: %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>The service &quot;Spooler&quot; is not running (state %1).</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>The service &quot;Spooler&quot; is running.</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>The print spooler lists no label printer that can be watched. Printers: %1.</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>The print spooler answers. Printers: %1, label printers: %2.</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>The device registry has no USB device of a label printer.</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>USB devices of class %1: %2.</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>There is no catalogue %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>The catalogue %1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>The file %1 is no supply catalogue.</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>The catalogue %1 has the schema version %2; only version %3 can be read.</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>The catalogue %1 is damaged or empty.</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>The endpoint %1 is not running.</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>The endpoint %1 does not answer: %2.</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>The endpoint %1 answers: %2, process %3.</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1: not published; this model has one ribbon</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1: not published</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1; expected the type %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1; expected %2 to %3 bytes</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1; a number up to %2 is plausible</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>The status code &quot;%1&quot; is not a number.</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>Status %1: %2. %3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1: nothing is loaded.</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1: the catalogue does not know %2.</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1: %2 is %3 in the catalogue.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>Model %1, driver &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>You may manage the printer.</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>You may not manage the printer, so it is not watched.</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>The printer is reached over a network (port %1), so it is listed, but not watched.</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>No USB device of a label printer is on the printer&apos;s port %1.</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>Port %1, with the device %2.</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>The printer is set to be used offline.</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows reports the printer offline.</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>The printer is online.</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>The queue reports nothing.</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>The queue reports: %1.</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 failed: %2 (error %3).</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top draws on a terminal, but its input or output is none; use status, or top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>the terminal cannot be used: %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>this console does not know escape sequences; use that of Windows 10 or newer</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>Printers: %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>with errors: %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>shown: %1 to %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>removed</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q quit</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s by severity</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n by name</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l by level</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>arrows, Page Up, Page Down: scroll</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>a file to read and a file to write</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case: expected show, explain, redact or verify, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>line %1, after %2 s</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>Signals and log lines that are about no printer: the first difference is at number %1</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>recorded</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>replayed</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>Evidence, from %1: lines %2 and more: %3</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>Evidence, from %1: lines %2</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>Nothing in this case is recognised.</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>byte %1: %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>expected an object with the list &quot;findings&quot;</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>there are more than %1 findings</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; must be %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>there is no member &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>a text</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>a condition or a list of conditions</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>a list of texts</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>a number of seconds</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>a text, or texts by their languages with &quot;en&quot; among them</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1: the file is larger than %2 bytes</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1: there is such a file already; name another one</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1: lines written: %2, left out: %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>Read it before you send it: it is plain text.</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>a monitoring thread does not come to rest</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1, for %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>with</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contains</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>steps: %1, signals: %2, log lines: %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>names</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>replaced by others</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>as they are; &quot;vxprintmon case redact&quot; replaces them</translation>
    </message>
    <message>
        <source>end</source>
        <translation>end</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>missing: the recording was cut short</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>faster</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>how often values changed faster than they were read: %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnings and errors</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>What was loaded</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>not there</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>The recording was cut short; it is compared up to there.</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>No signals were recorded; only the log is compared.</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>The same: %1 signals and %2 log lines in %3 steps.</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>the library does something else than was recorded</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain: recognise what the table FILE describes as well</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>show, explain, redact or verify a case file</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>an action and one or two files</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1: its catalogue cannot be written to a temporary file: %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record: keep names, serial numbers and addresses as they are</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>record what printers do, for those who help</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  printers %2, changes %3, signals %4, log lines %5, %6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changes</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signals</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>Log lines</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>Faster than read</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>Left out to keep the limit</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Not written</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 exists and is not replaced; choose another name, or delete it first</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>cannot create %1: %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>Recording into %1.</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>Recording into %1, until it is interrupted (Ctrl-C).</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>cannot write %1: %2; it is tried again every second</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>cannot write %1: %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch: also record what is used, in the user&apos;s history or --file</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history: print a table for spreadsheets (CSV)</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>print what printers have used</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>say when rolls and ribbons will end</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>say whether a job fits: the right supply and ribbon, and enough</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>the catalogue has no %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>the catalogue has no %1; did you mean %2?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>SLOT</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>LEFT</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>LASTS ABOUT</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>PROBABLY</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>over 2 years</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>the history cannot be read: %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>still loaded</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>LOADED</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>FROM</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>UNTIL</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>USED</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>LABELS</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>A DAY</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (serial number %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>Changes that could not be recorded: %1, from %2 to %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>the history has no printer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>the history has no printer &quot;%1&quot;; did you mean %2?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv and --json are not valid together</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>the history was damaged, is now called %1, and has been begun anew: %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>cannot write the history %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>cannot write the history %1; it is tried again every second</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1 lasts</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>about %1, probably %2 to %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>LASTS</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file is valid only with --history</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history, forecast, watch --history: FILE in place of the user&apos;s history</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch, forecast: warn of rolls that have fewer LABELS than a job needs</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1: its catalogue can only be played with a supply database of the product itself</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>lines left out from %1 to %2: %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>AT THE BEGINNING</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>AT THE END</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>cannot write the picture %1</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>speed up the virtual printers&apos; story by FACTOR</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>record what is used in FILE, and show it</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>keep the settings of the window in FILE</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>start without an open window</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>speak the language TAG: en, de, es, fr, it, ja or zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>use the colours SCHEME: light, dark or system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>open the window in this size</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>save a picture of the window in FILE.png and end</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>with --screenshot: SECONDS after the start, 3 by default</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>Shows the label printers of this computer in a window.</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size: expected such as 1200x800, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1: expected a value</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>expected options only, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after goes with --screenshot</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors: expected light, dark or system, found &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>watch and publish until interrupted</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>say what is wrong with a configuration</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>install the agent as a Windows service that runs with the configuration</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>remove the Windows service</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>the configuration, a JSON file</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>use the virtual printers that FILE describes</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>play the story of virtual printers FACTOR times as fast</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed takes a number above 0 and up to 1000</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 needs a value</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 needs --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 is a valid configuration</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 takes no further words</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>what the Windows service manager starts</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1: Windows allows it to administrators alone; use a console that was started as administrator</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1: %2 (error %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>the service %1 cannot be installed</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>the service %1 cannot be removed</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>the rights to %1 are not known</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 is on a network drive, which a service does not see; copy it to this computer</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1: it does not stop; end vxprintagent.exe in the task manager and try again</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>the service manager does not answer</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>the service %1 is installed and starts with Windows; to start it now: net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>the service %1 is not installed</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1 yet: another program has it open; close the list of services and the event viewer</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 does not let this user read what agents publish (%2); ask who runs the broker</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>more than %1 bytes</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>a name that is empty or has more than %1 characters</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>expected online or offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>not a JSON object</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>there are more than %1 printers</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>a message cannot be read: %1 (so far: %2)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1; those beyond are not shown</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>there are more than %1 agents</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1: expected %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>the password crosses the network readably; use mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker: this build has no MQTT; build it with libmosquitto</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>No agent since %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 does not go with --broker</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>no connection since %1</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>no connection</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>agents offline: %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>unreadable messages: %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connecting to %1…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>No agent has published a printer yet.</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>No agent of the site &quot;%1&quot; has published a printer yet.</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>left out: %1</translation>
    </message>
</context>
</TS>
