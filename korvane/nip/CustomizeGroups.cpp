#include <korvane/nip/cNIP.h>

#include <korvane/ado/Catalog.h>
#include <korvane/nip/Counters.h>
#include <korvane/nip/DataTable.h>
#include <korvane/nip/GroupTableName.h>
#include <korvane/nip/Query.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

namespace Korvane {

bool cNIP::CreateGroup(std::string_view name) {
    GroupRecord group;
    group.groupName = name;
    group.fields.emplace_back();
    if (trim(name).empty())
        return attempt("Error in cNip.CreateGroup:", []() -> bool {
            throw RuntimeError(RuntimeError::InvalidArgument,
                               translate("Korvane::nip", "A group needs a name"));
        });
    const bool created = changeSchema("Error in cNip.CreateGroup:", [&] {
        catalog();
        countedUp(GroupCount(), translatable("Korvane::nip", "More than %1 groups"));
        insertGroup(group);
        return true;
    });
    if (created) mGroups.push_back(std::move(group));
    return created;
}

/// Gives the group its identifier, its table and its row.
void cNIP::insertGroup(GroupRecord& group) {
    group.groupID = std::to_string(nextID("Select Max(DBFieldGroupID) as MaxID From DBFieldGroups"));
    group.tableName = newTableName();
    SQLData query;
    Korvane::run(query, mConnection, "Select Max(Ordinal) as MaxOrdinal From DBFieldGroups");
    const std::int32_t ordinal = Variant(query.Data("MaxOrdinal").toDouble() + 1).toInt32();
    raiseFailure(query);

    if (!createTable(group.tableName)) throw *mLastError;
    query.InsertListClear();
    query.InsertListAdd("DBFieldGroupID", group.groupID);
    query.InsertListAdd("GroupName", group.groupName);
    query.InsertListAdd("TableName", group.tableName);
    query.InsertListAdd("Ordinal", ordinal);
    raiseFailure(query);
    execute("Insert Into DBFieldGroups " + query.InsertListGet());
}

std::string cNIP::newTableName() {
    SQLData query;
    if (!mNumbersGroups) {
        Korvane::run(
            query, mConnection,
            "Select Max(TableName) as TableName From DBFieldGroups Where TableName like 'NIP_Custom%'");
        const std::string greatest = query.Data("TableName").textOrEmpty();
        raiseFailure(query);
        return tableNameAfter(greatest);
    }
    // A table that no group has any more still holds what was entered.
    std::vector<std::string> taken = catalog().Tables().Names();
    Korvane::run(query, mConnection, "Select TableName From DBFieldGroups");
    for (; !query.Eof(); query.NextRow())
        taken.push_back(query.Data(0).textOrEmpty());
    raiseFailure(query);
    return nextTableName(taken);
}

bool cNIP::createTable(const std::string& name) {
    return attempt("Error in cNip.CreateTableInDatabase:", [&] {
        createDataTable(catalog(), name);
        return true;
    });
}

bool cNIP::DeleteGroup(std::int16_t index) {
    return changeSchema("Error in cNip.DeleteGroup:", [&] {
        const GroupRecord& group = existingGroup(index);
        execute("Delete From DBFields Where DBFieldGroupID=" + group.groupID);
        execute("Delete From DBFieldGroups Where DBFieldGroupID=" + group.groupID);
        if (catalog().Tables().Exists(group.tableName)) catalog().Tables().Delete(group.tableName);
        return true;
    });
}

} // namespace Korvane
