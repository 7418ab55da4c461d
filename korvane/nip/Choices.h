#pragma once

#include <korvane/nip/FieldRecord.h>

#include <string_view>

namespace Korvane {

/// Whether fields of a display type hold several chosen entries: "LIST-EDITCONTENT" and "LIST-MULTIPLE".
bool holdsChoices(std::string_view displayType);

/// An array from 0 whose only element is empty: a list before anything is in it.
const Variant& emptyList();

/// Makes the choices of a field anew from its value, the entries joined with "|". A blank value, and every
/// value of a field that holds no choices, gives none. Overflow for more than 32767 entries.
void splitChoices(FieldRecord& field);

/// What a field holds, as it is stored: its choices joined, or else its value.
std::string textOf(const FieldRecord& field);

/// The choices of a field joined with "|", as they are stored. SubscriptOutOfRange when there are fewer than
/// its count says, or the count is negative.
std::string joinChoices(const FieldRecord& field);

} // namespace Korvane
