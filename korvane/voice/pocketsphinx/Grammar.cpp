#include <korvane/voice/pocketsphinx/Grammar.h>

#include <algorithm>
#include <set>

namespace Korvane::voice {

namespace {

constexpr std::string_view months =
    "january february march april may june july august september october november december";
constexpr std::string_view ones = "one two three four five six seven eight nine";
constexpr std::string_view teens =
    "ten eleven twelve thirteen fourteen fifteen sixteen seventeen eighteen nineteen";
constexpr std::string_view earlyTens = "twenty thirty", lateTens = "forty fifty sixty seventy eighty ninety";
constexpr std::string_view ordinals = "first second third fourth fifth sixth seventh eighth ninth";
constexpr std::string_view laterOrdinals = "tenth eleventh twelfth thirteenth fourteenth fifteenth sixteenth "
                                           "seventeenth eighteenth nineteenth twentieth thirtieth";
constexpr std::string_view zeros = "oh zero";

/// The likeliest words of the language, and some that are said by themselves, without those that sound like a
/// number.
constexpr std::string_view commonWords = "the i and a of you that in it is but know was have they on like be "
                                         "not it's so with are this he yeah just my we as "
                                         "what if do at or don't about i'm all think there would from me "
                                         "people can your get out no that's said up more when an "
                                         "had right well really has will because how time them she been by "
                                         "some who their his were now then go good mean than "
                                         "going her see could much other you're got even only want did him "
                                         "something very where here way lot make say years "
                                         "back any new our also hello yes please";

// Costs, in nats; sound itself is overconfident, so they are large. Chosen by measuring, see docs/voice.md.
// What is awaited costs less than nothing: costs near the decoder's beam would have it give up too early.
constexpr double otherSentence = 25, otherWord = 30, command = 52;
constexpr double awaitedPart = -12, monthNumber = -6, otherPart = 45, wholeDate = 50, otherDate = 60;
constexpr double year = 6, rareYear = 30, digits = 35, shortYear = 20;

void addDay(WordGraph& graph, int from, int to, double cost) {
    for (const auto words : {ones, teens, ordinals, laterOrdinals})
        graph.either(from, to, words, cost);
    graph.either(from, to, earlyTens, cost);
    const int twenty = graph.state(), thirty = graph.state();
    graph.either(from, twenty, "twenty", cost);
    for (const auto words : {ones, ordinals})
        graph.either(twenty, to, words);
    graph.either(from, thirty, "thirty", cost);
    graph.either(thirty, to, "one first");
}

/// Ten to ninety nine; the ones need their zero: "oh five".
void addPair(WordGraph& graph, int from, int to, double zeroCost, double lateCost) {
    graph.either(from, to, teens);
    const int ten = graph.state();
    for (const auto& [words, cost] : {std::pair{earlyTens, 0.0}, {lateTens, lateCost}}) {
        graph.either(from, to, words, cost);
        graph.either(from, ten, words, cost);
    }
    graph.either(ten, to, ones);
    const int zero = graph.state();
    graph.either(from, zero, zeros, zeroCost);
    graph.either(zero, to, ones);
}

void addYear(WordGraph& graph, int from, int to, double cost) {
    const int nineteen = graph.state(), twenty = graph.state();
    graph.either(from, nineteen, "nineteen", cost);
    graph.either(from, nineteen, "eighteen", cost + rareYear / 2);
    graph.either(nineteen, to, "hundred", year);
    addPair(graph, nineteen, to, year, 0);
    // Years after two thousand are seldom said with a zero, and those from 2040 on are seldom meant.
    graph.either(from, twenty, "twenty", cost);
    addPair(graph, twenty, to, rareYear, rareYear / 2);

    const int two = graph.state(), thousand = graph.state(), rest = graph.state(), ten = graph.state();
    graph.either(from, two, "two", cost);
    graph.either(two, to, "thousand");
    graph.either(two, thousand, "thousand");
    graph.either(thousand, rest, "and");
    graph.skip(thousand, rest);
    graph.either(rest, to, ones);
    graph.either(rest, to, teens);
    graph.either(rest, to, earlyTens);
    graph.either(rest, ten, earlyTens);
    graph.either(ten, to, ones);
}

/// "one nine eight four", "two oh oh five".
void addDigits(WordGraph& graph, int from, int to, double cost) {
    const int one = graph.state(), two = graph.state(), century = graph.state(), decade = graph.state();
    graph.either(from, one, "one", cost);
    graph.either(one, century, "eight nine");
    graph.either(from, two, "two", cost);
    graph.either(two, century, zeros);
    for (const auto words : {ones, zeros}) {
        graph.either(century, decade, words);
        graph.either(decade, to, words);
    }
}

/// A month, or a date that begins with one.
void addMonth(WordGraph& graph, double cost, double dateCost) {
    constexpr int from = WordGraph::start, to = WordGraph::end;
    graph.either(from, to, months, cost);
    const int month = graph.state(), day = graph.state();
    graph.either(from, month, months, dateCost);
    addDay(graph, month, day, 0);
    graph.skip(day, to);
    addYear(graph, day, to, year);
}

void addDates(WordGraph& graph, DatePart awaited) {
    constexpr int from = WordGraph::start, to = WordGraph::end;
    switch (awaited) {
    case DatePart::Any:
        addMonth(graph, 0, otherDate);
        addDay(graph, from, to, 0);
        addYear(graph, from, to, year);
        addDigits(graph, from, to, digits);
        break;
    case DatePart::Month:
        addMonth(graph, awaitedPart, wholeDate);
        graph.either(from, to, ones, monthNumber);
        graph.either(from, to, "ten eleven twelve", monthNumber);
        break;
    case DatePart::Day:
        addMonth(graph, otherPart, otherDate);
        addDay(graph, from, to, awaitedPart);
        break;
    case DatePart::Year:
        addMonth(graph, otherPart, otherDate);
        addYear(graph, from, to, awaitedPart);
        addDigits(graph, from, to, digits);
        const int twoDigits = graph.state();
        graph.skip(from, twoDigits, shortYear);
        addPair(graph, twoDigits, to, 0, 0);
        break;
    }
}

} // namespace

WordGraph wantedSentences(const Wanted& wanted) {
    WordGraph graph;
    for (const auto& phrase : wanted.commands)
        graph.sequence(WordGraph::start, WordGraph::end, phrase, command);
    if (wanted.dates) addDates(graph, wanted.awaited);
    return graph;
}

void addOtherSentences(WordGraph& graph) {
    WordGraph all = graph;
    for (const auto some :
         {commonWords, months, ones, teens, earlyTens, lateTens, ordinals, laterOrdinals, zeros})
        all.either(0, 0, some);
    all.either(0, 0, "hundred thousand");
    std::set<std::string> words;
    for (const auto& arc : all.arcs())
        words.insert(arc.word);
    words.erase("");

    const int before = graph.state(), behind = graph.state();
    graph.skip(WordGraph::start, before, otherSentence);
    for (const auto& word : words)
        graph.either(before, behind, word, otherWord);
    graph.skip(behind, before);
    graph.skip(behind, WordGraph::end);
}

} // namespace Korvane::voice
