#include <korvane/ado/sql/Statement.h>

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <initializer_list>

namespace Korvane::ado::sql {

namespace {

bool isAnyWord(const Token& token, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [&](auto word) { return token.isWord(word); });
}

bool isReserved(const Token& token) {
    return isAnyWord(token,
                     {"select", "from",    "where",     "set",     "values",    "on",    "using",  "join",
                      "inner",  "left",    "right",     "full",    "outer",     "cross", "order",  "group",
                      "having", "limit",   "union",     "except",  "intersect", "as",    "and",    "or",
                      "not",    "natural", "returning", "default", "indexed",   "into",  "insert", "update",
                      "delete", "or",      "window",    "case",    "when",      "then",  "else",   "end"});
}

class Analysis {
  public:
    explicit Analysis(std::string_view text) {
        mResult.tokens = tokens(text);
        mResult.places.resize(mResult.tokens.size());
        mFrames.push_back({});
    }

    Statement run() {
        for (mAt = 0; mAt < mResult.tokens.size() && !mTooLarge; ++mAt) {
            if (token().kind == TokenKind::Word) word();
            if (token().isSymbol(')')) close();
            note();
            if (token().isSymbol('(')) open();
            if (token().isSymbol(',')) comma();
            if (token().isName() && !isReserved(token())) name();
        }
        while (!mFrames.empty())
            endFrame(mResult.tokens.size() - 1);
        if (mTooLarge) {
            mResult.scopes.clear();
            mResult.places.assign(mResult.tokens.size(), {});
        }
        return std::move(mResult);
    }

  private:
    struct Frame {
        int scope = -1;
        Clause clause = Clause::Other;
        int clauseDepth = 0;
        std::size_t open = 0;
        int ordinal = 0;
        bool tableFollows = false;
        bool ownsScope = false;
        std::size_t sources = 0; ///< that can be seen in it
    };
    static constexpr std::size_t deepest = 128;
    static constexpr std::size_t mostSources = 256;

    const Token& token() const { return mResult.tokens[mAt]; }
    const Token& ahead(std::size_t by) const {
        return mResult.tokens[std::min(mAt + by, mResult.tokens.size() - 1)];
    }
    Frame& frame() { return mFrames.back(); }
    Scope* scope() {
        return frame().scope < 0 ? nullptr : &mResult.scopes[static_cast<std::size_t>(frame().scope)];
    }
    int depth() const { return static_cast<int>(mFrames.size()) - 1; }

    void enter(Clause clause) {
        if (Scope* current = scope(); current && frame().clause == Clause::SelectList) current->listEnd = mAt;
        frame().clause = clause;
        frame().clauseDepth = depth();
        frame().tableFollows = clause == Clause::From;
    }

    void beginScope(bool isSelect) {
        const int outer =
            frame().ownsScope && mResult.scopes[static_cast<std::size_t>(frame().scope)].isSelect
                ? mResult.scopes[static_cast<std::size_t>(frame().scope)].parent
                : frame().scope;
        if (frame().ownsScope) endScope(mAt);
        Scope begun;
        begun.parent = outer;
        begun.isSelect = isSelect;
        begun.begin = mAt;
        mResult.scopes.push_back(std::move(begun));
        frame().scope = static_cast<int>(mResult.scopes.size()) - 1;
        frame().ownsScope = true;
        frame().sources = mFrames.size() > 1 ? mFrames[mFrames.size() - 2].sources : 0;
    }

    void endScope(std::size_t at) {
        Scope* current = scope();
        if (current->isSelect && current->listEnd == 0) current->listEnd = at;
        current->end = at;
    }

    void word() {
        if (mAt > 0 && mResult.tokens[mAt - 1].isSymbol('.')) return;
        if (token().isWord("select")) return beginSelect();
        if (mAt == 0 || frame().scope < 0) return beginStatement();
        if (isAnyWord(token(), {"union", "intersect", "except"})) return compound();
        if (isAnyWord(token(), {"from", "into", "join"})) return enter(Clause::From);
        if (token().isWord("set")) return enter(Clause::Set);
        if (token().isWord("values")) return enter(Clause::Values);
        if (token().isWord("group")) scope()->isGrouped = true;
        if (isAnyWord(token(), {"where", "on", "group", "order", "having", "limit", "returning", "using"})) {
            enter(Clause::Rest);
        }
    }

    void beginSelect() {
        const bool secondSide = mCompound;
        mCompound = false;
        beginScope(true);
        scope()->isCompound = secondSide;
        scope()->isGrouped = ahead(1).isWord("distinct");
        enter(Clause::SelectList);
    }

    void beginStatement() {
        if (mAt != 0) return;
        if (!isAnyWord(token(), {"update", "insert", "delete", "replace"})) return;
        beginScope(false);
        // Insert and Delete name their table behind Into and From.
        if (token().isWord("update")) enter(Clause::From);
    }

    void compound() {
        scope()->isCompound = true;
        mCompound = true;
        enter(Clause::Other);
    }

