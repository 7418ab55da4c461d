#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// What a token is.
enum class TokenKind : std::uint8_t {
    End,
    Word,      ///< a keyword or a plain name
    Name,      ///< [bracketed], "quoted" or `quoted`, with its marks
    Text,      ///< 'text', with its quotes
    Integer,   ///< decimal digits alone
    Number,    ///< any other number: 2.5, 1e3, 0x1F
    Blob,      ///< x'00ff'
    Date,      ///< #11/15/2026#, with its marks
    Parameter, ///< ?, ?1, :name, @name, $name
    Symbol,    ///< an operator or a mark of punctuation
    Broken,    ///< something that has no end (the rest of the text), or a character that means nothing
};

/// A token: it refers to the text that was read.
struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;

    bool isSymbol(std::string_view symbol) const { return kind == TokenKind::Symbol && text == symbol; }
    bool isSymbol(char symbol) const {
        return kind == TokenKind::Symbol && text.size() == 1 && text.front() == symbol;
    }
    /// `lowerCaseWord` in any case.
    bool isWord(std::string_view lowerCaseWord) const {
        return kind == TokenKind::Word && sameWord(text, lowerCaseWord);
    }
    bool isName() const { return kind == TokenKind::Word || kind == TokenKind::Name; }

    static bool sameWord(std::string_view text, std::string_view lowerCaseWord) {
        if (text.size() != lowerCaseWord.size()) return false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if ((text[i] | 0x20) != lowerCaseWord[i]) return false;
        }
        return true;
    }
};

/// What a character may be part of, looked up in a table.
class Characters {
  public:
    /// What a character may be: a bit each.
    enum Class : std::uint8_t { Blank = 1, Letter = 2, InWord = 4, Digit = 8 };
    static bool is(char c, Class wanted) { return (table[static_cast<unsigned char>(c)] & wanted) != 0; }

  private:
    static constexpr std::array<std::uint8_t, 256> classes() {
        std::array<std::uint8_t, 256> all{};
        for (const char blank : {' ', '\t', '\n', '\f', '\r'})
            all[static_cast<unsigned char>(blank)] = Blank;
        for (std::size_t c = 'a'; c <= 'z'; ++c)
            all[c] = all[c - 0x20] = Letter | InWord;
        for (std::size_t c = 0x80; c < 256; ++c)
            all[c] = Letter | InWord;
        for (std::size_t c = '0'; c <= '9'; ++c)
            all[c] = InWord | Digit;
        all['_'] = Letter | InWord;
        all['$'] = InWord;
        return all;
    }
    static const std::array<std::uint8_t, 256> table;
};
inline constexpr std::array<std::uint8_t, 256> Characters::table = Characters::classes();

/// Splits a statement into tokens; blanks and comments are passed over. Tokens are views into the statement.
class Lexer {
  public:
    explicit Lexer(std::string_view statement)
        : mNext(statement.data()), mEnd(statement.data() + statement.size()) {}

    /// The next token; End, again and again, behind the last.
    Token next() {
        skipBlanks();
        const char* begin = mNext;
        if (mNext == mEnd) return {};
        TokenKind kind = TokenKind::Symbol;
        if (Characters::is(*mNext, Characters::Letter)) {
            while (++mNext != mEnd && Characters::is(*mNext, Characters::InWord)) {
            }
            kind = TokenKind::Word;
            if (mNext != mEnd && *mNext == '\'' && mNext - begin == 1 && (*begin | 0x20) == 'x') {
                kind = quoted('\'', TokenKind::Blob);
            }
        } else {
            kind = other();
        }
        return {kind, {begin, static_cast<std::size_t>(mNext - begin)}};
    }

    /// Where the next token would be looked for.
    const char* position() const { return mNext; }

  private:
    void skipBlanks() {
        while (mNext != mEnd) {
            if (Characters::is(*mNext, Characters::Blank)) {
                ++mNext;
            } else if ((*mNext != '-' && *mNext != '/') || !skipComment()) {
                return;
            }
        }
    }

    bool find(char mark);
    bool skipComment();
    TokenKind other();
    TokenKind quoted(char mark, TokenKind kind);
    TokenKind bracketed();
    TokenKind number();
    TokenKind date();
    TokenKind parameter();
    TokenKind symbol();

    const char* mNext;
    const char* mEnd;
};

/// All tokens of a statement, with one End behind them.
std::vector<Token> tokens(std::string_view statement);

/// A name without its marks: [Problem List] is Problem List.
std::string plainName(const Token& name);

} // namespace Korvane::ado::sql
