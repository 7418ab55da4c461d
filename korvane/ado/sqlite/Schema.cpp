#include <korvane/ado/sqlite/Schema.h>

#include <korvane/ado/sqlite/CompiledStatement.h>
#include <korvane/ado/sqlite/Error.h>
#include <korvane/ado/sqlite/Types.h>
#include <korvane/runtime/Text.h>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado::sqlite {

Schema::Table Schema::load(const std::string& name) const {
    CompiledStatement query(mHandle, "Select name, type, pk From pragma_table_info(?1) Order By cid");
    check(mHandle,
          sqlite3_bind_text(query.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC));
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
    const bool hasRowNumbers = sqlite3_table_column_metadata(mHandle, nullptr, name.c_str(), "rowid", nullptr,
                                                             nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
    if (loaded.key.empty() && hasRowNumbers) loaded.key.emplace_back("rowid");
    return loaded;
}

const Schema::Table& Schema::table(std::string_view name) const {
    const auto [place, isNew] = mTables.try_emplace(lowerCase(name));
    if (isNew) place->second = load(place->first);
    return place->second;
}

std::span<const ColumnInfo> Schema::columnsOf(std::string_view name) const {
    if (name.empty()) return {};
    return table(name).columns;
}

std::vector<std::string> Schema::keyOf(std::string_view name) const {
    return table(name).key;
}

} // namespace Korvane::ado::sqlite
