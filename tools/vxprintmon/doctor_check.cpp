// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_check.h"

#include "tool_text.h"

const char* doctor::remedyText(Remedy remedy)
{
    switch (remedy) {
    case Remedy::StartSpooler:
        return QT_TRANSLATE_NOOP("tools", "Start the service \"Spooler\": run \"net start "
                                          "spooler\" as an administrator.");
    case Remedy::RestartSpooler:
        return QT_TRANSLATE_NOOP("tools", "Restart the service \"Spooler\": run \"net stop "
                                          "spooler\" and \"net start spooler\" as an "
                                          "administrator.");
    case Remedy::InstallDriver:
        return QT_TRANSLATE_NOOP("tools", "Connect the printer by USB, switch it on and install "
                                          "its driver.");
    case Remedy::InstallAgain:
        return QT_TRANSLATE_NOOP("tools", "Remove the printer from Windows and install it again "
                                          "with its driver.");
    case Remedy::CopyName:
        return QT_TRANSLATE_NOOP("tools", "Take the name from the output of \"vxprintmon list\".");
    case Remedy::AskForRights:
        return QT_TRANSLATE_NOOP("tools", "Ask an administrator to allow you to manage this "
                                          "printer, in the printer's properties under Security.");
    case Remedy::UseOnline:
        return QT_TRANSLATE_NOOP("tools", "Open the printer's queue in Windows and switch off "
                                          "\"Use Printer Offline\" in its menu.");
    case Remedy::SwitchOn:
        return QT_TRANSLATE_NOOP("tools", "Switch the printer on and check its USB cable at both "
                                          "ends.");
    case Remedy::ConnectByUsb:
        return QT_TRANSLATE_NOOP("tools", "Connect the printer to this computer by USB, or run the "
                                          "monitor on the computer that it is connected to.");
    case Remedy::LookAtQueue:
        return QT_TRANSLATE_NOOP("tools", "Open the printer's queue in Windows. Resume it if it is "
                                          "paused, and see to what it reports.");
    case Remedy::RestartPrinter:
        return QT_TRANSLATE_NOOP("tools", "Switch the printer off and on again. If that does not "
                                          "help, install its current driver.");
    case Remedy::ChoosePort:
        return QT_TRANSLATE_NOOP("tools", "Plug the printer's USB cable in again, or choose the "
                                          "port that it is on in the printer's properties under "
                                          "Ports.");
    case Remedy::ProvideCatalogue:
        return QT_TRANSLATE_NOOP("tools", "Put a file roll.db beside the program, or name one with "
                                          "--catalogue or VX_ROLL_DB. \"rolldb build\" makes one, "
                                          "\"rolldb check\" says what is wrong with one.");
    case Remedy::UpdateCatalogue:
        return QT_TRANSLATE_NOOP("tools", "Get a current roll.db, or add what is loaded to its "
                                          "tables and run \"rolldb build\".");
    case Remedy::StartHost:
        return QT_TRANSLATE_NOOP("tools", "If other programs are to ask for the printers, start "
                                          "the program that watches them.");
    case Remedy::RestartHost:
        return QT_TRANSLATE_NOOP("tools", "End the program that does not answer, and start it "
                                          "again.");
    case Remedy::TrustFolder:
        return QT_TRANSLATE_NOOP("tools", "Let nobody else write to that folder, or ask an "
                                          "administrator to remove what another user has put "
                                          "there.");
    case Remedy::NothingForeign:
        return QT_TRANSLATE_NOOP("tools", "Nothing needs to be done, unless this is a label "
                                          "printer that should be watched: then install its "
                                          "driver.");
    case Remedy::NothingOptional:
        return QT_TRANSLATE_NOOP("tools", "Nothing needs to be done: not every printer has this "
                                          "value.");
    }
    return "";
}

doctor::Check doctor::finding(Verdict verdict, const QString& text, Remedy remedy)
{
    return {.verdict = verdict, .text = text, .remedy = ToolText::tr(remedyText(remedy))};
}
