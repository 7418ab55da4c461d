#include <korvane/controls/nippanel/ListEntry.h>

namespace Korvane {

void ListEntry::fill() {
    rows().show(rowsFor({site().storedText()}));
    mShown = rows().checkedContents();
}

void ListEntry::collect() {
    const QStringList checked = rows().checkedContents();
    if (checked == mShown) return;
    site().store(checked.value(0));
    mShown = checked;
}

} // namespace Korvane
