#include "Goals.h"

namespace Korvane::Bench {

namespace {

/// With an empty size: of every one.
struct Goal {
    std::string_view work, size, other;
    double most;
};

constexpr Goal ratios[] = {
    {"LoadStructure", "", "literal", 1.3},      {"Load", "20x40", "literal", 0.3},
    {"Load", "50x100", "literal", 0.3},         {"Load", "20x40", "prepared", 1.6},
    {"Load", "50x100", "prepared", 1.6},        {"Load", "", "QtSql", 0.2},
    {"Update", "50x100", "literal", 0.7},       {"Update", "", "literal", 1.0},
    {"Insert", "50x100", "literal", 0.7},       {"Insert", "", "literal", 1.0},
    {"Tabs", "50x100", "widgets", 0.06},        {"TabsMemory", "50x100", "widgets", 0.12},
    {"LoadStructure@server", "", "libpq", 1.2}, {"Load@server", "", "libpq", 0.3},
    {"Update@server", "", "libpq", 0.7},        {"ChangeField", "", "literal", 1.5},
    {"NewField", "", "literal", 1.5},           {"Rebuild", "", "literal", 1.5},
    {"ChangeField@server", "", "libpq", 1.5},   {"NewField@server", "", "libpq", 1.5},
    {"ChangeField@1ms", "", "libpq", 1.5},      {"NewField@1ms", "", "libpq", 1.5},
    {"ChangeField@10ms", "", "libpq", 1.5},     {"NewField@10ms", "", "libpq", 1.5},
};

constexpr Goal amounts[] = {
    {"LoadStructureTrips@10ms", "", "", 3}, {"LoadTrips@10ms", "", "", 3},
    {"UpdateTrips@10ms", "", "", 5},        {"InsertTrips@10ms", "", "", 5},
    {"Load@10ms", "50x100", "", 0.070},
};

template <std::size_t count>
std::optional<double> find(const Goal (&goals)[count], std::string_view work, std::string_view size,
                           std::string_view other) {
    for (const Goal& each : goals)
        if (each.work == work && each.other == other && (each.size.empty() || each.size == size))
            return each.most;
    return std::nullopt;
}

} // namespace

std::optional<double> goal(std::string_view work, std::string_view size, std::string_view other) {
    return find(ratios, work, size, other);
}

std::optional<double> amountGoal(std::string_view work, std::string_view size) {
    return find(amounts, work, size, "");
}

} // namespace Korvane::Bench
