#include <korvane/ado/postgres/Definition.h>

#include <korvane/ado/postgres/Names.h>
#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado::postgres {

using sql::Token;
using sql::TokenKind;

namespace {

bool beginsConstraint(const Token& token) {
    for (const char* word : {"primary", "foreign", "unique", "check", "constraint", "exclude", "like"}) {
        if (token.isWord(word)) return true;
    }
    return false;
}

const ColumnInfo* columnNamed(std::span<const ColumnInfo> columns, std::string_view name) {
    const ColumnInfo* alike = nullptr;
    for (const ColumnInfo& column : columns) {
        if (column.name == name) return &column;
        if (!alike && sameName(column.name, name)) alike = &column;
    }
    return alike;
}

} // namespace

const Token& Definition::token(std::size_t at) const {
    return mStatement.tokens[std::min(at, mStatement.tokens.size() - 1)];
}

void Definition::skip(std::string_view word) {
    if (token(mAt).isWord(word)) ++mAt;
}

std::vector<Definition::Change> Definition::changes() {
    const Token& verb = token(mAt++);
    if (verb.isWord("create")) {
        skip("temp");
        skip("temporary");
        skip("unique");
        if (token(mAt).isWord("table")) createTable();
        if (token(mAt).isWord("index")) createIndex();
    } else if (verb.isWord("alter") && token(mAt).isWord("table")) {
        alterTable();
    } else if (verb.isWord("drop") && token(mAt).isWord("table")) {
        ++mAt;
        table();
    }
    return std::move(mChanges);
}

// Takes [If [Not] Exists] and the table's name.
void Definition::table() {
    skip("if");
    skip("not");
    skip("exists");
    if (!token(mAt).isName()) return;
    if (token(mAt + 1).isSymbol('.') && token(mAt + 2).isName()) {
        mSchema = sql::plainName(token(mAt));
        write(mAt, mTables.schemaOf(mSchema));
        mAt += 2;
    }
    mTable = sql::plainName(token(mAt));
    write(mAt++, mTables.nameOf({mTable, mSchema}));
}

void Definition::createTable() {
    ++mAt;
    table();
    int depth = 0;
    for (; token(mAt).kind != TokenKind::End; ++mAt) {
        if (token(mAt).isSymbol('(')) ++depth;
        if (token(mAt).isSymbol(')')) --depth;
        const bool beginsItem = depth == 1 && (token(mAt).isSymbol('(') || token(mAt).isSymbol(','));
        if (beginsItem && token(mAt + 1).isName() && !beginsConstraint(token(mAt + 1))) {
            newColumn(++mAt);
        } else if (token(mAt).kind == TokenKind::Name) {
            // A constraint speaks of a column above, or of another table.
            const auto known = mNewNames.find(lowerCase(sql::plainName(token(mAt))));
            write(mAt, known != mNewNames.end() ? known->second : std::string());
        }
    }
}

void Definition::createIndex() {
    ++mAt;
    while (token(mAt).kind != TokenKind::End && !token(mAt).isWord("on"))
        ++mAt;
    ++mAt;
    table();
    for (; token(mAt).kind != TokenKind::End; ++mAt) {
        const bool beginsItem = token(mAt - 1).isSymbol('(') || token(mAt - 1).isSymbol(',');
        if (token(mAt).isName() && beginsItem) column(mAt);
    }
}

void Definition::alterTable() {
    ++mAt;
    table();
    for (; token(mAt).kind != TokenKind::End; ++mAt) {
        const Token& action = token(mAt);
        if (action.isWord("to")) write(mAt + 1, {});
        if (!action.isWord("add") && !action.isWord("drop") && !action.isWord("rename") &&
            !action.isWord("alter"))
            continue;
        ++mAt;
        skip("column");
        skip("if");
        skip("not");
        skip("exists");
        if (!token(mAt).isName() || beginsConstraint(token(mAt)) || token(mAt).isWord("to")) continue;
        if (action.isWord("add"))
            newColumn(mAt);
        else
            column(mAt);
        if (token(mAt + 1).isWord("type")) type(mAt + 2);
    }
}

void Definition::column(std::size_t at) {
    const ColumnInfo* known = columnNamed(mTables.columnsOf({mTable, mSchema}), sql::plainName(token(at)));
    write(at, known ? known->name : std::string());
}

void Definition::newColumn(std::size_t at) {
    const Token& name = token(at);
    const std::string plain = sql::plainName(name);
    const std::string spelling = name.kind == TokenKind::Word ? lowerCase(plain) : newSpelling(plain);
    mNewNames.emplace(lowerCase(plain), spelling);
    write(at, spelling);
    type(at + 1);
}

void Definition::type(std::size_t at) {
    const Token& name = token(at);
    if (name.kind != TokenKind::Word) return;
    const bool hasLength = token(at + 1).isSymbol('(');
    if (hasLength && name.isWord("text")) {
        mChanges.push_back({at, at, "VarChar"});
        return;
    }
    if (name.isWord("double") && token(at + 1).isWord("precision")) return;
    const auto native = nativeTypeName(lowerCase(name.text));
    if (!native) return;
    // Long VarChar, Real(24): what stands behind was meant for another type.
    const bool takesLength = *native == "VarChar" || *native == "Numeric";
    if (!hasLength || takesLength) mChanges.push_back({at, at, std::string(*native)});
}

// A name whose spelling is not known is a new one.
void Definition::write(std::size_t at, const std::string& spelling) {
    const Token& written = token(at);
    if (written.kind == TokenKind::Name)
        mChanges.push_back(
            {at, at, sql::quotedName(spelling.empty() ? newSpelling(sql::plainName(written)) : spelling)});
    else if (!spelling.empty() && !isPlainFor(written.text, spelling))
        mChanges.push_back({at, at, sql::quotedName(spelling)});
}

} // namespace Korvane::ado::postgres
