#include <korvane/ado/Column.h>

#include <korvane/ado/CatalogDialect.h>
#include <korvane/ado/TableState.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>

namespace Korvane::ado {

namespace {

[[noreturn]] void refuse(const Relation& table, const std::string& column, const std::string& reason) {
    throw RuntimeError(RuntimeError::InvalidArgument, filled(reason, {column, table.name}));
}

bool holds(const Index& index, const std::string& column) {
    return std::ranges::find(index.Columns(), column) != index.Columns().end();
}

} // namespace

std::vector<Column> Columns::All() const {
    if (!mTable->connection) return mTable->columns;
    return requireTable(*mTable->connection, mTable->name).columns;
}

bool Columns::Exists(std::string_view name) const {
    const auto columns = All();
    return columnNamed(columns, name) != nullptr;
}

Column Columns::Item(std::string_view name) const {
    return requireColumn({mTable->name, true, All()}, name);
}

void Columns::Append(const Column& column) {
    if (!mTable->connection) {
        requireNewColumn(mTable->columns, mTable->name, column);
        mTable->columns.push_back(column);
        return;
    }
    Connection& connection = *mTable->connection;
    const CatalogDialect& dialect = connection.catalogDialect();
    dialect.requireName(column.Name());
    const Relation table = requireTable(connection, mTable->name);
    requireNewColumn(table.columns, table.name, column);
    if (!column.Nullable() && !connection.openNative(dialect.anyRowQuery(table.name))->atEnd())
        refuse(table, column.Name(),
               translate("Korvane::ado", "The column \"%1\" of the table \"%2\" has to allow Null: the table "
                                         "has rows, which have no value for it."));
    runSteps(connection, {dialect.addColumn(table.name, column)});
}

void Columns::Rename(std::string_view name, std::string_view newName) {
    Connection& connection = mTable->requireStored();
    const CatalogDialect& dialect = connection.catalogDialect();
    dialect.requireName(newName);
    const Relation table = requireTable(connection, mTable->name);
    const Column& column = requireColumn(table, name);
    if (column.Name() == newName) return;
    if (!sameName(column.Name(), newName)) requireNewColumn(table.columns, table.name, Column(newName));
    runSteps(connection, {dialect.renameColumn(table.name, column.Name(), std::string(newName))});
}

void Columns::Widen(std::string_view name, std::int32_t definedSize) {
    Connection& connection = mTable->requireStored();
    const Relation table = requireTable(connection, mTable->name);
    Column column = requireColumn(table, name);
    if (column.Type() == DataType::LongVarWChar) return;
    if (column.Type() != DataType::VarWChar)
        refuse(table, column.Name(),
               translate("Korvane::ado",
                         "The column \"%1\" of the table \"%2\" keeps no text and has no size."));
    if (column.DefinedSize() == 0 || column.DefinedSize() >= definedSize) return;
    column.DefinedSize(definedSize);
    if (const auto step = connection.catalogDialect().widenColumn(table.name, column))
        runSteps(connection, {*step});
}

void Columns::Delete(std::string_view name) {
    Connection& connection = mTable->requireStored();
    const CatalogDialect& dialect = connection.catalogDialect();
    const Relation table = requireTable(connection, mTable->name);
    const std::string column = requireColumn(table, name).Name();
    if (table.columns.size() == 1)
        refuse(table, column,
               translate("Korvane::ado",
                         "The column \"%1\" of the table \"%2\" is its last one and cannot be removed."));
    std::vector<std::string> steps;
    for (const StoredIndex& stored : storedIndexes(connection, table.name)) {
        if (!holds(stored.index, column)) continue;
        if (stored.index.PrimaryKey())
            refuse(
                table, column,
                translate("Korvane::ado",
                          "The column \"%1\" of the table \"%2\" is part of its key and cannot be removed."));
        if (!dialect.dropsIndexesWithColumn()) steps.push_back(dialect.dropIndex(stored.storedName));
    }
    steps.push_back(dialect.dropColumn(table.name, column));
    runSteps(connection, steps);
}

} // namespace Korvane::ado
