#include "Benches.h"
#include "Memory.h"
#include "ShownForms.h"
#include "SyntheticClinic.h"

#include <benchmark/benchmark.h>

namespace Korvane::Bench {

namespace {

void time(benchmark::State& state, Size size, const std::string& by) {
    const auto connection = ado::open("sqlite:" + databaseOf(size));
    for (auto _ : state) {
        auto form = showForm(by, size, connection);
        state.PauseTiming();
        form.reset();
        state.ResumeTiming();
    }
}

void memory(benchmark::State& state, Size size, const std::string& by) {
    for (auto _ : state)
        state.counters["MiB"] = formMemory(by, size);
}

} // namespace

void registerPanel() {
    for (const Size size : sizes)
        for (const char* by : {"korvane", "widgets"}) {
            const std::string place = "/" + size.name() + "/" + by;
            benchmark::RegisterBenchmark(("Panel" + place).c_str(), time, size, by)->UseRealTime();
            benchmark::RegisterBenchmark(("PanelMemory" + place).c_str(), memory, size, by)->Iterations(1);
        }
}

} // namespace Korvane::Bench
