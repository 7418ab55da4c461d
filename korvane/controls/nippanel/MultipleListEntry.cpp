#include <korvane/controls/nippanel/MultipleListEntry.h>

namespace Korvane {

void MultipleListEntry::showValue() {
    showChoices(site().storedEntries());
}

QStringList MultipleListEntry::content() const {
    return rows().checkedContents();
}

} // namespace Korvane
