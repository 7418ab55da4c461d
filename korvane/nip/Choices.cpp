#include <korvane/nip/Choices.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <limits>

namespace Korvane {

namespace {

constexpr char separator = '|';

/// Makes `list` the entries of a text, in the storage that it has.
void split(std::string_view text, VariantArray& list) {
    std::size_t count = 0;
    for (std::size_t begin = 0; begin <= text.size(); ++count) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        if (count == list.elements.size()) list.elements.emplace_back();
        list.elements[count].setText(text.substr(begin, end - begin));
        begin = end + 1;
    }
    list.elements.resize(count);
}

} // namespace

bool holdsChoices(std::string_view displayType) {
    // Asked of every field of a load: most are told apart by their length.
    constexpr std::string_view editContent = "LIST-EDITCONTENT";
    constexpr std::string_view multiple = "LIST-MULTIPLE";
    return (displayType.size() == editContent.size() && sameName(displayType, editContent)) ||
           (displayType.size() == multiple.size() && sameName(displayType, multiple));
}

const Variant& emptyList() {
    static const Variant list = VariantArray{0, {Variant()}};
    return list;
}

void splitChoices(FieldRecord& field) {
    const bool several = holdsChoices(field.displayType);
    if (!several && field.choiceListCount == 0) return;
    const std::string converted = !several || field.value.isText() ? "" : field.value.textOrEmpty();
    const std::string& text = field.value.isText() ? field.value.asText() : converted;
    if (!several || trim(text).empty()) {
        field.choiceList = emptyList();
        field.choiceListCount = 0;
        return;
    }
    if (!field.choiceList.isArray()) field.choiceList = emptyList();
    VariantArray& list = field.choiceList.array();
    list.lowerBound = 0;
    split(text, list);
    if (list.elements.size() > std::size_t{std::numeric_limits<std::int16_t>::max()})
        throw RuntimeError(RuntimeError::Overflow,
                           filled(translate("Korvane::nip", "The field %1 holds more than 32767 entries"),
                                  {field.fieldName}));
    field.choiceListCount = static_cast<std::int16_t>(list.elements.size());
}

std::string textOf(const FieldRecord& field) {
    return holdsChoices(field.displayType) ? joinChoices(field) : field.value.textOrEmpty();
}

std::string joinChoices(const FieldRecord& field) {
    if (field.choiceListCount < 0) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    std::string joined;
    for (std::int16_t i = 0; i < field.choiceListCount; ++i) {
        joined += field.choiceList.array().at(i).textOrEmpty();
        joined += separator;
    }
    if (!joined.empty()) joined.pop_back();
    return joined;
}

} // namespace Korvane
