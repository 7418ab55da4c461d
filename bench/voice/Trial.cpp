#include "Trial.h"

#include "Voices.h"

#include <korvane/voice/SpokenNumber.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <thread>

namespace Korvane::Testing {

namespace {

constexpr const char* commands[] = {"next field", "previous field"};
using Words = std::span<const char* const>;

constexpr const char* months[] = {"january", "august",   "three",     "ten",     "may",      "december",
                                  "seven",   "february", "september", "four",    "eleven",   "june",
                                  "one",     "eight",    "march",     "october", "five",     "twelve",
                                  "july",    "two",      "nine",      "april",   "november", "six"};
constexpr const char* days[] = {
    "one",          "third",        "six",        "eighth",        "eleven",       "thirteenth",
    "sixteen",      "eighteenth",   "twenty one", "twenty third",  "twenty six",   "twenty eighth",
    "thirty one",   "second",       "five",       "seventh",       "ten",          "twelfth",
    "fifteen",      "seventeenth",  "twenty",     "twenty second", "twenty five",  "twenty seventh",
    "thirty",       "first",        "four",       "sixth",         "nine",         "eleventh",
    "fourteen",     "sixteenth",    "nineteen",   "twenty first",  "twenty four",  "twenty sixth",
    "twenty nine",  "thirty first", "three",      "fifth",         "eight",        "tenth",
    "thirteen",     "fifteenth",    "eighteen",   "twentieth",     "twenty three", "twenty fifth",
    "twenty eight", "thirtieth",    "two",        "fourth",        "seven",        "ninth",
    "twelve",       "fourteenth",   "seventeen",  "nineteenth",    "twenty two",   "twenty fourth",
    "twenty seven", "twenty ninth"};
constexpr const char* years[] = {
    "twenty twenty five",     "twenty ten",           "twenty nineteen",    "nineteen fifty two",
    "nineteen thirty eight",  "nineteen oh eight",    "two thousand",       "two thousand and one",
    "two thousand seven",     "nineteen ninety one",  "one nine six three", "nineteen seventy",
    "nineteen seventy seven", "two thousand sixteen", "nineteen sixty six", "twenty twenty seven"};
constexpr const char* tuningYears[] = {"twenty twenty six",    "twenty twenty",         "twenty fifteen",
                                       "nineteen eighty four", "nineteen forty five",   "nineteen oh five",
                                       "two thousand",         "two thousand and five", "two thousand twelve",
                                       "nineteen ninety nine", "one nine eight four",   "nineteen sixty"};
constexpr const char* sentences[] = {"please sign the consent form",
                                     "the doctor will be with you shortly",
                                     "did you bring your insurance card",
                                     "her knee is swollen",
                                     "we will send the letter today",
                                     "he sleeps badly and snores",
                                     "take a deep breath",
                                     "the wound is healing well",
                                     "does anybody in the family have diabetes",
                                     "put your coat over there",
                                     "I am running late",
                                     "one moment please",
                                     "just a second",
                                     "okay",
                                     "sure",
                                     "not now",
                                     "thanks",
                                     "good afternoon",
                                     "see you next month",
                                     "the previous doctor said so",
                                     "call me in ten minutes",
                                     "room four is free",
                                     "he weighs eighty kilos",
                                     "pulse is seventy two",
                                     "she takes it twice a day",
                                     "it may be an infection",
                                     "the second dose is due",
                                     "turn on the light",
                                     "where did I put my glasses",
                                     "never mind",
                                     "what do you think",
                                     "lie on your back",
                                     "say it once more",
                                     "is there any pain",
                                     "I forgot the password",
                                     "the printer is out of paper",
                                     "he broke his arm in the summer",
                                     "your appointment is at nine thirty",
                                     "this one is for you",
                                     "come in",
                                     "wait for me",
                                     "delete the last line",
                                     "fill in the next form",
                                     "previously healed",
                                     "text me later",
                                     "an open field of corn",
                                     "yesterday evening",
                                     "why not",
                                     "there are too many people here",
                                     "we ate at home"};
constexpr const char* tuningSentences[] = {"please call the patient back tomorrow",
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

/// What is said for a part of a date, with that part awaited.
struct Value {
    voice::DatePart part;
    std::string words;
};

constexpr voice::DatePart parts[] = {voice::DatePart::Month, voice::DatePart::Day, voice::DatePart::Year};

Value value(int i) {
    const auto part = static_cast<std::size_t>(i) % std::size(parts),
               n = static_cast<std::size_t>(i) / std::size(parts);
    const Words all[] = {months, days, isTuning() ? Words(tuningYears) : Words(years)};
    return {parts[part], all[part][n % all[part].size()]};
}

std::string otherSentence(int i) {
    const auto all = isTuning() ? Words(tuningSentences) : Words(sentences);
    return all[static_cast<std::size_t>(i) % all.size()];
}

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

double percent(int part, int whole) {
    return whole == 0 ? 100 : 100.0 * part / whole;
}

/// Lets a sound be heard at the pace of speech. How long after the last word's end the first answer came, if
/// one came.
std::optional<std::chrono::milliseconds> delayOf(Ear& ear, const Sound& sound) {
    using std::chrono::steady_clock;
    constexpr std::size_t piece = 160;
    ear.heard.clear();
    steady_clock::time_point end, answered;
    ear.microphone->On(true);
    const auto start = steady_clock::now();
    std::thread speaker([&] {
        for (std::size_t at = 0; at < sound.size(); at += piece) {
            std::this_thread::sleep_until(start + std::chrono::microseconds(at * 1000000 / 16000));
            if (at < sound.size() - silence) end = steady_clock::now();
            ear.source->Push(std::span(sound).subspan(at, std::min(piece, sound.size() - at)));
        }
        ear.source->End("The sound has ended.");
    });
    ear.loop->runUntil([&] {
        if (!ear.heard.empty() && answered == steady_clock::time_point()) answered = steady_clock::now();
        return !ear.microphone->On();
    });
    speaker.join();
    if (ear.heard.empty()) return std::nullopt;
    return std::chrono::duration_cast<std::chrono::milliseconds>(answered - end);
}

} // namespace

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
        const auto [part, said] = value(i);
        ear.dictation->Awaited(part);
        const auto heard = hear(said);
        const bool right = heard.size() == 1 && meaning(heard.front()) == meaning(said);
        tally.valuesRight += right;
        tally.valuesWrong += !right && !heard.empty();
        note(tally, right, said, heard);
    }
    for (int i = 0; i < amount.others; ++i, ++tally.others) {
        const auto said = otherSentence(i);
        ear.dictation->Awaited(parts[static_cast<std::size_t>(i) % std::size(parts)]);
        const auto heard = hear(said);
        const bool asCommand = std::ranges::any_of(heard, isCommand);
        tally.othersAsCommand += asCommand;
        tally.othersAsValue += !asCommand && !heard.empty();
        note(tally, heard.empty(), said, heard);
    }
    return tally;
}

std::vector<int> tryDelays(Ear& ear, int count) {
    std::mt19937 chance(12);
    std::vector<int> delays;
    for (int i = 0; i < count; ++i) {
        const auto [part, said] = value(i);
        ear.dictation->Awaited(part);
        const auto words = i % 2 == 0 ? commands[i / 2 % 2] : said;
        const auto sound = amid(speak({"en-us", 140 + i, 50}, words), "white", 40, chance);
        if (const auto delay = delayOf(ear, sound)) delays.push_back(static_cast<int>(delay->count()));
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
