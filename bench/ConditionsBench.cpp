// The modeling conditions file, against writing as many bytes.
#include <cstdio>

#include <benchmark/benchmark.h>

#include "TavrinLib.h"
#include "bench/BenchDefinition.h"
#include "bench/FileFloor.h"

namespace tavrin::bench {
namespace {

void Conditions(benchmark::State& state) {
  const BenchDefinition definition(RichExample());
  const std::string path = InTemporaryFolder("tavrin-bench.conditions");
  TavrinInitialize(definition.Path().c_str());
  for (auto _ : state) {
    if (!TavrinCreateModelingConditionsFile(path.c_str())) state.SkipWithError("not written");
  }
  TavrinFinalize();
  std::remove(path.c_str());
}

void ConditionsFloor(benchmark::State& state) {
  const std::string bytes = RichExample();
  const std::string path = InTemporaryFolder("tavrin-bench.conditions");
  for (auto _ : state)
    WriteBare(path, bytes);
  std::remove(path.c_str());
}

BENCHMARK(Conditions);
BENCHMARK(ConditionsFloor);

}  // namespace
}  // namespace tavrin::bench
