// Answers of the library to generated definitions, for comparison between platforms:
//
//   tavrin_differential FIRST COUNT      one line a seed: the seed and a hash of its answers
//   tavrin_differential FIRST COUNT all  for every seed also its plain definition, escaped, and all
//   answers
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "TavrinLib.h"
#include "fuzz/differential/DefinitionGenerator.h"
#include "support/Answers.h"
#include "support/TestFiles.h"
#include "unit/TestText.h"

namespace tavrin::test {
namespace {

std::uint64_t HashOf(const std::string& text) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char c : text)
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  return hash;
}

/// An answer and the last-error code after it, which a success leaves as it was.
std::string Outcome(const std::string& call, bool result) {
  std::uint32_t code = 99;
  TavrinGetLastError(&code);
  return call + (result ? " true, error " : " false, error ") + std::to_string(code) + '\n';
}

std::string AnswersTo(const TestFolder& folder, const std::string& definition) {
  const std::string path = folder.WriteEnciphered("printer.dat", definition);
  std::string answers = Outcome("Initialize null", TavrinInitialize(nullptr));
  answers += Outcome("Initialize", TavrinInitialize(path.c_str()));
  answers += Outcome("Initialize null", TavrinInitialize(nullptr));
  answers += AskEverythingAndWrite(folder.PathOf("conditions.dat"));
  answers += Outcome("Finalize", TavrinFinalize());
  answers += Outcome("Finalize again", TavrinFinalize());
  return answers;
}

}  // namespace
}  // namespace tavrin::test

int main(int argc, char** argv) {
  using namespace tavrin::test;
  if (argc < 3) return 2;
  const std::uint64_t first = std::strtoull(argv[1], nullptr, 10);
  const std::uint64_t count = std::strtoull(argv[2], nullptr, 10);
  const TestFolder folder;
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    const std::string definition = DefinitionGenerator(seed).Make();
    const std::string answers = AnswersTo(folder, definition);
    const unsigned long long hash = HashOf(definition + answers);
    std::printf("%llu %016llx\n", static_cast<unsigned long long>(seed), hash);
    if (argc > 3) std::printf("%s\n%s\n", Escape(definition).c_str(), answers.c_str());
  }
  return 0;
}
