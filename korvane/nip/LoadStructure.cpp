#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Counters.h>
#include <korvane/nip/FieldIndex.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <array>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace Korvane {

namespace {

const std::array<std::string, 3> structureStatements = {
    "Select DBFieldGroups.DBFieldGroupID, DBFieldGroups.GroupName, DBFieldGroups.TableName "
    "From DBFields RIGHT OUTER JOIN DBFieldGroups ON DBFields.DBFieldGroupID=DBFieldGroups.DBFieldGroupID "
    "Where DBFieldGroups.DBFieldGroupID>1 "
    "GROUP BY DbFieldGroups.DBFieldGroupID, DBFieldGroups.GroupName , DBFieldGroups.TableName, "
    "DBFieldGroups.Ordinal Order By DBFieldGroups.Ordinal",

    "Select DBFieldGroups.GroupName, DBFields.ID, DBFieldGroups.TableName, DBFieldGroups.DBFieldGroupID, "
    "maxlength, fieldName,fieldCaption,displaytype,InitialValueRuleID,DBFields.Ordinal "
    "From DBFields INNER JOIN DBFieldGroups ON DBFields.DBFieldGroupID=DBFieldGroups.DBFieldGroupID "
    "Where DBFieldGroups.DBFieldGroupID>1 and DBFields.FieldName<>'EncounterID' "
    "Order By DBFieldGroups.DBFieldGroupID, DBFieldGroups.Ordinal, DBFields.Ordinal, DBFields.fieldname",

    "Select fieldValue,defaultvalue,FieldName,DBFieldGroupID,Ordinal From DBFieldValues Order By Ordinal"};

// The columns of those three, by their place.
enum GroupColumn { groupIdentifier, groupName, groupTable };
enum FieldColumn {
    fieldGroupName,
    fieldID,
    fieldTable,
    fieldGroupID,
    fieldMaxLength,
    fieldFieldName,
    fieldCaption,
    fieldDisplayType,
    fieldInitialValueRule,
    fieldOrdinal
};
enum ValueColumn { allowedValue, isDefault, valueFieldName, valueGroupID };

constexpr std::string_view commentSuffix = "_COMMENTS";

/// Whether a whole number becomes one of the model's as it is.
template <typename Number>
bool holds(std::int64_t whole) {
    if constexpr (std::is_same_v<Number, bool>)
        return true;
    else if constexpr (std::is_integral_v<Number>)
        return std::in_range<Number>(whole);
    else
        return std::in_range<std::int32_t>(whole);
}

/// The first cells of a query's row, as the model keeps them. They are looked at together: there are very
/// many rows.
template <std::size_t count>
class Row {
  public:
    explicit Row(SQLData& query) : mQuery(query) { query.Peek(mCells); }

    /// Stands until the query is asked for anything else.
    std::string_view text(int column) const {
        const auto* text = std::get_if<std::string_view>(&cell(column));
        return text ? *text : mQuery.DataText(column);
    }

    void value(int column, Variant& value) const {
        if (const auto* text = std::get_if<std::string_view>(&cell(column)))
            value.setText(*text);
        else
            mQuery.DataInto(column, value);
    }

    /// A failure says which cell of which field it was.
    template <typename Number>
    Number number(int column, Number (Variant::*convert)() const, std::string_view fieldName) const {
        const auto* whole = std::get_if<std::int64_t>(&cell(column));
        if (whole && holds<Number>(*whole)) return static_cast<Number>(*whole);
        Variant value;
        mQuery.DataInto(column, value);
        try {
            return (value.*convert)();
        } catch (const RuntimeError& error) {
            throw RuntimeError(error.Number(),
                               filled(translate("Korvane::nip", "%1 of the field %2: %3"),
                                      {mQuery.Fields(column)->Name(), fieldName, error.Description()}));
        }
    }

  private:
    const ado::CellView& cell(int column) const { return mCells[static_cast<std::size_t>(column)]; }

    SQLData& mQuery;
    std::array<ado::CellView, count> mCells;
};
using GroupRow = Row<groupTable + 1>;
using FieldRow = Row<fieldOrdinal + 1>;
using ValueRow = Row<valueGroupID + 1>;

/// All but its name and its table, which decide where it belongs.
void fillField(FieldRecord& field, const FieldRow& row) {
    const auto number = [&](int column, auto convert) {
        return row.number(column, convert, field.fieldName);
    };
    field.id = number(fieldID, &Variant::toInt32);
    field.caption = row.text(fieldCaption);
    field.groupName = row.text(fieldGroupName);
    field.groupID = number(fieldGroupID, &Variant::toInt32);
    field.displayType = row.text(fieldDisplayType);
    field.maxLength = number(fieldMaxLength, &Variant::toInt16);
    field.storedLength = field.maxLength;
    field.initialValueRule = number(fieldInitialValueRule, &Variant::toInt16);
    field.ordinal = number(fieldOrdinal, &Variant::toSingle);
    field.valueList = emptyList();
    field.choiceList = emptyList();
}

/// Empty as `emptyList`, with room for the values that a field usually allows.
Variant roomyList() {
    constexpr std::size_t usualCount = 8;
    VariantArray list;
    list.elements.reserve(1 + usualCount);
    list.elements.emplace_back();
    return list;
}

void addAllowedValue(FieldRecord& field, const ValueRow& row, std::string_view fieldName) {
    const bool byDefault = row.number(isDefault, &Variant::toBoolean, fieldName);
    if (field.valueListCount == 0) field.valueList = roomyList();
    std::vector<Variant>& values = field.valueList.array().elements;
    field.valueListCount =
        countedUp(field.valueListCount, translatable("Korvane::nip", "More than %1 values of the field %2"),
                  field.fieldName);
    row.value(allowedValue, values.emplace_back());
    if (byDefault) field.defaultValue = values.back();
}

} // namespace

