// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Reads and watches label printers through the VxPrinterStatus kit, for .NET and Mono.
//
// Compile this file and VxKitNative.cs into your program; both need nothing but the class library.
//
//     using (var session = new VxPrinterStatus.Session(new SessionOptions { Catalogue = "roll.db" }))
//     {
//         foreach (Reading printer in session.Readings())
//             Console.WriteLine("{0}: {1}", printer.Name, printer.StatusTitle);
//     }
//
// What is not known is null, never 0. docs/c-interface.md is the guide.
using System;
using System.Collections.Generic;

namespace VxPrinterStatus
{
    /// <summary>What a function of the library returns. Positive ones mean that there is no value.</summary>
    public enum Result
    {
        Ok = 0,
        Unknown = 1,
        Empty = 2,
        NoSlot = 3,
        None = 4,
        InvalidArgument = -1,
        InvalidHandle = -2,
        InvalidText = -3,
        TooLong = -4,
        BufferTooSmall = -5,
        NotRunning = -6,
        Running = -7,
        Busy = -8,
        InCallback = -9,
        NoSuchPrinter = -10,
        Command = -11,
        TooMany = -12,
        OutOfMemory = -13,
        Failed = -14,
    }

    /// <summary>
    /// Something failed in the library. The message is for developers and logs, in English.
    /// </summary>
    public class VxException : Exception
    {
        public VxException(Result result, string message) : base(message)
        {
            Result = result;
        }

        public Result Result { get; private set; }
    }

    /// <summary>A command was not sent, or only in part.</summary>
    public sealed class CommandException : VxException
    {
        public CommandException(string message, CommandResult command)
            : base(Result.Command, message)
        {
            Command = command;
        }

        /// <summary>The step that failed, and the system's error.</summary>
        public CommandResult Command { get; private set; }
    }

    /// <summary>How much a status matters to the person who wants to print.</summary>
    public enum Severity
    {
        /// <summary>The printer can print.</summary>
        Ok = 0,
        /// <summary>Nothing is wrong: wait, or look elsewhere.</summary>
        Information = 1,
        /// <summary>It does not print now or soon, but nothing is broken or used up.</summary>
        Warning = 2,
        /// <summary>It does not print until somebody does what the remedy says.</summary>
        Error = 3,
    }

    /// <summary>A place of a printer in which a supply or a ribbon is loaded.</summary>
    public enum Slot
    {
        Supply = 0,
        Ribbon1 = 1,
        /// <summary>Only the models with two ribbons have it.</summary>
        Ribbon2 = 2,
    }

    /// <summary>What is in a slot.</summary>
    public enum SlotState
    {
        /// <summary>The printer has not reported it.</summary>
        NotKnown = 0,
        /// <summary>The printer reports that nothing is loaded.</summary>
        Empty = 1,
        /// <summary>Loaded, and the catalogue knows what it is.</summary>
        Loaded = 2,
        /// <summary>Loaded, but the catalogue is missing or does not know it.</summary>
        NotInCatalogue = 3,
    }

    /// <summary>The unit of <see cref="Level.Mileage"/>.</summary>
    public enum MileageUnit
    {
        Millimeters = 0,
        Percent = 1,
    }

    /// <summary>What has happened. A later library may have more.</summary>
    public enum ChangeKind
    {
        /// <summary>A printer has a reading for the first time, or is listed again.</summary>
        Added = 1,
        /// <summary>A printer reported, or something else about it changed.</summary>
        Changed = 2,
        /// <summary>The spooler does not list the printer any more; its reading stays.</summary>
        Gone = 3,
        /// <summary>The printer has a new name.</summary>
        Renamed = 4,
        /// <summary>Another printer is the active one; the name is empty when there is none.</summary>
        Active = 5,
    }

    /// <summary>What differs from the reading before.</summary>
    [Flags]
    public enum Fields : uint
    {
        None = 0,
        Name = 0x1,
        Model = 0x2,
        Driver = 0x4,
        Port = 0x8,
        SerialNumber = 0x10,
        Presence = 0x20,
        Watching = 0x40,
        Status = 0x80,
        Online = 0x100,
        Active = 0x200,
        Firmware = 0x400,
        Update = 0x800,
        EthernetConfig = 0x1000,
        LastReport = 0x2000,
        Supply = 0x4000,
        Ribbon1 = 0x8000,
        Ribbon2 = 0x10000,
    }

