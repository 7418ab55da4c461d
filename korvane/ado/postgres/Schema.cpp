#include <korvane/ado/postgres/Schema.h>

#include <korvane/runtime/Text.h>

#include <libpq-fe.h>

#include <algorithm>
#include <cstdlib>

namespace Korvane::ado::postgres {

std::string Schema::query() const {
    if (mIsRead && mForgotten.empty()) return {};
    std::string names;
    for (const std::string& name : mForgotten)
        names += (names.empty() ? "'" : ",'") + escapeQuotes(name) + "'";
    // In the collation named so, lower() knows ASCII letters only.
    const std::string which =
        mIsRead ? "And pg_catalog.lower(c.relname::pg_catalog.text Collate \"C\") In (" + names + ") " : "";
    return "Select c.oid, c.relname, c.relkind In ('r','p'), a.attname, a.attnum, a.attnotnull, "
           "Case When t.typtype='d' Then t.typbasetype Else a.atttypid End, "
           "Case When t.typtype='d' Then t.typtypmod Else a.atttypmod End, "
           "Coalesce(array_position(i.indkey::int2[], a.attnum), -1) "
           "From pg_catalog.pg_class c "
           "Join pg_catalog.pg_attribute a On a.attrelid=c.oid And a.attnum>0 And Not a.attisdropped "
           "Join pg_catalog.pg_type t On t.oid=a.atttypid "
           "Left Join pg_catalog.pg_index i On i.indrelid=c.oid And i.indisprimary "
           "Where c.relkind In ('r','p','v','m','f') And pg_catalog.pg_table_is_visible(c.oid) "
           "And c.relnamespace<>'pg_catalog'::pg_catalog.regnamespace " +
           which + "Order By c.relname, c.oid, a.attnum";
}

std::string_view Schema::markQuery() {
    return "Select Sum(hashtextextended(c.relname || '.' || a.attname, a.attnum)) As SchemaMark "
           "From pg_catalog.pg_class c "
           "Join pg_catalog.pg_attribute a On a.attrelid=c.oid And a.attnum>0 And Not a.attisdropped "
           "Where c.relkind In ('r','p') And c.relnamespace In (Select n.oid From pg_catalog.pg_namespace n "
           "Where n.nspname=Any(current_schemas(false)))";
}

void Schema::read(const pg_result* catalog) {
    mForgotten.clear();
    mIsRead = true;
    for (int row = 0; row < PQntuples(catalog); ++row) {
        const auto text = [&](int column) { return PQgetvalue(catalog, row, column); };
        const auto number = [&](int column) { return std::atoi(text(column)); };
        const auto relation = static_cast<TypeId>(std::strtoul(text(0), nullptr, 10));
        auto& sameNamed = mTables[lowerCase(text(1))];
        if (sameNamed.empty() || sameNamed.back().relation != relation) {
            Table& begun = sameNamed.emplace_back();
            begun.name = text(1);
            begun.relation = relation;
            begun.hasRows = *text(2) == 't';
        }
        Table& table = sameNamed.back();
        const NativeType type = nativeType(static_cast<TypeId>(number(6)), number(7));
        table.columns.push_back({text(3), type.type, type.size, *text(5) != 't'});
        table.numbers.push_back(number(4));
        if (number(8) >= 0) table.key.emplace_back(number(8), text(3));
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

const Schema::Table* Schema::find(std::string_view name) const {
    const std::string lower = lowerCase(name);
    const auto found = mTables.find(lower);
    if (found == mTables.end()) return nullptr;
    for (const std::string_view wanted : {name, std::string_view(lower)}) {
        for (const Table& table : found->second) {
            if (table.name == wanted) return &table;
        }
    }
    return &found->second.front();
}

std::span<const ColumnInfo> Schema::columnsOf(std::string_view table) const {
    const Table* known = find(table);
    return known ? std::span<const ColumnInfo>(known->columns) : std::span<const ColumnInfo>();
}

std::string Schema::nameOf(std::string_view table) const {
    const Table* known = find(table);
    return known ? known->name : std::string();
}

std::vector<std::string> Schema::keyOf(std::string_view table) const {
    const Table* known = find(table);
    if (!known || !known->hasRows) return {};
    std::vector<std::string> names;
    for (const auto& [place, name] : known->key)
        names.push_back(name);
    if (names.empty()) names.emplace_back("ctid");
    return names;
}

std::string Schema::originOf(std::string_view table, TypeId relation, int column) const {
    const Table* known = find(table);
    if (!known || known->relation != relation) return {};
    const auto found = std::find(known->numbers.begin(), known->numbers.end(), column);
    if (found == known->numbers.end()) return {};
    return known->columns[static_cast<std::size_t>(found - known->numbers.begin())].name;
}

} // namespace Korvane::ado::postgres
