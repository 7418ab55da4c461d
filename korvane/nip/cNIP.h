#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/nip/FieldDefinition.h>
#include <korvane/nip/FieldRecord.h>
#include <korvane/nip/GroupRecord.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

namespace ado {
class Catalog;
}
class FieldIndex;
class SQLData;
struct StructureStep;

/// What was entered into a field that is there no more.
struct LostEntry {
    std::string groupName; ///< of its group, which may be gone too
    std::string caption;   ///< of the field, as it was
    std::string text;      ///< all of it; entries of a list joined with "|"
};

/// The model of a Nip: its groups, the fields of each group, each field's allowed values and its value for
/// one encounter.
///
///     cNIP nip;
///     if (nip.LoadStructure(db) && nip.Load(12, "P-0042", false)) {
///         nip.value(1, 3, "37.2");
///         nip.Save();
///     }
///
/// Groups and fields are addressed by 16-bit indexes counted from 1, the group first. A get with a negative
/// index returns the empty value of its type; an index above the table's bounds (the number of groups; the
/// largest number of fields of any group) raises SubscriptOutOfRange. Row 0 and column 0 exist and are empty,
/// and so are the fields behind the last one of a shorter group.
class cNIP {
  public:
    cNIP();
    ~cNIP();
    cNIP(const cNIP&) = delete;
    cNIP& operator=(const cNIP&) = delete;

    /// How many groups are loaded; 0 before `LoadStructure`.
    std::int16_t GroupCount() const;
    /// Fields of a group, and rows of its layout grid.
    std::int16_t FieldCount(std::int16_t group) const;
    std::int16_t RowCount(std::int16_t group) const;
    std::int16_t RowCountMax() const;

    /// Of the field's group; empty, and 0, where there is no field.
    const std::string& TableName(std::int16_t group, std::int16_t field) const;
    const std::string& GroupName(std::int16_t group, std::int16_t field) const;
    std::int32_t GroupID(std::int16_t group, std::int16_t field) const;
    /// The name of a group, also of one without fields.
    const std::string& GroupName(std::int16_t group) const;

    /// The column in the group's table, as it is in the database.
    const std::string& fieldName(std::int16_t group, std::int16_t field) const;
    /// A different name is kept beside the stored one and marks the field as changed; `fieldName` stays until
    /// it is saved.
    void fieldName(std::int16_t group, std::int16_t field, std::string_view name);

    /// The definition of a field as it was loaded. Setting a part of it changes the model and marks nothing
    /// as changed: what is to be stored goes through `EditField`. The length is in characters; the display
    /// type is one of "TEXT", "COMBOBOX", "COMBOBOX-RESTRICTED", "LIST", "LIST-MULTIPLE" and
    /// "LIST-EDITCONTENT", in any case; an initial value rule of 1 lets a new encounter begin with the value
    /// of the latest one; fields stand in the order of their ordinals.
    const std::string& Caption(std::int16_t group, std::int16_t field) const;
    void Caption(std::int16_t group, std::int16_t field, std::string_view caption);
    std::int16_t maxLength(std::int16_t group, std::int16_t field) const;
    void maxLength(std::int16_t group, std::int16_t field, std::int16_t length);
    const std::string& dataType(std::int16_t group, std::int16_t field) const;
    const std::string& displayType(std::int16_t group, std::int16_t field) const;
    void displayType(std::int16_t group, std::int16_t field, std::string_view type);
    std::int16_t InitialValueRule(std::int16_t group, std::int16_t field) const;
    void InitialValueRule(std::int16_t group, std::int16_t field, std::int16_t rule);
    float Ordinal(std::int16_t group, std::int16_t field) const;
    void Ordinal(std::int16_t group, std::int16_t field, float ordinal);
    const Variant& DefaultValue(std::int16_t group, std::int16_t field) const;
    void DefaultValue(std::int16_t group, std::int16_t field, const Variant& value);

    /// Where a panel shows the field: the indexes of its entry and of its caption in their control arrays (an
    /// entry that it cannot show has -1), its row from 1, and its column, 1 or 2 for a comment beside its
    /// field.
    std::int16_t ControlIndex(std::int16_t group, std::int16_t field) const;
    void ControlIndex(std::int16_t group, std::int16_t field, std::int16_t index);
    std::int16_t ControlIndexLabel(std::int16_t group, std::int16_t field) const;
    void ControlIndexLabel(std::int16_t group, std::int16_t field, std::int16_t index);
    std::int16_t RowIndex(std::int16_t group, std::int16_t field) const;
    void RowIndex(std::int16_t group, std::int16_t field, std::int16_t row);
    std::int16_t ColIndex(std::int16_t group, std::int16_t field) const;
    void ColIndex(std::int16_t group, std::int16_t field, std::int16_t column);

