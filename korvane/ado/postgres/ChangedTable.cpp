#include <korvane/ado/postgres/ChangedTable.h>

#include <korvane/ado/sql/Lexer.h>

#include <algorithm>
#include <vector>

namespace Korvane::ado::postgres {

using sql::Token;

namespace {

bool mayChangeOthers(const Token& token, const Token& next) {
    return token.isWord("cascade") || (token.isWord("rename") && next.isWord("to"));
}

} // namespace

std::string changedTable(std::string_view statement) {
    const std::vector<Token> tokens = sql::tokens(statement);
    std::size_t at = 0;
    const auto skip = [&](auto... words) {
        while (at + 1 < tokens.size() && (tokens[at].isWord(words) || ...))
            ++at;
    };
    const bool drops = tokens.front().isWord("drop");
    if (!drops && !tokens.front().isWord("create") && !tokens.front().isWord("alter")) return {};
    ++at;
    skip("unique");
    if (tokens[at].isWord("index") && !drops) {
        skip("index", "concurrently", "if", "not", "exists");
        if (!tokens[at].isWord("on")) ++at;
        if (at >= tokens.size() || !tokens[at].isWord("on")) return {};
        skip("on", "only");
    } else if (tokens[at].isWord("table")) {
        skip("table", "if", "not", "exists", "only");
    } else {
        return {};
    }
    if (!tokens[at].isName()) return {};
    for (std::size_t i = at; i + 1 < tokens.size(); ++i) {
        if (mayChangeOthers(tokens[i], tokens[i + 1])) return {};
    }
    // A name of a schema before it, or another table behind it.
    const Token& behind = tokens[std::min(at + 1, tokens.size() - 1)];
    if (behind.isSymbol('.') || (drops && behind.isSymbol(','))) return {};
    return sql::plainName(tokens[at]);
}

} // namespace Korvane::ado::postgres
