#pragma once

#include <korvane/controls/container/PropertyBag.h>

#include <QWidget>

#include <limits>

namespace Korvane {

/// A property that is a 16-bit code, see `PropertyBag::ReadProperty`.
inline qint16 readCode(const PropertyBag& bag, const char* name, qint16 byDefault) {
    return bag.ReadProperty(QLatin1String(name), QVariant::fromValue(byDefault)).value<qint16>();
}

/// Sets a property to the code that Qt's property system gave for an enumeration, which may be any number. It
/// stays as it is, with a warning, for one that has more than 16 bits, which would become another code; also
/// for -1 before the control was first shown: that is what Qt's form loader makes of a name that the
/// enumeration does not have.
template <typename Control>
void takeCode(Control& control, void (Control::*set)(qint16), int number, const char* property) {
    using Limits = std::numeric_limits<qint16>;
    const bool fits = number >= Limits::min() && number <= Limits::max();
    const bool loading = !control.testAttribute(Qt::WA_WState_Created);
    if (fits && !(loading && number == -1))
        (control.*set)(static_cast<qint16>(number));
    else if (fits)
        qWarning("%s is left as it is: there is no value of that name", property);
    else
        qWarning("%s is left as it is: %d is no whole number of 16 bits", property, number);
}

} // namespace Korvane
