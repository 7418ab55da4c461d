#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>
#include <korvane/runtime/RuntimeError.h>

namespace Korvane {

namespace {

/// Calls `add(column, value)` for every field of a group that has a column.
template <typename Add>
void forEachColumn(const GroupRecord& group, Add&& add) {
    const std::vector<std::int16_t>& columnOf = group.fieldList->columnOf;
    for (std::size_t i = 1; i < columnOf.size(); ++i) {
        if (columnOf[i] == FieldList::noColumn) continue;
        const FieldRecord& field = group.fields[i];
        if (holdsChoices(field.displayType))
            add(field.fieldName, Variant(joinChoices(field)));
        else
            add(field.fieldName, field.value);
    }
}

std::string updateStatement(const GroupRecord& group, std::int32_t encounterID) {
    SQLData lists;
    forEachColumn(group,
                  [&](std::string_view column, const Variant& value) { lists.UpdateListAdd(column, value); });
    raiseFailure(lists);
    return "Update " + group.fieldList->tableName + " Set " + lists.UpdateListGet() +
           " Where EncounterID=" + std::to_string(encounterID);
}

std::string insertStatement(const GroupRecord& group, std::int32_t encounterID) {
    SQLData lists;
    forEachColumn(group,
                  [&](std::string_view column, const Variant& value) { lists.InsertListAdd(column, value); });
    lists.InsertListAdd("EncounterID", encounterID);
    raiseFailure(lists);
    return "Insert Into " + group.fieldList->tableName + lists.InsertListGet();
}

} // namespace

bool cNIP::Save() {
    return guarded("Error in cNip.Save: ", false, [&] {
        if (!mStructureLoaded)
            throw RuntimeError(RuntimeError::InvalidProcedureCall, "The structure is not loaded");
        if (mEncounterID == -1)
            throw RuntimeError(RuntimeError::InvalidProcedureCall, "The encounter is not stored yet");
        ado::Transaction work(*mConnection);
        saveValues();
        work.commit();
        return true;
    });
}

void cNIP::saveValues() {
    std::vector<const GroupRecord*> groups;
    std::vector<std::string> updates;
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        if (fieldListOf(mGroups[i]).columns.empty()) continue;
        groups.push_back(&mGroups[i]);
        updates.push_back(updateStatement(mGroups[i], mEncounterID));
    }
    mConnection->Announce(updates);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        SQLData query;
        run(query, mConnection, updates[i], true);
        if (query.RecordsAffected() == 0)
            run(query, mConnection, insertStatement(*groups[i], mEncounterID), true);
    }
}

} // namespace Korvane
