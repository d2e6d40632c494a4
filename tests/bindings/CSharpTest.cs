// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Tests of the C# binding on the built-in fleet. Prints a line for each test, and ends with 1 if one fails.
//
// Usage: CSharpTest.exe CATALOGUE
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Threading;
using VxPrinterStatus;

internal static class CSharpTest
{
    private static string catalogue;
    private static int failures;

    private static Session NewSession()
    {
        return new Session(new SessionOptions { Catalogue = catalogue, Language = "en" });
    }

    private static void Check(bool holds, string what)
    {
        if (holds)
            return;
        Console.WriteLine("does not hold: {0}", what);
        ++failures;
    }

    private static void CheckEqual<T>(T found, T expected, string what)
    {
        Check(EqualityComparer<T>.Default.Equals(found, expected),
            string.Format("{0} is {1}, not {2}", what, found, expected));
    }

    private static void CheckThrows<T>(Action action, string what, Func<T, bool> isRight = null)
        where T : Exception
    {
        try
        {
            action();
            Check(false, what + " throws a " + typeof(T).Name);
        }
        catch (T exception)
        {
            Check(isRight == null || isRight(exception), what + ": " + exception);
        }
    }

    // The program that runs the tests ends one that hangs.
    private static void WaitFor(Func<bool> condition)
    {
        while (!condition())
            Thread.Sleep(5);
    }

    private static void ReadsPrinters()
    {
        using (Session session = NewSession())
        {
            IList<Reading> printers = session.Readings();
            CheckEqual(string.Join(",", printers.Select(printer => printer.Name)),
                "Branch Office,Laboratory,Returns,Shipping,Warehouse", "the names");
            WaitFor(() => session.Read("Shipping").Ribbon1.Ratio != null);
            Reading shipping = session.Read("Shipping");
            CheckEqual(shipping.Model, "AlderMax", "the model");
            CheckEqual(shipping.Supply.State, SlotState.Loaded, "the supply's state");
            CheckEqual(shipping.Supply.Name, "Yellow Vinyl", "the supply's name");
            Check(shipping.Supply.Meters > 0, "the supply has metres");
            CheckEqual(shipping.Supply.Labels, (long?)null, "the labels of a continuous supply");
            Check(shipping.Supply.Colors.Single().StartsWith("#"), "the supply's colour");
            Check(shipping.Ribbon2 != null, "there is a second ribbon");
            CheckEqual(shipping.GoneSince, (DateTimeOffset?)null, "the time since when it is gone");
            Check(shipping.LastReport > DateTimeOffset.UtcNow.AddHours(-1), "the time of the last report");
            Check(shipping.Json.Contains("\"Shipping\""), "the JSON has the name");
            Reading branch = session.Read("Branch Office");
            CheckEqual(branch.StatusCode, 256, "the status of a network printer");
            CheckEqual(branch.Severity, Severity.Information, "the severity of a network printer");
            Check(!branch.IsWatched, "a network printer is not watched");
            CheckEqual(branch.Supply.Ratio, (double?)null, "the ratio of what is not known");
            CheckEqual(branch.Supply.State, SlotState.NotKnown, "the state of what is not known");
            Check(branch.Ribbon2 == null, "there is no second ribbon");
            CheckEqual(branch.LastReport, (DateTimeOffset?)null, "the report of a network printer");
            WaitFor(() => session.ActivePrinter == "Warehouse");
        }
    }

    private static void RecordsWhatIsUsed()
    {
        string folder = Path.Combine(Path.GetTempPath(), Path.GetRandomFileName());
        string file = Path.Combine(folder, "history.db");
        try
        {
            using (var session = new Session(new SessionOptions { Catalogue = catalogue, History = file }))
            {
                WaitFor(() => session.Read("Shipping").Supply.Ratio != null);
                Check(session.Read("Branch Office").Supply.SecondsRemaining == null, "nothing is estimated");
            }
            Check(new FileInfo(file).Length > 0, "the history was written");
        }
        finally
        {
            Directory.Delete(folder, true);
        }
    }

    private static void TellsWhatCodesMean()
    {
        using (Session session = NewSession())
        {
            CheckEqual(session.StatusInfo(2).Key, "out_of_labels", "the key");
            CheckEqual(session.StatusInfo(2).Severity, Severity.Error, "the severity");
            CheckEqual(session.StatusInfo(1).Title, "Ready", "the title");
            CheckEqual(session.StatusInfo(1, "de").Title, "Bereit", "the German title");
            CheckEqual(session.StatusInfo(1, "ja").Title, "\u6e96\u5099\u5b8c\u4e86", "the Japanese title");
        }
    }

