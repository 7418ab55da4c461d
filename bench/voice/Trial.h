#pragma once

#include "voice/Ear.h"

#include <string>
#include <vector>

namespace Korvane::Testing {

/// What was heard of many sentences that were said in the same surroundings.
struct Tally {
    std::string speakers, surroundings;
    int commands = 0, commandsRight = 0;
    int values = 0, valuesRight = 0, valuesWrong = 0;
    int others = 0, othersAsCommand = 0, othersAsValue = 0;
};

/// How much is said in a trial.
struct Amount {
    int commands, values, others;
};

/// Lets speakers picked by chance say as much, each value while its part of a date is awaited, amid noise of
/// a kind (none for "") `decibels` below them.
Tally tryOut(Ear& ear, Amount amount, bool recordedVoices, const std::string& noiseKind, double decibels);

/// Delays of commands and values after the end of the last word, sorted; of those that were heard.
std::vector<int> tryDelays(Ear& ear, int count);

void printTable(const std::vector<Tally>& tallies, const std::vector<int>& delays);

} // namespace Korvane::Testing
