#include <korvane/ado/sql/Translator.h>

#include <korvane/ado/sql/Meeting.h>
#include <korvane/ado/sql/ResultTypes.h>
#include <korvane/ado/sql/Top.h>

#include <algorithm>
#include <charconv>
#include <utility>

namespace Korvane::ado::sql {

namespace {

std::optional<Literal> readNumber(std::string_view digits, bool negative) {
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
    literal.text = digits;
    return literal;
}

} // namespace

Translation Translator::run(std::string_view addedColumns) {
    for (std::size_t at = 0; at + 1 < mStatement.tokens.size(); ++at)
        value(at);
    editMore();
    for (const TopClause& top : topClauses(mStatement)) {
        cut(top.first, top.last);
        insertBefore(top.limitAt, " Limit " + std::string(top.count));
    }
    if (!addedColumns.empty() && !mStatement.scopes.empty()) {
        insertBefore(mStatement.scopes.front().listEnd, std::string(addedColumns));
    }
    mResult.resultTypes = resultTypes(mStatement, mTables);
    mResult.resultNames = resultNames(mStatement);
    mResult.text = edited();
    return std::move(mResult);
}

std::string Translator::parameterText(std::size_t) const {
    return "?";
}

std::size_t Translator::beginOf(std::size_t token) const {
    return static_cast<std::size_t>(mStatement.tokens[token].text.data() - mText.data());
}

std::size_t Translator::endOf(std::size_t token) const {
    return beginOf(token) + mStatement.tokens[token].text.size();
}

std::string_view Translator::textOf(std::size_t first, std::size_t last) const {
    return mText.substr(beginOf(first), endOf(last) - beginOf(first));
}

void Translator::value(std::size_t at) {
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

bool Translator::isTruth(std::size_t at) const {
    const Token& token = mStatement.tokens[at];
    if (!token.isWord("true") && !token.isWord("false")) return false;
    const bool qualified =
        mStatement.tokens[at + 1].isSymbol('.') || (at > 0 && mStatement.tokens[at - 1].isSymbol('.'));
    return !qualified;
}

void Translator::parameter(std::size_t at) {
    ParameterRule rule;
    if (const auto met = meeting(mStatement, at, at, mTables)) {
        rule.column = *met->column;
        rule.use = met->use;
        noteStored(*met);
    }
    mResult.parameters.push_back(std::move(rule));
    if (mStatement.tokens[at].text == "?") replace(at, at, parameterText(mResult.parameters.size()));
}

void Translator::noteStored(const Meeting& met) {
    if (met.use == Use::Store && !isTextType(met.column->type))
        mResult.storedColumns.push_back(met.column->name);
}

void Translator::inText(std::size_t at) {
    std::size_t first = at;
    const bool isNumber =
        mStatement.tokens[at].kind == TokenKind::Number || mStatement.tokens[at].kind == TokenKind::Integer;
    if (isNumber && at > 0 && mStatement.tokens[at - 1].isSymbol('-') && valueMayBegin(mStatement, at - 1)) {
        first = at - 1;
    }
    const auto met = meeting(mStatement, first, at, mTables);
    const auto literal = read(at, first != at);
    if (!literal) return;
    if (!met) {
        if (literal->kind == Literal::Day) replace(first, at, literalText(asItStands(*literal, mScratch)));
        return;
    }
    noteStored(*met);
    const bool isEmptyText = literal->kind == Literal::Text && literal->text.empty();
    if (!isTextType(met->column->type) || (met->column->onlyShownAsText && isEmptyText)) {
        const ColumnValue value = toColumn(*literal, *met->column, met->use, mScratch);
        replace(first, at, met->use == Use::Compare ? comparedText(value, *met->column) : literalText(value));
        return;
    }
    if (literal->kind == Literal::Text || (isNumber && !quotesNumbersForText())) return;
    std::string text = literalText(toColumn(*literal, *met->column, met->use, mScratch));
    if (isNumber) text = "'" + text + "'";
    replace(first, at, std::move(text));
}

std::optional<Literal> Translator::read(std::size_t at, bool negative) const {
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

void Translator::replace(std::size_t first, std::size_t last, std::string text) {
    // A text that is put before another one must not become one with it.
    if (text.ends_with('\'') && last + 1 < mStatement.tokens.size() &&
        mStatement.tokens[last + 1].text.starts_with('\''))
        text += ' ';
    // Spelled the same: nothing to do.
    if (textOf(first, last) == text) return;
    mEdits.push_back({beginOf(first), endOf(last), std::move(text)});
}

void Translator::insertBehind(std::size_t token, std::string text) {
    mEdits.push_back({endOf(token), endOf(token), std::move(text)});
}

// Takes tokens out, and the blank behind them.
void Translator::cut(std::size_t first, std::size_t last) {
    std::size_t end = endOf(last);
    if (end < mText.size() && mText[end] == ' ') ++end;
    mEdits.push_back({beginOf(first), end, ""});
}

void Translator::insertBefore(std::size_t token, std::string text) {
    const std::size_t at = token == 0 ? 0 : endOf(token - 1);
    mEdits.push_back({at, at, std::move(text)});
}

std::string Translator::edited() {
    // A text that has no end would swallow what is written behind it.
    if (!mStatement.endsProperly()) return std::string(mText);
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

} // namespace Korvane::ado::sql
