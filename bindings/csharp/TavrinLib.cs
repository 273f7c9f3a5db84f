// What a full-colour 3D inkjet printer can do, for C# on .NET Framework, .NET and Mono: this one file
// over the shared library (TavrinLib.dll, libTavrinLib.so), for programs of 64 bits.
// docs/binary-contract.md describes what it relies on.
//
//     using (var printer = new Tavrin.Session("printer.dat"))
//       foreach (var slot in printer.Slots)
//         Console.WriteLine($"{slot.Number}: {slot.InkName}");
//
// Lengths are whole micrometres (µm); only HeadBandMm is in millimetres.
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using System.Text;

namespace Tavrin {

/// <summary>The library's last-error codes.</summary>
public enum ErrorCode : uint { None, Failed, NotInitialized, WriteFailed, InvalidArgument }

/// <summary>A call that failed; the message says why.</summary>
public class TavrinException : Exception {
  internal TavrinException(string call, ErrorCode code, string reason) : base(reason) {
    Call = call;
    Code = code;
  }
  /// <summary>The export that failed.</summary>
  public string Call { get; }
  /// <summary>The last-error code that it left.</summary>
  public ErrorCode Code { get; }

  internal static TavrinException Of(string call, ErrorCode code) {
    switch (code) {
      case ErrorCode.NotInitialized: return new NotOpenException(call);
      case ErrorCode.WriteFailed: return new WriteException(call);
      default: return new TavrinException(call, code, $"{call} failed: {code}");
    }
  }
}

/// <summary>The definition file does not load. No session is open then.</summary>
public sealed class LoadException : TavrinException {
  internal LoadException(string path, ErrorCode code)
      : base(nameof(Native.TavrinInitialize), code, $"{path}: {ReasonOf(path)}") {}

  private static string ReasonOf(string path) {
    try {
      using (var file = File.OpenRead(path))
        if (file.ReadByte() < 0) return "is empty";
    } catch (Exception error) when (error is IOException || error is UnauthorizedAccessException) {
      return error.Message;
    }
    return "is no enciphered printer definition with a Version, or its plain copy cannot be written " +
           "to the temporary directory";
  }
}

/// <summary>The session was disposed of, or another one has taken its place.</summary>
public sealed class NotOpenException : TavrinException {
  internal NotOpenException(string call)
      : base(call, ErrorCode.NotInitialized, $"{call}: the session is no longer open") {}
}

/// <summary>The modeling conditions file cannot be opened for writing.</summary>
public sealed class WriteException : TavrinException {
  internal WriteException(string call)
      : base(call, ErrorCode.WriteFailed, $"{call}: the file cannot be opened for writing") {}
}

/// <summary>Who the printer is.</summary>
public sealed class PrinterIdentity {
  public string ModelName { get; internal set; }
  /// <summary>The version of the definition.</summary>
  public string Version { get; internal set; }
  /// <summary>Empty where the definition has none.</summary>
  public string NetworkAddress { get; internal set; }
}

/// <summary>The space that models are built in, in µm.</summary>
public sealed class BuildVolume {
  public int Width { get; internal set; }
  public int Depth { get; internal set; }
  public int Height { get; internal set; }
}

/// <summary>A way to print.</summary>
public sealed class PrintMode {
  /// <summary>Names the mode; it is not its position.</summary>
  public int Number { get; internal set; }
  /// <summary>In µm.</summary>
  public int SliceHeight { get; internal set; }
  /// <summary>First value of the mode's pair.</summary>
  public int FirstValue { get; internal set; }
  /// <summary>Second value of the mode's pair.</summary>
  public int SecondValue { get; internal set; }
  /// <summary>Whether the host warns of warping before the mode runs.</summary>
  public bool Limited { get; internal set; }
  /// <summary>Slices in the build height; null where there is no such number.</summary>
  public int? SliceCount { get; internal set; }
  /// <summary>How long it may run on as a limited mode; null: no limit.</summary>
  public int? LimitedContinuous { get; internal set; }
}

/// <summary>The support that carries a model; what stands beside it is Session.SideSupport.</summary>
public sealed class Support {
  /// <summary>Under top surfaces, in µm.</summary>
  public int TopThickness { get; internal set; }
  /// <summary>Between model and build plate, in µm.</summary>
  public int DetachLayerHeight { get; internal set; }
  /// <summary>From -2, the smallest, to 6.</summary>
  public int SizeCode { get; internal set; }
}

/// <summary>What is on and what is off.</summary>
public sealed class Switches {
  /// <summary>Edges are smoothed.</summary>
  public bool Smoothing { get; internal set; }
  /// <summary>The printer prints in both directions of the feed.</summary>
  public bool FeedBiDirection { get; internal set; }
  public bool WrapReduction { get; internal set; }
  /// <summary>The heads are cleaned by themselves.</summary>
  public bool AutoCleaning { get; internal set; }
  public bool CheckNozzleWhilePrinting { get; internal set; }
}

/// <summary>An ink position of the printer. One that is not valid has the codes 0.</summary>
public sealed class Slot {
  /// <summary>From 1.</summary>
  public int Number { get; internal set; }
  public int ColorCode { get; internal set; }
  public int InkTypeCode { get; internal set; }
  /// <summary>The last three digits of the ink type's code and of the colour's.</summary>
  public string InkId { get; internal set; }
  /// <summary>Null for a slot that is not valid.</summary>
  public string InkName { get; internal set; }
  /// <summary>Whether the definition describes colour and ink type.</summary>
  public bool Valid { get; internal set; }
}

/// <summary>Ink slots that count as one ink. The last two categories are all model ink and all ink.
/// </summary>
public sealed class Category {
  /// <summary>From 0.</summary>
  public int Index { get; internal set; }
  /// <summary>May be empty.</summary>
  public IReadOnlyList<int> SlotNumbers { get; internal set; }
}

/// <summary>
/// A loaded printer definition. The library holds one for the process, so there is one open session:
/// making another ends the one before, also where the new definition then fails to load. An ended
/// session throws NotOpenException. Calls of all threads follow one another; while a definition
/// loads, the calling thread's numbers are those of the "C" locale.
/// </summary>
public sealed class Session : IDisposable {
  private const int InfoFieldBytes = 128;

