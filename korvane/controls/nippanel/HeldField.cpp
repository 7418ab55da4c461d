#include <korvane/controls/nippanel/HeldField.h>

#include <korvane/controls/nippanel/Counted.h>
#include <korvane/nip/cNIP.h>

namespace Korvane {

namespace {

std::int32_t identifierOf(const cNIP& nip, std::int16_t group) {
    return nip.FieldCount(group) > 0 ? nip.GroupID(group, 1) : 0;
}

} // namespace

HeldField HeldField::of(const cNIP& nip, FieldPlace place) {
    return {identifierOf(nip, place.group), nip.GroupName(place.group),
            place.field > 0 ? nip.fieldName(place.group, place.field) : std::string()};
}

FieldPlace HeldField::in(const cNIP& nip) const {
    for (const std::int16_t group : CountedFrom1(nip.GroupCount())) {
        const std::int32_t id = identifierOf(nip, group);
        if (id > 0 && groupID > 0 ? id != groupID : nip.GroupName(group) != groupName) continue;
        if (fieldName.empty()) return {group, 0};
        for (const std::int16_t field : CountedFrom1(nip.FieldCount(group)))
            if (nip.fieldName(group, field) == fieldName) return {group, field};
    }
    return {};
}

} // namespace Korvane
