#include "fuzz/Properties.h"
#include "fuzz/Sqlite.h"

#include <korvane/ado/Recordset.h>
#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sqlite/Schema.h>
#include <korvane/ado/sqlite/Translate.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>

namespace Korvane::Fuzz {

namespace {

using namespace ado::sql;

SqliteDatabase& database() {
    static SqliteDatabase database;
    static const bool isMade = [] {
        ado::Connection& db = database.provider();
        db.Execute("Create Table Encounter(EncounterID Integer Primary Key, PatientID VarChar(20), "
                   "Description Text, EncounterDate DateTime, Outgoing Boolean, Transport Integer)");
        db.Execute(
            "Create Table NIP_Custom1(EncounterID Integer Primary Key, Pulse VarChar(50), [Temp-1] Text, "
            "Smoker Boolean, Weight Double)");
        db.Execute("Insert Into Encounter Values (1,'P-0042','O''Hara','11/15/2026',True,7)");
        db.Execute("Insert Into Encounter Values (2,'x','','11/16/2026 5:21:51 PM',False,Null)");
        db.Execute("Insert Into NIP_Custom1 Values (1,'72','it''s -- fine',True,70.5)");
        db.Execute("Insert Into NIP_Custom1 Values (2,'5','007',False,5)");
        return true;
    }();
    static_cast<void>(isMade);
    database.rest();
    return database;
}

/// One Select whose result is the same whenever it is asked for.
bool isSteady(std::string_view text) {
    const auto all = tokens(text);
    if (!all.front().isWord("select") || text.find('\0') != std::string_view::npos) return false;
    return std::ranges::none_of(all, [](const Token& token) {
        return token.isSymbol(';') || token.kind == TokenKind::Parameter || token.kind == TokenKind::Broken ||
               token.text.starts_with("sqlite_") || token.isWord("random") || token.isWord("randomblob");
    });
}

std::optional<SqliteDatabase::Rows> rowsOfProvider(std::string_view select) {
    const auto rs = ado::Recordset::create();
    SqliteDatabase::Rows rows;
    try {
        rs->Open(select, database().connection());
        for (; !rs->Eof(); rs->MoveNext()) {
            auto& row = rows.emplace_back();
            for (std::int32_t at = 0; at < rs->FieldCount(); ++at) {
                const Variant value = rs->Value(at);
                row.push_back(value.isText() ? std::optional(value.asText()) : std::nullopt);
            }
        }
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    return rows;
}

std::optional<SqliteDatabase::Rows> rowsOfSqlite(std::string_view select) {
    const ado::sqlite::Schema schema(database().handle());
    try {
        return database().rows(ado::sqlite::translate(select, schema).text);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// Dates come as dates from the provider and as text from SQLite, and bytes as text and as bytes.
bool agree(const SqliteDatabase::Rows& provided, const SqliteDatabase::Rows& raw) {
    return std::ranges::equal(provided, raw, [](const auto& a, const auto& b) {
        return std::ranges::equal(a, b, [](const auto& x, const auto& y) { return !x || !y || *x == *y; });
    });
}

} // namespace

void selecting(std::string_view text) {
    if (!isSteady(text)) return;
    const auto raw = rowsOfSqlite(text);
    if (database().gaveUp()) return;
    const auto provided = rowsOfProvider(text);
    require(provided.has_value() == raw.has_value(), "It fails in one way only", text);
    if (raw) require(agree(*provided, *raw), "It has another result when its values are bound", text);
}

} // namespace Korvane::Fuzz
