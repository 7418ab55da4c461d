#pragma once

#include <korvane/nip/GroupRecord.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace Korvane {

/// What has to change for a field to stand in another row.
using OrdinalChanges = std::vector<std::pair<std::int16_t, float>>; ///< field index, its new ordinal

/// Moves a field to a row of its group's layout grid, counted from 1; a row above the last is the last. A
/// comment goes with the field that it stands beside. The other fields keep their ordinals if there is room
/// between them, else all of the group get new ones. Nothing changes for a field that stands there already,
/// nor for a comment beside its field, whose row is that field's.
OrdinalChanges moveToRow(const GroupRecord& group, std::int16_t field, std::int16_t row);

/// An ordinal behind every field of the group.
float ordinalBehindAll(const GroupRecord& group);

} // namespace Korvane
