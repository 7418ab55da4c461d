#include <korvane/ado/postgres/CatalogDialect.h>

#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/Text.h>

namespace Korvane::ado::postgres {

namespace {

constexpr const char* isTable = "c.relkind In ('r','p')";
constexpr const char* isVisible = "pg_catalog.pg_table_is_visible(c.oid) "
                                  "And c.relnamespace<>'pg_catalog'::pg_catalog.regnamespace";

} // namespace

std::string CatalogDialect::tablesQuery() const {
    return std::string("Select c.relname From pg_catalog.pg_class c Where ") + isTable + " And " + isVisible +
           " Order By c.relname";
}

// In the collation named so, lower() knows ASCII letters only.
std::string CatalogDialect::relationQuery(std::string_view name, bool withColumns) const {
    const std::string relation = std::string("Select c.relname, ") + isTable;
    const std::string named = std::string(" Where c.relkind In ('r','p','v','m','f') And ") + isVisible +
                              " And pg_catalog.lower(c.relname::pg_catalog.text Collate \"C\")='" +
                              escapeQuotes(lowerCase(name)) + "' Order By c.relname";
    if (!withColumns) return relation + ", Null From pg_catalog.pg_class c" + named;
    return relation +
           ", a.attname, a.attnotnull, "
           "(Case When t.typtype='d' Then t.typbasetype Else a.atttypid End)::pg_catalog.int8, "
           "Case When t.typtype='d' Then t.typtypmod Else a.atttypmod End "
           "From pg_catalog.pg_class c "
           "Left Join pg_catalog.pg_attribute a On a.attrelid=c.oid And a.attnum>0 And Not a.attisdropped "
           "Left Join pg_catalog.pg_type t On t.oid=a.atttypid" +
           named + ", a.attnum";
}

ColumnInfo CatalogDialect::column(const Cursor& row) const {
    Variant name;
    Variant notNull;
    Variant type;
    Variant modifier;
    row.value(2, name);
    row.value(3, notNull);
    row.value(4, type);
    row.value(5, modifier);
    const NativeType native = nativeType(static_cast<TypeId>(type.toDouble()), modifier.toInt32());
    return {name.text(), native.type, native.size, !notNull.toBoolean()};
}

std::string CatalogDialect::indexesQuery(const std::string& table) const {
    return "Select Case When i.indisprimary Then '' Else x.relname::pg_catalog.text End, i.indisunique, "
           "i.indisprimary, a.attname "
           "From pg_catalog.pg_index i Join pg_catalog.pg_class x On x.oid=i.indexrelid "
           "Cross Join Lateral unnest(i.indkey::pg_catalog.int2[]) With Ordinality k(number, place) "
           "Left Join pg_catalog.pg_attribute a On a.attrelid=i.indrelid And a.attnum=k.number "
           "Where i.indrelid='" +
           escapeQuotes(sql::quotedName(table)) +
           "'::pg_catalog.regclass And k.place<=i.indnkeyatts Order By 1, k.place";
}

std::optional<std::string> CatalogDialect::widenColumn(const std::string& table, const Column& column) const {
    return "Alter Table " + sql::quotedName(table) + " Alter Column " + sql::quotedName(column.Name()) +
           " Type " + typeName(column);
}

std::string CatalogDialect::typeName(const Column& column) const {
    if (column.Type() == DataType::Currency) return "Numeric(19,4)";
    if (column.Type() == DataType::LongVarBinary) return "Bytea";
    return ado::CatalogDialect::typeName(column);
}

} // namespace Korvane::ado::postgres
