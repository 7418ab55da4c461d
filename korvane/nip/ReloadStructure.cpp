#include <korvane/nip/cNIP.h>

#include <korvane/nip/Choices.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <set>
#include <string>

namespace Korvane {

namespace {

/// Everything that another desk may have changed, in no particular order.
using Definitions = std::multiset<std::string>;

std::string definitionOf(const FieldRecord& field) {
    std::string definition = std::to_string(field.id) + '|' + field.fieldName + '|' + field.caption + '|' +
                             field.displayType + '|' + std::to_string(field.maxLength) + '|' +
                             std::to_string(field.initialValueRule) + '|' + field.defaultValue.textOrEmpty();
    for (std::int16_t i = 1; i <= field.valueListCount; ++i)
        definition += '|' + field.valueList.array().at(i).textOrEmpty();
    return definition;
}

/// Of what is stored: a field that is not saved yet is left out, of one that is being changed only what it is
/// called counts.
Definitions definitionsOf(const std::vector<GroupRecord>& groups, const std::set<std::int32_t>& inWork) {
    Definitions definitions;
    for (const GroupRecord& group : groups) {
        const std::string where = group.groupID + '|' + group.tableName + '|' + group.groupName + '|';
        definitions.insert(where);
        for (std::int16_t i = 1; i <= group.fieldCount; ++i) {
            const FieldRecord& field = group.fields[static_cast<std::size_t>(i)];
            if (field.pending) continue;
            definitions.insert(where + (inWork.contains(field.id) ? field.fieldName : definitionOf(field)));
        }
    }
    return definitions;
}

std::set<std::int32_t> fieldsInWork(const std::vector<GroupRecord>& groups) {
    std::set<std::int32_t> fields;
    for (const GroupRecord& group : groups)
        for (const FieldRecord& field : group.fields)
            if (field.changed) fields.insert(field.id);
    return fields;
}

/// Somebody has customized the Nip, or, if that was not `counted`, may have done so.
class SchemaHasChanged : public RuntimeError {
  public:
    explicit SchemaHasChanged(bool counted)
        : RuntimeError(InvalidProcedureCall,
                       translate("Korvane::nip", "The form was customized elsewhere since it was loaded")),
          mCounted(counted) {}
    bool counted() const { return mCounted; }

  private:
    bool mCounted;
};

/// Who has changed the structure since it was loaded. What one has changed oneself is known: a field is the
/// same one as long as its identifier is. Those of fields that others have deleted may have been given away
/// again: it takes the same caption, and the same name or identifier, to be the same field.
enum class ChangedBy { Oneself, Others };

GroupRecord* groupLike(const GroupRecord& old, std::vector<GroupRecord>& groups, ChangedBy whom) {
    for (std::size_t i = 1; i < groups.size(); ++i) {
        GroupRecord& group = groups[i];
        if (group.groupID == old.groupID && sameName(group.tableName, old.tableName) &&
            (whom == ChangedBy::Oneself || group.groupName == old.groupName))
            return &group;
    }
    return nullptr;
}

FieldRecord* fieldLike(const FieldRecord& old, GroupRecord& group, ChangedBy whom) {
    FieldRecord* found = nullptr;
    for (std::int16_t i = 1; i <= group.fieldCount; ++i) {
        FieldRecord& field = group.fields[static_cast<std::size_t>(i)];
        const bool sameID = field.id == old.id;
        const bool sameCaption = field.caption == old.caption;
        const bool named = sameName(field.fieldName, old.fieldName);
        if (sameID && (sameCaption || (named && whom == ChangedBy::Oneself))) return &field;
        if (named && sameCaption) found = &field;
    }
    return found;
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

/// Runs what rests on the structure. Where nobody has counted a change but the schema is another one, the
/// structure is looked at once more: it may have changed where no Nip is concerned.
bool cNIP::withCurrentSchema(const std::function<bool()>& body) {
    mStructureChanged = false;
    try {
        return body();
    } catch (const SchemaHasChanged& change) {
        mStructureChanged = change.counted() || !isAsStored();
        if (mStructureChanged) throw;
    }
    try {
        return body();
    } catch (const SchemaHasChanged&) {
        mStructureChanged = true;
        throw;
    }
}

bool cNIP::isAsStored() {
    cNIP stored;
    if (!stored.LoadStructure(mConnection)) throw RuntimeError(stored.LastError().value());
    const std::set<std::int32_t> inWork = fieldsInWork(mGroups);
    if (definitionsOf(stored.mGroups, inWork) != definitionsOf(mGroups, inWork)) return false;
    mSchemaMark = stored.mSchemaMark;
    mRevision = stored.mRevision;
    return true;
}

/// Raised when somebody customizes while a statement waits: the failure says something else then.
void cNIP::noteChangedStructure() {
    if (mStructureChanged || !mConnection || mConnection->State() != 1) return;
    SQLData query;
    if (!query.SQL(mConnection, revisionStatement, false, AccessMode::Read)) return;
    mStructureChanged = query.Data(0).textOrEmpty() != mRevision;
}

void cNIP::requireCurrentSchema() {
    if (readCell(mConnection->schemaMarkStatement()) != mSchemaMark) throw SchemaHasChanged(false);
}

/// Where changes are not counted the schema has to tell.
void cNIP::requireCurrentRevision() {
    const std::string revision = readCell(revisionStatement);
    if (revision != mRevision) throw SchemaHasChanged(true);
    if (revision.empty()) requireCurrentSchema();
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
        const auto load = [&] {
            return fresh.LoadStructure(mConnection) &&
                   (!mHoldsValues || fresh.Load(mEncounterID, mPatientID, mNewEncounter));
        };
        // Somebody may be at it just now.
        if (!load() && !(fresh.StructureChanged() && load())) throw RuntimeError(fresh.LastError().value());
        if (mHoldsValues) carryEntries(fresh, lost);
        *this = std::move(fresh);
        return true;
    });
}

/// What was entered, not what was merely loaded: that may be another value by now.
void cNIP::carryEntries(cNIP& fresh, std::vector<LostEntry>& lost) const {
    const bool ownChange = !mRevision.empty() && fresh.mRevision == mRevision;
    const ChangedBy whom = ownChange ? ChangedBy::Oneself : ChangedBy::Others;
    for (const GroupRecord& old : mGroups) {
        GroupRecord* group = groupLike(old, fresh.mGroups, whom);
        for (std::int16_t i = 1; i <= old.fieldCount; ++i) {
            const FieldRecord& field = old.fields[static_cast<std::size_t>(i)];
            const std::string text = textOf(field);
            if (text == field.previousValue.textOrEmpty()) continue;
            if (FieldRecord* same = group ? fieldLike(field, *group, whom) : nullptr)
                carry(field, *same);
            else if (!text.empty())
                lost.push_back({old.groupName, field.caption, text});
        }
    }
}

} // namespace Korvane
