#include "BareSqlite.h"
#include "Benches.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <benchmark/benchmark.h>

namespace Korvane::Bench {

namespace {

void ours(benchmark::State& state, Size size) {
    const auto db = ado::open("sqlite:" + databaseOf(size));
    cNIP nip;
    for (auto _ : state)
        if (!nip.LoadStructure(db) || nip.GroupCount() != size.groups)
            return state.SkipWithError("not loaded");
}

void literal(benchmark::State& state, Size size) {
    const BareSqlite db(databaseOf(size));
    KeptCells cells;
    for (auto _ : state) {
        cells.rewind();
        for (const std::string& statement : structureStatements())
            db.run(statement, cells);
    }
}

} // namespace

void registerStructure() {
    for (const Size size : sizes) {
        benchmark::RegisterBenchmark(("LoadStructure/" + size.name() + "/korvane").c_str(), ours, size);
        benchmark::RegisterBenchmark(("LoadStructure/" + size.name() + "/literal").c_str(), literal, size);
    }
}

} // namespace Korvane::Bench