  // The definition and the last-error code are the process's.
  private static readonly object Gate = new object();
  private static Session open;

  private readonly TextDecoder decoder;

  /// <summary>Loads the enciphered printer definition file at path; LoadException where that fails.
  /// </summary>
  public Session(string path) {
    lock (Gate) {
      using (var native = new NativePath(path))
      using (new CNumericLocale()) {
        decoder = new TextDecoder();
        open = null;
        if (!Native.TavrinInitialize(native.Bytes))
          throw new LoadException(path, LastError());
        open = this;
      }
    }
  }

  /// <summary>Releases the definition, if the session is still the open one.</summary>
  public void Dispose() {
    lock (Gate) {
      if (!IsOpen) return;
      Native.TavrinFinalize();
      open = null;
    }
  }

  /// <summary>Whether it was not disposed of and no other session has taken its place.</summary>
  public bool IsOpen => open == this;

  /// <summary>Fails where one of its texts is longer than 128 bytes.</summary>
  public PrinterIdentity Identity {
    get {
      var info = new byte[3 * InfoFieldBytes];
      Ask(nameof(Native.TavrinGetInfo), () => Native.TavrinGetInfo(info));
      return new PrinterIdentity {
        ModelName = Field(info, 0),
        Version = Field(info, 1),
        NetworkAddress = Field(info, 2),
      };
    }
  }

  /// <summary>The space that models are built in.</summary>
  public BuildVolume BuildVolume {
    get {
      int x = 0, y = 0, z = 0;
      Ask(nameof(Native.TavrinGetAreaSize),
          () => Native.TavrinGetAreaSize(out x, out y, out z));
      return new BuildVolume { Width = x, Depth = y, Height = z };
    }
  }

  /// <summary>The margin that stays free at the edges of the build volume, in µm.</summary>
  public int PrintMargin => Number(Native.TavrinGetAreaMarginSize);

