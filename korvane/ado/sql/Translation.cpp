#include <korvane/ado/sql/Translation.h>

#include <korvane/ado/sql/Statement.h>

namespace Korvane::ado::sql {

std::optional<RowSource> rowSource(std::string_view text) {
    const Statement statement = analyse(text);
    if (statement.scopes.empty()) return std::nullopt;
    const Scope& outermost = statement.scopes.front();
    if (outermost.begin != 0 || !outermost.isSelect || outermost.isCompound || outermost.isGrouped)
        return std::nullopt;
    if (outermost.sources.size() != 1 || outermost.sources.front().table.empty()) return std::nullopt;
    const Source& source = outermost.sources.front();
    return RowSource{source.table, source.alias.empty() ? source.table : source.alias};
}

Effect effectOf(std::string_view statement) {
    const Token first = Lexer(statement).next();
    const auto isOne = [&](auto... words) { return (first.isWord(words) || ...); };
    if (isOne("insert", "update", "delete", "replace", "with")) return Effect::Rows;
    return isOne("select", "values", "explain") ? Effect::None : Effect::Schema;
}

} // namespace Korvane::ado::sql
