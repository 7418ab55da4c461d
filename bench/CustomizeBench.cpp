#include "BarePostgres.h"
#include "BareSqlite.h"
#include "Benches.h"
#include "Measure.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <memory>
#include <string>
#include <vector>

namespace Korvane::Bench {

namespace {

enum class Kind { ChangeField, NewField };

FieldDefinition definitionOf(const StructureChange& change) {
    return {.fieldName = change.name,
            .caption = change.caption,
            .maxLength = StructureChange::maxLength,
            .displayType = StructureChange::displayType,
            .values = allowedChoices()};
}

StructureChange nextChange(Kind kind, const Size& size) {
    static int turn = 0;
    return kind == Kind::NewField ? addedField(size, ++turn) : changedField(size, ++turn);
}

bool prepare(cNIP& nip, Kind kind, const StructureChange& change) {
    const auto group = static_cast<std::int16_t>(change.group);
    if (kind == Kind::NewField) return nip.CreateField(group, definitionOf(change));
    return nip.EditField(group, static_cast<std::int16_t>(change.field), definitionOf(change));
}

struct OpenNip {
    explicit OpenNip(const std::string& address) : db(ado::open(address)) {}
    std::shared_ptr<ado::Connection> db;
    cNIP nip;
};

template <Kind kind>
void ours(benchmark::State& state, Place place, Size size) {
    auto& [db, nip] = keptOn<OpenNip>(databaseToCustomize(place, size));
    Trips trips(place);
    for (auto _ : state) {
        state.PauseTiming();
        // As the panel does after each change; the other side has changed the structure, too.
        if (!nip.LoadStructure(db) || !prepare(nip, kind, nextChange(kind, size)))
            return state.SkipWithError("not prepared");
        trips.begin();
        state.ResumeTiming();
        if (!nip.SaveStructure()) return state.SkipWithError("not saved");
        trips.end();
    }
    trips.report(state);
}

template <typename Bare, Kind kind>
void literal(benchmark::State& state, Place place, Size size) {
    const auto& db = keptOn<Bare>(databaseToCustomize(place, size));
    KeptCells cells;
    Trips trips(place);
    for (auto _ : state) {
        state.PauseTiming();
        const StructureChange change = nextChange(kind, size);
        trips.begin();
        state.ResumeTiming();
        db.run(Bare::beginning);
        int id = change.id;
        if (kind == Kind::NewField) {
            db.run(addColumnStatement(change));
            cells.rewind();
            db.run("Select Max(ID) as MaxID From DBFields", cells);
            id = std::stoi(cells.first()) + 1;
        }
        for (const std::string& statement : structureRows(change, id, kind == Kind::NewField))
            db.run(Bare::ownWords(statement));
        db.run("Commit");
        trips.end();
    }
    trips.report(state);
}

// Every new field makes a table wider: a few for each look, and another group each time. A disk has good and
// bad times, and is seen in both.
template <Kind kind>
void registerKind(const std::string& work, const Place& place, const Size& size) {
    constexpr int looks = 11;
    const int changes = kind == Kind::NewField || place.onServer ? 4 : 20;
    const auto other = place.onServer ? measure(work, place, size, "libpq", literal<BarePostgres, kind>)
                                      : measure(work, place, size, "literal", literal<BareSqlite, kind>);
    for (auto* save : {measure(work, place, size, "korvane", ours<kind>), other})
        save->UseRealTime()->Repetitions(looks)->Iterations(changes);
}

} // namespace

void registerCustomize() {
    forEachDatabase([](const Place& place, const Size& size) {
        if (std::ranges::find(serverSizes, size) == serverSizes.end()) return;
        registerKind<Kind::ChangeField>("ChangeField", place, size);
        registerKind<Kind::NewField>("NewField", place, size);
    });
}

} // namespace Korvane::Bench
