#include "fuzz/Properties.h"

#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sql/Lift.h>

#include <charconv>
#include <string>

namespace Korvane::Fuzz {

namespace {

using namespace ado::sql;

/// A token on a line of its own; all ways to write a whole number are the same.
std::string written(const Token& token) {
    std::int64_t value = 0;
    const char* end = token.text.data() + token.text.size();
    if (token.kind == TokenKind::Integer && std::from_chars(token.text.data(), end, value).ec == std::errc())
        return std::to_string(value) + "\n";
    return std::string(token.text) + "\n";
}

/// A value as the tokens that it was lifted from.
std::string written(const Literal& literal) {
    if (literal.kind == Literal::Text) return "'" + std::string(literal.text) + "'\n";
    const std::string digits = std::to_string(literal.integer) + "\n";
    return literal.integer < 0 ? "-\n" + digits.substr(1) : digits;
}

/// To an engine 0 and -0 are the same whole number, which a lifted value no longer tells apart.
std::string withoutNegativeZeros(std::string lines) {
    for (std::size_t at; (at = lines.find("\n-\n0\n")) != std::string::npos;)
        lines.erase(at + 1, 2);
    return lines;
}

} // namespace

void lifting(std::string_view text) {
    Lifter lifter;
    lifter.lift(text);
    if (lifter.literals().empty()) return require(lifter.shape() == text, "The shape is another text", text);
    auto literal = lifter.literals().begin();
    std::string before, after;
    for (const Token& token : tokens(text))
        before += written(token);
    for (const Token& token : tokens(lifter.shape())) {
        if (token.kind == TokenKind::Parameter) {
            require(literal != lifter.literals().end(), "A mark stands for nothing", text);
            const bool hasQuotes = literal->text.find('\'') != std::string_view::npos;
            require(literal->doubledQuotes == hasQuotes, "A text's quotes were overlooked", text);
            after += written(*literal++);
        } else {
            after += written(token);
        }
    }
    require(literal == lifter.literals().end(), "A value has no mark", text);
    require(withoutNegativeZeros(before) == withoutNegativeZeros(after),
            "The shape with its values is another statement", text);
}

} // namespace Korvane::Fuzz
