// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host in C#. It prints a line for each of the maker's label printers, then one for each change until
// the user presses Enter. Compile it together with the two files of the binding, with Mono for example:
//
//     mcs -out:csharp_host.exe Host.cs VxKit.cs VxKitNative.cs
//
// Usage: csharp_host [CATALOGUE]
using System;
using VxPrinterStatus;

internal static class Host
{
    private const Fields printed = Fields.Status | Fields.Supply | Fields.Ribbon1 | Fields.Ribbon2;

    // What is left. Not known and empty are something else than nothing left.
    private static string Describe(Level level)
    {
        if (level.State == SlotState.Empty)
            return "empty";
        if (level.Meters == null)
            return "not known";
        return string.Format("{0}, {1:0.0} m", level.Name, level.Meters);
    }

    private static void Print(Reading printer)
    {
        string line = string.Format("{0}: {1}; supply {2}; ribbon 1 {3}", printer.Name,
            printer.StatusTitle, Describe(printer.Supply), Describe(printer.Ribbon1));
        if (printer.Ribbon2 != null)
            line += "; ribbon 2 " + Describe(printer.Ribbon2);
        Console.WriteLine(line);
    }

    private static int Main(string[] arguments)
    {
        var options = new SessionOptions();
        if (arguments.Length > 0)
            options.Catalogue = arguments[0];
        try
        {
            using (var session = new Session(options))
            {
                foreach (Reading printer in session.Readings())
                    Print(printer);
                // Is raised on a thread of the session.
                session.Changed += (sender, change) =>
                {
                    if ((change.Fields & printed) != 0)
                        Print(session.Read(change.Printer));
                };
                Console.ReadLine();
            }
            return 0;
        }
        catch (VxException exception)
        {
            Console.Error.WriteLine("csharp_host: {0}", exception.Message);
            return 1;
        }
    }
}
