#include <korvane/controls/nippanel/DisplayTypes.h>

#include <korvane/controls/nippanel/ComboEntry.h>
#include <korvane/controls/nippanel/EditContentEntry.h>
#include <korvane/controls/nippanel/ListEntry.h>
#include <korvane/controls/nippanel/MultipleListEntry.h>
#include <korvane/controls/nippanel/TextEntry.h>

#include <algorithm>
#include <iterator>

namespace Korvane {

namespace {

template <typename Entry, auto... arguments>
std::unique_ptr<EntryControl> make(EntrySite site) {
    return std::make_unique<Entry>(std::move(site), arguments...);
}

constexpr DisplayType displayTypes[] = {
    {"TEXT", "txtNip", 0, make<TextEntry>},
    {"COMBOBOX", "cboNip", 0, make<ComboEntry, ComboEntry::AnyText>},
    {"COMBOBOX-RESTRICTED", "cboNip", 0, make<ComboEntry, ComboEntry::ItemsOnly>},
    {"LIST", "gridNip", 0, make<ListEntry>},
    {"LIST-MULTIPLE", "gridNip", 0, make<MultipleListEntry>},
    {"LIST-EDITCONTENT", "gridNip", 2, make<EditContentEntry>},
};

} // namespace

const DisplayType* findDisplayType(std::string_view keyword) {
    const auto* found = std::find_if(std::begin(displayTypes), std::end(displayTypes),
                                     [&](const DisplayType& type) { return type.keyword == keyword; });
    return found == std::end(displayTypes) ? nullptr : found;
}

} // namespace Korvane
