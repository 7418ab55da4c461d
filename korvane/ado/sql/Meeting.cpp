#include <korvane/ado/sql/Meeting.h>

#include <algorithm>
#include <array>

namespace Korvane::ado::sql {

namespace {

bool isComparison(const Token& token) {
    constexpr std::array<std::string_view, 8> operators{"=", "<>", "<", ">", "<=", ">=", "!=", "=="};
    return token.kind == TokenKind::Symbol &&
           std::find(operators.begin(), operators.end(), token.text) != operators.end();
}

// Whether nothing binds a term that begins here to what stands before it.
bool beginsTerm(const Statement& statement, std::size_t token) {
    if (token == 0) return true;
    const Token& before = statement.tokens[token - 1];
    if (before.isSymbol('(') || before.isSymbol(',')) return true;
    for (const char* word : {"where", "and", "or", "not", "when", "on", "having", "set"}) {
        if (before.isWord(word)) return true;
    }
    return false;
}

// Whether nothing binds a term that ends before here to what follows.
bool endsTerm(const Statement& statement, std::size_t token) {
    const Token& after = statement.tokens[token];
    if (after.kind == TokenKind::End || after.isSymbol(')') || after.isSymbol(',') || after.isSymbol(';'))
        return true;
    if (after.kind != TokenKind::Word) return false;
    for (const char* word :
         {"collate", "like", "in", "is", "between", "not", "glob", "isnull", "notnull", "regexp"}) {
        if (after.isWord(word)) return false;
    }
    return true;
}

class Search {
  public:
    Search(const Statement& statement, std::size_t first, std::size_t last, const Tables& tables)
        : mStatement(statement), mTables(tables), mFirst(first), mLast(last),
          mPlace(statement.places[first]) {}

    std::optional<Meeting> run() const {
        if (mPlace.scope < 0) return std::nullopt;
        if (auto met = inValues()) return met;
        if (mFirst == 0) return std::nullopt;
        if (isComparison(before(0)) && endsTerm(mStatement, mLast + 1)) return comparedBehind();
        if (isComparison(mStatement.tokens[mLast + 1]) && beginsTerm(mStatement, mFirst))
            return comparedBefore();
        if (auto met = inList()) return met;
        return between();
    }

  private:
    /// The token before the value; with 1, the one before that, and so on.
    const Token& before(std::size_t by) const {
        static const Token none{};
        return mFirst > by ? mStatement.tokens[mFirst - 1 - by] : none;
    }
    const Scope& scope() const { return mStatement.scopes[static_cast<std::size_t>(mPlace.scope)]; }

    std::optional<Meeting> found(const std::optional<ColumnRef>& ref, Use use) const {
        if (!ref) return std::nullopt;
        const ColumnInfo* column = resolve(mStatement, *ref, mPlace.scope, mTables);
        return column ? std::optional(Meeting{column, use}) : std::nullopt;
    }

    std::optional<Meeting> inValues() const {
        if (mPlace.clause != Clause::Values || mPlace.depth != mPlace.clauseDepth + 1) return std::nullopt;
        if (!isInsert() || !endsValue() || scope().sources.empty()) return std::nullopt;
        const auto columns = mTables.columnsOf(scope().sources.front().name());
        const auto ordinal = static_cast<std::size_t>(mPlace.ordinal);
        const auto& named = scope().insertColumns;
        if (named.empty()) {
            return ordinal < columns.size() ? std::optional(Meeting{&columns[ordinal], Use::Store})
                                            : std::nullopt;
        }
        if (ordinal >= named.size()) return std::nullopt;
        return found(ColumnRef{"", plainName(named[ordinal]), 0, 0}, Use::Store);
    }

    // Values may also stand in a condition: A In (Values (1),(2)).
    bool isInsert() const {
        const Token& verb = mStatement.tokens[scope().begin];
        return verb.isWord("insert") || verb.isWord("replace");
    }

    bool endsValue() const {
        const Token& after = mStatement.tokens[mLast + 1];
        return (before(0).isSymbol('(') || before(0).isSymbol(',')) &&
               (after.isSymbol(',') || after.isSymbol(')'));
    }

    std::optional<Meeting> comparedBehind() const {
        const auto ref = refBefore(mStatement, mFirst - 1);
        if (!ref || !beginsTerm(mStatement, ref->begin)) return std::nullopt;
        const bool assigned = mPlace.clause == Clause::Set && mPlace.depth == mPlace.clauseDepth &&
                              (mStatement.tokens[ref->begin - 1].isWord("set") ||
                               mStatement.tokens[ref->begin - 1].isSymbol(','));
        return found(ref, assigned ? Use::Store : Use::Compare);
    }

    std::optional<Meeting> comparedBefore() const {
        const auto ref = refAt(mStatement, mLast + 2);
        if (!ref || !endsTerm(mStatement, ref->end)) return std::nullopt;
        return found(ref, Use::Compare);
    }

    std::optional<Meeting> inList() const {
        if (!endsValue() || mPlace.open == 0) return std::nullopt;
        std::size_t at = mPlace.open;
        if (!mStatement.tokens[at - 1].isWord("in")) return std::nullopt;
        return columnBefore(at - 1);
    }

    std::optional<Meeting> between() const {
        if (!endsTerm(mStatement, mLast + 1)) return std::nullopt;
        if (before(0).isWord("between")) return columnBefore(mFirst - 1);
        // The upper end: the lower one is a single value, with or without a sign.
        if (!before(0).isWord("and")) return std::nullopt;
        for (const std::size_t width : {std::size_t{2}, std::size_t{3}}) {
            if (before(width).isWord("between")) return columnBefore(mFirst - 1 - width);
        }
        return std::nullopt;
    }

    /// The column before In, Between, Not In or Not Between, whose (last) word is at a token.
    std::optional<Meeting> columnBefore(std::size_t at) const {
        if (at > 0 && mStatement.tokens[at - 1].isWord("not")) --at;
        const auto ref = refBefore(mStatement, at);
        if (!ref || !beginsTerm(mStatement, ref->begin)) return std::nullopt;
        return found(ref, Use::Compare);
    }

    const Statement& mStatement;
    const Tables& mTables;
    std::size_t mFirst;
    std::size_t mLast;
    const Statement::Place& mPlace;
};

} // namespace

std::optional<Meeting> meeting(const Statement& statement, std::size_t first, std::size_t last,
                               const Tables& tables) {
    auto met = Search(statement, first, last, tables).run();
    // A column without a type takes every value as it is.
    if (met && met->column->type == DataType::Empty) met.reset();
    return met;
}

bool valueMayBegin(const Statement& statement, std::size_t token) {
    if (beginsTerm(statement, token)) return true;
    const Token& before = statement.tokens[token - 1];
    return isComparison(before) || before.isWord("between");
}

} // namespace Korvane::ado::sql
