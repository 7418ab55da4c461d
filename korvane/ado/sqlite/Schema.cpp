#include <korvane/ado/sqlite/Schema.h>

#include <korvane/ado/sql/Names.h>
#include <korvane/ado/sqlite/CompiledStatement.h>
#include <korvane/ado/sqlite/Error.h>
#include <korvane/ado/sqlite/Types.h>
#include <korvane/runtime/Text.h>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado::sqlite {

Schema::Table Schema::load(const std::string& name, const std::string& schema) const {
    CompiledStatement query(mHandle, "Select name, type, pk From pragma_table_info(?1, ?2) Order By cid");
    const auto bind = [&](int parameter, const std::string& text) {
        check(mHandle, sqlite3_bind_text(query.get(), parameter, text.data(), static_cast<int>(text.size()),
                                         SQLITE_STATIC));
    };
    bind(1, name);
    if (!schema.empty()) bind(2, schema);
    Table loaded;
    std::vector<std::pair<int, std::string>> key;
    while (query.step()) {
        const DeclaredType declared = declaredType(query.text(1));
        loaded.columns.push_back({std::string(query.text(0)), declared.type, declared.size});
        if (const int place = sqlite3_column_int(query.get(), 2); place > 0)
            key.emplace_back(place, query.text(0));
    }
    std::sort(key.begin(), key.end());
    for (auto& [place, column] : key)
        loaded.key.push_back(std::move(column));
    const bool hasRowNumbers =
        sqlite3_table_column_metadata(mHandle, schema.empty() ? nullptr : schema.c_str(), name.c_str(),
                                      "rowid", nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
    if (loaded.key.empty() && hasRowNumbers) loaded.key.emplace_back("rowid");
    return loaded;
}

const Schema::Table& Schema::table(const sql::TableName& table) const {
    const std::string name = lowerCase(table.name);
    const std::string schema = lowerCase(table.schema);
    const auto [place, isNew] = mTables.try_emplace(sql::quotedName(schema, name));
    if (isNew) place->second = load(name, schema);
    return place->second;
}

std::span<const ColumnInfo> Schema::columnsOf(const sql::TableName& name) const {
    if (name.name.empty()) return {};
    return table(name).columns;
}

std::vector<std::string> Schema::keyOf(const sql::TableName& name) const {
    return table(name).key;
}

} // namespace Korvane::ado::sqlite
