// The collection of cells: adding at the end, finding by key, choosing by typed letters.
#include "bench/HeapCounter.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quillgrid::bench {

namespace {

void Cells_AddAtEnd(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    std::int64_t bytes = 0;
    for (auto _ : state) {
        const std::int64_t before = CurrentHeapUse().Bytes;
        Cells cells;
        for (int i = 0; i < count; ++i)
            cells.Add({.Caption = "Label1", .Value = "Text1"});
        bytes = CurrentHeapUse().Bytes - before;
        state.PauseTiming();
        cells.Clear();
        state.ResumeTiming();
    }
    state.counters["bytes_per_cell"] = static_cast<double>(bytes) / count;
    state.counters["time_per_cell"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * count,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Cells_FindByKey(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    Cells cells;
    std::vector<std::string> keys;
    for (int i = 0; i < count; ++i) {
        keys.push_back("Customer" + std::to_string(i));
        cells.Add({.Key = keys.back()});
    }
    std::size_t next = 0;
    for (auto _ : state) {
        auto cell = cells.Item(keys[next]);
        benchmark::DoNotOptimize(cell);
        next = (next + 7919) % keys.size();
    }
}

/// The worst case: only the last of the entries begins with the typed letter.
void List_TypeAhead(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    Listitems list;
    for (int i = 0; i < count; ++i)
        list.Add({.Text = "Apple " + std::to_string(i)});
    list.Add({.Text = "Zebra"});
    std::uint64_t tick = 0;
    for (auto _ : state) {
        tick += 1000; // a pause before each key
        auto found = list.TypeAhead(1, U'z', tick);
        if (found != count + 1) state.SkipWithError("not found");
        benchmark::DoNotOptimize(found);
    }
}

BENCHMARK(Cells_AddAtEnd)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Cells_FindByKey)->Arg(1'000)->Arg(100'000);
BENCHMARK(List_TypeAhead)->Arg(100)->Arg(10'000);

} // namespace

} // namespace quillgrid::bench
