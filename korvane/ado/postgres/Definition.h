#pragma once

#include <korvane/ado/sql/Statement.h>
#include <korvane/ado/sql/Tables.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Korvane::ado::postgres {

/// What has to change in a statement that makes, changes or drops a table or an index: names that exist are
/// written as the catalog spells them, new names in marks are kept as they are, and types get the engine's
/// names.
class Definition {
  public:
    /// Tokens and the text to stand in their place.
    struct Change {
        std::size_t first = 0;
        std::size_t last = 0;
        std::string text;
    };

    Definition(const sql::Statement& statement, const sql::Tables& tables)
        : mStatement(statement), mTables(tables) {}

    /// Empty for a statement of any other kind.
    std::vector<Change> changes();

  private:
    const sql::Token& token(std::size_t at) const;
    void skip(std::string_view word);
    void table();
    void createTable();
    void createIndex();
    void alterTable();
    void column(std::size_t at);
    void newColumn(std::size_t at);
    void type(std::size_t at);
    void write(std::size_t at, const std::string& spelling);

    const sql::Statement& mStatement;
    const sql::Tables& mTables;
    std::size_t mAt = 0;
    std::string mSchema; ///< of the table, when it is named
    std::string mTable;
    std::unordered_map<std::string, std::string> mNewNames; ///< spelling by the name in lower case
    std::vector<Change> mChanges;
};

} // namespace Korvane::ado::postgres
