#pragma once

#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sql/Literal.h>
#include <korvane/ado/sql/Tables.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// A table that a part of a statement reads or writes. `table` is empty for a subquery.
struct Source {
    std::string table;
    std::string alias;
    std::size_t at = 0; ///< the token that names it; of a subquery its parenthesis
    std::string schema{};

    TableName name() const { return {table, schema}; }
};

/// One Select, Insert, Update or Delete of a statement, with what it can see.
struct Scope {
    int parent = -1;
    bool isSelect = false;
    bool isCompound = false; ///< a side of Union, Intersect or Except
    bool isGrouped = false;  ///< Distinct or Group By
    std::vector<Source> sources;
    std::vector<Token> insertColumns; ///< the column list of an Insert
    std::size_t begin = 0;            ///< the token that begins it
    std::size_t listEnd = 0;          ///< of a Select: the token behind its list (From, or the end)
    std::size_t end = 0;              ///< the token behind it
};

/// The part of a statement in which a token stands.
enum class Clause : std::uint8_t { Other, SelectList, From, Set, InsertColumns, Values, Rest };

/// The tokens of a statement with what is known of the place of each.
struct Statement {
    /// Where a token stands.
    struct Place {
        int scope = -1;
        Clause clause = Clause::Other;
        int depth = 0;        ///< of parentheses around it
        int clauseDepth = 0;  ///< the depth at which its clause stands
        std::size_t open = 0; ///< the innermost parenthesis around it; 0 when there is none
        int ordinal = 0;      ///< in Values: commas of its tuple before it
    };

    std::vector<Token> tokens;
    std::vector<Place> places; ///< one for each token
    std::vector<Scope> scopes; ///< the outermost first

    /// Whether no text, name or date is still open at its end.
    bool endsProperly() const {
        return tokens.size() < 2 || tokens[tokens.size() - 2].kind != TokenKind::Broken;
    }
};

/// Reads a statement. What it does not understand is left without scopes, and so is one with parentheses
/// deeper than 128 or with a part that sees more than 256 tables: SQLite takes
/// neither, and the time to read it would grow with all its names by all its tables.
Statement analyse(std::string_view text);

/// A reference to a column, as written: [T].[Name] or Name, and where its tokens begin and end (one behind).
struct ColumnRef {
    std::string qualifier;
    std::string name;
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The reference that ends just before a token.
std::optional<ColumnRef> refBefore(const Statement& statement, std::size_t token);
/// The reference that begins at a token.
std::optional<ColumnRef> refAt(const Statement& statement, std::size_t token);

/// The column meant, searched in a scope and in those around it; null when it is not known.
const ColumnInfo* resolve(const Statement& statement, const ColumnRef& ref, int scope, const Tables& tables);

} // namespace Korvane::ado::sql
