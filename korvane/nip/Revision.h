#pragma once

#include <string>

namespace Korvane {

// How often the structure was customized: counted in the reserved group's row, downwards, so that it is never
// the greatest ordinal. Quick to ask for with every load; a program that customizes without counting is found
// out by the schema itself, which every save looks at. Where that row is missing the revision is empty.

/// Asks for the revision of the structure.
inline const std::string revisionStatement = "Select Ordinal From DBFieldGroups Where DBFieldGroupID=1";
/// Counts one more.
inline const std::string nextRevisionStatement =
    "Update DBFieldGroups Set Ordinal=Ordinal-1 Where DBFieldGroupID=1";

} // namespace Korvane
