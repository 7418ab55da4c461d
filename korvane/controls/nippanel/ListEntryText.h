#pragma once

#include <QString>

namespace Korvane {

/// Why a text cannot be one entry of a list value, for the user; empty when it can. The entries of a list are
/// stored joined with "|", so a text with that character would come back as two.
QString listEntryFault(const QString& text);

/// Tells the user of a fault.
void showListEntryFault(const QString& fault);

/// Whether a text can be one entry of a list value; the user is told when it cannot.
bool canBeListEntry(const QString& text);

} // namespace Korvane
