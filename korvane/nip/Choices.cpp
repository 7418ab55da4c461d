#include <korvane/nip/Choices.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <limits>

namespace Korvane {

namespace {

constexpr char separator = '|';

std::vector<Variant> split(std::string_view text) {
    std::vector<Variant> entries;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        entries.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return entries;
}

} // namespace

bool holdsChoices(std::string_view displayType) {
    return sameName(displayType, "LIST-EDITCONTENT") || sameName(displayType, "LIST-MULTIPLE");
}

const Variant& emptyList() {
    static const Variant list = VariantArray{0, {Variant()}};
    return list;
}

void splitChoices(FieldRecord& field) {
    const bool several = holdsChoices(field.displayType);
    if (several || field.choiceListCount != 0) {
        field.choiceList = emptyList();
        field.choiceListCount = 0;
    }
    if (!several) return;
    const std::string text = field.value.textOrEmpty();
    if (trim(text).empty()) return;
    std::vector<Variant> entries = split(text);
    if (entries.size() > std::size_t{std::numeric_limits<std::int16_t>::max()})
        throw RuntimeError(RuntimeError::Overflow);
    field.choiceListCount = static_cast<std::int16_t>(entries.size());
    field.choiceList = VariantArray{0, std::move(entries)};
}

std::string joinChoices(const FieldRecord& field) {
    std::string joined;
    for (std::int16_t i = 0; i < field.choiceListCount; ++i) {
        joined += field.choiceList.array().at(i).textOrEmpty();
        joined += separator;
    }
    if (!joined.empty()) joined.pop_back();
    return joined;
}

} // namespace Korvane