    /// What the encounter has in the field: text once loaded. `Save` stores it.
    const Variant& value(std::int16_t group, std::int16_t field) const;
    void value(std::int16_t group, std::int16_t field, const Variant& value);

    /// The allowed values: an array from 0 whose element 0 is empty, the first value at index 1.
    const Variant& ValueList(std::int16_t group, std::int16_t field) const;
    void ValueList(std::int16_t group, std::int16_t field, const Variant& values);
    std::int16_t ValueListCount(std::int16_t group, std::int16_t field) const;
    void ValueListCount(std::int16_t group, std::int16_t field, std::int16_t count);
    /// The chosen entries of a "LIST-MULTIPLE" or "LIST-EDITCONTENT" field: an array from 0, the first entry
    /// at index 0, as many as `ChoiceListCount` says. `Save` stores them joined with "|" in place of `value`.
    const Variant& ChoiceList(std::int16_t group, std::int16_t field) const;
    void ChoiceList(std::int16_t group, std::int16_t field, const Variant& values);
    std::int16_t ChoiceListCount(std::int16_t group, std::int16_t field) const;
    void ChoiceListCount(std::int16_t group, std::int16_t field, std::int16_t count);

    /// The encounter whose rows `Save` writes: set once a new encounter has been given its identifier. -1,
    /// none yet, in a new model, after `LoadStructure` and after a `Load` that failed.
    void EncounterID(std::int32_t id);

    /// Loads groups, fields and allowed values; what was held before is lost, values included. False without
    /// a connection (nothing changes then) or after a failure, which is written to the error log; what was
    /// loaded up to it stays. More than 32767 groups, fields of a group or rows are such a failure.
    bool LoadStructure(const std::shared_ptr<ado::Connection>& connection);

    /// Whether the latest operation failed because somebody has customized the Nip since the structure was
    /// loaded. `Load`, `Save` and the operations of customizing then do nothing but
    /// return false, until the structure is loaded anew.
    bool StructureChanged() const { return mStructureChanged; }

    /// Loads structure and values anew and keeps what was entered since the last load, in the fields that are
    /// still there, also under another name. What was entered into the others is `lost`. False, with nothing
    /// changed and a line in the error log, after a failure.
    bool ReloadStructure(std::vector<LostEntry>& lost);

    /// Fills every field's value for an encounter; for a new one from the defaults or, where the field says
    /// so, from the patient's latest other encounter (an empty patient ID has none). Values read from the
    /// database are text; Null, and a group without a row, give empty texts. Loads the structure first if
    /// that has not been done. False, with a line in the error log, after a failure: the model then holds no
    /// values and no encounter, so that nothing of another encounter is taken for this one's.
    bool Load(std::int32_t encounterID, std::string_view patientID, bool newEncounter);

    /// Writes every group's row for the encounter, updating or inserting it, all in one transaction. A value
    /// that is still as it was loaded leaves a column that is no text column as it is, so that what its text
    /// does not show (further digits, a fraction of a second, another program's notes) is not lost. False,
    /// with a line in the error log and nothing written, after a failure; a model without a structure or
    /// without an encounter (-1) is such a failure, and so is an identifier under which the encounter of
    /// another patient than the last `Load` was for is stored by now, or two encounters. When two desks write
    /// the first row of a group at once, the table's key refuses one of them: its next `Save` updates. Two
    /// that save the same encounter one after the other both succeed, and the later values stay.
    bool Save();

    // Customizing. Each operation changes structure tables and schema in one transaction, whole or not at
    // all: false, with a line in the error log, when it failed, and database and model are as they were
    // before. After a success load the structure anew: what was deleted is still in the model, for one. While
    // another desk customizes, an operation waits for it; when another desk has changed the structure since
    // it was loaded, the operation fails.

    /// Adds a group with a table of its own, as the last one. Its table is named after the greatest name
    /// there is, by the rule of `tableNameAfter`, which knows no more than two names; with `numbersGroups` it
    /// takes the number after the greatest in use. A blank name is refused.
    bool CreateGroup(std::string_view name);
    /// How `CreateGroup` names its table, see there. Default false.
    bool numbersGroups() const { return mNumbersGroups; }
    void numbersGroups(bool on) { mNumbersGroups = on; }

