#include "fuzz/Properties.h"
#include "fuzz/Sqlite.h"

#include <korvane/ado/Recordset.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

namespace Korvane::Fuzz {

namespace {

SqliteDatabase& database() {
    static SqliteDatabase database;
    static const bool isMade = [] {
        database.provider().Execute("Create Table Note(ID Integer, [Part One] Text, PartTwo VarChar(10))");
        return true;
    }();
    static_cast<void>(isMade);
    database.rest();
    return database;
}

std::string asLiteral(std::string_view text) {
    return "'" + escapeQuotes(text) + "'";
}

/// What a Select gives through the provider; it has one row.
std::vector<std::string> read(const std::string& select) {
    const auto rs = ado::Recordset::create();
    rs->Open(select, database().connection());
    require(!rs->Eof(), "A row is not found", select);
    std::vector<std::string> cells;
    for (std::int32_t at = 0; at < rs->FieldCount(); ++at)
        cells.push_back(rs->Value(at).text());
    rs->MoveNext();
    require(rs->Eof(), "There is a row too many", select);
    return cells;
}

std::vector<std::string> readBySqlite(const std::string& select) {
    const auto rows = database().rows(select);
    require(rows && rows->size() == 1, "SQLite itself has no such row", select);
    std::vector<std::string> cells;
    for (const auto& cell : rows->front())
        cells.push_back(cell.value_or("(no text)"));
    return cells;
}

void comeBack(const std::string& select, const std::vector<std::string>& texts) {
    require(read(select) == texts, "A text comes back changed", select);
    require(readBySqlite(select) == texts, "A text is stored changed", select);
}

void refuse(const std::string& statement) {
    try {
        database().provider().Execute(statement);
    } catch (const RuntimeError&) {
        return;
    }
    require(false, "A NUL was not refused", statement);
}

} // namespace

void keeping(std::string_view text) {
    const std::string one(text.substr(0, text.size() / 2));
    const std::string two(text.substr(one.size()));
    const std::string pair = asLiteral(one) + "," + asLiteral(two);
    if (text.find('\0') != std::string_view::npos) return refuse("Select " + pair);
    comeBack("Select " + pair, {one, two});
    comeBack("Select\t" + asLiteral(two) + "/*'*/,--'\n" + asLiteral(one) + " Where " + asLiteral(one) + "=" +
                 asLiteral(one),
             {two, one});

    ado::Connection& db = database().provider();
    const std::string stored = "Select [Part One],PartTwo From Note";
    db.Execute("Delete From Note");
    db.Execute("Insert Into Note(ID,[Part One],PartTwo) Values (1," + pair + ")");
    comeBack(stored, {one, two});
    comeBack(stored + " Where PartTwo=" + asLiteral(two) + " And " + asLiteral(one) + "=[Part One]",
             {one, two});
    comeBack(stored + " Where [Part One] In (Null," + pair + ") And PartTwo Between " + asLiteral(two) +
                 " And " + asLiteral(two),
             {one, two});
    db.Execute("Update Note Set PartTwo=" + asLiteral(one) + ", [Part One]=" + asLiteral(two) +
               " Where PartTwo=" + asLiteral(two));
    comeBack(stored, {two, one});
    db.Execute("Insert Into Note Select ID+1," + pair + " From Note Where [Part One]=" + asLiteral(two));
    comeBack(stored + " Where ID=2", {one, two});
}

} // namespace Korvane::Fuzz
