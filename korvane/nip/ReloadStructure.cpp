#include <korvane/nip/cNIP.h>

#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/Text.h>

#include <set>
#include <tuple>

namespace Korvane {

namespace {

/// What identifies a field as long as nobody customizes: its place in the database and its name there.
using Identities = std::set<std::tuple<std::string, std::string, std::int32_t, std::string>>;

Identities identitiesOf(const std::vector<GroupRecord>& groups) {
    Identities identities;
    for (const GroupRecord& group : groups) {
        identities.emplace(group.groupID, group.tableName, 0, "");
        for (std::int16_t i = 1; i <= group.fieldCount; ++i) {
            const FieldRecord& field = group.fields[static_cast<std::size_t>(i)];
            if (!field.pending) identities.emplace(group.groupID, group.tableName, field.id, field.fieldName);
        }
    }
    return identities;
}

/// Of the moment at which somebody may have customized the Nip.
class SchemaHasChanged : public RuntimeError {
  public:
    SchemaHasChanged()
        : RuntimeError(InvalidProcedureCall, "The form was customized elsewhere since it was loaded") {}
};

std::string textOf(const FieldRecord& field) {
    return holdsChoices(field.displayType) ? joinChoices(field) : field.value.textOrEmpty();
}

GroupRecord* groupLike(const GroupRecord& old, std::vector<GroupRecord>& groups) {
    for (std::size_t i = 1; i < groups.size(); ++i)
        if (groups[i].groupID == old.groupID && sameName(groups[i].tableName, old.tableName))
            return &groups[i];
    return nullptr;
}

/// The field itself, or null when it is there no more. Under another name it is the same one only if nothing
/// else about it differs: identifiers of fields that were deleted are given out again.
FieldRecord* fieldLike(const FieldRecord& old, GroupRecord& group) {
    FieldRecord* named = nullptr;
    for (std::int16_t i = 1; i <= group.fieldCount; ++i) {
        FieldRecord& field = group.fields[static_cast<std::size_t>(i)];
        const bool sameNamed = sameName(field.fieldName, old.fieldName);
        if (field.id == old.id &&
            (sameNamed || (field.caption == old.caption && field.displayType == old.displayType)))
            return &field;
        if (sameNamed) named = &field;
    }
    return named;
}

void carry(const FieldRecord& old, FieldRecord& field) {
    if (field.displayType == old.displayType) {
        field.value = old.value;
        field.choiceList = old.choiceList;
        field.choiceListCount = old.choiceListCount;
    } else {
        field.value = textOf(old);
        splitChoices(field);
    }
}

} // namespace

/// Runs what rests on the structure; when the schema proves to be another one than that of the structure, it
/// is looked at once more: it may have changed where no Nip is concerned.
bool cNIP::withCurrentSchema(const std::function<bool()>& body) {
    mStructureChanged = false;
    try {
        return body();
    } catch (const SchemaHasChanged&) {
        cNIP stored;
        if (!stored.LoadStructure(mConnection)) throw;
        if (identitiesOf(stored.mGroups) != identitiesOf(mGroups)) {
            mStructureChanged = true;
            throw;
        }
        mSchemaMark = stored.mSchemaMark;
        mRevision = stored.mRevision;
    }
    return body();
}

void cNIP::requireCurrentSchema() {
    if (readCell(mConnection->schemaMarkStatement()) != mSchemaMark) throw SchemaHasChanged();
}

void cNIP::requireCurrentRevision() {
    if (readCell(revisionStatement) != mRevision) throw SchemaHasChanged();
}

/// Empty when there is no row.
std::string cNIP::readCell(const std::string& statement) {
    SQLData query;
    Korvane::run(query, mConnection, statement);
    std::string cell = query.Data(0).textOrEmpty();
    raiseFailure(query);
    return cell;
}

bool cNIP::ReloadStructure(std::vector<LostEntry>& lost) {
    lost.clear();
    return attempt("Error in cNip.ReloadStructure: ", [&] {
        cNIP fresh;
        fresh.mNumbersGroups = mNumbersGroups;
        if (!fresh.LoadStructure(mConnection)) throw RuntimeError(fresh.LastError().value());
        if (mHoldsValues && !fresh.Load(mEncounterID, mPatientID, mNewEncounter))
            throw RuntimeError(fresh.LastError().value());
        for (std::size_t i = 1; mHoldsValues && i < mGroups.size(); ++i)
            carryEntries(mGroups[i], fresh.mGroups, lost);
        *this = std::move(fresh);
        return true;
    });
}

/// What was entered, not what was merely loaded: that may be another value by now.
void cNIP::carryEntries(const GroupRecord& old, std::vector<GroupRecord>& groups,
                        std::vector<LostEntry>& lost) {
    GroupRecord* group = groupLike(old, groups);
    for (std::int16_t i = 1; i <= old.fieldCount; ++i) {
        const FieldRecord& field = old.fields[static_cast<std::size_t>(i)];
        const std::string text = textOf(field);
        if (text == field.previousValue.textOrEmpty()) continue;
        if (FieldRecord* same = group ? fieldLike(field, *group) : nullptr)
            carry(field, *same);
        else if (!text.empty())
            lost.push_back({old.groupName, field.caption, text});
    }
}

} // namespace Korvane
