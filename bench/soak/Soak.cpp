// Loads a definition, asks everything, writes the conditions file and finalises, over and over,
// and tells what stays behind.
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

#include "TavrinLib.h"
#include "support/Answers.h"
#include "support/TestFiles.h"

namespace tavrin::test {
namespace {

/// Both placeholders of an invalid slot, as the heap lays them out.
constexpr long kInvalidSlotBytes = 2 * 64;

struct Usage {
  long residentKiB = 0;
  long heapBytes = 0;
  long descriptors = 0;
  long temporaryFiles = 0;
};

Usage MeasureUsage(const std::string& temporaryFolder) {
  Usage usage;
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> usage.residentKiB;
  usage.residentKiB *= sysconf(_SC_PAGESIZE) / 1024;
  const struct mallinfo2 heap = mallinfo2();
  usage.heapBytes = static_cast<long>(heap.uordblks + heap.hblkhd);
  usage.descriptors = EntriesOf("/proc/self/fd");
  usage.temporaryFiles = EntriesOf(temporaryFolder);
  return usage;
}

std::string DefinitionWithSlots(bool withInvalidSlots) {
  const std::string code = withInvalidSlots ? "77" : "56";
  return Definition(
      "ModelName=D\xC3\xA9p\xC3\xB4t\nMode=1,2\nMode1=600,2\nMode1SliceSize=0."
      "04\nMode1ColorThickness=0.5\n"
      "Mode2=900,4\nMode2SliceSize=0.02\nMode2ColorThickness=0.4\nLimitationMode=2\n"
      "PrinterInkSlotNum=3\nColorCodeInkSlot1=1\nInkTypeCodeInkSlot1=113\n"
      "ColorCodeInkSlot2=" +
      code +
      "\nInkTypeCodeInkSlot2=114\n"
      "ColorCodeInkSlot3=" +
      code + "\nInkTypeCodeInkSlot3=114\n");
}

class Soak {
 public:
  Soak(long rounds, bool withInvalidSlots)
      : rounds_(rounds), growth_(withInvalidSlots ? 2 * kInvalidSlotBytes : 0) {
    setenv("TMPDIR", folder_.PathOf("temporary").c_str(), 1);
    std::filesystem::create_directory(folder_.PathOf("temporary"));
    definition_ = folder_.WriteEnciphered("printer.dat", DefinitionWithSlots(withInvalidSlots));
    content_ = ReadWhole(definition_);
    conditions_ = folder_.PathOf("conditions.dat");
  }

  bool Run() {
    std::printf("%8s %12s %12s %12s %16s\n", "round", "resident KiB", "heap bytes", "descriptors",
                "temporary files");
    // The first rounds fill the caches of the C and C++ libraries.
    const long warmUp = rounds_ / 10;
    Usage first;
    for (long round = 1; round <= rounds_; ++round) {
      if (!RunOnce()) return Fails(round, "an answer or the conditions file differs");
      if (round != warmUp && (round < warmUp || round % warmUp != 0)) continue;
      const Usage usage = Report(round);
      if (round == warmUp) first = usage;
      if (!IsFlat(first, usage, round - warmUp)) return Fails(round, "something stays behind");
    }
    return true;
  }

 private:
  bool RunOnce() {
    if (!TavrinInitialize(definition_.c_str())) return false;
    const std::string answers = AskEverythingAndWrite(conditions_);
    if (answers_.empty()) answers_ = answers;
    const bool isSame = answers == answers_ && ReadWhole(conditions_) == content_;
    return TavrinFinalize() && isSame;
  }

  Usage Report(long round) const {
    const Usage usage = MeasureUsage(folder_.PathOf("temporary"));
    std::printf("%8ld %12ld %12ld %12ld %16ld\n", round, usage.residentKiB, usage.heapBytes,
                usage.descriptors, usage.temporaryFiles);
    return usage;
  }

  bool IsFlat(const Usage& first, const Usage& usage, long rounds) const {
    constexpr long kHeapTolerance = 4096;  // what stdio and the heap itself keep for later
    const long grown = usage.heapBytes - first.heapBytes - growth_ * rounds;
    return std::labs(grown) <= kHeapTolerance && usage.descriptors == first.descriptors &&
           usage.temporaryFiles == 0;
  }

  static bool Fails(long round, const char* reason) {
    std::fprintf(stderr, "soak: round %ld: %s\n", round, reason);
    return false;
  }

  long rounds_;
  long growth_;  ///< known bytes of the heap a round
  const TestFolder folder_;
  std::string definition_;
  std::string content_;
  std::string conditions_;
  std::string answers_;
};

}  // namespace
}  // namespace tavrin::test

int main(int argc, char** argv) {
  const long rounds = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 0;
  if (rounds < 100) {
    std::fprintf(stderr, "usage: tavrin_soak ROUNDS [invalid]    (at least 100 rounds)\n");
    return 2;
  }
  return tavrin::test::Soak(rounds, argc > 2 && std::string(argv[2]) == "invalid").Run() ? 0 : 1;
}
