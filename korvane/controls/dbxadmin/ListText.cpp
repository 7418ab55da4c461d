#include <korvane/controls/dbxadmin/ListText.h>

namespace Korvane {

std::vector<std::string> listItems(std::string_view text) {
    std::vector<std::string> items;
    while (!text.empty()) {
        const auto end = text.find(listSeparator);
        items.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return items;
}

std::string listText(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items)
        text += item + listSeparator;
    return text;
}

bool canBeListItem(std::string_view text) {
    return text.find(listSeparator) == std::string_view::npos;
}

} // namespace Korvane
