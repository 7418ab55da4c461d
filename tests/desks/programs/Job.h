#pragma once

#include "support/RecordingInteraction.h"

#include <korvane/runtime/App.h>

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

namespace Korvane::Testing {

/// What a program that stands for one desk is told on its command line: the database, how it saves, which
/// desk it is, and how many visits it stores. Nobody sits at it: boxes are only recorded.
///
/// It says on standard output what became of each visit: "refused <token>" for a try that failed, in the end
/// "stored <token> <encounter> <patient> <attachment>" or "dropped <token>".
class Job {
  public:
    explicit Job(char** argv) : address(argv[1]), how(argv[2]), desk(argv[3]), visits(std::atoi(argv[4])) {
        App::Path(argv[5]);
    }

    /// Waits until all desks have come this far: none begins while another is still opening up.
    void awaitOthers() const {
        char byte = 'r';
        if (write(3, &byte, 1) != 1 || close(3) != 0 || read(0, &byte, 1) != 0) std::exit(2);
    }

    /// What the visit is known by, unlike any other of any desk; a patient comes to several desks.
    std::string token(int visit) const { return "d" + desk + "v" + std::to_string(visit); }
    std::string patient(int visit) const { return "P" + std::to_string(visit % 3); }
    /// Some visits are given up when the first try fails, the others are tried until they are stored.
    bool givesUp(int visit) const { return visit % 4 == 3; }

    /// One that is refused again and again is not stored at all.
    void refused(int visit) {
        std::cout << "refused " << token(visit) << "\n";
        if (visit != std::exchange(mVisit, visit)) mTries = 0;
        if (++mTries > 200) std::exit(3);
    }
    void dropped(int visit) const { std::cout << "dropped " << token(visit) << "\n"; }
    void stored(int visit, std::int32_t encounter, const std::string& attachment) const {
        std::cout << "stored " << token(visit) << " " << encounter << " " << patient(visit) << " "
                  << attachment << "\n";
    }

    const std::string address, how, desk;
    const int visits;

  private:
    RecordedInteraction mNobody;
    int mVisit = -1;
    int mTries = 0;
};

} // namespace Korvane::Testing
