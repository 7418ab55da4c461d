#pragma once

#include <korvane/voice/pocketsphinx/Wanted.h>
#include <korvane/voice/pocketsphinx/WordGraph.h>

namespace Korvane::voice {

/// The sentences that are wanted: commands, what the part of a date can be that is awaited, and names of
/// months and whole dates, which say themselves where they belong.
WordGraph wantedSentences(const Wanted& wanted);

/// Adds other sentences to tell them from, made of common words and of the words of commands and dates in any
/// order. One is put together from what sounds most like it, and then costs more than a command that sounds
/// the same. This was measured against phones in any order, which let more through and took more commands for
/// something else.
void addOtherSentences(WordGraph& graph);

} // namespace Korvane::voice
