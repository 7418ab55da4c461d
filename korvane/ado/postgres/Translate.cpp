#include <korvane/ado/postgres/Translate.h>

#include <korvane/ado/postgres/Definition.h>
#include <korvane/ado/postgres/Names.h>
#include <korvane/ado/postgres/Values.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/ado/sql/Top.h>
#include <korvane/ado/sql/Translator.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <initializer_list>
#include <set>

namespace Korvane::ado::postgres {

namespace {

using sql::Token;
using sql::TokenKind;

bool isAnyWord(const Token& token, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [&](auto word) { return token.isWord(word); });
}

class Translator : public sql::Translator {
  public:
    Translator(std::string_view text, const sql::Tables& tables)
        : sql::Translator(text, tables), mTop(sql::topClauses(statement())),
          mTableAt(statement().tokens.size()) {
        for (const sql::Scope& scope : statement().scopes) {
            for (const sql::Source& source : scope.sources)
                mTableAt[source.at] = source.table.empty() ? nullptr : &source;
        }
        for (std::size_t at = 1; at < statement().tokens.size(); ++at) {
            if (token(at).isName() && token(at - 1).isWord("as"))
                mAliases.insert(lowerCase(sql::plainName(token(at))));
        }
    }

  private:
    std::string literalText(const sql::ColumnValue& value) const override {
        return postgres::literalText(value);
    }
    std::string comparedText(const sql::ColumnValue& value, const ColumnInfo& column) const override {
        return postgres::comparedText(value, column);
    }
    bool quotesNumbersForText() const override { return true; }
    std::string parameterText(std::size_t number) const override { return "$" + std::to_string(number); }

    void editMore() override {
        for (std::size_t at = 0; at + 1 < statement().tokens.size(); ++at) {
            if (token(at).isName() && (at == 0 || !token(at - 1).isWord("as")))
                requireKeepable(sql::plainName(token(at)));
        }
        if (statement().scopes.empty()) {
            for (Definition::Change& change : Definition(statement(), tables()).changes())
                replace(change.first, change.last, std::move(change.text));
            return;
        }
        for (std::size_t at = 0; at + 1 < statement().tokens.size(); ++at) {
            const Token& word = token(at);
            if (word.isName()) name(at);
            if (word.isWord("like")) like(at);
            if (word.isWord("order") && token(at + 1).isWord("by")) orderBy(at + 2);
        }
        for (const sql::Scope& scope : statement().scopes)
            nameSubqueries(scope);
    }

    const Token& token(std::size_t at) const {
        return statement().tokens[std::min(at, statement().tokens.size() - 1)];
    }
    const sql::Statement::Place& place(std::size_t at) const { return statement().places[at]; }

    // Names

    void name(std::size_t at) {
        if (at > 0 && token(at - 1).isSymbol("::")) return; // a type
        if (std::ranges::binary_search(mTop, at, {}, &sql::TopClause::first)) return;
        if (const sql::Source* source = mTableAt[at]) return write(at, tables().nameOf(source->name()));
        if (token(at + 1).isSymbol('.')) return write(at, qualifier(at));
        const auto ref = sql::refBefore(statement(), at + 1);
        if (!ref || !operandMayBegin(ref->begin)) return write(at, {});
        if (token(at + 1).isSymbol('(')) return aggregate(at);
        const ColumnInfo* column = sql::resolve(statement(), *ref, place(at).scope, tables());
        write(at, column ? column->name : nameWithin(ref->name, place(at).scope));
    }

    // What a subquery or a With hands out is spelled as the table's column in it, unless it was given another
    // name there.
    std::string nameWithin(const std::string& name, int scope) const {
        // Each name looks through all of them: what nobody writes must not take for ever either.
        constexpr std::size_t mostScopes = 64;
        if (statement().scopes.size() > mostScopes) return {};
        if (!seesComputedTable(scope) || isAlias(name)) return {};
        for (int within = 0; within < static_cast<int>(statement().scopes.size()); ++within) {
            if (const ColumnInfo* column =
                    sql::resolve(statement(), sql::ColumnRef{"", name, 0, 0}, within, tables()))
                return column->name;
        }
        return {};
    }

    bool seesComputedTable(int scope) const {
        for (; scope >= 0; scope = statement().scopes[static_cast<std::size_t>(scope)].parent) {
            const auto& sources = statement().scopes[static_cast<std::size_t>(scope)].sources;
            if (std::any_of(sources.begin(), sources.end(), [&](const sql::Source& source) {
                    return tables().columnsOf(source.name()).empty();
                }))
                return true;
        }
        return false;
    }

    bool isAlias(const std::string& name) const { return mAliases.contains(lowerCase(name)); }

    // The schema of a table, or the table that a column is qualified with, as it is spelled; empty for an
    // alias.
    std::string qualifier(std::size_t at) const {
        const std::string called = sql::plainName(token(at));
        if (at + 2 < mTableAt.size() && mTableAt[at + 2]) return tables().schemaOf(called);
        for (int scope = place(at).scope; scope >= 0;
             scope = statement().scopes[static_cast<std::size_t>(scope)].parent) {
            for (const sql::Source& source : statement().scopes[static_cast<std::size_t>(scope)].sources) {
                if (source.alias.empty() && sameName(source.table, called))
                    return tables().nameOf(source.name());
                if (source.alias.empty() && sameName(source.schema, called)) return tables().schemaOf(called);
            }
        }
        return {};
    }

    // With no spelling known, a plain name stays and one in marks becomes what a plain one would be.
    void write(std::size_t at, const std::string& spelling) {
        const Token& written = token(at);
        if (spelling.empty()) {
            if (written.kind == TokenKind::Name)
                replace(at, at, sql::quotedName(lowerCase(sql::plainName(written))));
            return;
        }
        if (written.kind == TokenKind::Name || !isPlainFor(written.text, spelling))
            replace(at, at, sql::quotedName(spelling));
    }