    /// <summary>The step of sending a command that failed.</summary>
    public enum Failure
    {
        None = 0,
        Empty = 1,
        ForeignPrinter = 2,
        CannotOpenPrinter = 3,
        CannotReadDriver = 4,
        CannotStartDocument = 5,
        CannotStartPage = 6,
        CannotWrite = 7,
        ShortWrite = 8,
        CannotEndPage = 9,
        CannotEndDocument = 10,
    }

    /// <summary>Which commands are sent that are otherwise refused.</summary>
    [Flags]
    public enum SendFlags : uint
    {
        None = 0,
        /// <summary>Also to printers of other makers, which print the command as text, or worse.</summary>
        ToAnyPrinter = 0x1,
        /// <summary>Also a command without any character.</summary>
        EvenEmpty = 0x2,
    }

    /// <summary>What became of a command up to the print spooler.</summary>
    public sealed class CommandResult
    {
        internal CommandResult(NativeCommandResult native)
        {
            Failure = (Failure)native.Failure;
            SystemError = native.SystemError;
            Job = native.Job;
            Bytes = native.Bytes;
        }

        public Failure Failure { get; private set; }
        /// <summary>The system's error code; 0 when no system call failed.</summary>
        public uint SystemError { get; private set; }
        /// <summary>The job's number in the printer's queue; 0 when there is none.</summary>
        public uint Job { get; private set; }
        /// <summary>How many bytes the spooler took.</summary>
        public long Bytes { get; private set; }
    }

    /// <summary>
    /// How many seconds something will still last. With a probability of 10, 50 and 90 percent it is at most
    /// as long as this.
    /// </summary>
    public sealed class RemainingTime
    {
        internal RemainingTime(double p10, double p50, double p90)
        {
            P10 = p10;
            P50 = p50;
            P90 = p90;
        }

        public double P10 { get; private set; }
        public double P50 { get; private set; }
        public double P90 { get; private set; }
    }

    /// <summary>
    /// What is loaded in one slot of a printer, and how much of it is left. Null is not known, or does not
    /// apply; nothing that is not known is 0.
    /// </summary>
    public sealed class Level
    {
        internal Level(ReadingsHandle readings, UIntPtr index, Slot slot)
        {
            State = (SlotState)Native.SlotInteger(readings, index, slot, 1).GetValueOrDefault();
            Identifier = Native.SlotText(readings, index, slot, 2);
            Sku = Native.SlotText(readings, index, slot, 3);
            Name = Native.SlotText(readings, index, slot, 4);
            Material = Native.SlotText(readings, index, slot, 5);
            ColorName = Native.SlotText(readings, index, slot, 6);
            string colors = Native.SlotText(readings, index, slot, 7);
            Colors = colors == null ? new string[0] : colors.Split(' ');
            Labels = Native.SlotInteger(readings, index, slot, 2);
            LabelsAcross = Native.SlotInteger(readings, index, slot, 3);
            Percent = Native.SlotInteger(readings, index, slot, 4);
            Mileage = Native.SlotInteger(readings, index, slot, 5);
            MileageUnit = (MileageUnit)Native.SlotInteger(readings, index, slot, 6).GetValueOrDefault();
            IsCoarse = Native.SlotInteger(readings, index, slot, 7) == 1;
            Ratio = Native.SlotNumber(readings, index, slot, 1);
            Meters = Native.SlotNumber(readings, index, slot, 2);
            TotalMeters = Native.SlotNumber(readings, index, slot, 3);
            LabelPitchMeters = Native.SlotNumber(readings, index, slot, 4);
            double? p10 = Native.SlotNumber(readings, index, slot, 5);
            double? p50 = Native.SlotNumber(readings, index, slot, 6);
            double? p90 = Native.SlotNumber(readings, index, slot, 7);
            if (p10.HasValue && p50.HasValue && p90.HasValue)
                SecondsRemaining = new RemainingTime(p10.Value, p50.Value, p90.Value);
        }

