#include <korvane/controls/nippanel/ListEntry.h>

namespace Korvane {

void ListEntry::showValue() {
    showChoices({site().storedText()});
}

QStringList ListEntry::content() const {
    return rows().checkedContents();
}

} // namespace Korvane
