#include "fuzz/Properties.h"

#include <array>

namespace Korvane::Fuzz {

std::span<const Property> properties() {
    static constexpr std::array all{
        Property{"lexing", lexing},   Property{"lifting", lifting}, Property{"translating", translating},
        Property{"growing", growing}, Property{"keeping", keeping}, Property{"converting", converting},
    };
    return all;
}

} // namespace Korvane::Fuzz
