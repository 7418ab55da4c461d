#pragma once

#include <korvane/controls/container/PropertyBag.h>

#include <QWidget>

#include <limits>
#include <optional>

namespace Korvane {

/// A property that is a 16-bit code, see `PropertyBag::ReadProperty`.
inline qint16 readCode(const PropertyBag& bag, const char* name, qint16 byDefault) {
    return bag.ReadProperty(QLatin1String(name), QVariant::fromValue(byDefault)).value<qint16>();
}

/// The code that Qt's property system gave a control for an enumeration, which may be any number. None, and a
/// warning, for one that has more than 16 bits, which would become another code; also for -1 before the
/// control was first shown: that is what Qt's form loader makes of a name that the enumeration does not have.
inline std::optional<qint16> codeFrom(const QWidget& control, int number, const char* property) {
    using Limits = std::numeric_limits<qint16>;
    const bool fits = number >= Limits::min() && number <= Limits::max();
    const bool loading = !control.testAttribute(Qt::WA_WState_Created);
    if (fits && !(loading && number == -1)) return static_cast<qint16>(number);
    if (fits)
        qWarning("%s is left as it is: there is no value of that name", property);
    else
        qWarning("%s is left as it is: %d is no whole number of 16 bits", property, number);
    return std::nullopt;
}

} // namespace Korvane
