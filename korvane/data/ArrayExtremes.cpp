#include <korvane/data/ArrayExtremes.h>

#include <korvane/runtime/RuntimeError.h>

#include <iterator>
#include <limits>

namespace Korvane {

namespace {

/// The element that no later one beats; `beaten` is how the kept one stands to an element that does.
Variant extreme(const Variant& values, Comparison beaten) {
    using Bounds = std::numeric_limits<std::int16_t>;
    const VariantArray& array = values.array();
    const std::int64_t upperBound = std::int64_t{array.lowerBound} + std::ssize(array.elements) - 1;
    if (upperBound == 0) return std::int16_t{-1};
    if (array.lowerBound < Bounds::min() || upperBound > Bounds::max())
        throw RuntimeError(RuntimeError::Overflow);
    const Variant* kept = &array.at(array.lowerBound);
    for (const Variant& element : array.elements)
        if (compare(*kept, element) == beaten) kept = &element;
    return *kept;
}

} // namespace

Variant ArrayMax(const Variant& values) {
    return extreme(values, Comparison::Less);
}

Variant ArrayMin(const Variant& values) {
    return extreme(values, Comparison::Greater);
}

} // namespace Korvane