        public SlotState State { get; private set; }
        /// <summary>What the printer reports to be loaded.</summary>
        public string Identifier { get; private set; }
        /// <summary>The stock-keeping unit, by the catalogue.</summary>
        public string Sku { get; private set; }
        /// <summary>A name for people, such as "Yellow Vinyl".</summary>
        public string Name { get; private set; }
        /// <summary>The material of a supply or the type of a ribbon.</summary>
        public string Material { get; private set; }
        /// <summary>The name of the first colour, for people.</summary>
        public string ColorName { get; private set; }
        /// <summary>The colours as "#rrggbb"; empty when they are not known.</summary>
        public IList<string> Colors { get; private set; }
        /// <summary>The number of whole labels that are left, for supplies that have labels.</summary>
        public long? Labels { get; private set; }
        /// <summary>How many labels are side by side.</summary>
        public long? LabelsAcross { get; private set; }
        /// <summary>What is left in whole percents, rounded down.</summary>
        public long? Percent { get; private set; }
        /// <summary>The raw value that the driver publishes.</summary>
        public long? Mileage { get; private set; }
        public MileageUnit MileageUnit { get; private set; }
        /// <summary>Whether everything is exact to one percent of the roll only.</summary>
        public bool IsCoarse { get; private set; }
        /// <summary>What is left, from 0 to 1. 0 means used up.</summary>
        public double? Ratio { get; private set; }
        /// <summary>What is left, in metres.</summary>
        public double? Meters { get; private set; }
        /// <summary>The length of a new roll or ribbon, in metres.</summary>
        public double? TotalMeters { get; private set; }
        /// <summary>From the start of one label to the start of the next, in metres.</summary>
        public double? LabelPitchMeters { get; private set; }
        /// <summary>
        /// In how many seconds it will have been used up. It is estimated at each report, and once a minute.
        /// </summary>
        public RemainingTime SecondsRemaining { get; private set; }
    }

    /// <summary>Everything that is known of one printer at one time. Null is not known.</summary>
    public sealed class Reading
    {
        internal Reading(ReadingsHandle readings, UIntPtr index)
        {
            Name = Native.ReadingText(readings, index, 1);
            Model = Native.ReadingText(readings, index, 2);
            Driver = Native.ReadingText(readings, index, 3);
            Port = Native.ReadingText(readings, index, 4);
            SerialNumber = Native.ReadingText(readings, index, 5);
            Watching = Native.ReadingText(readings, index, 8);
            FirmwareVersion = Native.ReadingText(readings, index, 9);
            BootVersion = Native.ReadingText(readings, index, 10);
            EthernetConfig = Native.ReadingText(readings, index, 11);
            StatusKey = Native.ReadingText(readings, index, 13);
            StatusTitle = Native.ReadingText(readings, index, 16);
            Explanation = Native.ReadingText(readings, index, 17);
            Remedy = Native.ReadingText(readings, index, 18);
            StatusCode = (int)Native.ReadingInteger(readings, index, 1).GetValueOrDefault();
            Severity = (Severity)Native.ReadingInteger(readings, index, 2).GetValueOrDefault();
            IsOnline = Native.ReadingInteger(readings, index, 3) == 1;
            IsActive = Native.ReadingInteger(readings, index, 4) == 1;
            IsPresent = Native.ReadingInteger(readings, index, 5) == 1;
            IsWatched = Native.ReadingInteger(readings, index, 6) == 1;
            UpdateProgress = Native.ReadingInteger(readings, index, 8);
            UpdateError = Native.ReadingInteger(readings, index, 9);
            GoneSince = TimeOf(Native.ReadingInteger(readings, index, 10));
            LastReport = TimeOf(Native.ReadingInteger(readings, index, 11));
            Json = Native.ReadingJson(readings, index);
            Supply = new Level(readings, index, Slot.Supply);
            Ribbon1 = new Level(readings, index, Slot.Ribbon1);
            Ribbon2 = Native.HasSlot(readings, index, Slot.Ribbon2)
                ? new Level(readings, index, Slot.Ribbon2)
                : null;
        }

