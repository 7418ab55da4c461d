#include "fuzz/Properties.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

// Which property is tried is the executable's name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto property =
        std::ranges::find(Korvane::Fuzz::properties(), KORVANE_FUZZ_PROPERTY, &Korvane::Fuzz::Property::name);
    property->tryWith({reinterpret_cast<const char*>(data), size});
    return 0;
}
