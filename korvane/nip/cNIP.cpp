#include <korvane/nip/cNIP.h>

#include <korvane/ado/Catalog.h>
#include <korvane/runtime/RuntimeError.h>

namespace Korvane {

cNIP::cNIP() : mGroups(1) {}
cNIP::~cNIP() = default;
cNIP& cNIP::operator=(cNIP&& other) noexcept = default;

const FieldRecord& cNIP::at(std::int16_t group, std::int16_t field) const {
    static const FieldRecord nothing;
    if (group < 0 || field < 0) return nothing;
    if (group > GroupCount() || field > mFieldCountMax) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    const auto& fields = mGroups[static_cast<std::size_t>(group)].fields;
    const auto index = static_cast<std::size_t>(field);
    return index < fields.size() ? fields[index] : nothing;
}

FieldRecord& cNIP::at(std::int16_t group, std::int16_t field) {
    if (group < 0 || group > GroupCount() || field < 0 || field > mFieldCountMax)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    auto& fields = mGroups[static_cast<std::size_t>(group)].fields;
    const auto index = static_cast<std::size_t>(field);
    if (index >= fields.size()) fields.resize(index + 1);
    return fields[index];
}

const GroupRecord& cNIP::groupAt(std::int16_t group) const {
    static const GroupRecord nothing;
    if (group < 0) return nothing;
    if (group > GroupCount()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return mGroups[static_cast<std::size_t>(group)];
}

std::int16_t cNIP::GroupCount() const {
    return static_cast<std::int16_t>(mGroups.size() - 1);
}
std::int16_t cNIP::FieldCount(std::int16_t group) const {
    // The counts reach to group 1 also when there is none.
    return group == 1 && GroupCount() == 0 ? std::int16_t{0} : groupAt(group).fieldCount;
}
std::int16_t cNIP::RowCount(std::int16_t group) const {
    return groupAt(group).rowCount;
}
std::int16_t cNIP::RowCountMax() const {
    return mRowCountMax;
}
const std::string& cNIP::GroupName(std::int16_t group) const {
    return groupAt(group).groupName;
}
void cNIP::EncounterID(std::int32_t id) {
    if (id == mEncounterID) return;
    mEncounterID = id;
    // The values were read from another encounter's rows.
    for (GroupRecord& group : mGroups)
        for (FieldRecord& field : group.fields)
            field.asStored = false;
}

const std::string& cNIP::TableName(std::int16_t group, std::int16_t field) const {
    return at(group, field).tableName;
}
const std::string& cNIP::GroupName(std::int16_t group, std::int16_t field) const {
    return at(group, field).groupName;
}
std::int32_t cNIP::GroupID(std::int16_t group, std::int16_t field) const {
    return at(group, field).groupID;
}
const std::string& cNIP::fieldName(std::int16_t group, std::int16_t field) const {
    return at(group, field).fieldName;
}
void cNIP::fieldName(std::int16_t group, std::int16_t field, std::string_view name) {
    FieldRecord& record = at(group, field);
    if (record.fieldName == name) return;
    (record.pending ? record.fieldName : record.newFieldName) = name;
    record.changed = true;
    mGroups[static_cast<std::size_t>(group)].hasChanges = true;
}
const std::string& cNIP::Caption(std::int16_t group, std::int16_t field) const {
    return at(group, field).caption;
}
void cNIP::Caption(std::int16_t group, std::int16_t field, std::string_view caption) {
    at(group, field).caption = caption;
}
std::int16_t cNIP::maxLength(std::int16_t group, std::int16_t field) const {
    return at(group, field).maxLength;
}
void cNIP::maxLength(std::int16_t group, std::int16_t field, std::int16_t length) {
    at(group, field).maxLength = length;
}
const std::string& cNIP::dataType(std::int16_t group, std::int16_t field) const {
    return at(group, field).dataType;
}
const std::string& cNIP::displayType(std::int16_t group, std::int16_t field) const {
    return at(group, field).displayType;
}
void cNIP::displayType(std::int16_t group, std::int16_t field, std::string_view type) {
    at(group, field).displayType = type;
}
std::int16_t cNIP::ControlIndex(std::int16_t group, std::int16_t field) const {
    return at(group, field).controlIndex;
}
void cNIP::ControlIndex(std::int16_t group, std::int16_t field, std::int16_t index) {
    at(group, field).controlIndex = index;
}
std::int16_t cNIP::ControlIndexLabel(std::int16_t group, std::int16_t field) const {
    return at(group, field).controlIndexLabel;
}
void cNIP::ControlIndexLabel(std::int16_t group, std::int16_t field, std::int16_t index) {
    at(group, field).controlIndexLabel = index;
}
std::int16_t cNIP::InitialValueRule(std::int16_t group, std::int16_t field) const {
    return at(group, field).initialValueRule;
}
void cNIP::InitialValueRule(std::int16_t group, std::int16_t field, std::int16_t rule) {
    at(group, field).initialValueRule = rule;
}
std::int16_t cNIP::RowIndex(std::int16_t group, std::int16_t field) const {
    return at(group, field).rowIndex;
}
void cNIP::RowIndex(std::int16_t group, std::int16_t field, std::int16_t row) {
    at(group, field).rowIndex = row;
}
std::int16_t cNIP::ColIndex(std::int16_t group, std::int16_t field) const {
    return at(group, field).colIndex;
}
void cNIP::ColIndex(std::int16_t group, std::int16_t field, std::int16_t column) {
    at(group, field).colIndex = column;
}
float cNIP::Ordinal(std::int16_t group, std::int16_t field) const {
    return at(group, field).ordinal;
}
void cNIP::Ordinal(std::int16_t group, std::int16_t field, float ordinal) {
    at(group, field).ordinal = ordinal;
}
const Variant& cNIP::DefaultValue(std::int16_t group, std::int16_t field) const {
    return at(group, field).defaultValue;
}
void cNIP::DefaultValue(std::int16_t group, std::int16_t field, const Variant& value) {
    at(group, field).defaultValue = value;
}
const Variant& cNIP::value(std::int16_t group, std::int16_t field) const {
    return at(group, field).value;
}
void cNIP::value(std::int16_t group, std::int16_t field, const Variant& newValue) {
    at(group, field).value = newValue;
}
const Variant& cNIP::ValueList(std::int16_t group, std::int16_t field) const {
    return at(group, field).valueList;
}
void cNIP::ValueList(std::int16_t group, std::int16_t field, const Variant& values) {
    at(group, field).valueList = values;
}
std::int16_t cNIP::ValueListCount(std::int16_t group, std::int16_t field) const {
    return at(group, field).valueListCount;
}
void cNIP::ValueListCount(std::int16_t group, std::int16_t field, std::int16_t count) {
    at(group, field).valueListCount = count;
}
const Variant& cNIP::ChoiceList(std::int16_t group, std::int16_t field) const {
    return at(group, field).choiceList;
}
void cNIP::ChoiceList(std::int16_t group, std::int16_t field, const Variant& values) {
    at(group, field).choiceList = values;
}
std::int16_t cNIP::ChoiceListCount(std::int16_t group, std::int16_t field) const {
    return at(group, field).choiceListCount;
}
void cNIP::ChoiceListCount(std::int16_t group, std::int16_t field, std::int16_t count) {
    at(group, field).choiceListCount = count;
}

} // namespace Korvane
