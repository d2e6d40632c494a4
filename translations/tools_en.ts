<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <name>tools</name>
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
        <source>the column en is missing</source>
        <translation>the column en is missing</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>neither a column of this table nor a known language</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>not a column of this table</translation>
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
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>&quot;%1&quot; is not in colours.csv</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>a space in a colour&apos;s key</translation>
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
        <source>format %1 is not in formats.csv</source>
        <translation>format %1 is not in formats.csv</translation>
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
        <source>material %1 is not in materials.csv</source>
        <translation>material %1 is not in materials.csv</translation>
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
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>&quot;%1&quot; is not in ribbons.csv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>&quot;%1&quot; is not in supplies.csv</translation>
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
        <source>not UTF-8 text</source>
        <translation>not UTF-8 text</translation>
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
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1, column %2 (%3): %4</translation>
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
        <source>English is missing%1</source>
        <translation>English is missing%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>a row of %1 refers to a missing row</translation>
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
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build creates the supply database FILE from the tables in DIRECTORY.</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check verifies FILE.</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</translation>
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
        <source>expected build, check or show</source>
        <translation>expected build, check or show</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>unknown command &quot;%1&quot;; expected build, check or show</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 takes %2 arguments, not %3</translation>
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
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
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
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</translation>
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
        <source>use the virtual printers that FILE describes</source>
        <translation>use the virtual printers that FILE describes</translation>
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
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</translation>
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
        <source>print a line for each change to the label printers</source>
        <translation>print a line for each change to the label printers</translation>
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
        <source>of an unknown kind</source>
        <translation>of an unknown kind</translation>
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
        <source>supply left</source>
        <translation>supply left</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ribbon 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>ribbon 1 left</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ribbon 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>ribbon 2 left</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>has a ribbon 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>network printer</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>managed</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>has been active</translation>
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
        <source>ACTIVE</source>
        <translation>ACTIVE</translation>
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
        <source>errors</source>
        <translation>errors</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>ribbons</translation>
    </message>
    <message>
        <source>found</source>
        <translation>found</translation>
    </message>
    <message>
        <source>records</source>
        <translation>records</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>a printer is in error</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>no printer is in error</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>changed or removed</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>is the active printer</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>is the active printer but has no record</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>is now watched</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>no changes</translation>
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
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</translation>
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
</context>
</TS>
