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

constexpr DisplayType types[] = {
    {"TEXT", "Text", false, "txtNip", 0, make<TextEntry>},
    {"LIST", "List", true, "gridNip", 0, make<ListEntry>},
    {"LIST-MULTIPLE", "List-Multiple", true, "gridNip", 0, make<MultipleListEntry>},
    {"LIST-EDITCONTENT", "List-Editcontent", false, "gridNip", 2, make<EditContentEntry>},
    {"COMBOBOX", "Combobox", true, "cboNip", 0, make<ComboEntry, ComboEntry::AnyText>},
    {"COMBOBOX-RESTRICTED", "Combobox-Restricted", true, "cboNip", 0,
     make<ComboEntry, ComboEntry::ItemsOnly>},
};

} // namespace

std::span<const DisplayType> displayTypes() {
    return types;
}

const DisplayType* findDisplayType(std::string_view keyword) {
    const auto* found = std::find_if(std::begin(types), std::end(types),
                                     [&](const DisplayType& type) { return type.keyword == keyword; });
    return found == std::end(types) ? nullptr : found;
}

} // namespace Korvane
