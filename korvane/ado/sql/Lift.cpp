#include <korvane/ado/sql/Lift.h>

#include <korvane/ado/sql/Lexer.h>

#include <array>
#include <charconv>
#include <cstring>

namespace Korvane::ado::sql {

namespace {

// Where in a statement the scan stands, as far as lifting goes.
enum class Place : std::uint8_t {
    Elsewhere,
    Expression, ///< in a Where, or inside parentheses of Set or Values: values may be lifted
    SetList,    ///< at the level of Set itself, where a text may also be the name behind a comma
    ValuesList, ///< between the tuples of Values
};

// What stood before the token, as far as it decides whether a value may stand here.
enum class Before : std::uint8_t {
    Other,
    Operand, ///< an operator, "(" or a word such as And: a value follows
    Comma,
    Minus, ///< a sign, not a subtraction
};

template <std::size_t N>
bool isOneOf(std::string_view word, const std::array<std::string_view, N>& words) {
    for (const auto candidate : words) {
        if (Token::sameWord(word, candidate)) return true;
    }
    return false;
}

bool takesValue(std::string_view word) {
    constexpr std::array<std::string_view, 15> words{"and",  "or",    "not",    "like",   "between",
                                                     "is",   "where", "then",   "when",   "else",
                                                     "case", "glob",  "escape", "regexp", "match"};
    return word.size() < 8 && isOneOf(word, words);
}

bool endsPlace(std::string_view word) {
    constexpr std::array<std::string_view, 17> words{
        "from",   "on",        "as",     "select", "order", "group",  "limit",  "union",  "returning",
        "having", "intersect", "except", "using",  "join",  "window", "offset", "collate"};
    return word.size() < 10 && isOneOf(word, words);
}

class Scan {
  public:
    Scan(std::string_view statement, std::string& shape, std::vector<Literal>& literals)
        : mLexer(statement), mCopied(statement.data()), mEnd(statement.data() + statement.size()),
          mShape(shape), mLiterals(literals) {}

    /// False when the statement has to stay as it is.
    bool run() {
        const Token first = mLexer.next();
        if (!startsLiftable(first)) return false;
        mInSelectList = first.isWord("select");
        for (Token token = mLexer.next(); token.kind != TokenKind::End; token = mLexer.next()) {
            if (!take(token)) return false;
        }
        const char* end = mLexer.position();
        mShape.append(mCopied, static_cast<std::size_t>(end - mCopied));
        return true;
    }

  private:
    static bool startsLiftable(const Token& first) {
        return first.isWord("select") || first.isWord("update") || first.isWord("insert") ||
               first.isWord("delete") || first.isWord("replace");
    }

    bool take(const Token& token) {
        switch (token.kind) {
        case TokenKind::Word:
            takeWord(token.text);
            return true;
        case TokenKind::Symbol:
            return takeSymbol(token.text);
        case TokenKind::Text:
            return takeText(token);
        case TokenKind::Integer:
            takeInteger(token);
            return true;
        case TokenKind::Parameter:
        case TokenKind::Broken:
            return false;
        default:
            mBefore = Before::Other;
            return true;
        }
    }

    void takeWord(std::string_view word) {
        mBefore = Before::Other;
        switch (word.front() | 0x20) {
        case 's':
            if (Token::sameWord(word, "set")) mPlace = Place::SetList;
            if (mDepth == 0 && Token::sameWord(word, "select")) mInSelectList = true;
            break;
        case 'f':
            if (mDepth == 0 && Token::sameWord(word, "from")) mInSelectList = false;
            break;
        case 'v':
            if (Token::sameWord(word, "values")) mPlace = Place::ValuesList;
            break;
        case 'w':
            if (Token::sameWord(word, "where")) mPlace = Place::Expression;
            break;
        default:
            break;
        }
        if (mPlace == Place::Elsewhere) return;
        if (endsPlace(word)) {
            mPlace = Place::Elsewhere;
        } else if (takesValue(word)) {
            mBefore = Before::Operand;
        }
    }

