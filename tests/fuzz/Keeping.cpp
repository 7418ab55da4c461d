#include "fuzz/Properties.h"

#include <korvane/ado/Recordset.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <vector>

namespace Korvane::Fuzz {

namespace {

ado::Connection& database() {
    static const auto database = [] {
        auto made = ado::open("sqlite::memory:");
        made->Execute("Create Table Note(ID Integer, [Part One] Text, PartTwo VarChar(10))");
        return made;
    }();
    return *database;
}

std::string asLiteral(std::string_view text) {
    return "'" + escapeQuotes(text) + "'";
}

/// What a Select gives, which has one row.
void comeBack(const std::string& select, const std::vector<std::string>& texts) {
    const auto rs = ado::Recordset::create();
    rs->Open(select, database().shared_from_this());
    require(!rs->Eof(), "A row is not found", select);
    std::vector<std::string> cells;
    for (std::int32_t at = 0; at < rs->FieldCount(); ++at)
        cells.push_back(rs->Value(at).text());
    rs->MoveNext();
    require(rs->Eof(), "There is a row too many", select);
    require(cells == texts, "A text comes back changed", select);
}

void refuse(const std::string& statement) {
    try {
        database().Execute(statement);
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
    comeBack("Select\t" + asLiteral(two) + "/*'*/,--'\n" + asLiteral(one) + " Where " + asLiteral(one) + "=" +
                 asLiteral(one),
             {two, one});

    ado::Connection& db = database();
    const std::string stored = "Select [Part One],PartTwo From Note Where ";
    db.Execute("Delete From Note");
    db.Execute("Insert Into Note(ID,[Part One],PartTwo) Values (1," + pair + ")");
    comeBack(stored + "PartTwo=" + asLiteral(two) + " And " + asLiteral(one) + "=[Part One]", {one, two});
    comeBack(stored + "[Part One] In (Null," + pair + ") And PartTwo Between " + asLiteral(two) + " And " +
                 asLiteral(two),
             {one, two});
    db.Execute("Update Note Set PartTwo=" + asLiteral(one) + ", [Part One]=" + asLiteral(two) +
               " Where PartTwo=" + asLiteral(two));
    db.Execute("Insert Into Note Select ID+1," + pair + " From Note Where [Part One]=" + asLiteral(two));
    comeBack(stored + "ID=1", {two, one});
    comeBack(stored + "ID=2", {one, two});
}

} // namespace Korvane::Fuzz
