#include <korvane/controls/nippanel/HeldField.h>

#include <korvane/controls/nippanel/Counted.h>
#include <korvane/nip/cNIP.h>
#include <korvane/runtime/Text.h>

namespace Korvane {

namespace {

std::int32_t identifierOf(const cNIP& nip, std::int16_t group) {
    return nip.FieldCount(group) > 0 ? nip.GroupID(group, 1) : 0;
}

/// The only field of a group that is like that; 0 when there is none, or there are several.
template <typename IsLike>
std::int16_t onlyField(const cNIP& nip, std::int16_t group, IsLike isLike) {
    std::int16_t found = 0;
    for (const std::int16_t field : CountedFrom1(nip.FieldCount(group))) {
        if (!isLike(field)) continue;
        if (found > 0) return 0;
        found = field;
    }
    return found;
}

std::int16_t fieldWithCaption(const cNIP& nip, std::int16_t group, const std::string& caption) {
    return onlyField(nip, group, [&](std::int16_t field) { return nip.Caption(group, field) == caption; });
}

} // namespace

HeldField HeldField::of(const cNIP& nip, FieldPlace place) {
    HeldField held{identifierOf(nip, place.group), nip.GroupName(place.group), {}, {}};
    if (place.field < 1) return held;
    held.fieldName = nip.fieldName(place.group, place.field);
    const std::string& caption = nip.Caption(place.group, place.field);
    if (fieldWithCaption(nip, place.group, caption) > 0) held.caption = caption;
    return held;
}

FieldPlace HeldField::in(const cNIP& nip) const {
    FieldPlace place;
    for (const std::int16_t group : CountedFrom1(nip.GroupCount())) {
        const std::int32_t id = identifierOf(nip, group);
        if (id > 0 && groupID > 0 ? id != groupID : nip.GroupName(group) != groupName) continue;
        if (place.group < 1) place.group = group;
        if (fieldName.empty()) return place;
        std::int16_t field = onlyField(
            nip, group, [&](std::int16_t other) { return sameName(nip.fieldName(group, other), fieldName); });
        if (field < 1 && !caption.empty()) field = fieldWithCaption(nip, group, caption);
        if (field > 0) return {group, field};
    }
    return place;
}

} // namespace Korvane
