// Initialising, against the same work done by hand with two INI libraries, and against the bare
// file operations that it cannot do without.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include <SimpleIni.h>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <ini.h>

#include "TavrinLib.h"
#include "bench/BenchDefinition.h"
#include "bench/FileFloor.h"
#include "bench/PrinterByHand.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"

namespace tavrin::bench {
namespace {

void Initialize(const BenchDefinition& definition) {
  if (!TavrinInitialize(definition.Path().c_str())) throw std::runtime_error("does not load");
  TavrinFinalize();
}

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Closer>;

std::string ReadWhole(const std::string& path) {
  std::string bytes(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<long>(bytes.size()));
  return bytes;
}

/// The owner's alone, and none that lay there before, for the text is not for everyone.
File CreateOwnerOnly(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
  File file(descriptor < 0 ? nullptr : fdopen(descriptor, "w+b"));
  if (file == nullptr) throw std::runtime_error("no copy");
  return file;
}

/// Reads and deciphers the definition, writes the plain copy, lets an INI library take the keys out
/// of that, removes it, makes a printer of the keys: as a host would that knows the standard
/// library.
template <typename Keys>
PrinterByHand LoadByHand(const BenchDefinition& definition) {
  std::string block = ReadWhole(definition.Path());
  DecryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  const std::string path = MakeTemporaryPath(definition.Path());
  const File copy = CreateOwnerOnly(path);
  std::fwrite(block.data(), 1, block.size(), copy.get());
  std::rewind(copy.get());
  const Keys keys(copy.get());
  std::remove(path.c_str());
  return ReadByHand(keys);
}

class SimpleIniKeys : public KeysByHand {
 public:
  explicit SimpleIniKeys(std::FILE* file) {
    if (ini_.LoadFile(file) != SI_OK) throw std::runtime_error("does not load");
  }

  const char* Find(const std::string& key) const override {
    return ini_.GetValue("printer", key.c_str());
  }

 private:
  CSimpleIniA ini_;
};

/// Inih leaves the keeping of values to its user.
class InihKeys : public KeysByHand {
 public:
  explicit InihKeys(std::FILE* file) {
    if (ini_parse_file(file, Keep, this) != 0) throw std::runtime_error("does not load");
  }

  const char* Find(const std::string& key) const override {
    const auto found = values_.find(key);
    return found == values_.end() ? nullptr : found->second.c_str();
  }

 private:
  static int Keep(void* keys, const char* section, const char* key, const char* value) {
    if (std::strcmp(section, "printer") == 0)
      static_cast<InihKeys*>(keys)->values_.emplace(key, value);
    return 1;
  }

  std::unordered_map<std::string, std::string> values_;
};

template <typename Keys>
void ByHand(const BenchDefinition& definition) {
  benchmark::DoNotOptimize(LoadByHand<Keys>(definition));
}

/// What makes the comparison one of equals: by hand gives the answers of the library.
void RequireSameAnswers(const PrinterByHand& printer, const BenchDefinition& definition) {
  std::uint32_t modes = 0;
  std::uint32_t slots = 0;
  std::uint32_t categories = 0;
  std::uint32_t margin = 0;
  double headBand = 0.0;
  TavrinInitialize(definition.Path().c_str());
  const bool isSame = TavrinGetModeCount(&modes) && modes == printer.modes.size() &&
                      TavrinGetItemCountOfInkSlot(&slots) && slots == printer.slots.size() &&
                      TavrinGetItemCountOfInkCategory(&categories) &&
                      categories == printer.categories.size() && TavrinGetAreaMarginSize(&margin) &&
                      margin == static_cast<std::uint32_t>(printer.margin) &&
                      TavrinGetHeadBandSize(&headBand) && headBand == printer.headBandSize;
  TavrinFinalize();
  if (!isSame) throw std::runtime_error("by hand gives other answers");
}

/// Reads a file, writes another of the size, reads that back, removes it.
void FileFloor(const BenchDefinition& definition) {
  static const std::string copy = InTemporaryFolder("tavrin-bench.copy");
  WriteBare(copy, ReadBare(definition.Path()));
  benchmark::DoNotOptimize(ReadBare(copy));
  std::remove(copy.c_str());
}

void Load(benchmark::State& state, void (*load)(const BenchDefinition&), std::string (*plain)()) {
  const BenchDefinition definition(plain());
  RequireSameAnswers(LoadByHand<SimpleIniKeys>(definition), definition);
  RequireSameAnswers(LoadByHand<InihKeys>(definition), definition);
  for (auto _ : state)
    load(definition);
}

bool RegisterAll() {
  const struct {
    const char* name;
    std::string (*plain)();
  } definitions[] = {{"rich", RichExample},
                     {"padded", PaddedExample},
                     {"compact", CompactExample},
                     {"minimal", MinimalExample},
                     {"keys100", [] { return Synthetic(100); }},
                     {"keys1000", [] { return Synthetic(1000); }},
                     {"keys10000", [] { return Synthetic(10000); }}};
  const struct {
    const char* name;
    void (*load)(const BenchDefinition&);
  } ways[] = {{"library", Initialize},
              {"simpleini", ByHand<SimpleIniKeys>},
              {"inih", ByHand<InihKeys>},
              {"files", FileFloor}};
  for (const auto& definition : definitions) {
    for (const auto& way : ways) {
      const std::string name = std::string("Load/") + definition.name + '/' + way.name;
      benchmark::RegisterBenchmark(name.c_str(), Load, way.load, definition.plain);
    }
  }
  return true;
}

[[maybe_unused]] const bool kRegistered = RegisterAll();

}  // namespace
}  // namespace tavrin::bench