        /// <summary>The printer's name in the print spooler.</summary>
        public string Name { get; private set; }
        /// <summary>Such as "CedarMax".</summary>
        public string Model { get; private set; }
        public string Driver { get; private set; }
        public string Port { get; private set; }
        public string SerialNumber { get; private set; }
        /// <summary>"watched", or why it is not watched, such as "networkPrinter".</summary>
        public string Watching { get; private set; }
        public string FirmwareVersion { get; private set; }
        public string BootVersion { get; private set; }
        public string EthernetConfig { get; private set; }
        /// <summary>1 is ready; docs/status-codes.md lists the codes.</summary>
        public int StatusCode { get; private set; }
        /// <summary>A name of the status that never changes, such as "out_of_labels".</summary>
        public string StatusKey { get; private set; }
        /// <summary>What the status is, for people, on one line.</summary>
        public string StatusTitle { get; private set; }
        /// <summary>What has happened, for people.</summary>
        public string Explanation { get; private set; }
        /// <summary>What to do, for people.</summary>
        public string Remedy { get; private set; }
        public Severity Severity { get; private set; }
        /// <summary>Whether the printer is present and not offline.</summary>
        public bool IsOnline { get; private set; }
        /// <summary>Whether it is the active printer, which the host works with.</summary>
        public bool IsActive { get; private set; }
        /// <summary>Whether the print spooler lists it.</summary>
        public bool IsPresent { get; private set; }
        /// <summary>Whether it is watched.</summary>
        public bool IsWatched { get; private set; }
        public long? UpdateProgress { get; private set; }
        public long? UpdateError { get; private set; }
        /// <summary>Since when the printer is gone; null while it is present.</summary>
        public DateTimeOffset? GoneSince { get; private set; }
        /// <summary>When the printer last reported anything; null when it has not yet.</summary>
        public DateTimeOffset? LastReport { get; private set; }
        /// <summary>The reading as docs/schema/reading.schema.json describes it.</summary>
        public string Json { get; private set; }
        /// <summary>The loaded label supply.</summary>
        public Level Supply { get; private set; }
        /// <summary>The loaded ribbon.</summary>
        public Level Ribbon1 { get; private set; }
        /// <summary>The second ribbon; null for models with one ribbon.</summary>
        public Level Ribbon2 { get; private set; }

        private static DateTimeOffset? TimeOf(long? milliseconds)
        {
            if (milliseconds == null)
                return null;
            return new DateTimeOffset(1970, 1, 1, 0, 0, 0, TimeSpan.Zero)
                .AddMilliseconds(milliseconds.Value);
        }
    }

    /// <summary>What a status code means and what to do about it.</summary>
    public sealed class StatusInfo
    {
        internal StatusInfo(SessionHandle session, int code, string language)
        {
            Code = code;
            Severity = Native.StatusSeverity(code);
            Key = Native.StatusText(session, code, 1, language);
            Title = Native.StatusText(session, code, 2, language);
            ShortTitle = Native.StatusText(session, code, 3, language);
            Explanation = Native.StatusText(session, code, 4, language);
            Remedy = Native.StatusText(session, code, 5, language);
        }

        public int Code { get; private set; }
        /// <summary>A name for programs that never changes.</summary>
        public string Key { get; private set; }
        public Severity Severity { get; private set; }
        /// <summary>May have a line break.</summary>
        public string Title { get; private set; }
        public string ShortTitle { get; private set; }
        public string Explanation { get; private set; }
        public string Remedy { get; private set; }
    }

    /// <summary>Something that happened to a printer.</summary>
    public sealed class ChangeEventArgs : EventArgs
    {
        internal ChangeEventArgs(ChangeKind kind, string printer, string oldName, Fields fields)
        {
            Kind = kind;
            Printer = printer;
            OldName = oldName;
            Fields = fields;
        }

        public ChangeKind Kind { get; private set; }
        public string Printer { get; private set; }
        /// <summary>The name before, for <see cref="ChangeKind.Renamed"/>; otherwise empty.</summary>
        public string OldName { get; private set; }
        /// <summary>What differs. LastReport alone, or nothing, is a report with nothing new.</summary>
        public Fields Fields { get; private set; }
    }

