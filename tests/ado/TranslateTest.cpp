#include <korvane/ado/sql/Lift.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/Translating.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace Korvane::ado::Testing {

namespace {

using Korvane::Testing::KnownTables;
using Korvane::Testing::Translating;
using Korvane::Testing::translations;

std::string namesOf(const sql::Translation& translation) {
    std::string names;
    for (const sql::ParameterRule& rule : translation.parameters) {
        names += names.empty() ? "" : " ";
        names += rule.column ? rule.column->name + (rule.use == sql::Use::Store ? "!" : "") : "-";
    }
    return names;
}

/// One entry of the golden file, as it is now: the statement (>), its shape (~; of a server what it prepares)
/// and what its values meet (?), its translation (=) or the error (!). Lines that would say nothing are left
/// out.
std::string described(const std::string& statement, const Translating& engine) {
    const KnownTables tables = engine.tables();
    sql::Lifter lifter;
    lifter.lift(statement);
    const std::string shape(lifter.shape());
    std::string text = "> " + statement + "\n";
    if (shape != statement) {
        const sql::Translation prepared = engine.translate(shape, tables, {});
        text += "~ " + (engine.isServer ? prepared.text : shape) + "\n? " + namesOf(prepared) + "\n";
    }
    try {
        const std::string translated = engine.translate(statement, tables, {}).text;
        if (translated != statement) text += "= " + translated + "\n";
    } catch (const RuntimeError& error) {
        text += "! " + error.Description() + "\n";
    }
    return text;
}

} // namespace

class Translate : public testing::TestWithParam<Translating> {};

// The file's entries are told apart by blank lines; # begins a remark.
TEST_P(Translate, GivesWhatTheGoldenFileHolds) {
    std::ifstream file(KORVANE_TESTS_DIR "/ado/golden/" + GetParam().name + ".txt");
    std::string statement;
    std::string expected;
    int entries = 0;
    const auto check = [&] {
        if (statement.empty()) return;
        EXPECT_EQ(described(statement, GetParam()), expected);
        statement.clear();
        expected.clear();
        ++entries;
    };
    for (std::string line; std::getline(file, line);) {
        if (line.empty()) check();
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with("> ")) statement = line.substr(2);
        expected += line + "\n";
    }
    check();
    EXPECT_GT(entries, 50);
}

INSTANTIATE_TEST_SUITE_P(Engines, Translate, testing::ValuesIn(translations()),
                         [](const auto& engine) { return engine.param.name; });

} // namespace Korvane::ado::Testing
