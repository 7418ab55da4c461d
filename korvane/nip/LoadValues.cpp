#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>

namespace Korvane {

namespace {

/// A group that is to be read, and whether the patient's latest encounter is wanted too.
struct GroupRead {
    GroupRecord* group;
    bool carriesForward;
};

/// Takes over a column joined to an empty text, in the storage that the value has.
void takeText(Variant& value, SQLData& row, std::int16_t column) {
    if (column == FieldList::noColumn) return value.setText("");
    const Variant& read = row.DataView(column);
    if (read.isText())
        value.setText(read.asText());
    else
        value.setText(read.textOrEmpty());
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

void cNIP::loadValues() {
    std::vector<GroupRead> reads;
    std::vector<std::string> statements;
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        GroupRecord& group = mGroups[i];
        const FieldList& list = fieldListOf(group);
        if (list.columns.empty()) {
            forget(group);
            continue;
        }
        reads.push_back({&group, mNewEncounter && hasInitialValueRule(group)});
        statements.push_back(encounterStatement(list, mEncounterID));
        if (reads.back().carriesForward)
            statements.push_back(latestEncounterStatement(list, mPatientID, mEncounterID));
    }

    Snapshot snapshot(*mConnection);
    mConnection->Announce(statements);
    auto statement = statements.cbegin();
    for (const GroupRead& read : reads) {
        SQLData current;
        SQLData latest;
        run(current, mConnection, *statement++);
        if (read.carriesForward) run(latest, mConnection, *statement++);
        fillGroup(*read.group, current, latest);
        raiseFailure(current);
        raiseFailure(latest);
    }
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
            field.value = field.defaultValue;
        field.previousValue = field.value;
        splitChoices(field);
    }
}

} // namespace Korvane
