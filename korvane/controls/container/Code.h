#pragma once

#include <korvane/controls/container/PropertyBag.h>

#include <limits>
#include <optional>

namespace Korvane {

/// A property that is a 16-bit code, see `PropertyBag::ReadProperty`.
inline qint16 readCode(const PropertyBag& bag, const char* name, qint16 byDefault) {
    return bag.ReadProperty(QLatin1String(name), QVariant::fromValue(byDefault)).value<qint16>();
}

/// The code that Qt's property system was given for an enumeration, which may be any number. None, and a
/// warning, for one that has more than 16 bits: it would become another code.
inline std::optional<qint16> codeFrom(int number, const char* property) {
    using Limits = std::numeric_limits<qint16>;
    if (number >= Limits::min() && number <= Limits::max()) return static_cast<qint16>(number);
    qWarning("%s is left as it is: %d is no whole number of 16 bits", property, number);
    return std::nullopt;
}

} // namespace Korvane
