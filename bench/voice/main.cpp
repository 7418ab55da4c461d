// How well speech is understood: ./bench/voice/run [times]

#include "Trial.h"
#include "Voices.h"

#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Korvane;
using namespace Korvane::Testing;

int main(int argc, char** argv) {
    if (!canSpeak()) {
        std::fprintf(stderr, "espeak-ng or sox is missing\n");
        return 1;
    }
    const int times = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    const Amount quiet{12 * times, 36 * times, 24 * times}, noisy{4 * times, 6 * times, 6 * times};
    try {
        Ear ear;
        const bool recorded = hasRecordedVoices();
        std::vector<Tally> tallies{tryOut(ear, quiet, false, "", 0)};
        if (recorded) tallies.push_back(tryOut(ear, quiet, true, "", 0));
        for (const auto* kind : {"white", "pink", "babble"})
            for (const double decibels : {20.0, 10.0})
                tallies.push_back(tryOut(ear, noisy, recorded, kind, decibels));
        printTable(tallies, tryDelays(ear, 6 * times));
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.Description().c_str());
        return 1;
    }
}
