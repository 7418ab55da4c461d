#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

namespace Korvane {

/// A value of a property bag in the type that a control expects; invalid when it is not of that type. Nothing
/// is lost or made up: a fraction is not rounded, any text is not "true".
QVariant propertyValue(const QVariant& value, QMetaType type);

/// Why a value is not taken for one of that type, in the user's language: "that is no whole number".
QString notOfType(QMetaType type);
/// A value for a message: as it reads, a text in quotes.
QString shownValue(const QVariant& value);

} // namespace Korvane
