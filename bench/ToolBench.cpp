// The tool from start to finish.
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "bench/BenchDefinition.h"

namespace tavrin::bench {
namespace {

void Tool(benchmark::State& state, const std::string& command) {
  const BenchDefinition definition(RichExample());
  const std::string line =
      std::string(TAVRIN_TOOL) + ' ' + command + ' ' + definition.Path() + " >/dev/null";
  for (auto _ : state) {
    if (std::system(line.c_str()) != 0) state.SkipWithError("fails");
  }
}

BENCHMARK_CAPTURE(Tool, show, "show")->UseRealTime();
BENCHMARK_CAPTURE(Tool, decipher, "decipher")->UseRealTime();

}  // namespace
}  // namespace tavrin::bench
