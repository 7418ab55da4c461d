#pragma once

#include <korvane/controls/nippanel/EntryControl.h>

#include <memory>
#include <string_view>

namespace Korvane {

/// All that is known of a display type: what the fields that have it get.
struct DisplayType {
    std::string_view keyword;
    const char* array;    ///< the control array of its entry controls
    std::int16_t buttons; ///< elements of `cmdNip` that each of them has
    std::unique_ptr<EntryControl> (*make)(EntrySite site);
};

/// The display type of a keyword, compared exactly; null when there is none.
const DisplayType* findDisplayType(std::string_view keyword);

} // namespace Korvane
