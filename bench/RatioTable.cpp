#include "RatioTable.h"

#include "Goals.h"

#include <algorithm>
#include <cstdio>

namespace Korvane::Bench {

namespace {

std::string fullName(const std::string& work, const std::string& size, const std::string& by) {
    return work + "/" + size + "/" + by;
}

bool countsTrips(const std::string& work) {
    return work.find("Trips") != std::string::npos;
}

// "12.3 ms", "850 us"; a memory's figure stands for MiB, that of trips for their number.
std::string amount(const std::string& work, double value) {
    char text[32];
    if (work.ends_with("Memory"))
        std::snprintf(text, sizeof text, "%.2f MiB", value);
    else if (countsTrips(work))
        std::snprintf(text, sizeof text, "%.0f", value);
    else if (value >= 1e-3)
        std::snprintf(text, sizeof text, "%.2f ms", value * 1e3);
    else
        std::snprintf(text, sizeof text, "%.0f us", value * 1e6);
    return text;
}

// Work of the processor alone is timed by the processor's own clock, so that other processes do not count;
// where the disk decides, the benchmark asks for real time.
double figureOf(const benchmark::BenchmarkReporter::Run& run) {
    const auto memory = run.counters.find("MiB");
    if (memory != run.counters.end()) return memory->second.value;
    const bool realTime = !run.run_name.time_type.empty();
    const double seconds = realTime ? run.real_accumulated_time : run.cpu_accumulated_time;
    return seconds / static_cast<double>(run.iterations);
}

} // namespace

bool RatioTable::ReportContext(const Context&) {
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        const std::string name = run.run_name.function_name;
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", name.c_str(), run.error_message.c_str());
            continue;
        }
        add(name, figureOf(run));
        const auto trips = run.counters.find("trips");
        if (trips == run.counters.end()) continue;
        std::string counted = name;
        add(counted.insert(name.find_first_of("@/"), "Trips"), trips->second.value);
    }
}

void RatioTable::add(const std::string& name, double figure) {
    mFigures[name].push_back(figure);
    remember(name);
}

void RatioTable::remember(const std::string& name) {
    const auto first = name.find('/');
    const auto second = name.find('/', first + 1);
    const std::string work = name.substr(0, first);
    const std::string size = name.substr(first + 1, second - first - 1);
    const std::string by = name.substr(second + 1);
    auto known = std::find_if(mWorks.begin(), mWorks.end(),
                              [&](const Work& each) { return each.name == work && each.size == size; });
    if (known == mWorks.end()) known = mWorks.insert(mWorks.end(), {work, size, {}});
    if (by != "korvane" && std::find(known->others.begin(), known->others.end(), by) == known->others.end())
        known->others.push_back(by);
}

double RatioTable::median(const std::string& work, const std::string& size, const std::string& by) const {
    const auto found = mFigures.find(fullName(work, size, by));
    if (found == mFigures.end()) return 0;
    std::vector<double> figures = found->second;
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

void RatioTable::printRow(const Work& work, const std::string& other) const {
    const double ours = median(work.name, work.size, "korvane");
    const double theirs = median(work.name, work.size, other);
    if (ours <= 0 || theirs <= 0) return;
    const double ratio = ours / theirs;
    std::printf("%-23s %-7s %-9s %11s %11s %8.3f", work.name.c_str(), work.size.c_str(), other.c_str(),
                amount(work.name, ours).c_str(), amount(work.name, theirs).c_str(), ratio);
    const auto verdict = [](bool reached) { return reached ? "reached" : "MISSED"; };
    if (const auto most = goal(work.name, work.size, other))
        std::printf("   %5.2f  %s", *most, verdict(ratio <= *most));
    if (const auto most = amountGoal(work.name, work.size))
        std::printf("   at most %s  %s", amount(work.name, *most).c_str(), verdict(ours <= *most));
    std::printf("\n");
}

void RatioTable::Finalize() {
    std::sort(mWorks.begin(), mWorks.end(), [](const Work& a, const Work& b) {
        return std::pair(a.name, a.size.size()) < std::pair(b.name, b.size.size());
    });
    std::printf("\n%-23s %-7s %-9s %11s %11s %8s   %5s\n", "work", "size", "beside", "korvane", "beside",
                "ratio", "goal");
    for (Work& work : mWorks) {
        std::sort(work.others.begin(), work.others.end());
        for (const std::string& other : work.others)
            printRow(work, other);
    }
}

} // namespace Korvane::Bench
