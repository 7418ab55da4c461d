#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace Korvane {

/// A text taken apart into the numbers and month names of a date and a time: what is date and what is time is
/// told by what stands between them.
struct DateFields {
    /// Which half of the day the text names.
    enum class Half { None, Am, Pm };

    /// How a field is joined to the one before it.
    enum class Joint { Blank, Date, Time };

    /// One number or name of the text.
    struct Field {
        int value = 0;
        bool isMonthName = false;
        Joint joint = Joint::Blank;
    };

    static constexpr std::size_t maxFields = 6;

    std::array<Field, maxFields> fields{};
    std::size_t count = 0;
    Half half = Half::None;
    std::size_t halfAt = 0;      ///< the field that AM or PM stands behind
    bool hasColonOrName = false; ///< a sign that the text is no plain number
};

/// Nothing as soon as something stands in the text that no date holds.
std::optional<DateFields> readDateFields(std::string_view text);

} // namespace Korvane
