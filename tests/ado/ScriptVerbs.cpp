#include "ado/ScriptVerbs.h"

#include <korvane/ado/Catalog.h>

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace Korvane::ado::Testing {

namespace {

std::string rowOf(const Recordset& rs) {
    std::string row;
    for (int i = 0; i < rs.FieldCount(); ++i) {
        const Variant value = rs.Value(i);
        row += (i > 0 ? "|" : "") + (value.isNull() ? "NULL" : value.text());
    }
    return row;
}

std::string rowsOf(const Actor& actor, const std::string& statement) {
    std::string rows;
    for (const auto rs = opened(actor.db, statement); !rs->Eof(); rs->MoveNext())
        rows += (rows.empty() ? "" : " ") + rowOf(*rs);
    return rows;
}

std::string typesOf(const Actor& actor, const std::string& statement) {
    const auto rs = opened(actor.db, statement);
    std::string types;
    for (int i = 0; i < rs->FieldCount(); ++i)
        types += (i > 0 ? " " : "") + rs->Fields(i).Name() + ":" +
                 std::to_string(static_cast<int>(rs->FieldType(i)));
    return types;
}

std::string tablesOf(const Actor& actor) {
    std::string names;
    for (const std::string& name : Catalog(actor.db).Tables().Names())
        names += (names.empty() ? "" : ", ") + name;
    return names;
}

/// A table with its columns, "Name:type:size", "!" behind what may not be Null, and its indexes,
/// "Name:kind(Column,Column)"; kinds are p, u and i.
std::string described(const Actor& actor, const std::string& name) {
    if (!Catalog(actor.db).Tables().Exists(name)) return "(none)";
    const Table table = Catalog(actor.db).Tables().Item(name);
    std::string text = table.Name();
    for (const Column& column : table.Columns().All())
        text += " " + column.Name() + ":" + std::to_string(static_cast<int>(column.Type())) +
                (column.DefinedSize() > 0 ? ":" + std::to_string(column.DefinedSize()) : "") +
                (column.Nullable() ? "" : "!");
    for (const Index& index : table.Indexes().All()) {
        text += " " + index.Name() + (index.PrimaryKey() ? ":p" : index.Unique() ? ":u" : ":i");
        for (char before = '('; const std::string& column : index.Columns())
            text += std::exchange(before, ',') + column;
        text += ")";
    }
    return text;
}

/// The parts of a text between separators.
std::vector<std::string> parts(std::string_view text, char separator) {
    std::vector<std::string> all;
    for (std::size_t end = 0; !text.empty(); text.remove_prefix(std::min(end + 1, text.size())))
        all.emplace_back(text.substr(0, end = std::min(text.find(separator), text.size())));
    return all;
}

/// Adds a column or an index that is written as in a description.
void append(const Table& table, const std::string& written) {
    const std::size_t bracket = written.find('(');
    const auto words = parts(written.substr(0, bracket), ':');
    if (bracket == std::string::npos) {
        const auto type = static_cast<DataType>(std::stoi(words.at(1)));
        Column column(words[0], type, words.size() > 2 ? std::stoi(words[2]) : 0);
        column.Nullable(!written.ends_with('!'));
        return table.Columns().Append(column);
    }
    Index index(words.at(0), parts(written.substr(bracket + 1, written.size() - bracket - 2), ','));
    index.PrimaryKey(words.at(1) == "p");
    index.Unique(words.at(1) == "u");
    table.Indexes().Append(index);
}

void make(const Actor& actor, std::string text) {
    const Table table(word(text));
    while (!text.empty())
        append(table, word(text));
    Catalog(actor.db).Tables().Append(table);
}

/// What an actor can do, with the text that comes of it.
using Verb = std::function<std::string(Actor&, const std::string&)>;

std::string begin(const Actor& actor, TransactionFor use) {
    return std::to_string(actor.db->BeginTrans(use));
}

/// A verb that changes the table which is named first.
Verb change(const std::function<void(const Table&, std::string& rest)>& work) {
    return [work](const Actor& actor, std::string text) {
        const Table table = Catalog(actor.db).Tables().Item(word(text));
        work(table, text);
        return "";
    };
}

const std::map<std::string, Verb>& verbs() {
    static const std::map<std::string, Verb> all{
        {"does", [](Actor& a, const auto& text) { return std::to_string(a.db->Execute(text)); }},
        {"asks", [](Actor& a, const auto& text) { return rowsOf(a, text); }},
        {"types", [](Actor& a, const auto& text) { return typesOf(a, text); }},
        {"begins", [](Actor& a, const auto&) { return begin(a, TransactionFor::Writing); }},
        {"reads", [](Actor& a, const auto&) { return begin(a, TransactionFor::Reading); }},
        {"commits", [](Actor& a, const auto&) { return a.db->CommitTrans(), ""; }},
        {"undoes", [](Actor& a, const auto&) { return a.db->RollbackTrans(), ""; }},
        {"level", [](Actor& a, const auto&) { return std::to_string(a.db->transactionLevel()); }},
        {"announces", [](Actor& a, const auto& text) { return a.db->Announce(parts(text, ';')), ""; }},
        {"state", [](Actor& a, const auto&) { return std::to_string(a.db->State()); }},
        {"resets", [](Actor& a, const auto&) { return a.db->Reset(), ""; }},
        {"closes", [](Actor& a, const auto&) { return a.db->Close(), ""; }},
        {"leaves", [](Actor& a, const auto&) { return a.db.reset(), ""; }},
        {"opens",
         [](Actor& a, const auto& text) {
             a.rs = opened(a.db, text, CursorType::Keyset, LockType::Optimistic);
             return rowOf(*a.rs);
         }},
        {"puts",
         [](Actor& a, const auto& text) {
             a.rs->SetValue(0, text == "NULL" ? Variant::null() : Variant(text));
             return a.rs->Update(), rowOf(*a.rs);
         }},
        {"holds", [](Actor& a, const auto& text) { return a.rs = opened(a.db, text), ""; }},
        {"shows", [](Actor& a, const auto&) { return rowOf(*a.rs); }},
        {"frees", [](Actor& a, const auto&) { return a.rs->Close(), ""; }},
        {"tables", [](Actor& a, const auto&) { return tablesOf(a); }},
        {"describes", [](Actor& a, const auto& text) { return described(a, text); }},
        {"makes", [](Actor& a, const auto& text) { return make(a, text), ""; }},
        {"drops", [](Actor& a, const auto& text) { return Catalog(a.db).Tables().Delete(text), ""; }},
        {"adds", change([](const Table& table, std::string& text) { append(table, word(text)); })},
        {"renames", change([](const Table& table, std::string& text) {
             const std::string from = word(text);
             table.Columns().Rename(from, word(text));
         })},
        {"widens", change([](const Table& table, std::string& text) {
             const std::string column = word(text);
             table.Columns().Widen(column, std::stoi(text));
         })},
        {"removes", change([](const Table& table, std::string& text) { table.Columns().Delete(text); })},
        {"unindexes", change([](const Table& table, std::string& text) { table.Indexes().Delete(text); })},
    };
    return all;
}

} // namespace

std::string perform(Actor& actor, const std::string& verb, const std::string& rest) {
    return verbs().at(verb)(actor, rest);
}

std::string word(std::string& line) {
    const bool hasBlanks = line.starts_with('[');
    const std::size_t begin = hasBlanks ? 1 : 0;
    const std::size_t end = std::min(line.find(hasBlanks ? ']' : ' '), line.size());
    std::string first = line.substr(begin, end - begin);
    line.erase(0, line.find_first_not_of(' ', end + begin));
    return first;
}

} // namespace Korvane::ado::Testing