    // Whether what stands here is a value rather than an alias or a word of the language.
    bool operandMayBegin(std::size_t at) const {
        if (at == 0 || isAnyWord(token(at), {"null", "true", "false", "case", "exists", "cast", "select",
                                             "distinct", "all", "not", "current_date", "current_timestamp"}))
            return false;
        const Token& before = token(at - 1);
        if (before.kind == TokenKind::Symbol) return !before.isSymbol(')') && !before.isSymbol('.');
        if (isAnyWord(before, {"select", "distinct", "all",  "where",  "and",    "or",       "not",
                               "on",     "by",       "set",  "having", "when",   "then",     "else",
                               "case",   "between",  "like", "in",     "escape", "returning"}))
            return true;
        return std::ranges::binary_search(mTop, at - 1, {}, &sql::TopClause::last);
    }

    // The engine has no largest and smallest truth.
    void aggregate(std::size_t at) {
        const bool max = token(at).isWord("max");
        if (!max && !token(at).isWord("min")) return;
        const auto ref = sql::refAt(statement(), at + 2);
        if (!ref || !token(ref->end).isSymbol(')')) return;
        const ColumnInfo* column = sql::resolve(statement(), *ref, place(at).scope, tables());
        if (column && column->type == DataType::Boolean) replace(at, at, max ? "Bool_Or" : "Bool_And");
    }

    // Patterns

    void like(std::size_t at) {
        const bool negated = at > 0 && token(at - 1).isWord("not");
        const std::size_t behindOperand = negated ? at - 1 : at;
        if (behindOperand == 0 || (!negated && operandMayBegin(at))) return;
        replace(at, at, "ILike");
        if (const auto ref = sql::refBefore(statement(), behindOperand)) {
            const ColumnInfo* column = sql::resolve(statement(), *ref, place(at).scope, tables());
            const bool isText = column && sql::isTextType(column->type) && !column->onlyShownAsText;
            if (column && !isText) insertBehind(behindOperand - 1, "::Text");
        }
        std::size_t end = at + 1;
        while (!endsPattern(end, place(at).depth))
            ++end;
        if (!token(end).isWord("escape") && end > at + 1) insertBehind(end - 1, " Escape ''");
    }

    bool endsPattern(std::size_t at, int depth) const {
        const Token& end = token(at);
        if (end.kind == TokenKind::End) return true;
        if (place(at).depth < depth) return true;
        if (place(at).depth > depth) return false;
        return end.isSymbol(',') || end.isSymbol(';') ||
               isAnyWord(end,
                         {"and",    "or",        "escape", "group",     "order", "having", "limit", "union",
                          "except", "intersect", "then",   "else",      "end",   "when",   "inner", "left",
                          "right",  "join",      "where",  "returning", "as",    "is",     "like",  "not"});
    }

    // Order

    void orderBy(std::size_t begin) {
        const int depth = place(begin).depth;
        for (std::size_t at = begin; !endsOrder(at - 1, depth); ++at) {
            const bool ends = endsOrder(at, depth) || (place(at).depth == depth && token(at).isSymbol(','));
            if (!ends) continue;
            if (at > begin) orderItem(begin, at);
            begin = at + 1;
        }
    }

    bool endsOrder(std::size_t at, int depth) const {
        const Token& end = token(at);
        if (end.kind == TokenKind::End || place(at).depth < depth) return true;
        return place(at).depth == depth &&
               ((end.isWord("order") && token(at + 1).isWord("by")) || end.isSymbol(';') ||
                isAnyWord(end, {"limit", "offset", "union", "except", "intersect", "fetch", "for", "rows",
                                "range"}));
    }

    void orderItem(std::size_t begin, std::size_t end) {
        if (token(end - 1).isWord("first") || token(end - 1).isWord("last")) return;
        if (const auto ref = sql::refAt(statement(), begin)) {
            const ColumnInfo* column = sql::resolve(statement(), *ref, place(begin).scope, tables());
            if (column && !column->nullable) return;
        }
        insertBehind(end - 1, token(end - 1).isWord("desc") ? " Nulls Last" : " Nulls First");
    }

    // Subqueries among the tables need a name.

    void nameSubqueries(const sql::Scope& scope) {
        for (const sql::Source& source : scope.sources) {
            if (!source.table.empty() || !source.alias.empty() || !token(source.at).isSymbol('(')) continue;
            std::size_t close = source.at + 1;
            while (token(close).kind != TokenKind::End && place(close).depth > place(source.at).depth)
                ++close;
            const Token& behind = token(close + 1);
            const bool isNamed = behind.kind == TokenKind::Name || behind.isWord("as") ||
                                 (behind.kind == TokenKind::Word && !endsSubquery(behind));
            if (token(close).isSymbol(')') && !isNamed)
                insertBehind(close, " As korvane_" + std::to_string(++mSubqueries));
        }
    }

    static bool endsSubquery(const Token& word) {
        return isAnyWord(word, {"where", "group", "order", "having", "limit", "union", "except", "intersect",
                                "inner", "left", "right", "full", "cross", "natural", "join", "on", "using",
                                "offset", "returning"});
    }

    std::vector<sql::TopClause> mTop;         ///< in their order
    std::vector<const sql::Source*> mTableAt; ///< by token; null where no table is named
    std::set<std::string> mAliases;           ///< in lower case
    int mSubqueries = 0;
};

} // namespace

sql::Translation translate(std::string_view statement, const sql::Tables& tables,
                           std::string_view addedColumns) {
    return Translator(statement, tables).run(addedColumns);
}

} // namespace Korvane::ado::postgres
