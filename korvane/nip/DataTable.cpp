#include <korvane/nip/DataTable.h>

#include <korvane/ado/Table.h>
#include <korvane/data/ErrLog.h>

#include <string_view>

namespace Korvane {

namespace {

struct TypeName {
    std::string_view name;
    ado::DataType type;
};

constexpr TypeName types[] = {
    {"dbText", ado::DataType::VarWChar},   {"dbInteger", ado::DataType::SmallInt},
    {"dbLong", ado::DataType::Integer},    {"dbMemo", ado::DataType::LongVarWChar},
    {"dbDouble", ado::DataType::Double},   {"dbSingle", ado::DataType::Single},
    {"dbBoolean", ado::DataType::Boolean}, {"dbDate", ado::DataType::Date},
};

ado::DataType typeOf(const std::string& dataType) {
    for (const TypeName& known : types)
        if (known.name == dataType) return known.type;
    ErrLog("*Error in cNip.CreateFieldInDatabase: Unable to create field of type " + dataType +
           ".  Using text data type as default instead.");
    return ado::DataType::VarWChar;
}

} // namespace

void createDataTable(const ado::Catalog& catalog, const std::string& name) {
    ado::Table table(name);
    createColumn(table, {"EncounterID", "dbLong", IndexKind::PrimaryKey, 0});
    catalog.Tables().Append(table);
}

void createColumn(ado::Table& table, const DataColumn& wanted) {
    ado::Column column(wanted.name, typeOf(wanted.dataType));
    if (column.Type() == ado::DataType::VarWChar) column.DefinedSize(wanted.size);
    const bool isIndexed =
        column.Type() != ado::DataType::LongVarWChar && wanted.indexed >= IndexKind::Unique;
    column.Nullable(!isIndexed);
    table.Columns().Append(column);
    if (!isIndexed) return;
    ado::Index index(wanted.name, {wanted.name});
    index.PrimaryKey(wanted.indexed == IndexKind::PrimaryKey);
    index.Unique(wanted.indexed != IndexKind::Plain);
    table.Indexes().Append(index);
}

void deleteColumn(ado::Table& table, const std::string& column) {
    if (table.Columns().Exists(column))
        table.Columns().Delete(column);
    else
        ErrLog("Error in cNip.DeleteField: deleting field, but column does not exist:" + column);
}

std::int32_t columnSize(const ado::Catalog& catalog, const std::string& table, const std::string& column) {
    if (!catalog.Tables().Exists(table)) return 0;
    const ado::Columns columns = catalog.Tables().Item(table).Columns();
    if (!columns.Exists(column)) return 0;
    const ado::Column found = columns.Item(column);
    return found.Type() == ado::DataType::VarWChar ? found.DefinedSize() : 0;
}

} // namespace Korvane
