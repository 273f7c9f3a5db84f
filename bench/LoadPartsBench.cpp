// Where the time of a load goes: its steps, one at a time, on the rich example.
#include <cstdio>

#include <benchmark/benchmark.h>

#include "bench/BenchDefinition.h"
#include "bench/FileFloor.h"
#include "definition/FileCipher.h"
#include "definition/FileLoader.h"
#include "definition/IniSnapshot.h"
#include "definition/PrinterConfig.h"
#include "definition/TemporaryPath.h"
#include "definition/TextConversion.h"

namespace tavrin::bench {
namespace {

void LoadFile(benchmark::State& state) {
  const BenchDefinition definition(RichExample());
  FileLoader loader;
  for (auto _ : state)
    loader.LoadFromFile(definition.Path());
}

void Decipher(benchmark::State& state) {
  const BenchDefinition definition(RichExample());
  FileLoader loader;
  loader.LoadFromFile(definition.Path());
  for (auto _ : state)
    DecryptBuffer(loader.Data(), loader.Size());
}

void SaveAndRemoveCopy(benchmark::State& state) {
  const BenchDefinition definition(RichExample());
  FileLoader loader;
  loader.LoadFromFile(definition.Path());
  for (auto _ : state) {
    platform::PlainCopy copy(MakeTemporaryPath(definition.Path()));
    loader.SaveToFile(&copy);
  }
}

/// Hands measure the path of the rich example as a plain file.
template <typename Measure>
void WithPlainExample(Measure measure) {
  const std::string path = InTemporaryFolder("tavrin-bench.ini");
  WriteBare(path, RichExample());
  measure(WideCopy(path));
  std::remove(path.c_str());
}

void IndexCopy(benchmark::State& state) {
  WithPlainExample([&](const std::wstring& path) {
    for (auto _ : state)
      benchmark::DoNotOptimize(IniSnapshot(path).Exists());
  });
}

void ReadKeys(benchmark::State& state) {
  WithPlainExample([&](const std::wstring& path) {
    IniSnapshot ini(path);
    for (auto _ : state)
      benchmark::DoNotOptimize(PrinterConfig().ParseOpened(ini));
  });
}

BENCHMARK(LoadFile);
BENCHMARK(Decipher);
BENCHMARK(SaveAndRemoveCopy);
BENCHMARK(IndexCopy);
BENCHMARK(ReadKeys);

}  // namespace
}  // namespace tavrin::bench