  /// <summary>The width that the print head covers in one pass: the one length in mm.</summary>
  public double HeadBandMm {
    get {
      double size = 0;
      Ask(nameof(Native.TavrinGetHeadBandSize), () => Native.TavrinGetHeadBandSize(out size));
      return size;
    }
  }

  /// <summary>The print modes, in the order of the definition.</summary>
  public IReadOnlyList<PrintMode> Modes => List(Native.TavrinGetModeCount, 0, Mode);

  /// <summary>The number, not the position, of the mode to offer first. None need have it.</summary>
  public int DefaultMode => Number(Native.TavrinGetDefaultPrintMode);

  /// <summary>The support under a model.</summary>
  public Support Support {
    get {
      lock (Gate)
        return new Support {
          TopThickness = Number(Native.TavrinGetTopSupportThickness),
          DetachLayerHeight = Number(Native.TavrinGetDetachLayerHeight),
          SizeCode = Number(Native.TavrinGetSupportSize),
        };
    }
  }

  /// <summary>The thickness of the support beside a model of that height, both in µm.</summary>
  public int SideSupport(int modelHeight) =>
      Number((out int value) => Native.TavrinGetSideSupportThickness(modelHeight, out value),
             nameof(Native.TavrinGetSideSupportThickness));

  /// <summary>The number of the cutting margin setting, 0 for none. Not a thickness.</summary>
  public int ChippingAllowance => Number(Native.TavrinGetChippingAllowance);

  /// <summary>What is on and what is off.</summary>
  public Switches Switches {
    get {
      lock (Gate)
        return new Switches {
          Smoothing = Switch(Native.TavrinGetSmoothing),
          FeedBiDirection = Switch(Native.TavrinGetFeedBiDirection),
          WrapReduction = Switch(Native.TavrinGetWrapReduction),
          AutoCleaning = Switch(Native.TavrinGetAutoCleaning),
          CheckNozzleWhilePrinting = Switch(Native.TavrinGetCheckNozzleWhilePrinting),
        };
    }
  }

  /// <summary>The ink slots, in the order of their numbers.</summary>
  public IReadOnlyList<Slot> Slots => List(Native.TavrinGetItemCountOfInkSlot, 1, SlotOf);

  /// <summary>The ink categories, the two totals last.</summary>
  public IReadOnlyList<Category> Categories =>
      List(Native.TavrinGetItemCountOfInkCategory, 0, CategoryOf);

  /// <summary>Writes the definition, byte for byte as it was loaded, to the file at path.
  /// WriteException where it cannot be opened; an error after that, such as a full disk, goes
  /// unreported.</summary>
  public void WriteModelingConditions(string path) {
    using (var native = new NativePath(path))
      Ask(nameof(Native.TavrinCreateModelingConditionsFile),
          () => Native.TavrinCreateModelingConditionsFile(native.Bytes));
  }

  private delegate bool NumberCall(out int value);
  private delegate bool SwitchCall(out bool value);

  private static ErrorCode LastError() {
    Native.TavrinGetLastError(out ErrorCode code);
    return code;
  }

  private void Ask(string name, Func<bool> call) {
    lock (Gate) {
      if (!IsOpen) throw new NotOpenException(name);
      if (!call()) throw TavrinException.Of(name, LastError());
    }
  }

  private int Number(NumberCall call) => Number(call, call.Method.Name);

  private int Number(NumberCall call, string name) {
    int value = 0;
    Ask(name, () => call(out value));
    return value;
  }

  private bool Switch(SwitchCall call) {
    bool value = false;
    Ask(call.Method.Name, () => call(out value));
    return value;
  }

  private IReadOnlyList<T> List<T>(NumberCall count, int first, Func<int, T> item) {
    lock (Gate) return Enumerable.Range(first, Number(count)).Select(item).ToArray();
  }

  private string Field(byte[] info, int index) => decoder.Decode(
      info.Skip(index * InfoFieldBytes).Take(InfoFieldBytes).TakeWhile(b => b != 0).ToArray());

