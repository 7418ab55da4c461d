#include <korvane/ado/sqlite/Translate.h>

#include <korvane/ado/sql/Meeting.h>
#include <korvane/ado/sql/ResultTypes.h>
#include <korvane/ado/sql/Top.h>
#include <korvane/ado/sqlite/Values.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <charconv>
#include <utility>

namespace Korvane::ado::sqlite {

namespace {

using sql::Literal;
using sql::Statement;
using sql::Token;
using sql::TokenKind;

class Translator {
  public:
    Translator(std::string_view text, const sql::Tables& tables)
        : mText(text), mTables(tables), mStatement(sql::analyse(text)) {}

    Translation run(std::string_view addedColumns) {
        for (std::size_t at = 0; at + 1 < mStatement.tokens.size(); ++at)
            value(at);
        for (const sql::TopClause& top : sql::topClauses(mStatement)) {
            cut(top.first, top.last);
            insertBefore(top.limitAt, " Limit " + std::string(top.count));
        }
        if (!addedColumns.empty() && !mStatement.scopes.empty()) {
            insertBefore(mStatement.scopes.front().listEnd, std::string(addedColumns));
        }
        mResult.resultTypes = sql::resultTypes(mStatement, mTables);
        mResult.text = edited();
        return std::move(mResult);
    }

  private:
    struct Edit {
        std::size_t begin;
        std::size_t end;
        std::string text;
    };

    std::size_t offset(const char* place) const { return static_cast<std::size_t>(place - mText.data()); }
    std::size_t beginOf(std::size_t token) const { return offset(mStatement.tokens[token].text.data()); }
    std::size_t endOf(std::size_t token) const {
        return beginOf(token) + mStatement.tokens[token].text.size();
    }

    void value(std::size_t at) {
        const Token& token = mStatement.tokens[at];
        switch (token.kind) {
        case TokenKind::Parameter:
            parameter(at);
            break;
        case TokenKind::Text:
        case TokenKind::Integer:
        case TokenKind::Number:
        case TokenKind::Date:
            inText(at);
            break;
        case TokenKind::Word:
            if (isTruth(at)) inText(at);
            break;
        default:
            break;
        }
    }

    bool isTruth(std::size_t at) const {
        const Token& token = mStatement.tokens[at];
        if (!token.isWord("true") && !token.isWord("false")) return false;
        const bool qualified =
            mStatement.tokens[at + 1].isSymbol('.') || (at > 0 && mStatement.tokens[at - 1].isSymbol('.'));
        return !qualified;
    }

    void parameter(std::size_t at) {
        ParameterRule rule;
        if (const auto met = sql::meeting(mStatement, at, at, mTables)) {
            rule.column = *met->column;
            rule.use = met->use;
        }
        mResult.parameters.push_back(std::move(rule));
    }

    void inText(std::size_t at) {
        std::size_t first = at;
        const bool isNumber = mStatement.tokens[at].kind == TokenKind::Number ||
                              mStatement.tokens[at].kind == TokenKind::Integer;
        if (isNumber && at > 0 && mStatement.tokens[at - 1].isSymbol('-') &&
            sql::valueMayBegin(mStatement, at - 1)) {
            first = at - 1;
        }
        const auto met = sql::meeting(mStatement, first, at, mTables);
        const auto literal = read(at, first != at);
        if (!literal) return;
        if (!met) {
            if (literal->kind == Literal::Day)
                replace(first, at, literalText(sql::asItStands(*literal, mScratch)));
            return;
        }
        // A number, or a text in a text column, is left as it was written.
        const bool textColumn = sql::isTextType(met->column->type);
        if (textColumn && (literal->kind == Literal::Text || isNumber)) return;
        replace(first, at, literalText(sql::toColumn(*literal, *met->column, met->use, mScratch)));
    }

    std::optional<Literal> read(std::size_t at, bool negative) const {
        const Token& token = mStatement.tokens[at];
        Literal literal;
        switch (token.kind) {
        case TokenKind::Text:
            literal.kind = Literal::Text;
            literal.text = token.text.substr(1, token.text.size() - 2);
            literal.doubledQuotes = true;
            return literal;
        case TokenKind::Word:
            literal.kind = Literal::Boolean;
            literal.truth = token.isWord("true");
            return literal;
        case TokenKind::Date: {
            const auto date = parseDate(token.text.substr(1, token.text.size() - 2));
            if (!date) return std::nullopt;
            literal.kind = Literal::Day;
            literal.date = *date;
            return literal;
        }
        default:
            return readNumber(token.text, negative);
        }
    }

    static std::optional<Literal> readNumber(std::string_view digits, bool negative) {
        Literal literal;
        std::string text(negative ? 1 : 0, '-');
        text += digits;
        const char* end = text.data() + text.size();
        if (const auto [at, error] = std::from_chars(text.data(), end, literal.integer);
            error == std::errc() && at == end) {
            literal.kind = Literal::Integer;
            return literal;
        }
        const auto [at, error] = std::from_chars(text.data(), end, literal.number);
        if (error != std::errc() || at != end) return std::nullopt;
        literal.kind = Literal::Number;
        return literal;
    }

    void replace(std::size_t first, std::size_t last, std::string text) {
        // Spelled the same: nothing to do.
        if (mText.substr(beginOf(first), endOf(last) - beginOf(first)) == text) return;
        mEdits.push_back({beginOf(first), endOf(last), std::move(text)});
    }

    /// Takes tokens out, and the blank behind them.
    void cut(std::size_t first, std::size_t last) {
        std::size_t end = endOf(last);
        if (end < mText.size() && mText[end] == ' ') ++end;
        mEdits.push_back({beginOf(first), end, ""});
    }

    void insertBefore(std::size_t token, std::string text) {
        const std::size_t at = token == 0 ? 0 : endOf(token - 1);
        mEdits.push_back({at, at, std::move(text)});
    }

    std::string edited() {
        std::stable_sort(mEdits.begin(), mEdits.end(),
                         [](const Edit& a, const Edit& b) { return a.begin < b.begin; });
        std::string text;
        std::size_t copied = 0;
        for (const Edit& edit : mEdits) {
            text += mText.substr(copied, edit.begin - copied);
            text += edit.text;
            copied = edit.end;
        }
        text += mText.substr(copied);
        return text;
    }

    std::string_view mText;
    const sql::Tables& mTables;
    Statement mStatement;
    Translation mResult;
    std::vector<Edit> mEdits;
    std::string mScratch;
};

} // namespace

Translation translate(std::string_view statement, const sql::Tables& tables, std::string_view addedColumns) {
    return Translator(statement, tables).run(addedColumns);
}

std::optional<RowSource> rowSource(std::string_view text) {
    const Statement statement = sql::analyse(text);
    if (statement.scopes.empty()) return std::nullopt;
    const sql::Scope& outermost = statement.scopes.front();
    if (outermost.begin != 0 || !outermost.isSelect || outermost.isCompound || outermost.isGrouped)
        return std::nullopt;
    if (outermost.sources.size() != 1 || outermost.sources.front().table.empty()) return std::nullopt;
    const sql::Source& source = outermost.sources.front();
    return RowSource{source.table, source.alias.empty() ? source.table : source.alias};
}

} // namespace Korvane::ado::sqlite
