#include "BarePostgres.h"
#include "BareSqlite.h"
#include "Benches.h"
#include "Measure.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <string>
#include <vector>

namespace Korvane::Bench {

namespace {

enum class Kind { Update, Insert };

int target(Kind kind, const Place& place, const Size& size) {
    return kind == Kind::Update ? someEncounter() : freshEncounter(place, size);
}

// Another value in every text, as if the user had gone through the whole form.
void enter(cNIP& nip, const Size& size, int turn) {
    for (std::int16_t group = 1; group <= size.groups; ++group)
        for (std::int16_t field = 1; field <= size.fields; ++field)
            nip.value(group, field, valueOf(group, field, turn));
}

/// A Nip on its connection, kept through all repetitions as it is through a day.
struct OpenNip {
    explicit OpenNip(const std::string& address) {
        nip.LoadStructure(ado::open(address));
        nip.Load(1, "P-0001", false);
    }
    cNIP nip;
    int turn = 0;
};

template <Kind kind>
void ours(benchmark::State& state, Place place, Size size) {
    auto& [nip, turn] = keptOn<OpenNip>(databaseOf(place, size));
    Trips trips(place);
    for (auto _ : state) {
        state.PauseTiming();
        enter(nip, size, ++turn);
        nip.EncounterID(target(kind, place, size));
        trips.begin();
        state.ResumeTiming();
        if (!nip.Save()) return state.SkipWithError("not saved");
        trips.end();
    }
    trips.report(state);
}

template <typename Bare, Kind kind>
void literal(benchmark::State& state, Place place, Size size) {
    const auto& db = keptOn<Bare>(databaseOf(place, size));
    KeptCells cells;
    static int turn = 0;
    std::vector<std::string> updates, inserts;
    Trips trips(place);
    for (auto _ : state) {
        state.PauseTiming();
        updates.clear();
        inserts.clear();
        const int encounter = target(kind, place, size);
        ++turn;
        for (int group = 1; group <= size.groups; ++group) {
            updates.push_back(Bare::ownWords(updateStatement(size, group, encounter, turn)));
            inserts.push_back(Bare::ownWords(insertStatement(size, group, encounter, turn)));
        }
        trips.begin();
        state.ResumeTiming();
        db.run(Bare::beginning);
        for (std::size_t i = 0; i < updates.size(); ++i)
            if (db.run(updates[i], cells) == 0) db.run(inserts[i], cells);
        db.run("Commit");
        trips.end();
    }
    trips.report(state);
}

// A disk has good and bad times: many short looks, spread over the whole run, see both sides in both.
template <Kind kind>
void registerKind(const std::string& work, const Place& place, const Size& size) {
    constexpr int looks = 15;
    constexpr double seconds = 0.1;
    const auto other = place.onServer ? measure(work, place, size, "libpq", literal<BarePostgres, kind>)
                                      : measure(work, place, size, "literal", literal<BareSqlite, kind>);
    for (auto* save : {measure(work, place, size, "korvane", ours<kind>), other})
        save->UseRealTime()->Repetitions(looks)->MinTime(seconds);
}

} // namespace

void registerSave() {
    forEachDatabase([](const Place& place, const Size& size) {
        registerKind<Kind::Update>("Update", place, size);
        registerKind<Kind::Insert>("Insert", place, size);
    });
}

} // namespace Korvane::Bench
