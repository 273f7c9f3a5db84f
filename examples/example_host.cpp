// A host program at its smallest: load a printer definition, ask, write the modeling conditions,
// release.
#include <cstdint>
#include <cstdio>
#include <memory>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

namespace {

const char* LastErrorName() {
  std::uint32_t code = ErrorNone;
  TavrinGetLastError(&code);
  const char* const names[] = {"ErrorNone", "ErrorFailed", "ErrorNotInitialized",
                               "ErrorWriteFailed", "ErrorInvalidArgument"};
  return names[code];
}

/// Passes the result of a call on and reports a failed one while its last-error code is fresh.
bool Check(const char* call, bool succeeded) {
  if (!succeeded) std::fprintf(stderr, "%s failed: %s\n", call, LastErrorName());
  return succeeded;
}

bool PrintModel() {
  char info[384];
  if (!Check("TavrinGetInfo", TavrinGetInfo(info))) return false;
  // A text of 128 bytes fills its field without a NUL, hence the precision.
  std::printf("Model %.128s, version %.128s\n", info, info + 128);
  return true;
}

bool PrintBuildVolume() {
  std::uint32_t x = 0;
  std::uint32_t y = 0;
  std::uint32_t z = 0;
  if (!Check("TavrinGetAreaSize", TavrinGetAreaSize(&x, &y, &z))) return false;
  std::printf("Builds %.3f x %.3f x %.3f mm\n", x / 1000.0, y / 1000.0, z / 1000.0);
  return true;
}

bool PrintModes() {
  std::uint32_t count = 0;
  if (!Check("TavrinGetModeCount", TavrinGetModeCount(&count))) return false;
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
    std::int32_t mode[6];
    if (!Check("TavrinGetModeConfig", TavrinGetModeConfig(i, mode))) return false;
    std::printf("Mode %d: slices of %d um, at most %d of them\n", mode[0], mode[1],
                mode[4] == INT32_MIN ? 0 : mode[4]);
  }
  return true;
}

bool PrintInks() {
  std::uint32_t count = 0;
  if (!Check("TavrinGetItemCountOfInkSlot", TavrinGetItemCountOfInkSlot(&count))) return false;
  for (std::uint32_t number = 1; number <= count; ++number) {
    InkSlot* slot = nullptr;  // stays the library's
    if (!Check("TavrinGetInkSlot", TavrinGetInkSlot(number, &slot))) return false;
    char* name = nullptr;
    std::int32_t size = 0;
    slot->GetInkName(&name, &size);
    const std::unique_ptr<char, void (*)(void*)> owned(name, TavrinRelease);
    std::printf("Slot %u: %s\n", number, slot->IsValid() ? name : "unknown ink");
  }
  return true;
}

bool WriteConditions(const char* path) {
  return Check("TavrinCreateModelingConditionsFile", TavrinCreateModelingConditionsFile(path));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: example_host DEFINITION CONDITIONS\n");
    return 2;
  }
  bool succeeded = Check("TavrinInitialize", TavrinInitialize(argv[1]));
  if (succeeded) {
    succeeded = PrintModel() && PrintBuildVolume() && PrintModes() && PrintInks() &&
                WriteConditions(argv[2]);
  }
  TavrinFinalize();
  return succeeded ? 0 : 1;
}
