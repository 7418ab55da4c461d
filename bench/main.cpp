#include "Benches.h"
#include "Memory.h"
#include "Place.h"
#include "RatioTable.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>
#include <vector>

// Repetitions of all benchmarks are interleaved, so that noise hits both sides of a ratio alike.
int main(int argc, char** argv) {
    std::vector<char*> arguments{argv[0]};
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=7";
    char shortly[] = "--benchmark_min_time=0.2";
    arguments.insert(arguments.end(), {interleaving, repetitions, shortly});
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());

    QApplication application(argc, argv);
    if (const auto code = Korvane::Bench::measureMemoryIfAsked(argc, argv)) return *code;
    Korvane::Bench::registerStructure();
    Korvane::Bench::registerLoad();
    Korvane::Bench::registerSave();
    Korvane::Bench::registerPanel();
    Korvane::Bench::registerCustomize();
    Korvane::Bench::registerRebuild();
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    Korvane::Bench::RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    if (!Korvane::Bench::hasServer())
        std::puts("on a server      skipped: there is none (tools/with-postgres)");
    return 0;
}
