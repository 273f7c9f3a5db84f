// What one question costs.
#include <benchmark/benchmark.h>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"
#include "bench/BenchDefinition.h"
#include "bench/EmptyExport.h"

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

void Empty(benchmark::State& state) {
  Query(state, [] {
    uint32_t value = 0;
    EmptyExport(&value);
    return value;
  });
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

void InkSlots(benchmark::State& state) {
  Query(state, [] {
    InkSlot* slot = nullptr;
    TavrinGetInkSlot(8, &slot);
    return slot->IsValid();
  });
}

void InkName(benchmark::State& state) {
  Query(state, [] {
    InkSlot* slot = nullptr;
    TavrinGetInkSlot(1, &slot);
    char* name = nullptr;
    int32_t size = 0;
    slot->GetInkName(&name, &size);
    TavrinRelease(name);
    return size;
  });
}

void InkCategory(benchmark::State& state) {
  Query(state, [] {
    int32_t* numbers = nullptr;
    int32_t count = 0;
    TavrinGetInkSlotNumConposeInkCategory(0, &numbers, &count);
    TavrinRelease(numbers);
    return count;
  });
}

BENCHMARK(Empty);
BENCHMARK(Scalar);
BENCHMARK(ModeConfig);
BENCHMARK(SideSupport);
BENCHMARK(Info);
BENCHMARK(InkSlots);
BENCHMARK(InkName);
BENCHMARK(InkCategory);

}  // namespace
}  // namespace tavrin::bench
