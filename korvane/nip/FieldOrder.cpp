#include <korvane/nip/FieldOrder.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace Korvane {

namespace {

/// The fields that stand in one row, the first of them in column 1.
using Row = std::vector<std::int16_t>;

const FieldRecord& fieldOf(const GroupRecord& group, std::int16_t field) {
    return group.fields[static_cast<std::size_t>(field)];
}

/// In the order in which they stand; those that were moved since the structure was loaded have moved.
std::vector<Row> rowsOf(const GroupRecord& group) {
    Row fields;
    for (std::int16_t field = 1; field <= group.fieldCount; ++field)
        fields.push_back(field);
    std::ranges::stable_sort(fields, {}, [&](std::int16_t field) { return fieldOf(group, field).ordinal; });
    std::vector<Row> rows;
    std::map<std::int16_t, std::size_t> placeOf; // by row index
    for (const std::int16_t field : fields) {
        const auto [place, isNew] = placeOf.try_emplace(fieldOf(group, field).rowIndex, rows.size());
        if (isNew) rows.emplace_back();
        rows[place->second].push_back(field);
    }
    return rows;
}

/// `count` ordinals that rise from `from` (not included) to `to` (not included either); empty when single
/// precision has none there.
std::vector<float> between(float from, float to, std::size_t count) {
    std::vector<float> ordinals;
    const double step = (static_cast<double>(to) - from) / static_cast<double>(count + 1);
    float last = from;
    for (std::size_t i = 1; i <= count; ++i) {
        const auto ordinal = static_cast<float>(from + step * static_cast<double>(i));
        if (!(ordinal > last && ordinal < to)) return {};
        ordinals.push_back(last = ordinal);
    }
    return ordinals;
}

/// Whether the other rows have ordinals that put them into this order whatever else an engine goes by: equal
/// ones do not, nor does 0, which a Null is read as.
bool risesWithout(const std::vector<Row>& rows, std::vector<Row>::const_iterator moved,
                  const GroupRecord& group) {
    float last = 0;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        if (row == moved) continue;
        for (const std::int16_t field : *row) {
            if (!(fieldOf(group, field).ordinal > last)) return false;
            last = fieldOf(group, field).ordinal;
        }
    }
    return true;
}

OrdinalChanges numbered(const std::vector<Row>& rows) {
    OrdinalChanges changes;
    float ordinal = 0;
    for (const Row& row : rows)
        for (const std::int16_t field : row)
            changes.emplace_back(field, ++ordinal);
    return changes;
}

} // namespace

OrdinalChanges moveToRow(const GroupRecord& group, std::int16_t field, std::int16_t row) {
    std::vector<Row> rows = rowsOf(group);
    const auto from = std::ranges::find_if(rows, [&](const Row& fields) { return fields.front() == field; });
    if (from == rows.end()) return {};
    const auto to = rows.begin() + std::clamp<std::ptrdiff_t>(row - 1, 0, std::ssize(rows) - 1);
    if (to == from) return {};
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);

    const auto ordinal = [&](std::int16_t of) { return fieldOf(group, of).ordinal; };
    const auto count = static_cast<float>(to->size());
    const float before = to == rows.begin() ? 0 : ordinal((to - 1)->back());
    const float next = to + 1 == rows.end() ? before + count + 1 : ordinal((to + 1)->front());
    const std::vector<float> ordinals = between(before, next, to->size());
    if (ordinals.empty() || !risesWithout(rows, to, group)) return numbered(rows);
    OrdinalChanges changes;
    for (std::size_t i = 0; i < ordinals.size(); ++i)
        changes.emplace_back((*to)[i], ordinals[i]);
    return changes;
}

float ordinalBehindAll(const GroupRecord& group) {
    float most = 0;
    for (std::int16_t field = 1; field <= group.fieldCount; ++field)
        most = std::max(most, fieldOf(group, field).ordinal);
    const float next = std::floor(most) + 1;
    return next > most ? next : std::nextafter(most, std::numeric_limits<float>::max());
}

} // namespace Korvane
