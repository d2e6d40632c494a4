<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Disconnected</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>Unable To Retrieve Printer Info. (Code 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>Printer Is Remotely Connected.
Unable to retrieve printer info.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>Printer Is Not Managed.
Unable to retrieve printer info.</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>The printer is disconnected</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>The printer is ready</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>The printer is out of labels</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>The ribbon has run out</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>The cover is open</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>The labels are jammed</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>The cutter is jammed</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>The cutter cover is open</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>The print head is too hot</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>The print head is not connected</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>The motor is too hot</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>No labels are loaded</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>No ribbon is loaded</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>The labels are not recognized</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>The ribbon is not recognized</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>The ribbon does not suit the labels</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>The start of the label was not found</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>The ribbon is torn or slack</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>The label sensor must be calibrated</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>The printer is paused</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>The printer&apos;s memory is full</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>The firmware is being updated</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>The firmware update has failed</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>The battery is low</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>The print spooler is not running</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>The printer&apos;s status is not known</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>The printer is reached over a network</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>The printer is offline</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>The printer is not managed</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>Printer error %1</translation>
    </message>
</context>
</TS>
