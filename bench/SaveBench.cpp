#include "BareSqlite.h"
#include "Benches.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <benchmark/benchmark.h>

#include <map>
#include <utility>

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

/// A Nip on its connection, kept through all repetitions as it is through a day.
struct OpenNip {
    explicit OpenNip(const Size& size) {
        nip.LoadStructure(ado::open("sqlite:" + databaseOf(size)));
        nip.Load(1, "P-0001", false);
    }
    cNIP nip;
    int turn = 0;
};

template <typename Kept, typename From>
Kept& keptFor(const Size& size, const From& from) {
    static std::map<std::string, Kept> kept;
    return kept.try_emplace(size.name(), from).first->second;
}

void ours(benchmark::State& state, Size size, Kind kind) {
    auto& [nip, turn] = keptFor<OpenNip>(size, size);
    for (auto _ : state) {
        state.PauseTiming();
        enter(nip, size, ++turn);
        nip.EncounterID(target(kind, size));
        state.ResumeTiming();
        if (!nip.Save()) return state.SkipWithError("not saved");
    }
}

void literal(benchmark::State& state, Size size, Kind kind) {
    const auto& db = keptFor<BareSqlite>(size, databaseOf(size));
    KeptCells cells;
    static int turn = 0;
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

// A disk has good and bad times: many short looks, spread over the whole run, see both sides in both.
void registerSave() {
    constexpr int looks = 15;
    constexpr double seconds = 0.1;
    for (const Size size : sizes)
        for (const Kind kind : {Kind::Update, Kind::Insert}) {
            const std::string work = (kind == Kind::Update ? "Update/" : "Insert/") + size.name();
            for (const auto& [by, run] : {std::pair("/korvane", &ours), std::pair("/literal", &literal)}) {
                auto* save = benchmark::RegisterBenchmark((work + by).c_str(), run, size, kind);
                save->UseRealTime()->Repetitions(looks)->MinTime(seconds);
            }
        }
}

} // namespace Korvane::Bench
