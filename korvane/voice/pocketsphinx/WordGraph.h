#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::voice {

/// The sentences that a recogniser chooses from: states, and arcs between them that each take one word or,
/// with an empty one, none. The cost of a sentence is that of its arcs, in nats; sentences compete by cost
/// and sound.
class WordGraph {
  public:
    /// A word, or none, on the way from one state to another.
    struct Arc {
        int from, to;
        std::string word;
        double cost;
    };

    static constexpr int start = 0, end = 1;

    int state() { return mStates++; }
    /// One arc for each of the blank-separated words.
    void either(int from, int to, std::string_view words, double cost = 0);
    /// A chain of arcs for the words, one after the other.
    void sequence(int from, int to, std::string_view words, double cost = 0);
    void skip(int from, int to, double cost = 0) { mArcs.push_back({from, to, {}, cost}); }

    /// Whether the words are one of the sentences, whatever it costs.
    bool accepts(std::string_view words) const;

    int states() const { return mStates; }
    const std::vector<Arc>& arcs() const { return mArcs; }

  private:
    int mStates = 2;
    std::vector<Arc> mArcs;
};

} // namespace Korvane::voice
