#include <korvane/ado/sql/ResultTypes.h>

namespace Korvane::ado::sql {

namespace {

bool isFloating(DataType type) {
    return type == DataType::Single || type == DataType::Double || type == DataType::Numeric ||
           type == DataType::Currency;
}

// An item of a select list that is one call of a function and nothing else.
std::optional<DataType> typeOfItem(const Statement& statement, std::size_t begin, std::size_t end,
                                   const Tables& tables) {
    const auto& tokens = statement.tokens;
    if (tokens[begin].kind == TokenKind::Integer && (begin + 1 == end || tokens[begin + 1].isName())) {
        return DataType::Integer;
    }
    if (end - begin < 4 || !tokens[begin + 1].isSymbol('(')) return std::nullopt;
    std::size_t close = begin + 2;
    while (close < end && !tokens[close].isSymbol(')'))
        ++close;
    // Behind the call only a name may stand: Max(A) As B.
    if (close == end || (close + 1 != end && !tokens[close + 1].isName())) return std::nullopt;
    if (tokens[begin].isWord("count")) return DataType::Integer;
    if (tokens[begin].isWord("avg")) return DataType::Double;
    const auto ref = refAt(statement, begin + 2);
    if (!ref || ref->end != close) return std::nullopt;
    const ColumnInfo* column = resolve(statement, *ref, statement.places[begin].scope, tables);
    if (!column) return std::nullopt;
    if (tokens[begin].isWord("max") || tokens[begin].isWord("min")) return column->type;
    if (tokens[begin].isWord("sum")) return isFloating(column->type) ? DataType::Double : DataType::Integer;
    return std::nullopt;
}

// An item's name where the statement gives one: that of a column, or the one behind As or behind a call.
std::optional<std::string> nameOfItem(const Statement& statement, std::size_t begin, std::size_t end) {
    const auto& tokens = statement.tokens;
    if (begin == end || !tokens[end - 1].isName()) return std::nullopt;
    const auto ref = refAt(statement, begin);
    const bool isColumn = ref && ref->end == end;
    const bool isAlias = end - begin > 1 && (tokens[end - 2].isWord("as") || tokens[end - 2].isSymbol(')'));
    if (!isColumn && !isAlias) return std::nullopt;
    return plainName(tokens[end - 1]);
}

std::size_t listBegin(const Statement& statement, const Scope& scope) {
    std::size_t at = scope.begin + 1;
    const auto& tokens = statement.tokens;
    if (tokens[at].isWord("distinct") || tokens[at].isWord("all")) ++at;
    if (tokens[at].isWord("top") && tokens[at + 1].kind == TokenKind::Integer) at += 2;
    return at;
}

/// Calls `take(begin, end)` for each item of the outermost select list; false when there is a `*` among them
/// or no such list.
template <typename Take>
bool forEachItem(const Statement& statement, Take&& take) {
    if (statement.scopes.empty() || !statement.scopes.front().isSelect) return false;
    const Scope& outermost = statement.scopes.front();
    std::size_t begin = listBegin(statement, outermost);
    for (std::size_t at = begin; at <= outermost.listEnd; ++at) {
        const bool atTop = statement.places[at].depth == statement.places[outermost.begin].depth;
        const bool ends = at == outermost.listEnd || (atTop && statement.tokens[at].isSymbol(','));
        if (!ends) continue;
        if (at > begin && statement.tokens[at - 1].isSymbol('*')) return false;
        take(begin, at);
        begin = at + 1;
    }
    return true;
}

} // namespace

std::vector<std::optional<DataType>> resultTypes(const Statement& statement, const Tables& tables) {
    std::vector<std::optional<DataType>> types;
    const bool counted = forEachItem(statement, [&](std::size_t begin, std::size_t end) {
        types.push_back(typeOfItem(statement, begin, end, tables));
    });
    if (!counted) types.clear();
    return types;
}

std::vector<std::optional<std::string>> resultNames(const Statement& statement) {
    std::vector<std::optional<std::string>> names;
    const bool counted = forEachItem(statement, [&](std::size_t begin, std::size_t end) {
        names.push_back(nameOfItem(statement, begin, end));
    });
    if (!counted) names.clear();
    return names;
}

} // namespace Korvane::ado::sql
