// The input is a plain definition: parsed, then asked everything.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "TavrinLib.h"
#include "api/LibraryInstance.h"
#include "fuzz/Require.h"
#include "support/Answers.h"
#include "support/TestFiles.h"

using namespace tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TestFolder folder;
  const std::string path =
      folder.Write("plain.ini", std::string(reinterpret_cast<const char*>(data), size));
  auto config = std::make_unique<PrinterConfig>();
  const bool parsed = config->Parse(path);
  fuzz::Require(parsed == !config->Version.empty(), "a definition is one that has a version");
  if (parsed) libraryInstance = config.release();
  const std::string answers = test::AskEverythingAndWrite(folder.PathOf("conditions"));
  fuzz::Require(test::AskEverythingAndWrite(folder.PathOf("conditions")) == answers,
                "asking changes no answer");
  TavrinFinalize();
  return 0;
}
