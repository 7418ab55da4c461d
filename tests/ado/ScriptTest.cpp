#include "ado/ScriptVerbs.h"
#include "support/ScratchSchema.h"

#include <filesystem>
#include <fstream>
#include <map>

namespace Korvane::ado::Testing {

namespace {

/// Statements and what is to come of them, as the files in ado/scripts tell it.
struct Scene {
    EngineChoice engine;
    std::string title;
    std::vector<std::string> lines{};

    friend void PrintTo(const Scene& scene, std::ostream* out) { *out << scene.title; }
};

void readScenes(std::vector<Scene>& scenes, const EngineChoice& engine, const std::string& file) {
    std::ifstream text(KORVANE_TESTS_DIR "/ado/scripts/" + file);
    for (std::string line; std::getline(text, line);) {
        if (line.empty() || line.starts_with("# ")) continue;
        if (line.starts_with("== "))
            scenes.push_back({engine, line.substr(3)});
        else if (line.starts_with(" ")) // goes on
            scenes.back().lines.back() += line.substr(line.find_first_not_of(' ') - 1);
        else
            scenes.back().lines.push_back(line);
    }
}

std::vector<Scene> scenes() {
    std::vector<Scene> all;
    for (const EngineChoice& engine : engines()) {
        readScenes(all, engine, "Everywhere.txt");
        readScenes(all, engine, engine.name + ".txt");
    }
    return all;
}

} // namespace

class Script : public testing::TestWithParam<Scene> {
  protected:
    void SetUp() override {
        mEngine = GetParam().engine.make();
        if (!mEngine) GTEST_SKIP() << Korvane::Testing::ScratchSchema::noServer;
    }

    void play(const std::string& written) {
        std::string line = mEngine->inItsWords(written);
        const std::size_t mark = std::min(line.find(" => "), line.find(" !! "));
        const bool fails = line.substr(std::min(mark, line.size())).starts_with(" !!");
        std::string expected = mark == std::string::npos ? "" : line.substr(mark + 4);
        line.resize(std::min(mark, line.size()));
        try {
            const std::string result = done(line);
            EXPECT_FALSE(fails) << "no error";
            if (mark != std::string::npos && !fails) {
                EXPECT_EQ(result, expected);
            }
        } catch (const RuntimeError& error) {
            ASSERT_TRUE(fails) << error.Number() << " " << error.Description();
            expectError(error, word(expected), expected);
        }
    }

  private:
    std::string done(std::string line) {
        const std::string who = word(line);
        const std::string what = word(line);
        if (who == "raw") return mEngine->foreign(line);
        Actor& actor = mActors[who];
        if (!actor.db) actor.db = who == "lent" ? mEngine->lend() : mEngine->connect();
        return perform(actor, what, line);
    }

    /// The number, and what is said, in any order, with " & " between.
    static void expectError(const RuntimeError& error, const std::string& number, const std::string& says) {
        if (number != "*") {
            EXPECT_EQ(std::to_string(error.Number()), number) << error.Description();
        }
        std::string part;
        for (std::size_t at = 0; at < says.size(); at += part.size() + 3) {
            part = says.substr(at, says.find(" & ", at) - at);
            EXPECT_NE(error.Description().find(part), std::string::npos) << part << "\n"
                                                                         << error.Description();
        }
    }

    std::unique_ptr<Engine> mEngine;
    std::map<std::string, Actor> mActors; // gone before the engine
};

TEST_P(Script, ComesTrue) {
    for (const std::string& line : GetParam().lines) {
        SCOPED_TRACE(line);
        play(line);
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, Script, testing::ValuesIn(scenes()),
                         [](const auto& scene) { return scene.param.engine.name + "_" + scene.param.title; });

} // namespace Korvane::ado::Testing
