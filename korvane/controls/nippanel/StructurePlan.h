#pragma once

#include <korvane/controls/nippanel/GroupPage.h>

#include <string>
#include <vector>

namespace Korvane {

/// The controls that a structure needs, before any of them is made.
struct StructurePlan {
    std::vector<std::vector<PlannedField>> groups; ///< in group order
    std::string problems;                          ///< a line for each field with an unknown display type
};

/// Gives every field its elements in the control arrays, counted from 0 in the order of the structure, and
/// stores them as its `ControlIndex` and `ControlIndexLabel`. A field with an unknown display type gets none
/// (-1); it is written to the error log.
StructurePlan planStructure(cNIP& nip);

} // namespace Korvane
