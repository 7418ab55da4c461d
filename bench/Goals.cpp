#include "Goals.h"

namespace Korvane::Bench {

namespace {

struct Goal {
    std::string_view work, size, other; ///< an empty size: every one
    double ratio;
};

constexpr Goal goals[] = {
    {"LoadStructure", "", "literal", 1.3}, {"Load", "20x40", "literal", 0.3},
    {"Load", "50x100", "literal", 0.3},    {"Load", "20x40", "prepared", 1.6},
    {"Load", "50x100", "prepared", 1.6},   {"Load", "", "QtSql", 0.2},
    {"Update", "50x100", "literal", 0.7},  {"Update", "", "literal", 1.0},
    {"Insert", "50x100", "literal", 0.7},  {"Insert", "", "literal", 1.0},
    {"Tabs", "50x100", "widgets", 0.06},   {"TabsMemory", "50x100", "widgets", 0.12},
};

} // namespace

std::optional<double> goal(std::string_view work, std::string_view size, std::string_view other) {
    for (const Goal& each : goals)
        if (each.work == work && each.other == other && (each.size.empty() || each.size == size))
            return each.ratio;
    return std::nullopt;
}

} // namespace Korvane::Bench
