// What one question costs.
#include <benchmark/benchmark.h>

#include "TavrinLib.h"
#include "bench/BenchDefinition.h"

namespace tavrin::bench {
namespace {

template <typename Ask>
void Query(benchmark::State& state, Ask ask) {
  const BenchDefinition definition(RichExample());
  if (!TavrinInitialize(definition.Path().c_str())) state.SkipWithError("does not load");
  for (auto _ : state)
    benchmark::DoNotOptimize(ask());
  TavrinFinalize();
}

void Scalar(benchmark::State& state) {
  Query(state, [] {
    uint32_t margin = 0;
    TavrinGetAreaMarginSize(&margin);
    return margin;
  });
}

void ModeConfig(benchmark::State& state) {
  Query(state, [] {
    int32_t mode[6] = {};
    TavrinGetModeConfig(0, mode);
    return mode[4];
  });
}

void SideSupport(benchmark::State& state) {
  Query(state, [] {
    uint32_t thickness = 0;
    TavrinGetSideSupportThickness(10000, &thickness);
    return thickness;
  });
}

void Info(benchmark::State& state) {
  Query(state, [] {
    char info[384];
    TavrinGetInfo(info);
    return info[0];
  });
}

BENCHMARK(Scalar);
BENCHMARK(ModeConfig);
BENCHMARK(SideSupport);
BENCHMARK(Info);

}  // namespace
}  // namespace tavrin::bench
