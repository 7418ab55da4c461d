#include "fuzz/Properties.h"

#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sql/Lift.h>

#include <charconv>
#include <string>
#include <vector>

namespace Korvane::Fuzz {

namespace {

using namespace ado::sql;

/// Walks a statement's tokens beside those of its shape.
class Comparison {
  public:
    explicit Comparison(std::string_view text) : mText(text), mTokens(tokens(text)) {}

    void pass(const Token& token) {
        require(next().kind == token.kind && next().text == token.text, "The shape has another token", mText);
        ++mAt;
    }

    void pass(const Literal& literal) {
        if (literal.kind == Literal::Text)
            passText(literal);
        else
            passInteger(literal);
        ++mAt;
    }

    void end() const { require(mAt == mTokens.size(), "The shape ends early", mText); }

  private:
    const Token& next() const {
        require(mAt < mTokens.size(), "The shape has more tokens", mText);
        return mTokens[mAt];
    }

    void passText(const Literal& literal) {
        const std::string_view inside = next().kind == TokenKind::Text
                                            ? next().text.substr(1, next().text.size() - 2)
                                            : std::string_view();
        require(next().kind == TokenKind::Text && literal.text == inside, "A text was changed", mText);
        require(literal.doubledQuotes == (inside.find('\'') != std::string_view::npos),
                "A text's quotes were overlooked", mText);
    }

    void passInteger(const Literal& literal) {
        std::string digits;
        if (next().isSymbol('-')) {
            digits = "-";
            ++mAt;
        }
        digits += next().text;
        std::int64_t value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        require(next().kind == TokenKind::Integer && literal.kind == Literal::Integer &&
                    error == std::errc() && end == digits.data() + digits.size() && value == literal.integer,
                "An integer was changed", mText);
    }

    std::string_view mText;
    std::vector<Token> mTokens;
    std::size_t mAt = 0;
};

} // namespace

void lifting(std::string_view text) {
    Lifter lifter;
    lifter.lift(text);
    if (lifter.literals().empty()) return require(lifter.shape() == text, "The shape is another text", text);
    Comparison comparison(text);
    auto literal = lifter.literals().begin();
    for (const Token& token : tokens(lifter.shape())) {
        if (token.kind != TokenKind::Parameter) {
            comparison.pass(token);
            continue;
        }
        require(token.text == "?" && literal != lifter.literals().end(), "A mark stands for nothing", text);
        comparison.pass(*literal++);
    }
    comparison.end();
    require(literal == lifter.literals().end(), "A value has no mark", text);
}

} // namespace Korvane::Fuzz
