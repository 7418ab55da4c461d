#pragma once

#include <QStringList>

namespace Korvane {

/// What separates the values of a list in the one text that holds them.
constexpr QChar listSeparator = u'/';

/// The values that a text holds: "a/b/c" and "a/b/c/" hold the same three. Nothing else is dropped: "a//c"
/// holds an empty one in the middle, "/" is one empty value, and an empty text holds none.
QStringList listItems(const QString& text);

/// The text that holds these values, each of them followed by a separator: what `listItems` makes the same
/// values of again, as long as each of them can be one.
QString listText(const QStringList& items);

/// Whether a text can be a value: one with a separator would become two.
bool canBeListItem(const QString& text);

} // namespace Korvane