    /// Removes a group with its fields and its table, and with that all that was entered there.
    bool DeleteGroup(std::int16_t group);

    /// Adds a text field to a group, in the model only: `SaveStructure` makes its column and its row.
    /// Refused: an empty name, "EncounterID", a name that a field of the group has or is about to get, and
    /// one that no statement can hold.
    bool CreateField(std::int16_t group, const FieldDefinition& definition);

    /// Changes the definition of a field, in the model only: `SaveStructure` writes it. The same names are
    /// refused. The column is renamed with its data.
    bool EditField(std::int16_t group, std::int16_t field, const FieldDefinition& definition);

    /// Removes a field with its allowed values and its column, and with that all that was entered there. A
    /// table or column that is missing already is noted in the error log.
    bool DeleteField(std::int16_t group, std::int16_t field);

    /// Writes what `CreateField` and `EditField` changed. A column is widened for a greater `maxLength`,
    /// never narrowed. After a failure the fields are still new or changed: it can be tried again.
    bool SaveStructure();

    /// Why the latest operation that returned false did; nothing before the first.
    const std::optional<RuntimeError>& LastError() const { return mLastError; }

  private:
    const FieldRecord& at(std::int16_t group, std::int16_t field) const;
    FieldRecord& at(std::int16_t group, std::int16_t field);
    const GroupRecord& groupAt(std::int16_t group) const;

    void loadGroups(std::vector<GroupRecord>& former);
    void loadFields(FieldIndex& index);
    void loadAllowedValues(const FieldIndex& index);
    FieldRecord& appendField(GroupRecord& group);
    void placeInGrid(GroupRecord& group, FieldRecord& field, const FieldIndex& index);
    void beginRow(GroupRecord& group, FieldRecord& field);

    FieldList& fieldListOf(GroupRecord& group);
    const std::vector<std::string>& columnsOfEncounter();
    bool carriesForward(const GroupRecord& group) const;
    void writeLoadStatements();
    void loadValues();
    void fillGroup(GroupRecord& group, SQLData& current, SQLData& latest);
    void forgetValues();
    void requireOwnEncounter(std::string_view statement) const;
    void saveValues();

    cNIP& operator=(cNIP&& other) noexcept;
    bool withCurrentSchema(const std::function<bool()>& body);
    bool isAsStored();
    void noteChangedStructure();
    void carryEntries(cNIP& fresh, std::vector<LostEntry>& lost) const;
    bool attempt(std::string_view prefix, const std::function<bool()>& body);
    bool changeSchema(std::string_view prefix, const std::function<bool()>& change);
    std::string readCell(const std::string& statement);
    void requireCurrentSchema();
    void requireCurrentRevision();
    GroupRecord& existingGroup(std::int16_t group);
    FieldRecord& existingField(std::int16_t group, std::int16_t field);
    ado::Catalog& catalog();
    void execute(std::string_view statement);
    void execute(const std::vector<std::string>& statements);
    std::int32_t nextID(const std::string& statement);

    void insertGroup(GroupRecord& group);
    std::string newTableName();
    bool createTable(const std::string& name);
    void place(GroupRecord& group, FieldRecord& field);
    bool take(const StructureStep& step);
    void insertField(FieldRecord& field);
    void updateField(const GroupRecord& group, const FieldRecord& field);
    void writeAllowedValues(const FieldRecord& field);

    std::shared_ptr<ado::Connection> mConnection;
    std::vector<GroupRecord> mGroups; ///< group 0 is there, and empty
    std::int16_t mFieldCountMax = 0;
    std::int16_t mRowCountMax = 0;
    bool mStructureLoaded = false;
    std::vector<std::string> mColumnsOfEncounter; ///< of that table; empty until they are needed
    std::int32_t mEncounterID = -1;
    std::string mPatientID;
    bool mNewEncounter = false;
    std::vector<std::string> mStatements; ///< of the last load, kept for their storage
    bool mNumbersGroups = false;
    std::unique_ptr<ado::Catalog> mCatalog; ///< made when it is first needed
    std::string mRevision;
    std::string mSchemaMark; ///< of the schema when the structure was loaded
    bool mStructureChanged = false;
    bool mHoldsValues = false; ///< of a load that succeeded
    std::optional<RuntimeError> mLastError;
};

} // namespace Korvane
