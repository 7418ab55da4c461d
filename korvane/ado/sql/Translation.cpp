#include <korvane/ado/sql/Translation.h>

#include <korvane/ado/sql/Statement.h>

namespace Korvane::ado::sql {

namespace {

// Max(Name), without a Group By: one row made of many.
bool isAggregated(const Statement& statement, const Scope& scope) {
    for (std::size_t at = scope.begin; at < scope.listEnd; ++at) {
        if (!statement.tokens[at + 1].isSymbol('(')) continue;
        for (const char* word : {"max", "min", "count", "sum", "avg"}) {
            if (statement.tokens[at].isWord(word)) return true;
        }
    }
    return false;
}

} // namespace

std::optional<RowSource> rowSource(std::string_view text) {
    const Statement statement = analyse(text);
    if (statement.scopes.empty()) return std::nullopt;
    const Scope& outermost = statement.scopes.front();
    if (outermost.begin != 0 || !outermost.isSelect || outermost.isCompound || outermost.isGrouped)
        return std::nullopt;
    if (outermost.sources.size() != 1 || outermost.sources.front().table.empty()) return std::nullopt;
    if (isAggregated(statement, outermost)) return std::nullopt;
    const Source& source = outermost.sources.front();
    return RowSource{source.table, source.alias.empty() ? source.table : source.alias, source.schema};
}

Effect effectOf(std::string_view statement) {
    const Token first = Lexer(statement).next();
    const auto isOne = [&](auto... words) { return (first.isWord(words) || ...); };
    if (isOne("insert", "update", "delete", "replace", "with")) return Effect::Rows;
    return isOne("select", "values", "explain") ? Effect::None : Effect::Schema;
}

} // namespace Korvane::ado::sql
