// Initialising, against the same work done by hand with two INI libraries, and against the bare
// file operations that it cannot do without.
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

#include <SimpleIni.h>
#include <benchmark/benchmark.h>
#include <ini.h>

#include "TavrinLib.h"
#include "bench/BenchDefinition.h"
#include "bench/FileFloor.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"

namespace tavrin::bench {
namespace {

void Initialize(const BenchDefinition& definition) {
  if (!TavrinInitialize(definition.Path().c_str())) throw std::runtime_error("does not load");
  TavrinFinalize();
}

std::string ReadWithStream(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

/// Reads and deciphers the definition, writes the plain copy, lets read ask for the keys from it,
/// removes it: as a host would that knows the standard library.
template <typename Read>
void LoadByHand(const BenchDefinition& definition, Read read) {
  std::string block = ReadWithStream(definition.Path());
  DecryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  const std::string copy = MakeTemporaryPath(definition.Path());
  std::ofstream(copy, std::ios::binary) << block;
  read(copy);
  std::remove(copy.c_str());
}

void SimpleIni(const BenchDefinition& definition) {
  LoadByHand(definition, [&](const std::string& copy) {
    CSimpleIniA ini;
    if (ini.LoadFile(copy.c_str()) != SI_OK) throw std::runtime_error("does not load");
    for (const std::string& key : definition.Keys()) {
      benchmark::DoNotOptimize(ini.GetValue("printer", key.c_str()));
    }
  });
}

/// Inih leaves the keeping of values to its user.
int Keep(void* values, const char* section, const char* key, const char* value) {
  static_cast<std::map<std::string, std::string>*>(values)->emplace(
      std::string(section) + '=' + key, value);
  return 1;
}

void Inih(const BenchDefinition& definition) {
  LoadByHand(definition, [&](const std::string& copy) {
    std::map<std::string, std::string> values;
    if (ini_parse(copy.c_str(), Keep, &values) != 0) throw std::runtime_error("does not load");
    for (const std::string& key : definition.Keys()) {
      benchmark::DoNotOptimize(values.find("printer=" + key));
    }
  });
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
  } ways[] = {
      {"library", Initialize}, {"simpleini", SimpleIni}, {"inih", Inih}, {"files", FileFloor}};
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