    bool takeSymbol(std::string_view symbol) {
        const Before before = mBefore;
        mBefore = Before::Operand;
        switch (symbol.front()) {
        case '(':
            if (mDepth == mPlaces.size()) return false;
            mPlaces[mDepth++] = mPlace;
            if (mPlace != Place::Elsewhere) mPlace = Place::Expression;
            break;
        case ')':
            if (mDepth == 0) return false;
            mPlace = mPlaces[--mDepth];
            mBefore = Before::Other;
            break;
        case ',':
            mBefore = Before::Comma;
            break;
        case '.':
        case ';':
            mBefore = Before::Other;
            break;
        case '-':
            if (symbol.size() > 1) break; // -> and ->>
            if (before == Before::Operand || (before == Before::Comma && mPlace == Place::Expression)) {
                mBefore = Before::Minus;
                mMinus = symbol.data();
            }
            break;
        default:
            break;
        }
        return true;
    }

    bool valueMayStandHere() const {
        if (mInSelectList) return false;
        switch (mPlace) {
        case Place::Expression:
            return mBefore != Before::Other;
        case Place::SetList:
            return mBefore == Before::Operand || mBefore == Before::Minus;
        default:
            return false;
        }
    }

    bool takeText(const Token& token) {
        const bool liftable = valueMayStandHere();
        mBefore = Before::Other;
        if (!liftable) return true;
        // The engine also takes a quoted text for a name: 'Encounter'.ID
        Lexer ahead = mLexer;
        if (ahead.next().isSymbol('.')) return false;
        Literal literal;
        literal.kind = Literal::Text;
        literal.text = token.text.substr(1, token.text.size() - 2);
        literal.doubledQuotes =
            !literal.text.empty() && std::memchr(literal.text.data(), '\'', literal.text.size()) != nullptr;
        replace(token.text.data(), token, literal);
        return true;
    }

    void takeInteger(const Token& token) {
        const bool liftable = valueMayStandHere();
        const char* begin = token.text.data();
        if (mBefore == Before::Minus && mMinus + 1 == begin) begin = mMinus;
        const bool signedApart = mBefore == Before::Minus && begin != mMinus;
        mBefore = Before::Other;
        if (!liftable || signedApart) return;
        Literal literal;
        literal.kind = Literal::Integer;
        const char* end = token.text.data() + token.text.size();
        if (std::from_chars(begin, end, literal.integer).ec != std::errc()) return;
        replace(begin, token, literal);
    }

    void replace(const char* begin, const Token& token, const Literal& literal) {
        mShape.append(mCopied, static_cast<std::size_t>(begin - mCopied));
        // A mark of its own width at each side would be needed behind a word: Like'x' must not become Like?
        mShape += " ?";
        mCopied = token.text.data() + token.text.size();
        // and 'x'And must not become ?And.
        if (mCopied != mEnd && Characters::is(*mCopied, Characters::InWord)) mShape += ' ';
        mLiterals.push_back(literal);
    }

    Lexer mLexer;
    const char* mCopied;
    const char* mEnd;
    std::string& mShape;
    std::vector<Literal>& mLiterals;
    Place mPlace = Place::Elsewhere;
    Before mBefore = Before::Other;
    // Of the outermost Select: what stands there is the name of a column that has no other.
    bool mInSelectList = false;
    const char* mMinus = nullptr;
    std::array<Place, 64> mPlaces{};
    std::size_t mDepth = 0;
};

} // namespace

void Lifter::lift(std::string_view statement) {
    mStatement = statement;
    mShape.clear();
    mLiterals.clear();
    if (!Scan(statement, mShape, mLiterals).run()) mLiterals.clear();
}

void Lifter::leave(std::string_view statement) {
    mStatement = statement;
    mLiterals.clear();
}

} // namespace Korvane::ado::sql