    private static void TellsChanges()
    {
        var changes = new List<ChangeEventArgs>();
        var failed = 0;
        Result? inHandler = null;
        using (Session session = NewSession())
        {
            session.HandlerFailed += (sender, arguments) => Interlocked.Increment(ref failed);
            session.Changed += (sender, change) =>
            {
                lock (changes)
                    changes.Add(change);
                // A handler may read, and may not dispose of the session.
                if (change.Kind == ChangeKind.Changed)
                    CheckEqual(session.Read(change.Printer).Name, change.Printer, "the name");
                try
                {
                    session.Dispose();
                }
                catch (VxException exception)
                {
                    inHandler = exception.Result;
                }
                throw new InvalidOperationException("nobody catches this");
            };
            WaitFor(() =>
            {
                lock (changes)
                    return changes.Any(change => change.Kind == ChangeKind.Changed
                        && change.Fields.HasFlag(Fields.Supply));
            });
            // The garbage collector must not take what the library calls.
            for (int i = 0; i < 20; ++i)
            {
                int count;
                lock (changes)
                    count = changes.Count;
                GC.Collect();
                GC.WaitForPendingFinalizers();
                WaitFor(() =>
                {
                    lock (changes)
                        return changes.Count > count;
                });
            }
        }
        int after = changes.Count;
        CheckEqual(inHandler, Result.InCallback, "the result in a handler");
        Check(failed > 0, "HandlerFailed was raised");
        using (NewSession())
            CheckEqual(changes.Count, after, "the number of changes after the session");
    }

    private static void SendsCommands()
    {
        using (Session session = NewSession())
        {
            CommandResult result = session.Send("Warehouse", "FEED 3");
            Check(result.Job > 0, "the command has a job");
            CheckEqual(result.Bytes, 8L, "the bytes of the command");
            CheckEqual(session.Send("Warehouse", new byte[] { 0, 1, 255 }).Bytes, 3L, "the bytes");
            CheckThrows<CommandException>(() => session.Send("No such printer", "FEED"), "a missing printer",
                exception => exception.Command.Failure == Failure.CannotOpenPrinter
                    && exception.Message.Contains("No such printer"));
            CheckThrows<CommandException>(() => session.Send("Front Desk Laser", "FEED"), "a laser printer",
                exception => exception.Command.Failure == Failure.ForeignPrinter);
            session.Send("Front Desk Laser", "FEED", SendFlags.ToAnyPrinter);
            CheckThrows<CommandException>(() => session.Send("Warehouse", ""), "an empty command",
                exception => exception.Command.Failure == Failure.Empty);
            CheckThrows<VxException>(() => session.Send("Warehouse", "FEED", (SendFlags)0x40), "a flag",
                exception => exception.Result == Result.InvalidArgument);
        }
    }

    private static void RefusesCarelessCallers()
    {
        Session session = NewSession();
        CheckThrows<VxException>(() => NewSession(), "a second session",
            exception => exception.Result == Result.Busy);
        CheckThrows<VxException>(() => session.Read("No such printer"), "a missing printer",
            exception => exception.Result == Result.NoSuchPrinter);
        CheckThrows<ArgumentNullException>(() => session.Read(null), "a null name");
        CheckThrows<ArgumentException>(() => session.Read("Ware\0house"), "a zero character");
        CheckThrows<ArgumentException>(() => session.Read("\ud800"), "half a character");
        CheckThrows<VxException>(() => session.Read(new string('x', 5000)), "a long name",
            exception => exception.Result == Result.TooLong);
        CheckThrows<ArgumentNullException>(() => session.Send("Warehouse", (string)null), "a null command");
        session.Dispose();
        session.Dispose();
        CheckThrows<ObjectDisposedException>(() => session.Readings(), "a session that is disposed of");
        CheckThrows<ObjectDisposedException>(() => session.Send("Warehouse", "x"), "the same with a command");
        CheckThrows<ArgumentNullException>(() => new Session(null), "no options");
        CheckThrows<VxException>(() => new Session(new SessionOptions { Language = "no language" }),
            "a wrong language", exception => exception.Result == Result.InvalidArgument);
        NewSession().Dispose();
    }

    private static void ManyThreadsRead()
    {
        using (Session session = NewSession())
        {
            var threads = Enumerable.Range(0, 4).Select(number => new Thread(() =>
            {
                for (int i = 0; i < 50; ++i)
                    Check(session.Readings().Count == 5, "there are five printers");
            })).ToList();
            threads.ForEach(thread => thread.Start());
            threads.ForEach(thread => thread.Join());
        }
    }

    private static int Main(string[] arguments)
    {
        catalogue = arguments[0];
        foreach (Action test in new Action[] { ReadsPrinters, RecordsWhatIsUsed, TellsWhatCodesMean,
            TellsChanges, SendsCommands, RefusesCarelessCallers, ManyThreadsRead })
        {
            int before = failures;
            test();
            Console.WriteLine("{0}: {1}", failures == before ? "PASS" : "FAIL", test.Method.Name);
        }
        // One that nobody disposes of does not keep the process from ending.
        NewSession().Changed += (sender, change) => Thread.Sleep(1);
        return failures == 0 ? 0 : 1;
    }
}
