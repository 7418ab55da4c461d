#include <korvane/voice/pocketsphinx/WordGraph.h>

#include <set>
#include <sstream>
#include <utility>

namespace Korvane::voice {

void WordGraph::either(int from, int to, std::string_view words, double cost) {
    std::istringstream in{std::string(words)};
    for (std::string word; in >> word;)
        mArcs.push_back({from, to, word, cost});
}

void WordGraph::sequence(int from, int to, std::string_view words, double cost) {
    std::istringstream in{std::string(words)};
    std::string word, next;
    in >> word;
    for (; in >> next; word = next) {
        const int between = state();
        mArcs.push_back({from, between, word, cost});
        from = between;
        cost = 0;
    }
    mArcs.push_back({from, to, word, cost});
}

bool WordGraph::accepts(std::string_view words) const {
    std::set<int> here = {start};
    const auto skipOn = [&] {
        for (std::size_t before = 0; before != here.size();) {
            before = here.size();
            for (const auto& arc : mArcs)
                if (arc.word.empty() && here.contains(arc.from)) here.insert(arc.to);
        }
    };
    std::istringstream in{std::string(words)};
    skipOn();
    for (std::string word; in >> word;) {
        std::set<int> there;
        for (const auto& arc : mArcs)
            if (arc.word == word && here.contains(arc.from)) there.insert(arc.to);
        here = std::move(there);
        skipOn();
    }
    return here.contains(end);
}

} // namespace Korvane::voice
