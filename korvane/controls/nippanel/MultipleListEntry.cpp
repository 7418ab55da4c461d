#include <korvane/controls/nippanel/MultipleListEntry.h>

namespace Korvane {

void MultipleListEntry::fill() {
    rows().show(rowsFor(choices()));
    mShown = rows().checkedContents();
}

void MultipleListEntry::collect() {
    const QStringList checked = rows().checkedContents();
    if (checked == mShown) return;
    choices(checked);
    mShown = checked;
}

} // namespace Korvane
