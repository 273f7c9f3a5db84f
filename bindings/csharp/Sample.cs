// The same host program as examples/example_host.cpp, in C#:
// mcs Sample.cs TavrinLib.cs && mono Sample.exe DEFINITION CONDITIONS
using System;
using System.Globalization;

internal static class Sample {
  private static string Millimetres(int micrometres) =>
      (micrometres / 1000.0).ToString("F3", CultureInfo.InvariantCulture);

  private static int Main(string[] arguments) {
    if (arguments.Length != 2) {
      Console.Error.WriteLine("usage: Sample DEFINITION CONDITIONS");
      return 2;
    }
    try {
      using (var printer = new Tavrin.Session(arguments[0])) {
        var identity = printer.Identity;
        var volume = printer.BuildVolume;
        Console.WriteLine($"Model {identity.ModelName}, version {identity.Version}");
        Console.WriteLine($"Builds {Millimetres(volume.Width)} x {Millimetres(volume.Depth)} x " +
                          $"{Millimetres(volume.Height)} mm");
        foreach (var mode in printer.Modes)
          Console.WriteLine($"Mode {mode.Number}: slices of {mode.SliceHeight} um, at most " +
                            $"{mode.SliceCount ?? 0} of them");
        foreach (var slot in printer.Slots)
          Console.WriteLine($"Slot {slot.Number}: {slot.InkName ?? "unknown ink"}");
        printer.WriteModelingConditions(arguments[1]);
      }
    } catch (Tavrin.TavrinException failure) {
      Console.Error.WriteLine(failure.Message);
      return 1;
    }
    return 0;
  }
}
