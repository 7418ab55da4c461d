#pragma once

#include <korvane/controls/container/PropertyBag.h>

namespace Korvane {

/// A property that is a 16-bit code, see `PropertyBag::ReadProperty`.
inline qint16 readCode(const PropertyBag& bag, const char* name, qint16 byDefault) {
    return bag.ReadProperty(QLatin1String(name), QVariant::fromValue(byDefault)).value<qint16>();
}

} // namespace Korvane
