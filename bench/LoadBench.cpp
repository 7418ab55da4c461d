#include "BareSqlite.h"
#include "Benches.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <benchmark/benchmark.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace Korvane::Bench {

namespace {

void ours(benchmark::State& state, Size size) {
    const auto db = ado::open("sqlite:" + databaseOf(size));
    cNIP nip;
    nip.LoadStructure(db);
    for (auto _ : state)
        if (!nip.Load(someEncounter(), "P-0001", false)) return state.SkipWithError("not loaded");
    if (nip.value(1, 1).text().empty()) state.SkipWithError("nothing loaded");
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

void literal(benchmark::State& state, Size size) {
    const BareSqlite db(databaseOf(size));
    const std::vector<std::string> statements = statementsUpToTheKey(size);
    KeptCells cells;
    for (auto _ : state) {
        cells.rewind();
        const std::string key = std::to_string(someEncounter());
        for (const std::string& statement : statements)
            db.run(statement + key, cells);
    }
}

void prepared(benchmark::State& state, Size size) {
    const BareSqlite db(databaseOf(size));
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

void qtSql(benchmark::State& state, Size size) {
    const QString name = QStringLiteral("bench");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(QString::fromStdString(databaseOf(size)));
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
    for (const Size size : sizes) {
        const std::string work = "Load/" + size.name();
        benchmark::RegisterBenchmark((work + "/korvane").c_str(), ours, size);
        benchmark::RegisterBenchmark((work + "/literal").c_str(), literal, size);
        benchmark::RegisterBenchmark((work + "/prepared").c_str(), prepared, size);
        benchmark::RegisterBenchmark((work + "/QtSql").c_str(), qtSql, size);
    }
}

} // namespace Korvane::Bench
