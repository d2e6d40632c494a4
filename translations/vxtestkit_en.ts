<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Shows this help.</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>Runs the tests without asking.</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>Allows tests to stop and start the print spooler, without asking.</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>Leaves out the tests that stop the print spooler, without asking.</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>Leaves out the tests that need an administrator&apos;s rights.</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>Runs only the tests whose names match this regular expression.</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>Ends a test that prints nothing for so many seconds (180).</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>Writes the report into this folder.</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>Speaks this language: de, en, es, fr, it, ja or zh.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unexpected argument &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop and --no-spooler-stop contradict each other</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>&quot;%1&quot; is not a regular expression: %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FAILED</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>CRASHED</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>HANGS, was ended</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>skipped</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>not run</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrupted</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>The folder %1 cannot be created.</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>An earlier run did not end by itself. What it has left behind is removed now.</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>Tests of VxPrinterStatus %1</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>Run the tests?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>May they stop the print spooler?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 passed, %2 failed, %3 skipped, %4 not run</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>Not as it was before:</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>Please send back this file:</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>The tests are already running on this computer.</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>Press Enter to close.</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[y/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>Removed: %1. Could not be removed: %2.</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1: the test "%2" has no program in this folder</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 lists no tests</translation>
    </message>
</context>
</TS>
