#include <korvane/nip/cNIP.h>

#include <korvane/ado/Table.h>
#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/DataTable.h>
#include <korvane/nip/FieldOrder.h>
#include <korvane/nip/SqlName.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr std::string_view commentSuffix = "_Comments";
constexpr std::size_t longestName = 63; // of a server's column

/// Refuses a name that the field cannot have beside the others of its group.
void requireFreeName(const GroupRecord& group, const FieldRecord& field, const std::string& name) {
    if (trim(name).empty())
        throw RuntimeError(RuntimeError::InvalidArgument, translate("Korvane::nip", "A field needs a name"));
    sqlName(name);
    if (name.size() > longestName)
        throw RuntimeError(RuntimeError::InvalidArgument,
                           filled(translate("Korvane::nip", "The name %1 is longer than %2 bytes"),
                                  {name, std::to_string(longestName)}));
    if (sameName(name, "EncounterID"))
        throw RuntimeError(
            RuntimeError::DuplicateKey,
            filled(translate("Korvane::nip", "The name %1 is that of the group's key"), {name}));
    for (std::int16_t i = 1; i <= group.fieldCount; ++i) {
        const FieldRecord& other = group.fields[static_cast<std::size_t>(i)];
        if (&other != &field && (sameName(other.fieldName, name) || sameName(other.newFieldName, name)))
            throw RuntimeError(RuntimeError::DuplicateKey,
                               filled(translate("Korvane::nip", "The group %1 has a field %2 already"),
                                      {group.groupName, name}));
    }
}

/// Takes over all but name and place.
void define(FieldRecord& field, const FieldDefinition& definition) {
    if (definition.maxLength < 1 && definition.maxLength != field.maxLength)
        throw RuntimeError(RuntimeError::InvalidArgument,
                           filled(translate("Korvane::nip", "A field of %1 characters holds nothing"),
                                  {std::to_string(definition.maxLength)}));
    if (definition.values.size() > std::size_t{std::numeric_limits<std::int16_t>::max()})
        throw RuntimeError(RuntimeError::Overflow,
                           translate("Korvane::nip", "More than 32767 values of a field"));
    field.caption = definition.caption;
    field.maxLength = definition.maxLength;
    field.displayType = definition.displayType;
    field.initialValueRule = definition.initialValueRule;
    field.valueList = emptyList();
    for (const std::string& value : definition.values)
        field.valueList.array().elements.emplace_back(value);
    field.valueListCount = static_cast<std::int16_t>(definition.values.size());
    field.defaultValue = definition.defaultValue.empty() ? Variant() : Variant(definition.defaultValue);
}

void moveTo(GroupRecord& group, std::int16_t field, std::int16_t row) {
    for (const auto& [index, ordinal] : moveToRow(group, field, row)) {
        FieldRecord& moved = group.fields[static_cast<std::size_t>(index)];
        moved.ordinal = ordinal;
        moved.changed = true;
        group.hasChanges = true;
    }
}

} // namespace

bool cNIP::CreateField(std::int16_t groupIndex, const FieldDefinition& definition) {
    if (groupIndex < 0) {
        mLastError = RuntimeError(RuntimeError::SubscriptOutOfRange);
        ErrLog("cNip.CreateField error: pGroupIndex=" + std::to_string(groupIndex));
        return false;
    }
    return attempt("Error in cNip.CreateField: ", [&] {
        GroupRecord& group = existingGroup(groupIndex);
        FieldRecord field;
        requireFreeName(group, field, definition.fieldName);
        field.pending = true;
        field.fieldName = definition.fieldName;
        field.tableName = group.tableName;
        field.groupName = group.groupName;
        field.groupID = Variant(group.groupID).toInt32();
        field.dataType = "dbText";
        field.maxLength = -1; // none that may stay
        field.choiceList = emptyList();
        field.ordinal = ordinalBehindAll(group);
        define(field, definition);
        FieldRecord& added = appendField(group);
        added = std::move(field);
        group.hasChanges = true;
        place(group, added);
        if (definition.rowIndex > 0) moveTo(group, group.fieldCount, definition.rowIndex);
        group.fieldList.reset();
        catalog();
        return true;
    });
}

bool cNIP::EditField(std::int16_t groupIndex, std::int16_t fieldIndex, const FieldDefinition& definition) {
    return attempt("Error in cNip.EditField: ", [&] {
        GroupRecord& group = existingGroup(groupIndex);
        FieldRecord& field = existingField(groupIndex, fieldIndex);
        FieldRecord edited = field;
        // A name that is no good is still one that the field may keep.
        const bool isRenamed = definition.fieldName != field.fieldName;
        if (isRenamed) requireFreeName(group, field, definition.fieldName);
        (field.pending ? edited.fieldName : edited.newFieldName) =
            field.pending || isRenamed ? definition.fieldName : "";
        define(edited, definition);
        if (holdsChoices(edited.displayType) != holdsChoices(field.displayType)) {
            edited.value = textOf(field);
            splitChoices(edited);
        }
        edited.changed = true;
        field = std::move(edited);
        group.hasChanges = true;
        if (definition.rowIndex > 0) moveTo(group, fieldIndex, definition.rowIndex);
        if (field.pending) group.fieldList.reset();
        return true;
    });
}

/// A comment on a field stands beside it; any other begins a row.
void cNIP::place(GroupRecord& group, FieldRecord& field) {
    const std::string_view name = field.fieldName;
    const auto isCommented = [&](const FieldRecord& other) {
        return other.fieldName == name.substr(0, name.size() - commentSuffix.size());
    };
    if (name.ends_with(commentSuffix)) {
        const auto end = group.fields.begin() + group.fieldCount;
        const auto commented = std::find_if(group.fields.begin() + 1, end, isCommented);
        if (commented != end) {
            field.rowIndex = commented->rowIndex;
            field.colIndex = 2;
            return;
        }
    }
    beginRow(group, field);
}

bool cNIP::DeleteField(std::int16_t groupIndex, std::int16_t fieldIndex) {
    return changeSchema("Error in cNip.DeleteField:", [&] {
        const FieldRecord& field = existingField(groupIndex, fieldIndex);
        const std::string& table = existingGroup(groupIndex).tableName;
        execute("Delete from DBFieldValues Where fieldName='" + escapeQuotes(field.fieldName) +
                "' and DBFieldGroupID=" + std::to_string(field.groupID));
        execute("Delete From DBFields Where ID=" + std::to_string(field.id));
        if (catalog().Tables().Exists(table)) {
            ado::Table data = catalog().Tables().Item(table);
            deleteColumn(data, field.fieldName);
        } else {
            ErrLog("Error in cNip.DeleteField: deleting field, but table does not exist:" + table);
        }
        return true;
    });
}

} // namespace Korvane
