#include <korvane/ado/sql/Top.h>

#include <optional>

namespace Korvane::ado::sql {

namespace {

// Top is a number behind the word, and something to select behind that; otherwise it is a column's name.
std::optional<TopClause> topAt(const Statement& statement, std::size_t at) {
    const auto& tokens = statement.tokens;
    if (!tokens[at].isWord("top")) return std::nullopt;
    const bool inParentheses = tokens[at + 1].isSymbol('(');
    const std::size_t number = at + (inParentheses ? 2 : 1);
    if (number + 1 >= tokens.size() || tokens[number].kind != TokenKind::Integer) return std::nullopt;
    if (inParentheses && !tokens[number + 1].isSymbol(')')) return std::nullopt;
    const std::size_t last = number + (inParentheses ? 1 : 0);
    const Token& after = tokens[last + 1];
    if (after.kind == TokenKind::End || after.isWord("percent") || after.isWord("from") ||
        after.isSymbol(',')) {
        return std::nullopt;
    }
    return TopClause{at, last, tokens[number].text, 0};
}

} // namespace

std::vector<TopClause> topClauses(const Statement& statement) {
    std::vector<TopClause> found;
    for (const Scope& scope : statement.scopes) {
        if (!scope.isSelect || scope.isCompound) continue;
        std::size_t at = scope.begin + 1;
        if (statement.tokens[at].isWord("distinct") || statement.tokens[at].isWord("all")) ++at;
        auto top = topAt(statement, at);
        if (!top) continue;
        top->limitAt = scope.end;
        if (top->limitAt > 0 && statement.tokens[top->limitAt - 1].isSymbol(';')) --top->limitAt;
        found.push_back(*top);
    }
    return found;
}

} // namespace Korvane::ado::sql
