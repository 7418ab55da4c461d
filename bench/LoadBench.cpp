#include "BarePostgres.h"
#include "BareSqlite.h"
#include "Benches.h"
#include "Measure.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace Korvane::Bench {

namespace {

void ours(benchmark::State& state, Place place, Size size) {
    const auto db = ado::open(databaseOf(place, size));
    cNIP nip;
    nip.LoadStructure(db);
    Trips trips(place);
    const auto load = [&] {
        trips.begin();
        const bool loaded = nip.Load(someEncounter(), "P-0001", false);
        trips.end();
        return loaded;
    };
    load(); // what the first one costs is measured by itself
    for (auto _ : state)
        if (!load()) return state.SkipWithError("not loaded");
    trips.report(state);
    if (nip.value(1, 1).text().empty()) state.SkipWithError("nothing loaded");
}

// On a new connection, which knows no statement yet.
void oursFirst(benchmark::State& state, Place place, Size size) {
    for (auto _ : state) {
        state.PauseTiming();
        const auto db = ado::open(databaseOf(place, size));
        cNIP nip;
        nip.LoadStructure(db);
        state.ResumeTiming();
        if (!nip.Load(someEncounter(), "P-0001", false)) return state.SkipWithError("not loaded");
        state.PauseTiming();
        db->Close();
        state.ResumeTiming();
    }
}

// The beginning of each group's statement is made once, as a program would.
std::vector<std::string> statementsUpToTheKey(const Size& size) {
    std::vector<std::string> statements;
    for (int group = 1; group <= size.groups; ++group) {
        const std::string whole = selectStatement(size, group, 0);
        statements.push_back(whole.substr(0, whole.size() - 1));
    }
    return statements;
}

template <typename Bare>
void literal(benchmark::State& state, Place place, Size size) {
    const Bare db(databaseOf(place, size));
    const std::vector<std::string> statements = statementsUpToTheKey(size);
    KeptCells cells;
    Trips trips(place);
    for (auto _ : state) {
        cells.rewind();
        trips.begin();
        const std::string key = std::to_string(someEncounter());
        for (const std::string& statement : statements)
            db.run(statement + key, cells);
        trips.end();
    }
    trips.report(state);
}

template <typename Bare>
void literalFirst(benchmark::State& state, Place place, Size size) {
    const std::vector<std::string> statements = statementsUpToTheKey(size);
    KeptCells cells;
    for (auto _ : state) {
        state.PauseTiming();
        const Bare db(databaseOf(place, size));
        cells.rewind();
        const std::string key = std::to_string(someEncounter());
        state.ResumeTiming();
        for (const std::string& statement : statements)
            db.run(statement + key, cells);
    }
}

void prepared(benchmark::State& state, Place place, Size size) {
    const BareSqlite db(databaseOf(place, size));
    std::vector<BareStatement> compiled;
    for (const std::string& statement : statementsUpToTheKey(size))
        compiled.push_back(db.prepare(statement + "?"));
    KeptCells cells;
    for (auto _ : state) {
        cells.rewind();
        const int encounter = someEncounter();
        for (const BareStatement& statement : compiled)
            db.runPrepared(statement, encounter, cells);
    }
}

void qtSql(benchmark::State& state, Place place, Size size) {
    const QString name = QStringLiteral("bench");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(QString::fromStdString(databaseOf(place, size)).section(QLatin1Char(':'), 1));
        if (!db.open()) return state.SkipWithError("not opened");
        const std::vector<std::string> statements = statementsUpToTheKey(size);
        std::vector<QString> cells(static_cast<std::size_t>(size.groups * size.fields));
        for (auto _ : state) {
            const std::string key = std::to_string(someEncounter());
            std::size_t cell = 0;
            for (const std::string& statement : statements) {
                QSqlQuery query(db);
                if (!query.exec(QString::fromStdString(statement + key)) || !query.next())
                    return state.SkipWithError("not loaded");
                for (int field = 0; field < size.fields; ++field)
                    cells[cell++] = query.value(field).toString();
            }
        }
    }
    QSqlDatabase::removeDatabase(name);
}

} // namespace

void registerLoad() {
    forEachDatabase([](const Place& place, const Size& size) {
        measure("Load", place, size, "korvane", ours);
        measure("FirstLoad", place, size, "korvane", oursFirst);
        if (place.onServer) {
            measure("Load", place, size, "libpq", literal<BarePostgres>);
            measure("FirstLoad", place, size, "libpq", literalFirst<BarePostgres>);
            return;
        }
        measure("Load", place, size, "literal", literal<BareSqlite>);
        measure("FirstLoad", place, size, "literal", literalFirst<BareSqlite>);
        measure("Load", place, size, "prepared", prepared);
        measure("Load", place, size, "QtSql", qtSql);
    });
}

} // namespace Korvane::Bench
