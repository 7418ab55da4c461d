#include "voice/Trial.h"

#include <korvane/voice/SpokenNumber.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Korvane::Testing {

namespace {

constexpr const char* commands[] = {"next field", "previous field"};
constexpr const char* values[] = {"january",
                                  "november",
                                  "fifteen",
                                  "twenty twenty six",
                                  "february",
                                  "march",
                                  "april",
                                  "may",
                                  "june",
                                  "july",
                                  "august",
                                  "september",
                                  "october",
                                  "december",
                                  "one",
                                  "two",
                                  "three",
                                  "four",
                                  "five",
                                  "six",
                                  "seven",
                                  "eight",
                                  "nine",
                                  "ten",
                                  "eleven",
                                  "twelve",
                                  "thirteen",
                                  "fourteen",
                                  "sixteen",
                                  "seventeen",
                                  "eighteen",
                                  "nineteen",
                                  "twenty",
                                  "twenty one",
                                  "twenty two",
                                  "twenty three",
                                  "twenty five",
                                  "twenty eight",
                                  "thirty",
                                  "thirty one",
                                  "first",
                                  "third",
                                  "fifteenth",
                                  "twenty first",
                                  "twenty twenty",
                                  "twenty fifteen",
                                  "nineteen eighty four",
                                  "nineteen forty five",
                                  "nineteen oh five",
                                  "two thousand",
                                  "two thousand and five",
                                  "two thousand twelve",
                                  "nineteen ninety nine",
                                  "one nine eight four",
                                  "nineteen sixty"};
constexpr const char* others[] = {"please call the patient back tomorrow",
                                  "she has a mild fever and a cough",
                                  "could you close the door",
                                  "the next patient is waiting outside",
                                  "thank you very much",
                                  "I will see him next week",
                                  "have a look at the previous visit",
                                  "take two tablets three times a day",
                                  "good morning how are you feeling today",
                                  "what time is it",
                                  "blood pressure is one twenty over eighty",
                                  "no allergies",
                                  "the results came in yesterday",
                                  "we should order another test",
                                  "can you hear me",
                                  "hello",
                                  "where does it hurt",
                                  "next time",
                                  "previous one",
                                  "the field is empty",
                                  "he was born in the spring",
                                  "let me check the chart",
                                  "send it to the pharmacy",
                                  "breathe in and hold",
                                  "is that all right with you",
                                  "my phone is ringing",
                                  "it has been a long day",
                                  "open the window",
                                  "yes",
                                  "no",
                                  "maybe later",
                                  "her mother may come in",
                                  "march over there and ask",
                                  "they said nothing about it",
                                  "sit down please",
                                  "how old is your son",
                                  "I need a new prescription",
                                  "turn to the left",
                                  "nurse could you come here for a second",
                                  "text file",
                                  "football field",
                                  "next year",
                                  "preview the file",
                                  "go to the next field and type",
                                  "what was in the previous field",
                                  "this is a wide field"};

std::string meaning(const std::string& words) {
    return voice::spokenNumber(words).value_or(words);
}

bool isCommand(const std::string& heard) {
    return heard == "1" || heard == "2";
}

/// KORVANE_VOICE_ERRORS=1 shows what was misheard.
void note(const Tally& tally, bool right, const std::string& said, const std::vector<std::string>& heard) {
    if (right || !std::getenv("KORVANE_VOICE_ERRORS")) return;
    std::printf("%s, %s: \"%s\" was heard as", tally.speakers.c_str(), tally.surroundings.c_str(),
                said.c_str());
    for (const auto& words : heard)
        std::printf(" \"%s\"", words.c_str());
    std::printf("\n");
}

} // namespace

double percent(int part, int whole) {
    return whole == 0 ? 100 : 100.0 * part / whole;
}

Tally tryOut(Ear& ear, Amount amount, bool recordedVoices, const std::string& noiseKind, double decibels) {
    std::mt19937 chance(11);
    Tally tally;
    tally.speakers = recordedVoices ? "flite" : "espeak-ng";
    tally.surroundings =
        noiseKind.empty() ? "quiet" : noiseKind + " " + std::to_string(static_cast<int>(decibels)) + " dB";
    const auto hear = [&](const std::string& words) {
        return ear.hear(amid(speak(anySpeaker(chance, recordedVoices), words), noiseKind, decibels, chance));
    };
    for (int i = 0; i < amount.commands; ++i, ++tally.commands) {
        const auto heard = hear(commands[i % 2]);
        const bool right = heard == std::vector{std::to_string(i % 2 + 1)};
        tally.commandsRight += right;
        note(tally, right, commands[i % 2], heard);
    }
    for (int i = 0; i < amount.values; ++i, ++tally.values) {
        const std::string said = values[static_cast<std::size_t>(i) % std::size(values)];
        const auto heard = hear(said);
        const bool right = heard.size() == 1 && meaning(heard.front()) == meaning(said);
        tally.valuesRight += right;
        tally.valuesWrong += !right && !heard.empty();
        note(tally, right, said, heard);
    }
    for (int i = 0; i < amount.others; ++i, ++tally.others) {
        const auto heard = hear(others[static_cast<std::size_t>(i) % std::size(others)]);
        const bool asCommand = std::ranges::any_of(heard, isCommand);
        tally.othersAsCommand += asCommand;
        tally.othersAsValue += !asCommand && !heard.empty();
        note(tally, heard.empty(), others[static_cast<std::size_t>(i) % std::size(others)], heard);
    }
    return tally;
}

std::vector<int> tryDelays(Ear& ear, int count) {
    std::mt19937 chance(12);
    std::vector<int> delays;
    for (int i = 0; i < count; ++i) {
        const auto* words = i % 2 == 0 ? commands[i / 2 % 2] : values[i % 4];
        const auto sound = amid(speak({"en-us", 140 + i, 50}, words), "white", 40, chance);
        const auto delay = ear.delay(sound);
        if (!ear.heard.empty()) delays.push_back(static_cast<int>(delay.count()));
    }
    std::ranges::sort(delays);
    return delays;
}

void printTable(const std::vector<Tally>& tallies, const std::vector<int>& delays) {
    std::printf("| voices | noise below speech | commands recognised | values right (wrong) | other "
                "sentences taken for a "
                "command (a value) |\n|---|---|---|---|---|\n");
    for (const auto& t : tallies)
        std::printf("| %s | %s | %.1f %% of %d | %.1f %% (%.1f %%) of %d | %.1f %% (%.1f %%) of %d |\n",
                    t.speakers.c_str(), t.surroundings.c_str(), percent(t.commandsRight, t.commands),
                    t.commands, percent(t.valuesRight, t.values), percent(t.valuesWrong, t.values), t.values,
                    percent(t.othersAsCommand, t.others), percent(t.othersAsValue, t.others), t.others);
    if (delays.empty()) return;
    std::printf("Delay after the end of speech: median %d ms, 95 %% within %d ms, of %zu.\n",
                delays[delays.size() / 2], delays[delays.size() * 95 / 100], delays.size());
}

} // namespace Korvane::Testing
