#pragma once

#include <string>
#include <vector>

namespace Clinic {

/// A field of a form, in the terms of a Nip.
struct FieldDefinition {
    static constexpr int usualLength = 255;

    std::string name; ///< a plain identifier, unique in its form: the column
    std::string caption;
    std::string displayType = "TEXT";
    int maxLength = usualLength; ///< characters; 0: no limit
    bool carriedForward = false; ///< starts from the patient's latest encounter
    std::vector<std::string> values;
    std::string defaultValue; ///< one of the values; empty: none
};

/// A form as it becomes one group of the Nip: what every reader of a published format gives.
struct FormDefinition {
    std::string group;
    std::vector<FieldDefinition> fields;
};

} // namespace Clinic
