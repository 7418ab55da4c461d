#include <korvane/runtime/Text.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace Korvane {

namespace {

constexpr char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string upperCase(std::string_view text) {
    std::string out(text);
    std::ranges::transform(out, out.begin(), upper);
    return out;
}

std::string lowerCase(std::string_view text) {
    std::string out(text);
    std::ranges::transform(out, out.begin(), lower);
    return out;
}

bool sameName(std::string_view a, std::string_view b) {
    return a == b || (a.size() == b.size() && std::ranges::equal(a, b, {}, lower, lower));
}

// Letters that differ in case only give the same value; eight characters at a time.
std::size_t nameHash(std::string_view name) {
    constexpr std::uint64_t lowerCaseBits = 0x2020202020202020U;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = name.size();
    while (!name.empty()) {
        std::uint64_t part = 0;
        const std::size_t length = std::min(name.size(), sizeof part);
        std::memcpy(&part, name.data(), length);
        hash = (hash ^ (part | lowerCaseBits)) * factor;
        hash ^= hash >> 32;
        name.remove_prefix(length);
    }
    return static_cast<std::size_t>(hash);
}

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string escapeQuotes(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendEscaped(out, text);
    return out;
}

void appendEscaped(std::string& statement, std::string_view text) {
    for (std::size_t quote; (quote = text.find('\'')) != std::string_view::npos;) {
        statement.append(text.substr(0, quote + 1)).push_back('\'');
        text.remove_prefix(quote + 1);
    }
    statement.append(text);
}

} // namespace Korvane
