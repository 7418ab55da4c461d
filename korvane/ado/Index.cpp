#include <korvane/ado/Index.h>

#include <korvane/ado/CatalogDialect.h>
#include <korvane/ado/TableState.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>

namespace Korvane::ado {

namespace {

std::vector<Index> withoutStoredNames(const std::vector<StoredIndex>& stored) {
    std::vector<Index> indexes;
    std::ranges::transform(stored, std::back_inserter(indexes), &StoredIndex::index);
    return indexes;
}

} // namespace

std::vector<Index> Indexes::All() const {
    if (!mTable->connection) return mTable->indexes;
    const Relation table = requireTable(*mTable->connection, mTable->name);
    return withoutStoredNames(storedIndexes(*mTable->connection, table.name));
}

void Indexes::Append(const Index& index) {
    if (!mTable->connection) {
        mTable->indexes.push_back(newIndex(mTable->indexes, mTable->columns, mTable->name, index));
        return;
    }
    Connection& connection = *mTable->connection;
    const CatalogDialect& dialect = connection.catalogDialect();
    dialect.requireName(index.Name());
    const Relation table = requireTable(connection, mTable->name);
    const Index spelled =
        newIndex(withoutStoredNames(storedIndexes(connection, table.name)), table.columns, table.name, index);
    if (index.PrimaryKey()) {
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            filled(
                translate(
                    "Korvane::ado",
                    "The table \"%1\" is there already; a primary key is given to a table when it is made."),
                {table.name}));
    }
    runSteps(connection, {dialect.createIndex(table.name, spelled)});
}

void Indexes::Delete(std::string_view name) {
    Connection& connection = mTable->requireStored();
    const Relation table = requireTable(connection, mTable->name);
    const auto indexes = storedIndexes(connection, table.name);
    const auto found = std::ranges::find_if(
        indexes, [&](const StoredIndex& stored) { return sameName(stored.index.Name(), name); });
    if (found == indexes.end()) {
        throw RuntimeError(
            RuntimeError::ItemNotFound,
            filled(translate("Korvane::ado", "The table \"%1\" has no index \"%2\"."), {table.name, name}));
    }
    if (found->index.PrimaryKey()) {
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            filled(translate("Korvane::ado", "The table \"%1\" keeps its primary key."), {table.name}));
    }
    runSteps(connection, {connection.catalogDialect().dropIndex(found->storedName)});
}

} // namespace Korvane::ado
