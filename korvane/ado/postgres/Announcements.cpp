#include <korvane/ado/postgres/Announcements.h>

#include <algorithm>

namespace Korvane::ado::postgres {

void Announcements::add(std::span<const std::string> statements) {
    std::erase_if(mItems, [](const Item& item) { return item.taken; });
    for (const std::string& statement : statements)
        mItems.push_back({.statement = statement});
}

void Announcements::clear() {
    mItems.clear();
    mUpdated.clear();
}

Announcements::Item* Announcements::find(std::string_view statement) {
    const auto found = std::find_if(mItems.begin(), mItems.end(), [&](const Item& item) {
        return !item.taken && item.statement == statement;
    });
    return found == mItems.end() ? nullptr : &*found;
}

std::vector<Announcements::Item*> Announcements::waitingFrom(const Item& first) {
    std::vector<Item*> waiting;
    for (Item& item : mItems) {
        if (item.taken || item.outcome || item.needless) continue;
        if (&item < &first) return {};
        waiting.push_back(&item);
    }
    return waiting;
}

void Announcements::dropReads() {
    for (Item& item : mItems) {
        if (!item.taken && !item.writes) item.outcome.reset();
    }
}

bool Announcements::hasUnaskedWrites() const {
    return std::any_of(mItems.begin(), mItems.end(),
                       [](const Item& item) { return !item.taken && item.writes && item.outcome; });
}

std::optional<std::int32_t> Announcements::updated(const std::string& table) const {
    const auto found = mUpdated.find(table);
    return found == mUpdated.end() ? std::nullopt : std::optional(found->second);
}

} // namespace Korvane::ado::postgres
