<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>The print job cannot be followed: %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>The print spooler does not answer: %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>The printer is offline.</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>The printer is out of labels.</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>The printer is in error.</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>The printer needs attention.</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>The job is paused.</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>The job is being deleted.</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>The driver cannot print the job.</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>The printer is paused.</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>Labels are jammed.</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>The printer has a problem with its labels.</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>The printer is not available.</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>The printer is open.</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>The printer is set to work offline.</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>The command is empty.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>&quot;%1&quot; is not a label printer of a supported model.</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>The print spooler took only the first %1 bytes of the command.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>&quot;%1&quot; cannot be opened: %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>The driver of &quot;%1&quot; cannot be queried: %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>The command cannot be sent to &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>The job waits in the queue.</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>The job is being printed.</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>The job has been printed.</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>The job was deleted.</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>The job has left the queue; whether it was printed is not known.</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1: line %2: %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>it is longer than %1 bytes</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>the file is larger than %1 bytes</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>the member &quot;kind&quot; is missing</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>it is not a JSON object</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>there is a line behind the end of the case</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; is not a number of seconds since the start</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>this is not a case file</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>the case file has version %1, but this program reads version %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>nothing is kept in memory</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1: nothing is loaded, the job needs %2.</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1: %2 is loaded, the job needs %3.</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>The job needs the ribbon %1 as well, but the printer has no place for it.</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>No ribbon is loaded.</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1: not enough. Labels left: %2, needed: %3, missing: %4.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>There is no label printer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>It is not known what is loaded, because the printer is not watched.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>It is not known what is loaded, because the printer has not reported anything yet.</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>It is not known whether the printer can print, because it has not reported its status.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1: it is not known what is loaded, because the printer does not report it.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1: it is not known what is loaded, because %2 is not in the catalogue.</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1: it is not known how much is left.</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>The printer is not ready: %1.</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>Ready. Labels left: %1, needed: %2.</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>Ready: what the job needs is loaded.</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>Ribbon 1: %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>Ribbon 2: %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>Supply: %1</translation>
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
        <source>%1 % left</source>
        <translation>%1 % left</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>nothing loaded</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>not in the catalogue (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Firmware update failed, error %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>Firmware %1, was %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>Command failed: %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>Printer added</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>Printer removed</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>Printer renamed, was %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Print spooler stopped, no printer can be read</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Print spooler is running again</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>%1 event is missing since %2, because the log could not be written</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>%1 events are missing since %2, because the log could not be written</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1: few labels left: %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1: not enough for the job. Labels left: %2, needed: %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1: will probably end before the shift does, at %2</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>Ribbon 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ribbon 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Supply</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>The printer is switched on, is connected and can print.</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Nothing needs to be done.</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>The ribbon is used up to its end. The labels are not the cause.</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>The printer does not detect its print head. The head or its cable may be loose or defective.</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>There are no labels in the printer, or they do not reach the sensor.</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>There is no ribbon in the printer, but the labels need one.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>Load a ribbon that suits the labels, pull it tight and close the cover.</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>The ribbon is torn, or it is not tight. It need not be used up.</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>Press the pause key at the printer to resume printing.</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>The job needs more memory than the printer has free. The memory of this computer is not meant.</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>The printer is installing new firmware and does not print meanwhile. This is not a fault.</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>Wait until the update is complete. Do not switch the printer off and do not unplug it.</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>The printer could not install the new firmware. It may still work with the old one.</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>Connect the printer to its power supply, or change the battery.</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>To see its status and what is loaded, use the computer that the printer is connected to.</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>information</source>
        <translation>information</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>warning</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent offline</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1: not an SQLite database</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1: not a file</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1: larger than 1 GiB</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: no such file</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1: not yet in the format of this version</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1: a database of another program</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1: written by a newer version (its format is %2; this version knows formats up to %3)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1: not the tables of a history</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>another program is using it</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1: another program is writing to it</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1: another program has been reading it for too long</translation>
    </message>
</context>
</TS>
