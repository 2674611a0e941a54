// The control by name: starting, saving, loading, property sheets and records.
#include "bench/CountedRun.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"
#include "quillgrid/hosts/headless/MemoryBag.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quillgrid::bench {

namespace {

using headless::HeadlessHost;
using headless::MemoryBag;

void Control_Create(benchmark::State& state) {
    CountedRun(state, [] { return std::make_unique<HeadlessHost>(); });
}

void Control_Save(benchmark::State& state) {
    const HeadlessHost host;
    CountedRun(state, [&] {
        MemoryBag bag;
        host.Grid->WriteProperties(bag);
        return bag.Entries.size();
    });
}

void Control_Load(benchmark::State& state) {
    MemoryBag bag;
    HeadlessHost host;
    host.Grid->WriteProperties(bag);
    CountedRun(state, [&] {
        bag.Asked.clear();
        host.Grid->ReadProperties(bag);
        return host.Grid->CellCount();
    });
}

/// A form of as many text cells as the argument says, laid out.
std::unique_ptr<HeadlessHost> Form(std::int64_t cells) {
    auto host = std::make_unique<HeadlessHost>();
    for (std::int64_t number = 1; number <= cells; ++number)
        host->Grid->Add({.Key = "field" + std::to_string(number), .Value = Variant("text")});
    host->Grid->Refresh();
    return host;
}

std::vector<std::string> NamesOf(const Properties& sheet) {
    std::vector<std::string> names;
    for (const auto& item : sheet)
        names.push_back(item->Key());
    return names;
}

void Sheet_ReadAll(benchmark::State& state) {
    const auto host = Form(state.range(0));
    Properties& sheet = host->Grid->Properties();
    const auto names = NamesOf(sheet);
    CountedRun(state, [&] {
        std::size_t nulls = 0;
        for (const auto& name : names)
            nulls += sheet.Item(name)->Value().IsNull() ? 1 : 0;
        return nulls;
    });
}

/// What is there is written again. How many cells there are is left out in the large form, where it makes
/// them all anew.
void Sheet_WriteAll(benchmark::State& state) {
    const auto host = Form(state.range(0));
    Properties& sheet = host->Grid->Properties();
    std::vector<std::pair<std::string, Variant>> values;
    for (const auto& name : NamesOf(sheet)) {
        if (name != "CellCount" || state.range(0) == 1) values.emplace_back(name, sheet.Item(name)->Value());
    }
    for (auto& [name, value] : values) {
        if (value.IsNull()) value = Variant(1);
    }
    CountedRun(state, [&] {
        for (const auto& [name, value] : values)
            sheet.Item(name)->SetValue(value);
        host->Site.Reported.clear();
        return values.size();
    });
}

class NumberedFields : public Record {
public:
    std::string Value = "0";
    std::optional<Variant> Field(std::string_view) const override { return Variant(Value); }
};

void Record_Load(benchmark::State& state) {
    const auto host = Form(state.range(0));
    NumberedFields record;
    int number = 0;
    CountedRun(state, [&] {
        record.Value = std::to_string(++number);
        host->Grid->LoadRecord(record);
        host->Surface.Invalid.clear();
        host->Journal.Clear();
        return number;
    });
}

BENCHMARK(Control_Create)->Unit(benchmark::kMicrosecond);
BENCHMARK(Control_Save)->Unit(benchmark::kMicrosecond);
BENCHMARK(Control_Load)->Unit(benchmark::kMicrosecond);
BENCHMARK(Sheet_ReadAll)->Arg(1)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Sheet_WriteAll)->Arg(1)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Record_Load)->Arg(50)->Arg(5'000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillgrid::bench
