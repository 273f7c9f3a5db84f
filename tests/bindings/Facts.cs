// Facts DEFINITION prints every answer about it as `tavrin show --format=json` does; Facts DEFINITION
// OTHER tries what a session is for on two definitions and prints what went wrong.
using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using Tavrin;

internal static class Facts {
  private static string Json(object value) {
    if (value == null) return "null";
    if (value is bool) return (bool)value ? "true" : "false";
    if (value is string)
      return "\"" + string.Concat(((string)value).Select(c => $"\\u{(int)c:x4}")) + "\"";
    return ((IFormattable)value).ToString(value is double ? "R" : null, CultureInfo.InvariantCulture);
  }
  // Names and values by turns.
  private static string Members(params object[] members) => "{" + string.Join(", ",
      Enumerable.Range(0, members.Length / 2).Select(i => $"\"{members[2 * i]}\": " +
          (members[2 * i + 1] as Raw ?? (object)Json(members[2 * i + 1])))) + "}";
  private sealed class Raw {
    internal string Text;
    public override string ToString() => Text;
  }
  private static Raw List<T>(IEnumerable<T> items, Func<T, int, string> item) =>
      new Raw { Text = "[" + string.Join(", ", items.Select(item)) + "]" };
  private static Raw Part(params object[] members) => new Raw { Text = Members(members) };

  private static string All(Session p) => Members(
      "identity", Part("modelName", p.Identity.ModelName, "version", p.Identity.Version,
                       "networkAddress", p.Identity.NetworkAddress),
      "buildVolume", Part("widthUm", (uint)p.BuildVolume.Width, "depthUm", (uint)p.BuildVolume.Depth,
                          "heightUm", (uint)p.BuildVolume.Height, "printMarginUm", p.PrintMargin),
      "printModes", List(p.Modes, (mode, index) => Members(
          "index", index, "number", mode.Number, "sliceUm", mode.SliceHeight, "firstValue",
          mode.FirstValue, "secondValue", mode.SecondValue, "layers", mode.SliceCount, "limited",
          mode.Limited, "continuousLimit", mode.LimitedContinuous)),
      "defaultModeNumber", p.DefaultMode,
      "support", Part(
          "topThicknessUm", p.Support.TopThickness,
          "sideThicknesses", List(new[] { 10000, 50000, 100000 }, (height, index) => Members(
              "modelHeightUm", height, "thicknessUm", p.SideSupport(height))),
          "detachLayerUm", p.Support.DetachLayerHeight, "sizeCode", p.Support.SizeCode),
      "machine", Part(
          "smoothing", p.Switches.Smoothing, "feedBiDirection", p.Switches.FeedBiDirection,
          "wrapReduction", p.Switches.WrapReduction, "autoCleaning", p.Switches.AutoCleaning,
          "checkNozzleWhilePrinting", p.Switches.CheckNozzleWhilePrinting, "headBandMm",
          p.HeadBandMm, "chippingAllowanceSetting", p.ChippingAllowance),
      "inkSlots", List(p.Slots, (slot, index) => Members(
          "number", slot.Number, "colorCode", slot.ColorCode, "inkTypeCode", slot.InkTypeCode,
          "inkId", slot.InkId, "inkName", slot.InkName, "valid", slot.Valid)),
      "inkCategories", List(p.Categories, (category, index) => Members(
          "index", category.Index, "slotNumbers",
          List(category.SlotNumbers, (number, i) => Json(number)))));

  private static void Expect(string what, bool holds) {
    if (!holds) Console.WriteLine($"wrong: {what}");
  }
  private static void ExpectFailure(ErrorCode code, Action action) {
    try {
      action();
      Console.WriteLine($"wrong: no failure {code}");
    } catch (TavrinException failure) {
      Expect($"{failure.Message}, not {code}", failure.Code == code);
    }
  }

  private static void SessionsEnd(string definition, string other) {
    var first = new Session(definition);
    var second = new Session(other);
    first.Dispose();
    Expect("the second session is the open one", second.IsOpen && !first.IsOpen);
    ExpectFailure(ErrorCode.NotInitialized, () => first.Slots.ToString());
    ExpectFailure(ErrorCode.WriteFailed, () => second.WriteModelingConditions("."));
    ExpectFailure(ErrorCode.Failed, () => new Session("missing").Dispose());
    ExpectFailure(ErrorCode.NotInitialized, () => second.Identity.ToString());
  }

  [DllImport("libc.so.6")]
  private static extern IntPtr setlocale(int category, string name);

  private static void ReadsPoints(string definition) {
    const int numeric = 1;
    Expect("the locale is there", setlocale(numeric, "de_DE.CP1252") != IntPtr.Zero);
    using (var printer = new Session(definition)) Expect("53.7", printer.HeadBandMm == 53.7);
    Expect("the comma is back", Marshal.PtrToStringAnsi(setlocale(numeric, null)).StartsWith("de"));
    setlocale(numeric, "C");
  }

  [DllImport("libc.so.6")]
  private static extern int unsetenv(string name);

  private static int KilobytesAfter(int sessions, string definition) {
    for (int i = 0; i < sessions; ++i)
      using (var printer = new Session(definition)) All(printer);
    GC.Collect();
    return int.Parse(File.ReadAllText("/proc/self/statm").Split(' ')[1]) * 4;
  }

  private static int Main(string[] arguments) {
    if (arguments.Length == 1) {
      using (var printer = new Session(arguments[0])) Console.WriteLine(All(printer));
      return 0;
    }
    SessionsEnd(arguments[0], arguments[1]);
    ReadsPoints(arguments[0]);
    unsetenv("LOCPATH");  // where glibc itself leaks
    int before = KilobytesAfter(1000, arguments[0]);
    int grown = KilobytesAfter(3000, arguments[0]) - before;
    Expect($"3000 sessions leave {grown} KB behind", grown < 500);
    return 0;
  }
}
