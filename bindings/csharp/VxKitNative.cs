// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The functions of vxkit.h, and how their texts and results become those of .NET.
using System;
using System.Runtime.InteropServices;
using System.Text;

namespace VxPrinterStatus
{
    /// <summary>vxkit_session*. Destroys the session when it is released.</summary>
    internal sealed class SessionHandle : SafeHandle
    {
        public SessionHandle() : base(IntPtr.Zero, true)
        {
        }

        public override bool IsInvalid
        {
            get { return handle == IntPtr.Zero; }
        }

        protected override bool ReleaseHandle()
        {
            return Native.vxkit_destroy(handle) == 0;
        }
    }

    /// <summary>vxkit_readings*. Frees the readings when it is released.</summary>
    internal sealed class ReadingsHandle : SafeHandle
    {
        public ReadingsHandle() : base(IntPtr.Zero, true)
        {
        }

        public override bool IsInvalid
        {
            get { return handle == IntPtr.Zero; }
        }

        protected override bool ReleaseHandle()
        {
            return Native.vxkit_readings_free(handle) == 0;
        }
    }

    /// <summary>vxkit_command_result.</summary>
    [StructLayout(LayoutKind.Sequential)]
    internal struct NativeCommandResult
    {
        public uint Size;
        public int Failure;
        public uint SystemError;
        public uint Job;
        public long Bytes;

        public static NativeCommandResult Create()
        {
            return new NativeCommandResult
            {
                Size = (uint)Marshal.SizeOf(typeof(NativeCommandResult)),
            };
        }
    }

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    internal delegate void NativeCallback(IntPtr session, int change, IntPtr printer, IntPtr oldName,
        uint fields, IntPtr userData);

    internal static class Native
    {
        // vxprinterstatuskit.dll, or libvxprinterstatuskit.so.
        private const string Library = "vxprinterstatuskit";
        private const CallingConvention C = CallingConvention.Cdecl;
        private const uint InterfaceMajor = 1;
        private const uint InterfaceMinor = 0;
        private const int FirstBuffer = 1024;

        private static readonly Encoding Utf8 = new UTF8Encoding(false, true);

