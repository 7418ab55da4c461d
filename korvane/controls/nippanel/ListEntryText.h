#pragma once

#include <QString>

namespace Korvane {

/// Whether a text can be one entry of a list value. The entries of a list are stored joined with "|", so a
/// text with that character would come back as two; the user is told so.
bool canBeListEntry(const QString& text);

} // namespace Korvane
