#include "Benches.h"
#include "Memory.h"
#include "ShownForms.h"
#include "SyntheticClinic.h"

#include <benchmark/benchmark.h>

namespace Korvane::Bench {

namespace {

void time(benchmark::State& state, Size size, Maker by) {
    FormMaker maker(by, size, databaseOf(file, size));
    for (auto _ : state) {
        auto form = maker.show();
        state.PauseTiming();
        form.reset();
        state.ResumeTiming();
    }
}

void memory(benchmark::State& state, Size size, Maker by) {
    for (auto _ : state)
        state.counters["MiB"] = formMemory(by, size);
}

struct Row {
    const char* work;
    const char* by;
    Maker maker;
};

} // namespace

// The bare widgets read no database; so it is the tabs, from a model that is loaded, that stand beside them.
void registerPanel() {
    for (const Size size : sizes)
        for (const Row& row :
             {Row{"Tabs", "korvane", Maker::Tabs}, Row{"Tabs", "widgets", Maker::Widgets},
              Row{"Panel", "korvane", Maker::Panel}, Row{"Panel", "widgets", Maker::Widgets}}) {
            const std::string place = "/" + size.name() + "/" + row.by;
            benchmark::RegisterBenchmark((row.work + place).c_str(), time, size, row.maker);
            benchmark::RegisterBenchmark((row.work + ("Memory" + place)).c_str(), memory, size, row.maker)
                ->Iterations(1);
        }
}

} // namespace Korvane::Bench
