#include <korvane/controls/nippanel/ListEntryText.h>

#include <korvane/runtime/Interaction.h>

namespace Korvane {

bool canBeListEntry(const QString& text) {
    if (!text.contains(QLatin1Char('|'))) return true;
    Interaction::current().MsgBox(
        "An entry of a list cannot contain the character \"|\", which separates the "
        "entries: it would come back as two entries.",
        MsgBoxStyle::OkOnly | MsgBoxStyle::Information, "List Entry Validation");
    return false;
}

} // namespace Korvane
