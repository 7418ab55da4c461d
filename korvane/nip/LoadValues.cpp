#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>

namespace Korvane {

namespace {

/// Copies into the storage that a text has already.
void keep(Variant& kept, const Variant& value) {
    if (value.isText())
        kept.setText(value.asText());
    else
        kept = value;
}

/// Takes over a column joined to an empty text.
void takeText(Variant& value, SQLData& row, std::int16_t column) {
    if (column == FieldList::noColumn) return value.setText("");
    row.DataInto(column, value);
    if (value.isText()) return;
    // A null number reads as 0; nothing was entered all the same.
    const bool zero = value == Variant(std::int16_t{0});
    value.setText(zero && row.Fields(column)->Value().isNull() ? "" : value.textOrEmpty());
}

void noteTextColumns(FieldList& list, const SQLData& row) {
    if (!list.keepsText.empty()) return;
    for (const std::int16_t column : list.columnOf) {
        const ado::DataType type =
            column == FieldList::noColumn ? ado::DataType::Empty : row.Fields(column)->Type();
        list.keepsText.push_back(type == ado::DataType::VarWChar || type == ado::DataType::LongVarWChar);
    }
}

void forget(GroupRecord& group) {
    for (FieldRecord& field : group.fields) {
        field.value = Variant();
        field.previousValue = Variant();
        field.asStored = false;
        splitChoices(field);
    }
}

/// No statement takes a zero character, which another program may have stored.
bool canStandInStatement(const Variant& value) {
    return !value.isText() || value.asText().find('\0') == std::string::npos;
}

} // namespace

bool cNIP::Load(std::int32_t encounterID, std::string_view patientID, bool newEncounter) {
    mHoldsValues = attempt("Error in cNip.Load: ", [&] {
        if (!mStructureLoaded && !LoadStructure(mConnection)) return false;
        mEncounterID = encounterID;
        mPatientID = patientID;
        mNewEncounter = newEncounter;
        return withCurrentSchema([&] {
            loadValues();
            return true;
        });
    });
    if (!mHoldsValues) {
        noteChangedStructure();
        forgetValues();
    }
    return mHoldsValues;
}

void cNIP::forgetValues() {
    mEncounterID = -1;
    for (GroupRecord& group : mGroups)
        forget(group);
}

FieldList& cNIP::fieldListOf(GroupRecord& group) {
    if (!group.fieldList) group.fieldList = GetFieldList(group);
    return *group.fieldList;
}

/// Of the database in hand: a host may have given the table columns of its own.
const std::vector<std::string>& cNIP::columnsOfEncounter() {
    if (mColumnsOfEncounter.empty()) {
        SQLData row;
        run(row, mConnection, "Select * From Encounter Where 1=0");
        for (std::int16_t i = 0; i < row.FieldCount(); ++i)
            mColumnsOfEncounter.push_back(row.Fields(i)->Name());
    }
    return mColumnsOfEncounter;
}

/// Writes the statements that a load runs, in their order, into the storage of those of the last one.
void cNIP::writeLoadStatements() {
    std::size_t count = 0;
    const auto next = [&]() -> std::string& {
        if (count == mStatements.size()) mStatements.emplace_back();
        return mStatements[count++];
    };
    next() = revisionStatement;
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        FieldList& list = fieldListOf(mGroups[i]);
        if (list.columns.empty()) continue;
        encounterStatement(list, mEncounterID, next());
        if (!carriesForward(mGroups[i])) continue;
        if (list.joinedColumns.empty()) qualifyColumns(list, mGroups[i], columnsOfEncounter());
        latestEncounterStatement(list, mPatientID, mEncounterID, next());
    }
    mStatements.resize(count);
}

/// Encounters without a patient are nobody's: they are not taken for those of one person.
bool cNIP::carriesForward(const GroupRecord& group) const {
    return mNewEncounter && !mPatientID.empty() && hasInitialValueRule(group);
}

void cNIP::loadValues() {
    writeLoadStatements();
    Snapshot snapshot(*mConnection);
    mConnection->Announce(mStatements);
    requireCurrentRevision();
    auto statement = mStatements.cbegin() + 1;
    SQLData current;
    SQLData latest;
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        GroupRecord& group = mGroups[i];
        if (fieldListOf(group).columns.empty()) {
            forget(group);
            continue;
        }
        run(current, mConnection, *statement++);
        if (carriesForward(group)) run(latest, mConnection, *statement++);
        fillGroup(group, current, latest);
        raiseFailure(current);
        raiseFailure(latest);
    }
    current.CloseRS();
    latest.CloseRS();
    snapshot.end();
    // Names are looked up as of the statement, not of the snapshot: somebody may have renamed in between.
    requireCurrentRevision();
}

void cNIP::fillGroup(GroupRecord& group, SQLData& current, SQLData& latest) {
    FieldList& list = fieldListOf(group);
    noteTextColumns(list, current);
    for (std::size_t i = 1; i < list.columnOf.size(); ++i) {
        FieldRecord& field = group.fields[i];
        const std::int16_t column = list.columnOf[i];
        field.initialised = mNewEncounter;
        if (!mNewEncounter)
            takeText(field.value, current, column);
        else if (field.initialValueRule >= 1)
            takeText(field.value, latest, mPatientID.empty() ? FieldList::noColumn : column);
        else
            keep(field.value, field.defaultValue);
        keep(field.previousValue, field.value);
        field.asStored = !mNewEncounter && (!list.keepsText[i] || !canStandInStatement(field.value));
        splitChoices(field);
    }
}

} // namespace Korvane
