#include <korvane/ado/postgres/Schema.h>

#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/Text.h>

#include <libpq-fe.h>

#include <algorithm>
#include <cstdlib>

namespace Korvane::ado::postgres {

namespace {

// The columns of the answer.
enum Item {
    Oid,
    SchemaName,
    Name,
    IsVisible,
    HasRows,
    Column,
    Number,
    NotNull,
    Type,
    Base,
    Modifier,
    IsText,
    KeyPlace
};

std::string listed(const std::set<std::string>& names) {
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "'" : ",'") + escapeQuotes(name) + "'";
    return list;
}

TypeId typeId(const char* text) {
    return static_cast<TypeId>(std::strtoul(text, nullptr, 10));
}

} // namespace

// A domain stands for what lies under it, through any number of others. A key does not tell rows apart where
// other tables inherit from its own.
std::string Schema::query() const {
    if (mIsRead && mForgotten.empty()) return {};
    const std::string included =
        mIncluded.empty()
            ? ""
            : " Or pg_catalog.lower(n.nspname::pg_catalog.text Collate \"C\") In (" + listed(mIncluded) + ")";
    // In the collation named so, lower() knows ASCII letters only.
    const std::string which = mIsRead
                                  ? " And pg_catalog.lower(c.relname::pg_catalog.text Collate \"C\") In (" +
                                        listed(mForgotten) + ")"
                                  : "";
    return "With Recursive domain(id, base, modifier) As ("
           "Select oid, typbasetype, typtypmod From pg_catalog.pg_type Where typtype='d' Union All "
           "Select d.id, t.typbasetype, t.typtypmod From domain d Join pg_catalog.pg_type t On t.oid=d.base "
           "Where t.typtype='d') "
           "Select c.oid, n.nspname, c.relname, pg_catalog.pg_table_is_visible(c.oid), c.relkind In "
           "('r','p'), "
           "a.attname, a.attnum, a.attnotnull, "
           "pg_catalog.format_type(a.atttypid, Null), "
           "Coalesce(d.base, a.atttypid), Coalesce(d.modifier, a.atttypmod), t.typcategory='S', "
           "Coalesce(array_position(i.indkey::int2[], a.attnum), -1) "
           "From pg_catalog.pg_class c "
           "Join pg_catalog.pg_namespace n On n.oid=c.relnamespace "
           "Join pg_catalog.pg_attribute a On a.attrelid=c.oid And a.attnum>0 And Not a.attisdropped "
           "Join pg_catalog.pg_type t On t.oid=a.atttypid "
           "Left Join domain d On d.id=a.atttypid And Not Exists "
           "(Select From pg_catalog.pg_type b Where b.oid=d.base And b.typtype='d') "
           "Left Join pg_catalog.pg_index i On i.indrelid=c.oid And i.indisprimary "
           "And Not (c.relkind='r' And c.relhassubclass) "
           "Where c.relkind In ('r','p','v','m','f') And n.nspname<>'pg_catalog' And "
           "(pg_catalog.pg_table_is_visible(c.oid)" +
           included + ")" + which + " Order By c.relname, c.oid, a.attnum";
}

Schema::Table Schema::tableFrom(const pg_result* catalog, int row) {
    const auto text = [&](Item item) { return PQgetvalue(catalog, row, item); };
    Table table;
    table.schema = text(SchemaName);
    table.name = text(Name);
    table.relation = typeId(text(Oid));
    table.isVisible = *text(IsVisible) == 't';
    table.hasRows = *text(HasRows) == 't';
    return table;
}

void Schema::addColumn(Table& table, const pg_result* catalog, int row) {
    const auto text = [&](Item item) { return PQgetvalue(catalog, row, item); };
    const NativeType type = nativeType(typeId(text(Base)), std::atoi(text(Modifier)));
    const bool onlyShownAsText = type.type == DataType::VarWChar && *text(IsText) != 't';
    table.columns.push_back({text(Column), type.type, type.size, *text(NotNull) != 't', onlyShownAsText});
    table.numbers.push_back(std::atoi(text(Number)));
    table.types.emplace_back(text(Type));
    if (const int place = std::atoi(text(KeyPlace)); place >= 0) table.key.emplace_back(place, text(Column));
}

