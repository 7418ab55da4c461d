#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>

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
    if (!value.isText()) value.setText(value.textOrEmpty());
}

void forget(GroupRecord& group) {
    for (FieldRecord& field : group.fields) {
        field.value = Variant();
        field.previousValue = Variant();
        splitChoices(field);
    }
}

} // namespace

bool cNIP::Load(std::int32_t encounterID, std::string_view patientID, bool newEncounter) {
    mEncounterID = encounterID;
    mPatientID = patientID;
    mNewEncounter = newEncounter;
    const bool loaded = guarded("Error in cNip.Load: ", false, [&] {
        if (!mStructureLoaded && !LoadStructure(mConnection)) return false;
        loadValues();
        return true;
    });
    if (!loaded) forgetValues();
    return loaded;
}

void cNIP::forgetValues() {
    mEncounterID = -1;
    for (GroupRecord& group : mGroups)
        forget(group);
}

const FieldList& cNIP::fieldListOf(GroupRecord& group) {
    if (!group.fieldList) group.fieldList = GetFieldList(group);
    return *group.fieldList;
}

/// Writes the statements that a load runs, in their order, into the storage of those of the last one.
void cNIP::writeLoadStatements() {
    std::size_t count = 0;
    const auto next = [&]() -> std::string& {
        if (count == mStatements.size()) mStatements.emplace_back();
        return mStatements[count++];
    };
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        const FieldList& list = fieldListOf(mGroups[i]);
        if (list.columns.empty()) continue;
        encounterStatement(list, mEncounterID, next());
        if (carriesForward(mGroups[i])) latestEncounterStatement(list, mPatientID, mEncounterID, next());
    }
    mStatements.resize(count);
}

bool cNIP::carriesForward(const GroupRecord& group) const {
    return mNewEncounter && hasInitialValueRule(group);
}

void cNIP::loadValues() {
    writeLoadStatements();
    Snapshot snapshot(*mConnection);
    mConnection->Announce(mStatements);
    auto statement = mStatements.cbegin();
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
}

void cNIP::fillGroup(GroupRecord& group, SQLData& current, SQLData& latest) {
    const std::vector<std::int16_t>& columnOf = fieldListOf(group).columnOf;
    for (std::size_t i = 1; i < columnOf.size(); ++i) {
        FieldRecord& field = group.fields[i];
        field.initialised = mNewEncounter;
        if (!mNewEncounter)
            takeText(field.value, current, columnOf[i]);
        else if (field.initialValueRule >= 1)
            takeText(field.value, latest, columnOf[i]);
        else
            keep(field.value, field.defaultValue);
        keep(field.previousValue, field.value);
        splitChoices(field);
    }
}

} // namespace Korvane
