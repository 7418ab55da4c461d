#pragma once

#include <korvane/nip/FieldPlace.h>

#include <cstdint>
#include <string>

namespace Korvane {

class cNIP;

/// What identifies a field, or the group of a new one, so that it is found again in a structure that was
/// loaded anew.
struct HeldField {
    /// Field 0: a new one.
    static HeldField of(const cNIP& nip, FieldPlace place);

    /// Where it stands now; field 0 when it is a new one or there no more, group 0 when its group is gone.
    FieldPlace in(const cNIP& nip) const;

    std::int32_t groupID = 0; ///< 0: of a group without fields
    std::string groupName;
    std::string fieldName; ///< empty: a new one
    std::string caption;   ///< tells it under another name; empty: another field has the same
};

} // namespace Korvane
