#pragma once

#include <korvane/controls/nippanel/EntryControl.h>

#include <QString>

#include <memory>
#include <span>
#include <string_view>

namespace Korvane {

/// All that is known of a display type: what the fields that have it get.
struct DisplayType {
    std::string_view keyword;
    const char* english;  ///< what the user reads for the keyword, to be translated
    bool offersChoices;   ///< the field's choices are what can be entered
    const char* array;    ///< the control array of its entry controls
    std::int16_t buttons; ///< elements of `cmdNip` that each of them has
    std::unique_ptr<EntryControl> (*make)(EntrySite site);

    /// What the user reads for the keyword.
    QString caption() const;
};

/// All of them, in the order in which they are offered.
std::span<const DisplayType> displayTypes();

/// The display type of a keyword, compared exactly; null when there is none.
const DisplayType* findDisplayType(std::string_view keyword);

} // namespace Korvane
