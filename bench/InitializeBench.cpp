// Initialising, against the same work done by hand with SimpleIni.
#include <cstdio>
#include <vector>

#include <SimpleIni.h>
#include <benchmark/benchmark.h>

#include "TavrinLib.h"
#include "bench/BenchDefinition.h"
#include "definition/FileBytes.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"

namespace tavrin::bench {
namespace {

void InitializeAndFinalize(benchmark::State& state, std::string (*plain)()) {
  const BenchDefinition definition(plain());
  for (auto _ : state) {
    if (!TavrinInitialize(definition.Path().c_str())) state.SkipWithError("does not load");
    TavrinFinalize();
  }
}

/// Reads and deciphers the definition, writes the plain copy, reads the keys from it with
/// SimpleIni, removes it.
bool LoadByHand(const BenchDefinition& definition) {
  std::vector<unsigned char> block(FileSizeOf(definition.Path()));
  const auto size = static_cast<std::uint32_t>(block.size());
  if (!ReadFileBytes(definition.Path(), block.data(), size)) return false;
  DecryptBuffer(block.data(), size);

  const std::string copy = MakeTemporaryPath(definition.Path());
  WriteFileBytes(copy, block.data(), size);
  CSimpleIniA ini;
  const bool loaded = ini.LoadFile(copy.c_str()) == SI_OK;
  for (const std::string& key : definition.Keys()) {
    benchmark::DoNotOptimize(ini.GetValue("printer", key.c_str()));
  }
  std::remove(copy.c_str());
  return loaded;
}

void SimpleIniByHand(benchmark::State& state, std::string (*plain)()) {
  const BenchDefinition definition(plain());
  for (auto _ : state) {
    if (!LoadByHand(definition)) state.SkipWithError("does not load");
  }
}

BENCHMARK_CAPTURE(InitializeAndFinalize, rich, RichExample);
BENCHMARK_CAPTURE(SimpleIniByHand, rich, RichExample);
BENCHMARK_CAPTURE(InitializeAndFinalize, padded, PaddedExample);
BENCHMARK_CAPTURE(SimpleIniByHand, padded, PaddedExample);

}  // namespace
}  // namespace tavrin::bench