  private PrintMode Mode(int index) {
    var config = new int[6];
    bool limited = false;
    Ask(nameof(Native.TavrinGetModeConfig), () => Native.TavrinGetModeConfig(index, config));
    Ask(nameof(Native.TavrinGetWarpWarning),
        () => Native.TavrinGetWarpWarning(index, out limited));
    return new PrintMode {
      Number = config[0],
      SliceHeight = config[1],
      SecondValue = config[2],
      FirstValue = config[3],
      SliceCount = config[4] == int.MinValue ? (int?)null : config[4],
      LimitedContinuous = config[5] == -1 ? (int?)null : config[5],
      Limited = limited,
    };
  }

  private Slot SlotOf(int number) {
    IntPtr slot = IntPtr.Zero;
    Ask(nameof(Native.TavrinGetInkSlot), () => Native.TavrinGetInkSlot(number, out slot));
    SlotTable.Entry<SlotTable.Code>(slot, SlotTable.GetColorCode)(slot, out int color);
    SlotTable.Entry<SlotTable.Code>(slot, SlotTable.GetInkTypeCode)(slot, out int inkType);
    return new Slot {
      Number = number,
      ColorCode = color,
      InkTypeCode = inkType,
      InkId = SlotText(slot, SlotTable.GetInkId),
      InkName = SlotText(slot, SlotTable.GetInkName),
      Valid = SlotTable.Entry<SlotTable.Question>(slot, SlotTable.IsValid)(slot),
    };
  }

  private string SlotText(IntPtr slot, int entry) {
    SlotTable.Entry<SlotTable.Text>(slot, entry)(slot, out IntPtr text, out int size);
    if (text == IntPtr.Zero) return null;
    try {
      var bytes = new byte[size - 1];
      Marshal.Copy(text, bytes, 0, bytes.Length);
      return decoder.Decode(bytes);
    } finally {
      Native.Release(text);
    }
  }

  private Category CategoryOf(int index) => new Category {
    Index = index, SlotNumbers = SlotNumbers(index),
  };

  private static int[] SlotNumbers(int category) {
    // One without slots answers false.
    if (!Native.TavrinGetInkSlotNumConposeInkCategory(category, out IntPtr array, out int count))
      return new int[0];
    try {
      var numbers = new int[count];
      Marshal.Copy(array, numbers, 0, count);
      return numbers;
    } finally {
      Native.Release(array);
    }
  }
}

/// <summary>The table that a slot begins with the address of.</summary>
internal static class SlotTable {
  [return: MarshalAs(UnmanagedType.I1)]
  internal delegate bool Code(IntPtr slot, out int code);
  [return: MarshalAs(UnmanagedType.I1)]
  internal delegate bool Text(IntPtr slot, out IntPtr text, out int size);
  [return: MarshalAs(UnmanagedType.I1)]
  internal delegate bool Question(IntPtr slot);

  internal static readonly int GetColorCode = Native.IsWindows ? 1 : 2;
  internal static readonly int GetInkTypeCode = GetColorCode + 1;
  internal static readonly int GetInkId = GetColorCode + 2;
  internal static readonly int GetInkName = GetColorCode + 3;
  internal static readonly int IsValid = GetColorCode + 4;

  internal static T Entry<T>(IntPtr slot, int entry) =>
      Marshal.GetDelegateForFunctionPointer<T>(
          Marshal.ReadIntPtr(Marshal.ReadIntPtr(slot), entry * IntPtr.Size));
}

/// <summary>A path as the library takes it.</summary>
internal sealed class NativePath : IDisposable {
  internal readonly IntPtr Bytes;

  internal NativePath(string path) {
    if (path == null) throw new ArgumentNullException(nameof(path));
    // In the ANSI code page on Windows, in UTF-8 elsewhere.
    Bytes = Marshal.StringToHGlobalAnsi(path);
    if (Marshal.PtrToStringAnsi(Bytes) == path) return;
    Dispose();
    throw new ArgumentException("the path has characters that the code page lacks", nameof(path));
  }

