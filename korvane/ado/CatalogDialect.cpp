#include <korvane/ado/CatalogDialect.h>

#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>

namespace Korvane::ado {

using sql::quotedName;

namespace {

std::string list(std::span<const std::string> names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + quotedName(name);
    return "(" + text + ")";
}

std::string alter(const std::string& table) {
    return "Alter Table " + quotedName(table);
}

bool isKey(std::span<const Index> indexes, const std::string& column) {
    return std::ranges::any_of(indexes, [&](const Index& index) {
        return index.PrimaryKey() && std::ranges::find(index.Columns(), column) != index.Columns().end();
    });
}

} // namespace

std::string CatalogDialect::anyRowQuery(const std::string& table) const {
    return "Select 1 From " + quotedName(table) + " Limit 1";
}

std::vector<std::string> CatalogDialect::createTable(const std::string& table,
                                                     std::span<const Column> columns,
                                                     std::span<const Index> indexes) const {
    std::string items;
    for (Column column : columns) {
        if (isKey(indexes, column.Name())) column.Nullable(false);
        items += (items.empty() ? "" : ", ") + definition(column);
    }
    std::vector<std::string> steps(1);
    for (const Index& index : indexes) {
        if (index.PrimaryKey())
            items += ", Primary Key " + list(index.Columns());
        else
            steps.push_back(createIndex(table, index));
    }
    steps.front() = "Create Table " + quotedName(table) + " (" + items + ")";
    return steps;
}

std::string CatalogDialect::dropTable(const std::string& table) const {
    return "Drop Table " + quotedName(table);
}

std::string CatalogDialect::addColumn(const std::string& table, const Column& column) const {
    return alter(table) + " Add Column " + definition(column);
}

std::string CatalogDialect::renameColumn(const std::string& table, const std::string& column,
                                         const std::string& newName) const {
    return alter(table) + " Rename Column " + quotedName(column) + " To " + quotedName(newName);
}

std::string CatalogDialect::dropColumn(const std::string& table, const std::string& column) const {
    return alter(table) + " Drop Column " + quotedName(column);
}

std::string CatalogDialect::createIndex(const std::string& table, const Index& index) const {
    const std::string storedName = storedIndexName(table, index.Name());
    requireName(storedName);
    return std::string(index.Unique() ? "Create Unique Index " : "Create Index ") + quotedName(storedName) +
           " On " + quotedName(table) + " " + list(index.Columns());
}

std::string CatalogDialect::dropIndex(const std::string& storedName) const {
    return "Drop Index " + quotedName(storedName);
}

void CatalogDialect::requireName(std::string_view name) const {
    const auto refuse = [](const std::string& reason) {
        throw RuntimeError(RuntimeError::InvalidArgument, reason);
    };
    if (trim(name).empty()) refuse(translate("Korvane::ado", "A table, column or index needs a name."));
    if (name.find('\0') != std::string_view::npos)
        refuse(translate("Korvane::ado", "A name cannot hold the character NUL."));
    const auto longest = longestName();
    if (!longest || name.size() <= *longest) return;
    refuse(filled(
        translate(
            "Korvane::ado",
            "The name \"%1\" is too long for the database: it has %2 bytes, of which %3 would be kept."),
        {name, std::to_string(name.size()), std::to_string(*longest)}));
}

std::string CatalogDialect::storedIndexName(const std::string& table, const std::string& index) {
    return table + "_" + index;
}

std::string CatalogDialect::typeName(const Column& column) const {
    switch (column.Type()) {
    case DataType::SmallInt:
        return "SmallInt";
    case DataType::Integer:
        return "Integer";
    case DataType::BigInt:
        return "BigInt";
    case DataType::Single:
        return "Float4";
    case DataType::Double:
        return "Double Precision";
    case DataType::Numeric:
        return "Numeric";
    case DataType::Date:
        return "Timestamp";
    case DataType::Boolean:
        return "Boolean";
    case DataType::VarWChar:
        return column.DefinedSize() > 0 ? "VarChar(" + std::to_string(column.DefinedSize()) + ")" : "VarChar";
    case DataType::LongVarWChar:
        return "Text";
    default:
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            filled(translate("Korvane::ado", "The column \"%1\" has a type that no column can have."),
                   {column.Name()}));
    }
}

std::string CatalogDialect::definition(const Column& column) const {
    return quotedName(column.Name()) + " " + typeName(column) + (column.Nullable() ? "" : " Not Null");
}

} // namespace Korvane::ado
