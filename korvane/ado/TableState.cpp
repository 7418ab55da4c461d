#include <korvane/ado/TableState.h>

#include <korvane/ado/CatalogDialect.h>
#include <korvane/ado/Transaction.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado {

namespace {

Variant cell(const Cursor& row, int ordinal) {
    Variant value;
    row.value(ordinal, value);
    return value;
}

std::string ownName(const std::string& table, const std::string& storedName) {
    const std::string prefix = CatalogDialect::storedIndexName(table, {});
    const bool isOurs = storedName.size() > prefix.size() &&
                        sameName(std::string_view(storedName).substr(0, prefix.size()), prefix);
    return isOurs ? storedName.substr(prefix.size()) : storedName;
}

} // namespace

Connection& TableState::requireStored() const {
    if (connection) return *connection;
    throw RuntimeError(RuntimeError::InvalidArgument,
                       filled(translate("Korvane::ado",
                                        "The table \"%1\" is new; it has to be appended to a catalog first."),
                              {name}));
}

std::optional<Relation> findRelation(Connection& connection, std::string_view name, Read what) {
    const CatalogDialect& dialect = connection.catalogDialect();
    std::vector<Relation> alike;
    const auto rows = connection.openNative(dialect.relationQuery(name, what == Read::Columns));
    for (; !rows->atEnd(); rows->moveNext()) {
        std::string relation = cell(*rows, 0).text();
        if (alike.empty() || alike.back().name != relation)
            alike.push_back({std::move(relation), cell(*rows, 1).toBoolean(), {}});
        if (!cell(*rows, 2).isNull()) alike.back().columns.emplace_back(dialect.column(*rows));
    }
    if (alike.empty()) return std::nullopt;
    for (const std::string& wanted : {std::string(name), lowerCase(name)}) {
        const auto found = std::ranges::find(alike, wanted, &Relation::name);
        if (found != alike.end()) return std::move(*found);
    }
    return std::move(alike.front());
}

Relation requireTable(Connection& connection, std::string_view name, Read what) {
    auto found = findRelation(connection, name, what);
    if (found && found->isTable) return std::move(*found);
    throw RuntimeError(RuntimeError::ItemNotFound,
                       filled(translate("Korvane::ado", "There is no table \"%1\"."), {name}));
}

std::vector<StoredIndex> storedIndexes(Connection& connection, const std::string& table) {
    std::vector<StoredIndex> indexes;
    std::vector<std::string> columns;
    const auto rows = connection.openNative(connection.catalogDialect().indexesQuery(table));
    while (!rows->atEnd()) {
        const std::string storedName = cell(*rows, 0).text();
        const bool unique = cell(*rows, 1).toBoolean();
        const bool primaryKey = cell(*rows, 2).toBoolean();
        for (columns.clear(); !rows->atEnd() && cell(*rows, 0).text() == storedName; rows->moveNext())
            columns.push_back(cell(*rows, 3).textOrEmpty());
        Index index(primaryKey ? columns.front() : ownName(table, storedName), columns);
        index.Unique(unique);
        index.PrimaryKey(primaryKey);
        indexes.push_back({storedName, std::move(index)});
    }
    return indexes;
}

const Column* columnNamed(std::span<const Column> columns, std::string_view name) {
    const Column* alike = nullptr;
    for (const Column& column : columns) {
        if (column.Name() == name) return &column;
        if (!alike && sameName(column.Name(), name)) alike = &column;
    }
    return alike;
}

const Column& requireColumn(const Relation& table, std::string_view name) {
    if (const Column* column = columnNamed(table.columns, name)) return *column;
    throw RuntimeError(
        RuntimeError::ItemNotFound,
        filled(translate("Korvane::ado", "The table \"%1\" has no column \"%2\"."), {table.name, name}));
}

void requireNewColumn(std::span<const Column> columns, const std::string& table, const Column& column) {
    if (const Column* known = columnNamed(columns, column.Name())) {
        throw RuntimeError(RuntimeError::DuplicateKey,
                           filled(translate("Korvane::ado", "The table \"%1\" already has a column \"%2\"."),
                                  {table, known->Name()}));
    }
    if (column.DefinedSize() >= 0) return;
    throw RuntimeError(
        RuntimeError::InvalidArgument,
        filled(translate("Korvane::ado", "The column \"%1\" cannot have a size below 0."), {column.Name()}));
}

Index newIndex(std::span<const Index> indexes, std::span<const Column> columns, const std::string& table,
               const Index& index) {
    const auto refuse = [&](int number, const std::string& reason, const std::string& column = {}) {
        throw RuntimeError(number, filled(reason, {index.Name(), table, column}));
    };
    if (index.Columns().empty())
        refuse(RuntimeError::InvalidArgument,
               translate("Korvane::ado", "The index \"%1\" of the table \"%2\" needs a column."));
    for (const Index& known : indexes) {
        if (sameName(known.Name(), index.Name()))
            refuse(RuntimeError::DuplicateKey,
                   translate("Korvane::ado", "The index \"%1\" of the table \"%2\" is already there."));
        if (known.PrimaryKey() && index.PrimaryKey())
            refuse(RuntimeError::InvalidArgument,
                   translate("Korvane::ado",
                             "The index \"%1\" of the table \"%2\" cannot be a second primary key."));
    }
    std::vector<std::string> names;
    for (const std::string& name : index.Columns()) {
        const Column* column = columnNamed(columns, name);
        if (!column)
            refuse(
                RuntimeError::ItemNotFound,
                translate("Korvane::ado",
                          "The index \"%1\" of the table \"%2\" names a column that is not there: \"%3\"."),
                name);
        names.push_back(column->Name());
    }
    Index spelled(index.Name(), std::move(names));
    spelled.PrimaryKey(index.PrimaryKey());
    spelled.Unique(index.Unique());
    return spelled;
}

void runSteps(Connection& connection, const std::vector<std::string>& steps) {
    if (steps.size() == 1) {
        connection.openNative(steps.front());
        return;
    }
    Transaction work(connection);
    for (const std::string& step : steps)
        connection.openNative(step);
    work.commit();
}

} // namespace Korvane::ado
