#include <korvane/controls/nippanel/ListEntry.h>

#include <korvane/controls/container/Text.h>

namespace Korvane {

void ListEntry::fill() {
    rows().show(rowsFor({qt(site().nip.value(site().group, site().field).textOrEmpty())}));
    mShown = rows().checkedContents();
}

void ListEntry::collect() {
    const QStringList checked = rows().checkedContents();
    if (checked == mShown) return;
    site().nip.value(site().group, site().field, utf8(checked.value(0)));
    mShown = checked;
}

} // namespace Korvane
