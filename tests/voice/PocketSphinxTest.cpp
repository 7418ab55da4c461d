#include "voice/Ear.h"

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <span>
#include <thread>

namespace Korvane::voice {
namespace {

using Testing::Ear;
using Testing::said;
using Heard = std::vector<std::string>;

class SpeechHeard : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!Testing::canSpeak()) GTEST_SKIP() << "espeak-ng or sox is missing";
        try {
            ear = std::make_unique<Ear>();
        } catch (const RuntimeError& e) {
            GTEST_SKIP() << e.Description();
        }
    }

    /// What is heard of a sound when something changes in the middle of it.
    Heard hearWhile(const std::function<void()>& change, const Testing::Sound& sound) {
        const auto half = std::span(sound).first(Testing::silence + 6000);
        ear->heard.clear();
        ear->microphone->On(true);
        ear->source->Push(half);
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        change();
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        ear->source->Push(std::span(sound).subspan(half.size()));
        ear->source->End("");
        EXPECT_TRUE(ear->loop->runUntil([&] { return !ear->microphone->On(); }));
        return ear->heard;
    }

    std::unique_ptr<Ear> ear;
};

TEST_F(SpeechHeard, IsGivenToTheMenuWhileItsWindowHasTheFocus) {
    EXPECT_EQ(ear->hear(said("next field")), Heard{"1"});
    EXPECT_EQ(ear->hear(said("previous field")), Heard{"2"});
    ear->engine->WindowFocus(Ear::window, false);
    EXPECT_EQ(ear->hear(said("next field")), Heard{});
    ear->engine->WindowFocus(Ear::window, true);
    ear->dictation->Activate(false);
    EXPECT_EQ(ear->hear(said("november")), Heard{});
    EXPECT_EQ(ear->hear(said("next field")), Heard{"1"}) << "commands do without dictation";
    ear->menu->Activate(false);
    EXPECT_EQ(ear->hear(said("next field")), Heard{});
}

TEST_F(SpeechHeard, IsDroppedWhenTheFocusCameOrWentMeanwhile) {
    const auto sound = said("next field");
    ear->engine->WindowFocus(Ear::window, false);
    EXPECT_EQ(hearWhile([&] { ear->engine->WindowFocus(Ear::window, true); }, sound), Heard{})
        << "it was begun for somebody else";
    EXPECT_EQ(ear->hear(sound), Heard{"1"});
}

TEST_F(SpeechHeard, IsComparedWithWhatThePartAwaitedCanBe) {
    const auto month = said("november"), day = said("twenty three"), year = said("nineteen eighty");
    const auto date = said("november fifteenth twenty twenty six");
    const Heard values{"november", "fifteenth", "twenty twenty six"};
    struct Case {
        DatePart part;
        Heard day, year;
    };
    for (const auto& c : {Case{DatePart::Any, {"twenty three"}, {"nineteen eighty"}},
                          Case{DatePart::Month, {}, {}}, Case{DatePart::Day, {"twenty three"}, {}},
                          Case{DatePart::Year, {"twenty three"}, {"nineteen eighty"}}}) {
        SCOPED_TRACE(static_cast<int>(c.part));
        ear->dictation->Awaited(c.part);
        EXPECT_EQ(ear->hear(day), c.day);
        EXPECT_EQ(ear->hear(year), c.year);
        EXPECT_EQ(ear->hear(month), Heard{"november"});
        EXPECT_EQ(ear->hear(date), values);
    }
}

TEST_F(SpeechHeard, IsForThePartThatWasAwaitedWhenItWasBegun) {
    const auto await = [&](DatePart part) { ear->dictation->Awaited(part); };
    await(DatePart::Month);
    const auto goOn = [&] { await(DatePart::Day); };
    EXPECT_EQ(hearWhile(goOn, said("november")), Heard{}) << "there it would be the day";
    await(DatePart::Month);
    EXPECT_EQ(hearWhile(goOn, said("next field")), Heard{"1"});
    await(DatePart::Month);
    const auto moves = ear->dictation->Dictated.connect([&](const std::string&) { await(DatePart::Year); });
    EXPECT_EQ(ear->hear(said("november fifteenth")), (Heard{"november", "fifteenth"})) << "in one go";
}