// Each column counts with its name and its place, a removed one with the name that it has since. A sum of
// 32-bit numbers is several times as quick as one of texts, which every save would wait for.
std::string_view Schema::markQuery() {
    return "Select Sum(hashname(a.attname) # hashint8(a.attrelid::bigint * 2000 + a.attnum)) As SchemaMark "
           "From pg_catalog.pg_class c Join pg_catalog.pg_attribute a On a.attrelid=c.oid "
           "Where c.relkind In ('r','p') And c.relnamespace In (Select n.oid From pg_catalog.pg_namespace n "
           "Where n.nspname=Any(current_schemas(false)))";
}

void Schema::read(const pg_result* catalog) {
    mForgotten.clear();
    mIsRead = true;
    for (int row = 0; row < PQntuples(catalog); ++row) {
        auto& sameNamed = mTables[lowerCase(PQgetvalue(catalog, row, Name))];
        if (sameNamed.empty() || sameNamed.back().relation != typeId(PQgetvalue(catalog, row, Oid)))
            sameNamed.push_back(tableFrom(catalog, row));
        addColumn(sameNamed.back(), catalog, row);
    }
    for (auto& [name, tables] : mTables) {
        for (Table& table : tables)
            std::sort(table.key.begin(), table.key.end());
    }
}

void Schema::forget() {
    mTables.clear();
    mForgotten.clear();
    mIsRead = false;
}

void Schema::forget(std::string_view table) {
    const std::string name = lowerCase(table);
    mTables.erase(name);
    mForgotten.insert(name);
}

void Schema::include(std::string_view schema) {
    const std::string lower = lowerCase(schema);
    if (lower.empty() || lower == "pg_catalog" || lower == "information_schema") return;
    if (mIncluded.insert(lower).second) forget();
}

const Schema::Table* Schema::find(const sql::TableName& wanted) const {
    const std::string lower = lowerCase(wanted.name);
    const auto sameNamed = mTables.find(lower);
    if (sameNamed == mTables.end()) return nullptr;
    const Table* found = nullptr;
    for (const Table& table : sameNamed->second) {
        if (wanted.schema.empty() ? !table.isVisible : !sameName(table.schema, wanted.schema)) continue;
        if (table.name == wanted.name) return &table;
        if (!found || table.name == lower) found = &table;
    }
    return found;
}

std::span<const ColumnInfo> Schema::columnsOf(const sql::TableName& table) const {
    const Table* known = find(table);
    return known ? std::span<const ColumnInfo>(known->columns) : std::span<const ColumnInfo>();
}

std::string Schema::nameOf(const sql::TableName& table) const {
    const Table* known = find(table);
    return known ? known->name : std::string();
}

std::string Schema::schemaOf(std::string_view schema) const {
    for (const auto& [name, tables] : mTables) {
        for (const Table& table : tables) {
            if (sameName(table.schema, schema)) return table.schema;
        }
    }
    return {};
}

std::vector<std::string> Schema::keyOf(const sql::TableName& table) const {
    const Table* known = find(table);
    if (!known || !known->hasRows) return {};
    if (known->key.empty()) return {"tableoid", "ctid", "xmin"};
    std::vector<std::string> names;
    for (const auto& [place, name] : known->key)
        names.push_back(name);
    return names;
}

const ColumnInfo* Schema::originOf(const sql::TableName& table, TypeId relation, int column) const {
    const Table* known = find(table);
    if (!known || known->relation != relation) return nullptr;
    const auto found = std::find(known->numbers.begin(), known->numbers.end(), column);
    if (found == known->numbers.end()) return nullptr;
    return &known->columns[static_cast<std::size_t>(found - known->numbers.begin())];
}

std::string Schema::typeCheck(const sql::TableName& table, std::span<const std::string> columns) const {
    const Table* known = find(table);
    if (!known) return {};
    std::string checks;
    for (std::size_t i = 0; i < known->columns.size(); ++i) {
        const std::string& column = known->columns[i].name;
        if (std::find(columns.begin(), columns.end(), column) == columns.end()) continue;
        // Both have to be arrays of the same type.
        checks += (checks.empty() ? "" : ", ") + ("pg_catalog.array_eq(Array[" + sql::quotedName(column)) +
                  "], Null::" + known->types[i] + "[])";
    }
    if (checks.empty()) return {};
    return "korvane_types As (Select " + checks + " From " + sql::quotedName(known->schema, known->name) +
           ")";
}

} // namespace Korvane::ado::postgres
