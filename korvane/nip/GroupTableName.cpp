#include <korvane/nip/GroupTableName.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace Korvane {

namespace {

constexpr std::string_view prefix = "NIP_Custom";

/// 0 for a name of another form.
std::int32_t numberIn(std::string_view name) {
    if (name.size() <= prefix.size() || !sameName(name.substr(0, prefix.size()), prefix)) return 0;
    std::int32_t number = 0;
    const char* end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data() + prefix.size(), end, number);
    return error == std::errc{} && stop == end ? number : 0;
}

} // namespace

std::string tableNameAfter(std::string_view greatest) {
    constexpr std::size_t shortNameSize = 11;
    if (greatest.empty() || greatest.size() > shortNameSize) return std::string(prefix) + '1';
    const std::string_view behind = greatest.substr(std::min(greatest.size(), shortNameSize));
    return std::string(prefix) + numberText(leadingNumber(behind));
}

std::string nextTableName(std::span<const std::string> taken) {
    std::int32_t greatest = 0;
    for (const std::string& name : taken)
        greatest = std::max(greatest, numberIn(name));
    if (greatest == std::numeric_limits<std::int32_t>::max()) throw RuntimeError(RuntimeError::Overflow);
    return std::string(prefix) + std::to_string(greatest + 1);
}

} // namespace Korvane