        [DllImport(Library, CallingConvention = C)]
        private static extern uint vxkit_interface_version();

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_last_error(byte[] buffer, UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_create(out SessionHandle session);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_set_option(SessionHandle session, int option, byte[] value);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_start(SessionHandle session);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_stop(SessionHandle session);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_destroy(IntPtr session);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_read_all(SessionHandle session, out ReadingsHandle readings);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_read(SessionHandle session, byte[] printer,
            out ReadingsHandle readings);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_readings_free(IntPtr readings);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_readings_count(ReadingsHandle readings, out UIntPtr count);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_active_printer(SessionHandle session, byte[] buffer,
            UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_reading_json(ReadingsHandle readings, UIntPtr index,
            byte[] buffer, UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_reading_text(ReadingsHandle readings, UIntPtr index, int field,
            byte[] buffer, UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_reading_integer(ReadingsHandle readings, UIntPtr index, int field,
            out long value);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_slot_text(ReadingsHandle readings, UIntPtr index, int slot,
            int field, byte[] buffer, UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_slot_integer(ReadingsHandle readings, UIntPtr index, int slot,
            int field, out long value);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_slot_number(ReadingsHandle readings, UIntPtr index, int slot,
            int field, out double value);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_status_severity(int code, out long severity);

        [DllImport(Library, CallingConvention = C)]
        private static extern int vxkit_status_text(SessionHandle session, int code, int field,
            byte[] language, byte[] buffer, UIntPtr size, out UIntPtr needed);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_add_callback(SessionHandle session, NativeCallback callback,
            IntPtr userData, out ulong id);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_send_text(SessionHandle session, byte[] printer, byte[] text,
            uint flags, ref NativeCommandResult result);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int vxkit_send_bytes(SessionHandle session, byte[] printer, byte[] data,
            UIntPtr length, uint flags, ref NativeCommandResult result);

        /// <summary>A call that writes a text to a buffer.</summary>
        internal delegate int TextCall(byte[] buffer, UIntPtr size, out UIntPtr needed);

        /// <summary>Throws when the library has another interface than this file.</summary>
        internal static void CheckVersion()
        {
            uint version = vxkit_interface_version();
            if (version >> 16 != InterfaceMajor || (version & 0xFFFF) < InterfaceMinor)
                throw new VxException(Result.Failed, string.Format(
                    "the library has version {0}.{1} of the interface, not {2}.{3} or a later {2}.x",
                    version >> 16, version & 0xFFFF, InterfaceMajor, InterfaceMinor));
        }

        /// <summary>Throws unless the result is OK, or the one that is allowed.</summary>
        internal static void Check(int result, Result allowed = Result.Ok)
        {
            if (result == (int)Result.OutOfMemory)
                throw new OutOfMemoryException();
            if (result != (int)Result.Ok && result != (int)allowed)
                throw new VxException((Result)result, LastError());
        }

        internal static string LastError()
        {
            UIntPtr needed;
            var buffer = new byte[FirstBuffer];
            vxkit_last_error(buffer, new UIntPtr(FirstBuffer), out needed);
            return Text(buffer);
        }

        /// <summary>A text as the library takes it.</summary>
        internal static byte[] Bytes(string text, string what)
        {
            if (text == null)
                throw new ArgumentNullException(what);
            if (text.IndexOf('\0') >= 0)
                throw new ArgumentException("the text has a zero character", what);
            // With a zero byte at its end; throws an ArgumentException for half a surrogate pair.
            var bytes = new byte[Utf8.GetByteCount(text) + 1];
            Utf8.GetBytes(text, 0, text.Length, bytes, 0);
            return bytes;
        }

        /// <summary>A text that the library passes to a callback.</summary>
        internal static string Text(IntPtr text)
        {
            int length = 0;
            while (Marshal.ReadByte(text, length) != 0)
                ++length;
            var bytes = new byte[length];
            Marshal.Copy(text, bytes, 0, length);
            return Utf8.GetString(bytes);
        }

        /// <summary>The text that a call writes; null when there is none.</summary>
        internal static string ReadText(TextCall call)
        {
            int size = FirstBuffer;
            for (;;)
            {
                UIntPtr needed;
                var buffer = new byte[size];
                int result = call(buffer, new UIntPtr((uint)size), out needed);
                if (result == (int)Result.BufferTooSmall)
                {
                    size = checked((int)needed.ToUInt64());
                    continue;
                }
                if (result > 0)
                    return null;
                Check(result);
                return Text(buffer);
            }
        }

        internal static string ReadingText(ReadingsHandle readings, UIntPtr index, int field)
        {
            return ReadText((byte[] buffer, UIntPtr size, out UIntPtr needed) =>
                vxkit_reading_text(readings, index, field, buffer, size, out needed));
        }

        internal static string ReadingJson(ReadingsHandle readings, UIntPtr index)
        {
            return ReadText((byte[] buffer, UIntPtr size, out UIntPtr needed) =>
                vxkit_reading_json(readings, index, buffer, size, out needed));
        }

        internal static string SlotText(ReadingsHandle readings, UIntPtr index, Slot slot, int field)
        {
            return ReadText((byte[] buffer, UIntPtr size, out UIntPtr needed) =>
                vxkit_slot_text(readings, index, (int)slot, field, buffer, size, out needed));
        }

        internal static string StatusText(SessionHandle session, int code, int field, string language)
        {
            byte[] tag = language == null ? null : Bytes(language, "language");
            return ReadText((byte[] buffer, UIntPtr size, out UIntPtr needed) =>
                vxkit_status_text(session, code, field, tag, buffer, size, out needed));
        }

        internal static Severity StatusSeverity(int code)
        {
            long severity;
            Check(vxkit_status_severity(code, out severity));
            return (Severity)severity;
        }

        internal static long? ReadingInteger(ReadingsHandle readings, UIntPtr index, int field)
        {
            long value;
            return HasValue(vxkit_reading_integer(readings, index, field, out value)) ? value : (long?)null;
        }

        internal static long? SlotInteger(ReadingsHandle readings, UIntPtr index, Slot slot, int field)
        {
            long value;
            return HasValue(vxkit_slot_integer(readings, index, (int)slot, field, out value))
                ? value
                : (long?)null;
        }

        internal static double? SlotNumber(ReadingsHandle readings, UIntPtr index, Slot slot, int field)
        {
            double value;
            return HasValue(vxkit_slot_number(readings, index, (int)slot, field, out value))
                ? value
                : (double?)null;
        }

        internal static bool HasSlot(ReadingsHandle readings, UIntPtr index, Slot slot)
        {
            long state;
            return HasValue(vxkit_slot_integer(readings, index, (int)slot, 1, out state));
        }

        private static string Text(byte[] buffer)
        {
            int length = Array.IndexOf(buffer, (byte)0);
            return Utf8.GetString(buffer, 0, length < 0 ? buffer.Length : length);
        }

        /// <summary>False when there is no value; throws for an error.</summary>
        private static bool HasValue(int result)
        {
            if (result > 0)
                return false;
            Check(result);
            return true;
        }
    }
}