bool cNIP::LoadStructure(const std::shared_ptr<ado::Connection>& connection) {
    if (!connection) return false;
    return attempt("Error in cNip.LoadStructure: ", [&] {
        mConnection = connection;
        mStructureLoaded = false;
        mStructureChanged = false;
        mHoldsValues = false;
        mEncounterID = -1; // its values go with the structure: a save must not write empty ones over them
        mColumnsOfEncounter.clear();
        mFieldCountMax = 0;
        mRowCountMax = 0;
        std::vector<GroupRecord> former = std::exchange(mGroups, std::vector<GroupRecord>(1));

        Snapshot snapshot(*mConnection);
        std::vector<std::string> statements(structureStatements.begin(), structureStatements.end());
        statements.push_back(revisionStatement);
        statements.push_back(mConnection->schemaMarkStatement());
        mConnection->Announce(statements);
        FieldIndex index(mGroups);
        loadGroups(former);
        loadFields(index);
        loadAllowedValues(index);
        mRevision = readCell(revisionStatement);
        mSchemaMark = readCell(statements.back());
        snapshot.end();
        mStructureLoaded = true;
        return true;
    });
}

/// What was loaded before goes here, where a server is at work on the fields; the room of its fields is used
/// again.
void cNIP::loadGroups(std::vector<GroupRecord>& former) {
    SQLData query;
    for (run(query, mConnection, structureStatements[0]); !query.Eof(); query.NextRow()) {
        const GroupRow row(query);
        countedUp(GroupCount(), translatable("Korvane::nip", "More than %1 groups"));
        GroupRecord& group = mGroups.emplace_back();
        group.tableName = row.text(groupTable);
        group.groupName = row.text(groupName);
        group.groupID = row.text(groupIdentifier);
        raiseFailure(query);
        if (mGroups.size() > former.size()) continue;
        group.fields = std::move(former[mGroups.size() - 1].fields);
        group.fields.clear();
    }
    former.clear();
}

void cNIP::loadFields(FieldIndex& index) {
    // Where a table's group is found by a search from the start.
    std::unordered_map<std::string_view, std::int16_t> groupOfTable;
    for (std::int16_t i = 0; i <= GroupCount(); ++i)
        groupOfTable.try_emplace(groupAt(i).tableName, i);

    std::int16_t place = 0;
    SQLData query;
    for (run(query, mConnection, structureStatements[1]); !query.Eof(); query.NextRow()) {
        const FieldRow row(query);
        // The statement leaves out the key column as the engine compares texts, perhaps by their case.
        if (sameName(row.text(fieldFieldName), "EncounterID")) continue;
        const std::string_view table = row.text(fieldTable);
        if (table != groupAt(place).tableName) {
            const auto found = groupOfTable.find(table);
            place = found == groupOfTable.end() ? GroupCount() : found->second;
        }
        GroupRecord& group = mGroups[static_cast<std::size_t>(place)];
        FieldRecord& field = appendField(group);
        field.tableName = table;
        field.fieldName = row.text(fieldFieldName);
        fillField(field, row);
        raiseFailure(query);
        placeInGrid(group, field, index);
        index.add({place, group.fieldCount});
    }
}

FieldRecord& cNIP::appendField(GroupRecord& group) {
    const std::int16_t count =
        countedUp(group.fieldCount, translatable("Korvane::nip", "More than %1 fields in the group %2"),
                  group.groupName);
    const auto index = static_cast<std::size_t>(count);
    if (index >= group.fields.size()) group.fields.resize(index + 1);
    group.fieldCount = count;
    mFieldCountMax = std::max(mFieldCountMax, count);
    return group.fields[index];
}

/// A comment field stands beside the field that it comments, if that was loaded before; any other begins a
/// row.
void cNIP::placeInGrid(GroupRecord& group, FieldRecord& field, const FieldIndex& index) {
    const std::string_view name = field.fieldName;
    if (name.ends_with(commentSuffix)) {
        const std::string_view base = name.substr(0, name.size() - commentSuffix.size());
        if (const FieldRecord* commented = index.first(field.groupID, base)) {
            field.colIndex = 2;
            field.rowIndex = commented->rowIndex;
            return;
        }
    }
    beginRow(group, field);
}

void cNIP::beginRow(GroupRecord& group, FieldRecord& field) {
    group.rowCount = countedUp(
        group.rowCount, translatable("Korvane::nip", "More than %1 rows in the group %2"), group.groupName);
    field.colIndex = 1;
    field.rowIndex = group.rowCount;
    mRowCountMax = std::max(mRowCountMax, group.rowCount);
}

void cNIP::loadAllowedValues(const FieldIndex& index) {
    std::string name;
    SQLData query;
    for (run(query, mConnection, structureStatements[2]); !query.Eof(); query.NextRow()) {
        const ValueRow row(query);
        name = row.text(valueFieldName);
        const std::int32_t groupID = row.number(valueGroupID, &Variant::toInt32, name);
        index.forEach(groupID, name,
                      [&](FieldPlace place) { addAllowedValue(at(place.group, place.field), row, name); });
        raiseFailure(query);
    }
}

} // namespace Korvane