TEST_F(SpeechHeard, GoesToNobodyOnceItsListenerHasEndedItself) {
    const auto sound = said("next field"), date = said("may");
    const auto say = [&](const Testing::Sound& words) {
        ear->source->Push(words);
        ear->loop->runUntil([] { return false; }, std::chrono::seconds(1));
    };
    // From within, as a message box would let it come.
    const auto commanded = ear->commands->CommandRecognized.connect([&](std::int32_t) {
        ear->menu.reset();
        say(sound);
    });
    const auto dictated = ear->dictation->Dictated.connect([&](const std::string&) {
        ear->dictation.reset();
        say(date);
    });
    ear->microphone->On(true);
    say(sound);
    say(date);
    EXPECT_EQ(ear->heard, (Heard{"1", "may"}));
}

TEST_F(SpeechHeard, MayHoldWordsOfTheHostsOwn) {
    ear->menu->Add(3, "Onwards, please!", "", "");
    ear->menu->Add(4, "Weiter 2", "", "");
    EXPECT_EQ(ear->hear(said("onwards please")), Heard{"3"});
    EXPECT_EQ(ear->hear(said("whyter two")), Heard{"4"});
    EXPECT_EQ(ear->hear(said("next field")), Heard{"1"});
    try {
        ear->menu->Add(5, "Nächstes Feld", "", "");
        FAIL() << "a word that cannot be pronounced was taken";
    } catch (const RuntimeError& e) {
        EXPECT_NE(e.Description().find("\"N\xc3\xa4"
                                       "chstes\""),
                  std::string::npos)
            << e.Description();
    }
    EXPECT_THROW(ear->menu->Add(6, " .", "", ""), RuntimeError);
}

TEST_F(SpeechHeard, EndsWithTheEngineWhateverWasSaid) {
    const auto sound = said("next field");
    ear->microphone->On(true);
    ear->source->Push(sound);
    const auto started = std::chrono::steady_clock::now();
    ear->engine.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(2));
    ear->loop->runUntil([] { return false; }, std::chrono::seconds(0));
    EXPECT_EQ(ear->heard, Heard{});
    EXPECT_FALSE(ear->microphone->On());
    EXPECT_THROW(ear->microphone->On(true), RuntimeError);
}

TEST_F(SpeechHeard, EndsWithTheReasonThatItsSourceRaises) {
    struct Broken : StreamSource {
        std::optional<std::size_t> Read(std::span<std::int16_t>, std::chrono::milliseconds) override {
            throw RuntimeError(RuntimeError::DeviceIo, "The headset is out of reach.");
        }
    };
    const auto engine = openPocketSphinx(
        std::make_shared<Broken>(), [this](std::function<void()> work) { ear->loop->post(std::move(work)); });
    const auto microphone = engine->MakeMicrophone();
    microphone->On(true);
    ASSERT_TRUE(ear->loop->runUntil([&] { return !microphone->On(); }));
    EXPECT_EQ(microphone->Status(), "The headset is out of reach.");
}

TEST(SpeechEngine, SaysWhatIsMissing) {
    try {
        openPocketSphinx(
            std::make_shared<StreamSource>(), [](const auto&) {}, "/nowhere");
        FAIL() << "an engine without a model";
    } catch (const RuntimeError& e) {
        EXPECT_NE(e.Description().find("/nowhere/en-us is missing"), std::string::npos) << e.Description();
    }
    install(nullptr, "No model.");
    EXPECT_EQ(whyAbsent(), "No model.");
    install(nullptr);
    EXPECT_NE(whyAbsent(), "");
}

TEST_F(SpeechHeard, IsToldFromOtherSentences) {
    for (const auto part : {DatePart::Month, DatePart::Day, DatePart::Year}) {
        ear->dictation->Awaited(part);
        for (const auto* words : {"please sign the consent form", "the wound is healing well",
                                  "put your coat over there", "why not"})
            EXPECT_EQ(ear->hear(said(words)), Heard{}) << words;
    }
}

} // namespace
} // namespace Korvane::voice
