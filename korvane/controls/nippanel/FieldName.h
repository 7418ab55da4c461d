#pragma once

#include <QString>

namespace Korvane {

/// Whether a field may be named so: none of its characters is a blank, a quotation mark, a dollar, at, number
/// or percent sign, a parenthesis or a square bracket, and its first is no digit and no underscore. Letters
/// of any alphabet, hyphens and full stops are allowed. An empty name passes: what has none is refused when
/// it is made.
bool isValidFieldName(const QString& name);

/// A text without what a name must not have in it, and without the digits and underscores it begins with.
///
///     cleanedFieldName("2nd Pulse (rest)");   // "ndPulserest"
QString cleanedFieldName(const QString& text);

} // namespace Korvane
