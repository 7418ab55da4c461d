#include "fuzz/Properties.h"

#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sql/Names.h>

#include <algorithm>

namespace Korvane::Fuzz {

namespace {

using namespace ado::sql;

bool meansNothing(std::string_view gap) {
    while (!gap.empty()) {
        std::size_t end = 1;
        if (gap.starts_with("--")) {
            end = gap.find('\n');
        } else if (gap.starts_with("/*")) {
            const std::size_t close = gap.find("*/", 2);
            end = close == std::string_view::npos ? close : close + 2;
        } else if (std::string_view(" \t\n\f\r").find(gap.front()) == std::string_view::npos) {
            return false;
        }
        gap.remove_prefix(std::min(end, gap.size()));
    }
    return true;
}

void standsAlone(const Token& token) {
    Lexer alone(token.text);
    const Token again = alone.next();
    require(again.kind == token.kind && again.text == token.text, "A token is another one by itself",
            token.text);
    require(alone.next().kind == TokenKind::End, "A token has something behind it", token.text);
}

void keepsItsName(const Token& token) {
    const std::string plain = plainName(token);
    const std::string quoted = quotedName(plain);
    const auto again = tokens(quoted);
    require(again.size() == 2 && again.front().kind == TokenKind::Name && plainName(again.front()) == plain,
            "A name is another one in quotes", token.text);
}

} // namespace

void lexing(std::string_view text) {
    std::size_t read = 0;
    for (const Token& token : tokens(text)) {
        const bool isEnd = token.kind == TokenKind::End;
        const std::size_t begin =
            isEnd ? text.size() : static_cast<std::size_t>(token.text.data() - text.data());
        require(begin >= read && begin <= text.size() && token.text.size() <= text.size() - begin,
                "A token lies outside the text, or behind the next", text);
        require(meansNothing(text.substr(read, begin - read)), "Something was passed over", text);
        require(isEnd == token.text.empty(), "A token is empty", text);
        read = begin + token.text.size();
        if (!isEnd) standsAlone(token);
        if (token.isName()) keepsItsName(token);
    }
}

} // namespace Korvane::Fuzz
