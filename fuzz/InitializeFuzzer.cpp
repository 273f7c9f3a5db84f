// The input is an enciphered definition file: loaded by the shared library, then asked everything.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "TavrinLib.h"
#include "definition/FileCipher.h"
#include "fuzz/Require.h"
#include "support/Answers.h"
#include "support/TestFiles.h"

using namespace tavrin;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

/// Changes the plain text, whose keys the dictionary has, not its cipher.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int) {
  DecryptBuffer(data, static_cast<std::uint32_t>(size));
  const std::size_t mutated = LLVMFuzzerMutate(data, size, maxSize);
  EncryptBuffer(data, static_cast<std::uint32_t>(mutated));
  return mutated;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TestFolder folder;
  const std::string content(reinterpret_cast<const char*>(data), size);
  const std::string conditions = folder.PathOf("conditions");
  const bool loaded = TavrinInitialize(folder.Write("printer.dat", content).c_str());

  // The folder of this process and nothing else: the plain copy is gone.
  fuzz::Require(test::EntriesOf(std::filesystem::temp_directory_path().string()) == 1,
                "loading leaves no file in the temporary directory");

  test::AskEverythingAndWrite(conditions);
  if (loaded) {
    fuzz::Require(test::ReadWhole(conditions) == content,
                  "the modeling conditions file is the definition");
    const std::string answers = test::AskEverythingAndWrite(conditions);
    fuzz::Require(TavrinInitialize(conditions.c_str()), "a modeling conditions file loads");
    fuzz::Require(test::AskEverythingAndWrite(folder.PathOf("again")) == answers,
                  "it gives the answers of the definition");
  }
  TavrinFinalize();
  return 0;
}