    /// <summary>What can be set when a session is created.</summary>
    public sealed class SessionOptions
    {
        /// <summary>
        /// The file roll.db with the names and lengths of supplies and ribbons. By default the one beside
        /// the executable of the process, which may be the runtime's.
        /// </summary>
        public string Catalogue { get; set; }
        /// <summary>The language of texts for people, such as "de"; by default the user's.</summary>
        public string Language { get; set; }
        /// <summary>
        /// The library's log is appended to this file; by default only warnings are written, to standard
        /// error.
        /// </summary>
        public string LogFile { get; set; }
        /// <summary>
        /// What printers use is recorded in this file, from which it is learned how long rolls last. Without
        /// it, that is learned from what is reported while the session runs.
        /// </summary>
        public string History { get; set; }
    }

    /// <summary>
    /// Finds and watches the printers, on a thread of the library's own, from its creation until it is
    /// disposed of. A process can have one at a time.
    ///
    /// Every member may be used on any thread. Those that read do not wait for the print spooler. Handlers
    /// of <see cref="Changed"/> are called on the library's thread, one after the other, while it handles no
    /// other report. They may use every member but <see cref="Dispose"/>, which throws a
    /// <see cref="VxException"/> with <see cref="Result.InCallback"/>.
    /// </summary>
    public sealed class Session : IDisposable
    {
        // The library calls one function that lasts as long as the process, with the number of a session.
        private static readonly NativeCallback callback = OnChange;
        // A session that nobody disposes of runs until the process ends.
        private static readonly Dictionary<long, Session> sessions = new Dictionary<long, Session>();
        private static long lastNumber;

        private readonly SessionHandle handle;
        private readonly long number;
        private bool isDisposed;

        public Session() : this(new SessionOptions())
        {
        }

        /// <summary>Starts to watch the printers, and returns when each has a reading.</summary>
        public Session(SessionOptions options)
        {
            if (options == null)
                throw new ArgumentNullException("options");
            Native.CheckVersion();
            Native.Check(Native.vxkit_create(out handle));
            lock (sessions)
            {
                number = ++lastNumber;
                sessions.Add(number, this);
            }
            try
            {
                SetOption(1, options.Catalogue, "Catalogue");
                SetOption(2, options.Language, "Language");
                SetOption(3, options.LogFile, "LogFile");
                SetOption(4, options.History, "History");
                ulong id;
                Native.Check(Native.vxkit_add_callback(handle, callback, new IntPtr(number), out id));
                Native.Check(Native.vxkit_start(handle));
                // The runtime must not end while its functions are being called.
                AppDomain.CurrentDomain.ProcessExit += EndWithProcess;
            }
            catch
            {
                Dispose();
                throw;
            }
        }

        /// <summary>
        /// Is raised for every change, when the new reading can be read already. To miss nothing, add the
        /// handler first and read the printers then. What a handler throws is passed to
        /// <see cref="HandlerFailed"/>, and nothing else happens.
        /// </summary>
        public event EventHandler<ChangeEventArgs> Changed;

        /// <summary>A handler of <see cref="Changed"/> has thrown an exception.</summary>
        public event EventHandler<UnhandledExceptionEventArgs> HandlerFailed;

        /// <summary>
        /// The name of the active printer, which the host works with; null when there is none.
        /// </summary>
        public string ActivePrinter
        {
            get
            {
                return Native.ReadText((byte[] buffer, UIntPtr size, out UIntPtr needed) =>
                    Native.vxkit_active_printer(handle, buffer, size, out needed));
            }
        }

        /// <summary>
        /// The readings of all printers of supported models, taken at the same time, in the order of names.
        /// </summary>
        public IList<Reading> Readings()
        {
            ReadingsHandle readings;
            Native.Check(Native.vxkit_read_all(handle, out readings));
            return Take(readings);
        }