    void name() {
        if (!frame().tableFollows || frame().clause != Clause::From || !scope()) return;
        // "Update Or Replace T"
        if (mAt > 0 && mResult.tokens[mAt - 1].isWord("or")) return;
        if (ahead(1).isSymbol('.')) return;
        Source source{plainName(token()), "", mAt};
        if (ahead(1).isSymbol('(')) {
            const bool insertColumns = !scope()->isSelect;
            if (!insertColumns) source.table.clear();
        }
        if (mAt > 1 && mResult.tokens[mAt - 1].isSymbol('.') && mResult.tokens[mAt - 2].isName())
            source.schema = plainName(mResult.tokens[mAt - 2]);
        alias(source, 1);
        addSource(std::move(source));
    }

    void alias(Source& source, std::size_t by) {
        if (ahead(by).isWord("as")) ++by;
        if (ahead(by).isName() && !isReserved(ahead(by))) source.alias = plainName(ahead(by));
    }

    void addSource(Source source) {
        scope()->sources.push_back(std::move(source));
        frame().tableFollows = false;
        mTooLarge |= ++frame().sources > mostSources;
    }

    void comma() {
        if (frame().clause == Clause::From) frame().tableFollows = true;
        if (frame().clause == Clause::Values) ++frame().ordinal;
    }

    void open() {
        Frame inner;
        inner.scope = frame().scope;
        inner.clause = frame().clause;
        inner.clauseDepth = frame().clauseDepth;
        inner.open = mAt;
        inner.sources = frame().sources;
        Scope* current = scope();
        if (current && frame().clause == Clause::From) {
            const bool columnList = !current->isSelect && !current->sources.empty();
            if (columnList) inner.clause = Clause::InsertColumns;
            // A parenthesis around tables: From (A Inner Join B On ...)
            inner.tableFollows = !columnList && frame().tableFollows;
            if (inner.tableFollows && ahead(1).isWord("select")) addSource({"", "", mAt});
        }
        mFrames.push_back(inner);
        mTooLarge |= mFrames.size() > deepest;
    }

    void close() {
        if (mFrames.size() > 1) endFrame(mAt);
    }

    void endFrame(std::size_t at) {
        if (frame().ownsScope) endScope(at);
        mFrames.pop_back();
    }

    void note() {
        auto& place = mResult.places[mAt];
        place.scope = frame().scope;
        place.clause = frame().clause;
        place.depth = depth();
        place.clauseDepth = frame().clauseDepth;
        place.open = frame().open;
        place.ordinal = frame().ordinal;
        if (frame().clause == Clause::InsertColumns && token().isName()) {
            scope()->insertColumns.push_back(token());
        }
    }

    Statement mResult;
    std::vector<Frame> mFrames;
    std::size_t mAt = 0;
    bool mCompound = false;
    bool mTooLarge = false;
};

bool isColumnName(const Token& token) {
    return token.isName() && !isReserved(token);
}

// Of those that differ in case only: the one spelled so, else the one in lower case.
const ColumnInfo* find(std::span<const ColumnInfo> columns, std::string_view name) {
    const ColumnInfo* alike = nullptr;
    for (const ColumnInfo& column : columns) {
        if (column.name == name) return &column;
        if (!sameName(column.name, name)) continue;
        if (!alike || column.name == lowerCase(name)) alike = &column;
    }
    return alike;
}

} // namespace

Statement analyse(std::string_view text) {
    return Analysis(text).run();
}

std::optional<ColumnRef> refBefore(const Statement& statement, std::size_t token) {
    const auto& all = statement.tokens;
    if (token == 0 || !isColumnName(all[token - 1])) return std::nullopt;
    ColumnRef ref{"", plainName(all[token - 1]), token - 1, token};
    while (ref.begin >= 2 && all[ref.begin - 1].isSymbol('.') && all[ref.begin - 2].isName()) {
        ref.begin -= 2;
        if (ref.qualifier.empty()) ref.qualifier = plainName(all[ref.begin]);
    }
    return ref;
}

std::optional<ColumnRef> refAt(const Statement& statement, std::size_t token) {
    const auto& all = statement.tokens;
    std::size_t end = token;
    if (!isColumnName(all[end])) return std::nullopt;
    while (all[end + 1].isSymbol('.') && all[end + 2].isName())
        end += 2;
    auto ref = refBefore(statement, end + 1);
    if (ref && ref->begin != token) return std::nullopt;
    return ref;
}

const ColumnInfo* resolve(const Statement& statement, const ColumnRef& ref, int scope, const Tables& tables) {
    for (; scope >= 0; scope = statement.scopes[static_cast<std::size_t>(scope)].parent) {
        for (const Source& source : statement.scopes[static_cast<std::size_t>(scope)].sources) {
            const std::string& called = source.alias.empty() ? source.table : source.alias;
            if (!ref.qualifier.empty() && !sameName(called, ref.qualifier)) continue;
            if (const ColumnInfo* column = find(tables.columnsOf(source.name()), ref.name)) return column;
        }
    }
    return nullptr;
}

} // namespace Korvane::ado::sql
