#pragma once

#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Korvane::Fuzz {

/// What must not happen, with the text that it happened to.
class Broken : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

inline void require(bool holds, const char* rule, std::string_view text) {
    if (!holds) throw Broken(std::string(rule) + ": " + std::string(text));
}

/// Something that holds for every text there is. libFuzzer tries it with texts that it makes up, one
/// executable a property (tools/fuzz); the ordinary tests try it with those that once broke it
/// (regressions/<name>/).
struct Property {
    std::string_view name;
    void (*tryWith)(std::string_view text); ///< raises Broken, or anything else

    friend void PrintTo(const Property& property, std::ostream* out) { *out << property.name; }
};

/// The lexer passes nothing over but blanks and comments, and a token is the same wherever it stands.
void lexing(std::string_view text);

/// A statement and its shape with the values put back are the same, token by token.
void lifting(std::string_view text);

/// No translation changes a text or adds one that it did not make, none fails on text columns, and each
/// leaves alone what needs no translation. The output is not much longer than the input. With columns of all
/// types it raises nothing but a RuntimeError, and on SQLite a translated statement needs no more
/// translation.
void translating(std::string_view text);

/// The time for a statement grows with its length, not with its square. The three lines of the text are how a
/// long statement begins, what it repeats, and how it ends.
void growing(std::string_view text);

/// Whatever a text column of an SQLite database is given comes back byte for byte, by every kind of
/// statement, and is found by it.
void keeping(std::string_view text);

/// Numbers, dates and lists of choices survive being written and read again, and no text upsets a column of
/// any type.
void converting(std::string_view text);

std::span<const Property> properties();

/// `growing` for statements of a length: they may take 64 times as long as those of a 16th of it.
void growsEvenly(std::string_view text, std::size_t length);

} // namespace Korvane::Fuzz