  public void Dispose() => Marshal.FreeHGlobal(Bytes);
}

/// <summary>Texts of a definition that is loaded now. What is no text becomes U+FFFD.</summary>
internal sealed class TextDecoder {
  private readonly string codeset = Native.IsWindows ? null : EnvironmentCodeset();

  internal string Decode(byte[] text) {
    if (codeset == "UTF-8") return Encoding.UTF8.GetString(text);
    return codeset == null ? DecodeAnsi(text) : DecodeInEnvironment(text);
  }

  private static string EnvironmentCodeset() {
    IntPtr locale = Linux.newlocale(Linux.CtypeMask, "", IntPtr.Zero);
    if (locale == IntPtr.Zero) return "UTF-8";
    string codeset = Marshal.PtrToStringAnsi(Linux.nl_langinfo_l(Linux.Codeset, locale));
    Linux.freelocale(locale);
    return codeset == "ANSI_X3.4-1968" ? "UTF-8" : codeset;
  }

  private static string DecodeAnsi(byte[] text) {
    IntPtr copy = Marshal.AllocHGlobal(text.Length + 1);
    Marshal.Copy(text, 0, copy, text.Length);
    Marshal.WriteByte(copy, text.Length, 0);
    string decoded = Marshal.PtrToStringAnsi(copy);
    Marshal.FreeHGlobal(copy);
    return decoded;
  }

  // The C library knows every encoding that it has a locale for; a .NET runtime need not.
  private static string DecodeInEnvironment(byte[] text) {
    IntPtr locale = Linux.newlocale(Linux.CtypeMask, "", IntPtr.Zero);
    IntPtr previous = Linux.uselocale(locale);
    var decoded = new StringBuilder();
    for (int i = 0, length; i < text.Length; i += length) {
      long state = 0;
      var rest = text.Skip(i).ToArray();
      ulong taken = Linux.mbrtowc(out int character, rest, (ulong)rest.Length, ref state);
      bool isText = taken > 0 && taken <= (ulong)rest.Length;
      decoded.Append(isText ? char.ConvertFromUtf32(character) : "\uFFFD");
      length = isText ? (int)taken : 1;
    }
    Linux.uselocale(previous);
    Linux.freelocale(locale);
    return decoded.ToString();
  }
}

/// <summary>Numbers as in the "C" locale, for a scope and the calling thread.</summary>
internal sealed class CNumericLocale : IDisposable {
  private readonly IntPtr own, previous;
  private readonly Runtime.Saved universal, old;

  internal CNumericLocale() {
    if (Native.IsWindows) {
      // Either runtime may be the one of a build of the library.
      universal = Runtime.Change(Runtime.ConfigureUniversal, Runtime.SetUniversal);
      old = Runtime.Change(Runtime.ConfigureOld, Runtime.SetOld);
      return;
    }
    IntPtr copy = Linux.duplocale(Linux.uselocale(IntPtr.Zero));
    if (copy != IntPtr.Zero) own = Linux.newlocale(Linux.NumericMask, "C", copy);
    if (own == IntPtr.Zero) throw new OutOfMemoryException();
    previous = Linux.uselocale(own);
  }

  public void Dispose() {
    if (Native.IsWindows) {
      Runtime.Restore(old, Runtime.ConfigureOld, Runtime.SetOld);
      Runtime.Restore(universal, Runtime.ConfigureUniversal, Runtime.SetUniversal);
      return;
    }
    Linux.uselocale(previous);
    Linux.freelocale(own);
  }
}

/// <summary>The numeric locale of a C runtime of Windows.</summary>
internal static class Runtime {
  private const int Numeric = 4;
  private const int PerThread = 1;

  internal struct Saved {
    internal int Threads;
    internal string Locale;
  }

  internal static Saved Change(Func<int, int> configure, Func<int, string, IntPtr> set) {
    int threads = configure(PerThread);
    string locale = Marshal.PtrToStringAnsi(set(Numeric, null));
    set(Numeric, "C");
    return new Saved { Threads = threads, Locale = locale };
  }

  internal static void Restore(Saved saved, Func<int, int> configure,
                               Func<int, string, IntPtr> set) {
    set(Numeric, saved.Locale);
    if (saved.Threads != -1) configure(saved.Threads);
  }

