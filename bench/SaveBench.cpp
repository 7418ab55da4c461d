#include "BareSqlite.h"
#include "Benches.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <benchmark/benchmark.h>

namespace Korvane::Bench {

namespace {

enum class Kind { Update, Insert };

int target(Kind kind, const Size& size) {
    return kind == Kind::Update ? someEncounter() : freshEncounter(size);
}

// Another value in every text, as if the user had gone through the whole form.
void enter(cNIP& nip, const Size& size, int turn) {
    for (std::int16_t group = 1; group <= size.groups; ++group)
        for (std::int16_t field = 1; field <= size.fields; ++field)
            nip.value(group, field, valueOf(group, field, turn));
}

void ours(benchmark::State& state, Size size, Kind kind) {
    const auto db = ado::open("sqlite:" + databaseOf(size));
    cNIP nip;
    nip.LoadStructure(db);
    nip.Load(1, "P-0001", false);
    int turn = 0;
    for (auto _ : state) {
        state.PauseTiming();
        enter(nip, size, ++turn);
        nip.EncounterID(target(kind, size));
        state.ResumeTiming();
        if (!nip.Save()) return state.SkipWithError("not saved");
    }
}

void literal(benchmark::State& state, Size size, Kind kind) {
    const BareSqlite db(databaseOf(size));
    KeptCells cells;
    int turn = 0;
    std::vector<std::string> updates, inserts;
    for (auto _ : state) {
        state.PauseTiming();
        updates.clear();
        inserts.clear();
        const int encounter = target(kind, size);
        ++turn;
        for (int group = 1; group <= size.groups; ++group) {
            updates.push_back(updateStatement(size, group, encounter, turn));
            inserts.push_back(insertStatement(size, group, encounter, turn));
        }
        state.ResumeTiming();
        db.run("Begin Immediate");
        for (std::size_t i = 0; i < updates.size(); ++i)
            if (db.run(updates[i], cells) == 0) db.run(inserts[i], cells);
        db.run("Commit");
    }
}

} // namespace

void registerSave() {
    for (const Size size : sizes)
        for (const Kind kind : {Kind::Update, Kind::Insert}) {
            const std::string work = (kind == Kind::Update ? "Update/" : "Insert/") + size.name();
            benchmark::RegisterBenchmark((work + "/korvane").c_str(), ours, size, kind)->UseRealTime();
            benchmark::RegisterBenchmark((work + "/literal").c_str(), literal, size, kind)->UseRealTime();
        }
}

} // namespace Korvane::Bench
