#include "BarePostgres.h"
#include "BareSqlite.h"
#include "Benches.h"
#include "Measure.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

namespace Korvane::Bench {

namespace {

void ours(benchmark::State& state, Place place, Size size) {
    const auto db = ado::open(databaseOf(place, size));
    cNIP nip;
    Trips trips(place);
    for (auto _ : state) {
        trips.begin();
        if (!nip.LoadStructure(db) || nip.GroupCount() != size.groups)
            return state.SkipWithError("not loaded");
        trips.end();
    }
    trips.report(state);
}

template <typename Bare>
void literal(benchmark::State& state, Place place, Size size) {
    const Bare db(databaseOf(place, size));
    KeptCells cells;
    Trips trips(place);
    for (auto _ : state) {
        cells.rewind();
        trips.begin();
        for (const std::string& statement : structureStatements())
            db.run(statement, cells);
        trips.end();
    }
    trips.report(state);
}

} // namespace

void registerStructure() {
    forEachDatabase([](const Place& place, const Size& size) {
        measure("LoadStructure", place, size, "korvane", ours);
        if (place.onServer)
            measure("LoadStructure", place, size, "libpq", literal<BarePostgres>);
        else
            measure("LoadStructure", place, size, "literal", literal<BareSqlite>);
    });
}

} // namespace Korvane::Bench
