#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Korvane::Bench {

/// Collects the times of all repetitions and prints, for each piece of work and size, the medians and how the
/// library stands to each of the others, with the goal where there is one. A benchmark is named
/// "<work>/<size>/<by whom>"; the library's own is by "korvane".
class RatioTable : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    struct Work {
        std::string name, size;
        std::vector<std::string> others;
    };

    void add(const std::string& name, double figure);
    void remember(const std::string& name);
    void printRow(const Work& work, const std::string& other) const;
    double median(const std::string& work, const std::string& size, const std::string& by) const;

    std::vector<Work> mWorks;
    std::map<std::string, std::vector<double>> mFigures; ///< by full name
};

} // namespace Korvane::Bench
