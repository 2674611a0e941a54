#pragma once

#include "bench/HeapCounter.h"

#include <benchmark/benchmark.h>

namespace quillgrid::bench {

/// Runs `work` as often as the library asks and reports the allocations of one call.
template <typename Work>
void CountedRun(benchmark::State& state, Work work) {
    const std::uint64_t before = CurrentHeapUse().Allocations;
    for (auto _ : state) {
        auto result = work();
        benchmark::DoNotOptimize(result);
    }
    const std::uint64_t after = CurrentHeapUse().Allocations;
    state.counters["allocations"] =
        static_cast<double>(after - before) / static_cast<double>(state.iterations());
}

} // namespace quillgrid::bench
