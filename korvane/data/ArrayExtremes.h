#pragma once

#include <korvane/runtime/Variant.h>

namespace Korvane {

/// The largest element of a one-dimensional array, compared as variants. An array whose
/// upper bound is 0 gives the 16-bit -1, also when it holds an element. Overflow when a bound does not fit 16
/// bits, TypeMismatch for anything but an array.
Variant ArrayMax(const Variant& values);
/// The smallest element, with the rules of `ArrayMax`.
Variant ArrayMin(const Variant& values);

} // namespace Korvane
