#pragma once

#include <korvane/controls/container/UserControl.h>

#include <functional>
#include <memory>
#include <vector>

namespace Gallery {

/// A method of a control to try; what it returns is told as text, empty when that is nothing.
struct Method {
    QString call; ///< as one would write it
    std::function<QString()> run;
};

/// A control to be looked at: a new one, as a host's form designer would place it.
struct Exhibit {
    std::unique_ptr<Korvane::UserControl> control; ///< its class is its object name
    QString purpose;
    bool fills = false; ///< takes all the room there is
    std::vector<Method> methods;
};

/// Every control of the library. The Nip panel works on a sample clinic of its own in memory. A RuntimeError
/// when that cannot be made.
std::vector<Exhibit> makeExhibits();

} // namespace Gallery
