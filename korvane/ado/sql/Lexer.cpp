#include <korvane/ado/sql/Lexer.h>

#include <algorithm>
#include <cstring>

namespace Korvane::ado::sql {

bool Lexer::skipComment() {
    const std::string_view rest(mNext, static_cast<std::size_t>(mEnd - mNext));
    if (rest.starts_with("--")) {
        mNext += std::min(rest.find('\n'), rest.size());
        return true;
    }
    if (rest.starts_with("/*")) {
        const auto close = rest.find("*/", 2);
        mNext += close == std::string_view::npos ? rest.size() : close + 2;
        return true;
    }
    return false;
}

TokenKind Lexer::other() {
    switch (*mNext) {
    case '\'':
        return quoted('\'', TokenKind::Text);
    case '"':
        return quoted('"', TokenKind::Name);
    case '`':
        return quoted('`', TokenKind::Name);
    case '[':
        return bracketed();
    case '#':
        return date();
    case ':':
        if (mEnd - mNext > 1 && mNext[1] == ':') {
            mNext += 2;
            return TokenKind::Symbol; // a cast, in some engine's own words
        }
        return parameter();
    case '?':
    case '@':
    case '$':
        return parameter();
    default:
        break;
    }
    if (Characters::is(*mNext, Characters::Digit)) return number();
    if (*mNext == '.' && mEnd - mNext > 1 && Characters::is(mNext[1], Characters::Digit)) return number();
    return symbol();
}

// Stands at the mark, or at the letter before it.
TokenKind Lexer::quoted(char mark, TokenKind kind) {
    if (*mNext != mark) ++mNext;
    while (++mNext != mEnd && find(mark)) {
        if (++mNext == mEnd || *mNext != mark) return kind;
    }
    mNext = mEnd;
    return TokenKind::Broken;
}

bool Lexer::find(char mark) {
    const void* found = std::memchr(mNext, mark, static_cast<std::size_t>(mEnd - mNext));
    mNext = found ? static_cast<const char*>(found) : mEnd;
    return found != nullptr;
}

TokenKind Lexer::bracketed() {
    if (!find(']')) return TokenKind::Broken;
    ++mNext;
    return TokenKind::Name;
}

TokenKind Lexer::number() {
    const char* begin = mNext;
    const bool hex = mEnd - begin > 1 && begin[0] == '0' && (begin[1] | 0x20) == 'x';
    while (mNext != mEnd) {
        const bool exponentSign = (*mNext == '+' || *mNext == '-') && !hex && (mNext[-1] | 0x20) == 'e';
        if (!Characters::is(*mNext, Characters::InWord) && *mNext != '.' && !exponentSign) break;
        if (mNext == begin && exponentSign) break;
        ++mNext;
    }
    const bool digitsAlone =
        std::all_of(begin, mNext, [](char c) { return Characters::is(c, Characters::Digit); });
    return digitsAlone ? TokenKind::Integer : TokenKind::Number;
}

TokenKind Lexer::date() {
    constexpr std::ptrdiff_t longestDate = 48;
    const char* limit = mNext + std::min(mEnd - mNext, longestDate);
    const char* close = std::find(mNext + 1, limit, '#');
    const bool ends = close != limit && std::find(mNext, close, '\n') == close && close - mNext > 1;
    mNext = ends ? close + 1 : mNext + 1;
    return ends ? TokenKind::Date : TokenKind::Broken;
}

TokenKind Lexer::parameter() {
    const char* begin = mNext++;
    while (mNext != mEnd && Characters::is(*mNext, Characters::InWord))
        ++mNext;
    return *begin == '?' || mNext - begin > 1 ? TokenKind::Parameter : TokenKind::Broken;
}

TokenKind Lexer::symbol() {
    const char first = *mNext++;
    const char second = mNext != mEnd ? *mNext : '\0';
    switch (first) {
    case '(':
    case ')':
    case ',':
    case ';':
    case '.':
    case '+':
    case '*':
    case '/':
    case '%':
    case '&':
    case '~':
        return TokenKind::Symbol;
    case '=':
        mNext += second == '=' ? 1 : 0;
        return TokenKind::Symbol;
    case '<':
        mNext += second == '=' || second == '>' || second == '<' ? 1 : 0;
        return TokenKind::Symbol;
    case '>':
        mNext += second == '=' || second == '>' ? 1 : 0;
        return TokenKind::Symbol;
    case '|':
        mNext += second == '|' ? 1 : 0;
        return TokenKind::Symbol;
    case '!':
        mNext += second == '=' ? 1 : 0;
        return second == '=' ? TokenKind::Symbol : TokenKind::Broken;
    case '-':
        if (second != '>') return TokenKind::Symbol;
        ++mNext;
        if (mNext != mEnd && *mNext == '>') ++mNext;
        return TokenKind::Symbol;
    default:
        return TokenKind::Broken;
    }
}

std::vector<Token> tokens(std::string_view statement) {
    std::vector<Token> all;
    Lexer lexer(statement);
    do {
        all.push_back(lexer.next());
    } while (all.back().kind != TokenKind::End);
    return all;
}

std::string plainName(const Token& name) {
    if (name.kind != TokenKind::Name) return std::string(name.text);
    const char mark = name.text.front();
    std::string plain;
    for (std::size_t i = 1; i + 1 < name.text.size(); ++i) {
        plain += name.text[i];
        if (mark != '[' && name.text[i] == mark) ++i;
    }
    return plain;
}

} // namespace Korvane::ado::sql
