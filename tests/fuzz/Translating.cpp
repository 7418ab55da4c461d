#include "fuzz/Properties.h"

#include <korvane/ado/sql/Lift.h>
#include <korvane/ado/sql/Top.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/Translating.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Korvane::Fuzz {

namespace {

using namespace ado::sql;
using Testing::KnownTables;
using Testing::Translating;

/// Text, or one that has no end.
bool isText(const Token& token) {
    return token.kind == TokenKind::Text || (token.kind == TokenKind::Broken && token.text.size() > 1);
}

bool has(const std::vector<Token>& all, TokenKind kind) {
    return std::ranges::any_of(all, [&](const Token& token) { return token.kind == kind; });
}

bool hasWord(const std::vector<Token>& all, std::initializer_list<std::string_view> words) {
    return std::ranges::any_of(all, [&](const Token& token) {
        return std::ranges::any_of(words, [&](std::string_view word) { return token.isWord(word); });
    });
}

/// What no engine's translation has anything to do with.
bool needsNothing(const std::vector<Token>& all, const Translating& engine) {
    if (has(all, TokenKind::Date) || hasWord(all, {"top", "true", "false"})) return false;
    if (!engine.isServer) return true;
    return !has(all, TokenKind::Parameter) &&
           !hasWord(all, {"select", "insert", "update", "delete", "replace", "create", "alter", "drop"});
}

/// A text that a translation may have written: that of a date, a number or a truth, or none at all.
bool mayBeMade(std::string_view text) {
    return text == "''" || text == "'True'" || text == "'False'" ||
           text.find_first_not_of("'0123456789-+.:e /APM") == std::string_view::npos;
}

/// Each text of a statement stands in its translation, in the same order, and no others but made ones.
void keepsTexts(std::string_view text, std::string_view translated) {
    const auto after = tokens(translated);
    auto at = after.begin();
    const auto nextText = [&] { at = std::find_if(at, after.end(), isText); };
    for (const Token& token : tokens(text)) {
        if (!isText(token)) continue;
        for (nextText(); at != after.end() && at->text != token.text; nextText()) {
            require(mayBeMade(at->text), "A text was changed", text);
            ++at;
        }
        require(at != after.end(), "A text was lost", text);
        ++at;
    }
    for (nextText(); at != after.end(); nextText())
        require(mayBeMade(at++->text), "A text came from nowhere", text);
}

/// Nothing for a statement that is refused, which it may be for a name that the server would cut, or for a
/// value where it has any that meet a column of another type.
std::optional<Translation> translationOf(std::string_view text, const Translating& engine,
                                         const KnownTables& tables, bool hasTypes) {
    constexpr std::size_t longestName = 63;
    try {
        return engine.translate(text, tables, {});
    } catch (const RuntimeError& error) {
        const bool isArgument = error.Number() == RuntimeError::InvalidArgument;
        const bool isName =
            isArgument && engine.isServer && std::ranges::any_of(tokens(text), [](const Token& word) {
                return word.text.size() > longestName;
            });
        const bool isValue = isArgument || error.Number() == RuntimeError::TypeMismatch ||
                             error.Number() == RuntimeError::Overflow;
        require(hasTypes ? isValue : isName, "A statement was refused", text);
        return std::nullopt;
    }
}

/// With text columns, whose values stay as they are.
void keepsText(std::string_view text, const std::vector<Token>& all, const Translating& engine,
               const KnownTables& tables) {
    const auto made = translationOf(text, engine, tables, false);
    if (!made) return;
    require(made->text.size() <= 40 * text.size() + 100, "The translation is far longer", text);
    require(made->parameters.size() ==
                static_cast<std::size_t>(std::ranges::count(all, TokenKind::Parameter, &Token::kind)),
            "A parameter was overlooked", text);
    if (needsNothing(all, engine)) require(made->text == text, "Nothing was to be changed", text);
    keepsTexts(text, made->text);
}

/// With columns of all types.
void isDone(std::string_view text, const Translating& engine, const KnownTables& tables) {
    const auto once = translationOf(text, engine, tables, true);
    if (!once || engine.isServer || !topClauses(analyse(once->text)).empty()) return;
    const auto twice = translationOf(once->text, engine, tables, true);
    require(twice && twice->text == once->text, "What was translated is translated again", text);
}

} // namespace

void translating(std::string_view text) {
    const auto all = tokens(text);
    Lifter lifter;
    lifter.lift(text);
    for (const Translating& engine : Testing::translations()) {
        static std::map<std::string, std::pair<KnownTables, KnownTables>> known;
        const auto [at, isNew] = known.try_emplace(engine.name, engine.tables(), engine.tables());
        auto& [typed, asTexts] = at->second;
        if (isNew) asTexts.becomeTexts();
        keepsText(text, all, engine, asTexts);
        translationOf(lifter.shape(), engine, typed, true);
        isDone(text, engine, typed);
    }
    rowSource(text);
    effectOf(text);
}

} // namespace Korvane::Fuzz