  [DllImport("ucrtbase", EntryPoint = "_configthreadlocale",
             CallingConvention = CallingConvention.Cdecl)]
  internal static extern int ConfigureUniversal(int mode);
  [DllImport("ucrtbase", EntryPoint = "setlocale", CallingConvention = CallingConvention.Cdecl)]
  internal static extern IntPtr SetUniversal(int category, string locale);
  [DllImport("msvcrt", EntryPoint = "_configthreadlocale",
             CallingConvention = CallingConvention.Cdecl)]
  internal static extern int ConfigureOld(int mode);
  [DllImport("msvcrt", EntryPoint = "setlocale", CallingConvention = CallingConvention.Cdecl)]
  internal static extern IntPtr SetOld(int category, string locale);
}

/// <summary>The C library of Linux.</summary>
internal static class Linux {
  internal const int CtypeMask = 1 << 0;
  internal const int NumericMask = 1 << 1;
  internal const int Codeset = 14;

  [DllImport("libc.so.6")]
  internal static extern IntPtr newlocale(int mask, string name, IntPtr changed);
  [DllImport("libc.so.6")]
  internal static extern IntPtr duplocale(IntPtr locale);
  [DllImport("libc.so.6")]
  internal static extern IntPtr uselocale(IntPtr locale);
  [DllImport("libc.so.6")]
  internal static extern void freelocale(IntPtr locale);
  [DllImport("libc.so.6")]
  internal static extern IntPtr nl_langinfo_l(int item, IntPtr locale);
  [DllImport("libc.so.6")]
  internal static extern ulong mbrtowc(out int character, byte[] text, ulong size, ref long state);
  [DllImport("libc.so.6")]
  internal static extern void free(IntPtr array);
}

/// <summary>The exports. uint32_t is int here: what is negative in a definition stays so.</summary>
internal static class Native {
  private const string Library = "TavrinLib";

  internal static readonly bool IsWindows = Path.DirectorySeparatorChar == '\\';

  /// <summary>Gives back an array that the library has handed out.</summary>
  internal static void Release(IntPtr array) {
    if (IsWindows) HeapFree(GetProcessHeap(), 0, array);
    else Linux.free(array);
  }

  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinInitialize(IntPtr path);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinFinalize();
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetLastError(out ErrorCode code);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetAreaSize(out int x, out int y, out int z);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetAreaMarginSize(out int margin);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetModeCount(out int count);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetModeConfig(int index, [Out] int[] config);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetTopSupportThickness(out int thickness);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetSideSupportThickness(int modelHeight, out int thickness);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetDetachLayerHeight(out int height);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetSmoothing([MarshalAs(UnmanagedType.I1)] out bool enabled);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetFeedBiDirection(
      [MarshalAs(UnmanagedType.I1)] out bool enabled);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetWrapReduction(
      [MarshalAs(UnmanagedType.I1)] out bool enabled);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetWarpWarning(
      int index, [MarshalAs(UnmanagedType.I1)] out bool limited);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetInfo([Out] byte[] info);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetHeadBandSize(out double size);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetDefaultPrintMode(out int number);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetChippingAllowance(out int setting);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetSupportSize(out int size);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetAutoCleaning([MarshalAs(UnmanagedType.I1)] out bool enabled);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetCheckNozzleWhilePrinting(
      [MarshalAs(UnmanagedType.I1)] out bool enabled);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetItemCountOfInkCategory(out int count);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetInkSlotNumConposeInkCategory(
      int index, out IntPtr numbers, out int count);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetItemCountOfInkSlot(out int count);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinGetInkSlot(int slotNumber, out IntPtr slot);
  [DllImport(Library)] [return: MarshalAs(UnmanagedType.I1)]
  internal static extern bool TavrinCreateModelingConditionsFile(IntPtr path);
  [DllImport("kernel32")]
  private static extern IntPtr GetProcessHeap();
  [DllImport("kernel32")]
  private static extern int HeapFree(IntPtr heap, uint flags, IntPtr block);
}

}
