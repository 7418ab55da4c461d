#include "fuzz/Properties.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace Korvane::Fuzz {

namespace {

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The texts that once broke a property.
std::vector<std::string> regressions(std::string_view property) {
    const auto folder = std::filesystem::path(KORVANE_TESTS_DIR "/fuzz/regressions") / property;
    std::vector<std::string> texts;
    if (!std::filesystem::exists(folder)) return texts;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        texts.push_back(contentsOf(entry.path()));
    return texts;
}

/// The statements of the golden files.
std::vector<std::string> statements() {
    std::vector<std::string> all;
    for (const char* engine : {"sqlite", "postgres"}) {
        std::ifstream file(std::string(KORVANE_TESTS_DIR "/ado/golden/") + engine + ".txt");
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("> ")) all.push_back(line.substr(2));
        }
    }
    return all;
}

} // namespace

class EveryText : public testing::TestWithParam<Property> {};

TEST_P(EveryText, KeepsTheProperty) {
    const bool measures = GetParam().name == "growing";
    std::vector<std::string> texts = regressions(GetParam().name);
    // Measuring takes its time; what is repeated there is chosen.
    if (!measures) std::ranges::move(statements(), std::back_inserter(texts));
    EXPECT_FALSE(texts.empty());
    for (const std::string& text : texts)
        EXPECT_NO_THROW(measures ? growsEvenly(text, 64 * 1024) : GetParam().tryWith(text)) << text;
}

INSTANTIATE_TEST_SUITE_P(Properties, EveryText, testing::ValuesIn(properties().begin(), properties().end()),
                         [](const auto& property) { return std::string(property.param.name); });

} // namespace Korvane::Fuzz
