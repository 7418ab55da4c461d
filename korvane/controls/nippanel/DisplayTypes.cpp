#include <korvane/controls/nippanel/DisplayTypes.h>

#include <korvane/controls/nippanel/ComboEntry.h>
#include <korvane/controls/nippanel/EditContentEntry.h>
#include <korvane/controls/nippanel/ListEntry.h>
#include <korvane/controls/nippanel/MultipleListEntry.h>
#include <korvane/controls/nippanel/TextEntry.h>

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace Korvane {

namespace {

template <typename Entry, auto... arguments>
std::unique_ptr<EntryControl> make(EntrySite site) {
    return std::make_unique<Entry>(std::move(site), arguments...);
}

constexpr DisplayType types[] = {
    {"TEXT", QT_TRANSLATE_NOOP("Korvane::DisplayType", "Text"), false, "txtNip", 0, make<TextEntry>},
    {"LIST", QT_TRANSLATE_NOOP("Korvane::DisplayType", "List"), true, "gridNip", 0, make<ListEntry>},
    {"LIST-MULTIPLE", QT_TRANSLATE_NOOP("Korvane::DisplayType", "List-Multiple"), true, "gridNip", 0,
     make<MultipleListEntry>},
    {"LIST-EDITCONTENT", QT_TRANSLATE_NOOP("Korvane::DisplayType", "List-Editcontent"), false, "gridNip", 2,
     make<EditContentEntry>},
    {"COMBOBOX", QT_TRANSLATE_NOOP("Korvane::DisplayType", "Combobox"), true, "cboNip", 0,
     make<ComboEntry, ComboEntry::AnyText>},
    {"COMBOBOX-RESTRICTED", QT_TRANSLATE_NOOP("Korvane::DisplayType", "Combobox-Restricted"), true, "cboNip",
     0, make<ComboEntry, ComboEntry::ItemsOnly>},
};

} // namespace

QString DisplayType::caption() const {
    return QCoreApplication::translate("Korvane::DisplayType", english);
}

std::span<const DisplayType> displayTypes() {
    return types;
}

const DisplayType* findDisplayType(std::string_view keyword) {
    const auto* found = std::find_if(std::begin(types), std::end(types),
                                     [&](const DisplayType& type) { return type.keyword == keyword; });
    return found == std::end(types) ? nullptr : found;
}

} // namespace Korvane
