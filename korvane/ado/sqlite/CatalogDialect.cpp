#include <korvane/ado/sqlite/CatalogDialect.h>

#include <korvane/ado/sqlite/Types.h>
#include <korvane/runtime/Text.h>

namespace Korvane::ado::sqlite {

namespace {

constexpr const char* isTable = "l.type In ('table','virtual')";

/// All tables and views, or with "('<name>')" those of a name without regard to case, which takes much less
/// time. Of several the one that a plain name means.
std::string relations(const std::string& named = {}) {
    return "(Select name, type, Min(Case schema When 'temp' Then 0 When 'main' Then 1 Else 2 End) "
           "From pragma_table_list" +
           named + " Where name Not Like 'sqlite\\_%' Escape '\\' Group By name Collate NoCase) l";
}

} // namespace

std::string CatalogDialect::tablesQuery() const {
    return "Select l.name From " + relations() + " Where " + isTable + " Order By l.name";
}

std::string CatalogDialect::relationQuery(std::string_view name, bool withColumns) const {
    const std::string relation = std::string("Select l.name, ") + isTable;
    const std::string named = relations("('" + escapeQuotes(name) + "')");
    if (!withColumns) return relation + ", Null From " + named;
    return relation + ", c.name, c.\"notnull\", c.type From " + named +
           " Left Join pragma_table_info(l.name) c Order By c.cid";
}

ColumnInfo CatalogDialect::column(const Cursor& row) const {
    Variant name;
    Variant notNull;
    Variant declaration;
    row.value(2, name);
    row.value(3, notNull);
    row.value(4, declaration);
    const DeclaredType declared = declaredType(declaration.textOrEmpty());
    return {name.text(), declared.type, declared.size, !notNull.toBoolean()};
}

// The list has no index for a primary key that is the row number itself.
std::string CatalogDialect::indexesQuery(const std::string& table) const {
    const std::string quoted = "('" + escapeQuotes(table) + "')";
    return "Select '', 1, 1, k.name, k.pk From pragma_table_info" + quoted +
           " k Where k.pk>0 Union All Select i.name, i.\"unique\", 0, c.name, c.seqno From "
           "pragma_index_list" +
           quoted + " i Join pragma_index_info(i.name) c Where i.origin<>'pk' Order By 1, 5";
}

std::string CatalogDialect::typeName(const Column& column) const {
    if (column.Type() == DataType::Currency) return "Currency";
    if (column.Type() == DataType::LongVarBinary) return "Blob";
    return ado::CatalogDialect::typeName(column);
}

} // namespace Korvane::ado::sqlite