        /// <summary>
        /// The reading of one printer. Throws a <see cref="VxException"/> with
        /// <see cref="Result.NoSuchPrinter"/> when there is none with this name.
        /// </summary>
        public Reading Read(string printer)
        {
            ReadingsHandle readings;
            Native.Check(Native.vxkit_read(handle, Native.Bytes(printer, "printer"), out readings));
            return Take(readings)[0];
        }

        /// <summary>
        /// What a status code means, in the session's language, or in another one if it is given.
        /// </summary>
        public StatusInfo StatusInfo(int code, string language = null)
        {
            return new StatusInfo(handle, code, language);
        }

        /// <summary>
        /// Sends a text in the printer's own language as a raw print job, with a line end added, and waits
        /// for the spooler to have it. Throws a <see cref="CommandException"/> when it was not sent.
        /// </summary>
        public CommandResult Send(string printer, string command, SendFlags flags = SendFlags.None)
        {
            NativeCommandResult native = NativeCommandResult.Create();
            return Sent(Native.vxkit_send_text(handle, Native.Bytes(printer, "printer"),
                Native.Bytes(command, "command"), (uint)flags, ref native), ref native);
        }

        /// <summary>The same for bytes, which are sent exactly as they are.</summary>
        public CommandResult Send(string printer, byte[] command, SendFlags flags = SendFlags.None)
        {
            if (command == null)
                throw new ArgumentNullException("command");
            NativeCommandResult native = NativeCommandResult.Create();
            return Sent(Native.vxkit_send_bytes(handle, Native.Bytes(printer, "printer"), command,
                new UIntPtr((uint)command.Length), (uint)flags, ref native), ref native);
        }

        /// <summary>
        /// Stops watching. Waits for calls of the print spooler and handlers that are in progress. May be
        /// called more than once.
        /// </summary>
        public void Dispose()
        {
            if (isDisposed)
                return;
            // A handler cannot wait for itself: then the session goes on.
            Native.Check(Native.vxkit_stop(handle), Result.InvalidHandle);
            isDisposed = true;
            AppDomain.CurrentDomain.ProcessExit -= EndWithProcess;
            handle.Dispose();
            lock (sessions)
                sessions.Remove(number);
        }

        private void SetOption(int option, string value, string what)
        {
            if (value != null)
                Native.Check(Native.vxkit_set_option(handle, option, Native.Bytes(value, what)));
        }

        private void EndWithProcess(object sender, EventArgs arguments)
        {
            try
            {
                Dispose();
            }
            catch (VxException)
            {
                // A handler ends the process: nothing can be waited for.
            }
        }

        private static IList<Reading> Take(ReadingsHandle readings)
        {
            using (readings)
            {
                UIntPtr count;
                Native.Check(Native.vxkit_readings_count(readings, out count));
                var result = new List<Reading>();
                for (uint index = 0; index < count.ToUInt64(); ++index)
                    result.Add(new Reading(readings, new UIntPtr(index)));
                return result;
            }
        }

        private static CommandResult Sent(int result, ref NativeCommandResult native)
        {
            var command = new CommandResult(native);
            if (result == (int)Result.Command)
                throw new CommandException(Native.LastError(), command);
            Native.Check(result);
            return command;
        }

        private static void OnChange(IntPtr session, int change, IntPtr printer, IntPtr oldName,
            uint fields, IntPtr userData)
        {
            Session target;
            lock (sessions)
            {
                if (!sessions.TryGetValue(userData.ToInt64(), out target))
                    return;
            }
            // No exception may reach the library.
            try
            {
                EventHandler<ChangeEventArgs> handlers = target.Changed;
                if (handlers != null)
                    handlers(target, new ChangeEventArgs((ChangeKind)change, Native.Text(printer),
                        Native.Text(oldName), (Fields)fields));
            }
            catch (Exception exception)
            {
                try
                {
                    EventHandler<UnhandledExceptionEventArgs> handlers = target.HandlerFailed;
                    if (handlers != null)
                        handlers(target, new UnhandledExceptionEventArgs(exception, false));
                }
                catch (Exception second)
                {
                    Console.Error.WriteLine("VxPrinterStatus: a handler of HandlerFailed failed: {0}",
                        second.Message);
                }
            }
        }
    }
}
