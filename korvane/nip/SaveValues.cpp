#include <korvane/nip/cNIP.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/HeldMessages.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <span>

namespace Korvane {

namespace {

/// A value of nothing but blanks has no choices; untouched it stays as it is.
bool isBlankAsLoaded(const FieldRecord& field) {
    return field.choiceListCount == 0 && field.value == field.previousValue &&
           trim(field.value.textOrEmpty()).empty();
}

/// Calls `add(field, value)` for every field of a group that has a column.
template <typename Group, typename Add>
void forEachColumn(Group& group, Add&& add) {
    const std::vector<std::int16_t>& columnOf = group.fieldList->columnOf;
    for (std::size_t i = 1; i < columnOf.size(); ++i) {
        if (columnOf[i] == FieldList::noColumn) continue;
        auto& field = group.fields[i];
        if (holdsChoices(field.displayType) && !isBlankAsLoaded(field))
            add(field, Variant(joinChoices(field)));
        else
            add(field, field.value);
    }
}

// `lists` is one for all groups: long lists are made in storage that is there already.
std::string updateStatement(SQLData& lists, GroupRecord& group, std::int32_t encounterID) {
    lists.UpdateListClear();
    forEachColumn(group, [&](FieldRecord& field, const Variant& value) {
        // Once written it stays written: the transaction may be rolled back, and the value be changed back.
        field.asStored = field.asStored && value == field.previousValue;
        if (field.asStored)
            lists.UpdateListAdd(field.fieldName, "[" + field.fieldName + "]", Quoting::Bare);
        else
            lists.UpdateListAdd(field.fieldName, value);
    });
    raiseFailure(lists);
    const std::string& list = lists.UpdateListGet();
    std::string statement;
    statement.reserve(list.size() + group.fieldList->tableName.size() + 50);
    statement.append("Update ").append(group.fieldList->tableName).append(" Set ").append(list);
    return statement.append(" Where EncounterID=").append(std::to_string(encounterID));
}

std::string insertStatement(SQLData& lists, const GroupRecord& group, std::int32_t encounterID) {
    lists.InsertListClear();
    forEachColumn(group, [&](const FieldRecord& field, const Variant& value) {
        lists.InsertListAdd(field.fieldName, value);
    });
    lists.InsertListAdd("EncounterID", encounterID);
    raiseFailure(lists);
    return "Insert Into " + group.fieldList->tableName + lists.InsertListGet();
}

} // namespace

bool cNIP::Save() {
    const bool saved = attempt("Error in cNip.Save: ", [&] {
        if (!mStructureLoaded)
            throw RuntimeError(RuntimeError::InvalidProcedureCall,
                               translate("Korvane::nip", "The structure is not loaded"));
        if (mEncounterID == -1)
            throw RuntimeError(RuntimeError::InvalidProcedureCall,
                               translate("Korvane::nip", "The encounter is not stored yet"));
        return withCurrentSchema([&] {
            const HeldMessages messages;
            ado::Transaction work(*mConnection);
            saveValues();
            work.commit();
            return true;
        });
    });
    if (!saved) noteChangedStructure();
    return saved;
}

/// Raises when the row under the encounter's identifier is not this patient's, or when there are two. None at
/// all is the caller's business, and so is everything when no patient has been given.
void cNIP::requireOwnEncounter(std::string_view statement) const {
    if (mPatientID.empty()) return;
    SQLData query;
    run(query, mConnection, statement);
    for (bool first = true; !query.Eof(); first = false) {
        const std::string id = std::to_string(mEncounterID);
        if (!first)
            throw RuntimeError(
                RuntimeError::DuplicateKey,
                filled(translate("Korvane::nip", "The encounter %1 is there more than once"), {id}));
        if (trim(query.DataView("PatientID").textOrEmpty()) != trim(mPatientID))
            throw RuntimeError(
                RuntimeError::InvalidProcedureCall,
                filled(translate("Korvane::nip", "The encounter %1 is another patient's"), {id}));
        query.NextRow();
    }
    raiseFailure(query);
}

/// Whoever changes the schema waits for the rows that this has written: what holds behind the last update
/// holds until the commit. The revision is asked first, since an update of a column that is gone tells less.
void cNIP::saveValues() {
    const std::string owner =
        "Select PatientID From Encounter Where EncounterID=" + std::to_string(mEncounterID);
    std::vector<const GroupRecord*> groups;
    std::vector<std::string> statements{revisionStatement};
    SQLData lists;
    if (!mPatientID.empty()) statements.push_back(owner);
    const std::size_t before = statements.size();
    for (std::size_t i = 1; i < mGroups.size(); ++i) {
        if (fieldListOf(mGroups[i]).columns.empty()) continue;
        groups.push_back(&mGroups[i]);
        statements.push_back(updateStatement(lists, mGroups[i], mEncounterID));
    }
    statements.push_back(mConnection->schemaMarkStatement());
    mConnection->Announce(statements);
    requireCurrentRevision();
    requireOwnEncounter(owner);
    // A group without a row is seldom alone: an encounter that is new has none at all.
    std::vector<std::string> inserts;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        SQLData query;
        run(query, mConnection, statements[before + i], true);
        if (query.RecordsAffected() != 0) continue;
        if (inserts.empty()) {
            inserts.resize(groups.size());
            for (std::size_t later = i; later < groups.size(); ++later)
                inserts[later] = insertStatement(lists, *groups[later], mEncounterID);
            mConnection->Announce(std::span(inserts).subspan(i));
        }
        run(query, mConnection, inserts[i], true);
    }
    requireCurrentSchema();
}

} // namespace Korvane
