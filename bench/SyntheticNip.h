#pragma once

#include "Size.h"

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Bench {

/// The made-up Nip that is measured: its names, its values, its statements. Groups and fields count from 1.
/// Of twenty fields twelve are texts; each of the other display types takes one or two.

std::string tableName(int group);
std::string fieldName(int field);
std::string_view displayType(int group, int field);
/// The allowed values of a field; none for a text and for a list that the user edits.
std::vector<std::string> allowedValues(int group, int field);
/// A value that a field may hold; another `turn`, another value. Some hold an apostrophe, some several
/// entries.
std::string valueOf(int group, int field, int turn);

std::vector<std::string> allowedChoices();

/// A change of one field of the structure: a list of choices under another caption, or one more.
struct StructureChange {
    static constexpr int maxLength = 255;
    static constexpr const char* displayType = "LIST";
    int group = 0;
    int field = 0; ///< 0 for a new one
    int id = 0;    ///< in `DBFields`; 0 for a new one
    std::string name;
    std::string caption;
};
StructureChange changedField(const Size& size, int turn);
/// Each turn another name; the groups take turns.
StructureChange addedField(const Size& size, int turn);

/// The statements that the library runs, word for word.
std::vector<std::string> structureStatements();
std::string selectStatement(const Size& size, int group, int encounter);
std::string updateStatement(const Size& size, int group, int encounter, int turn);
std::string insertStatement(const Size& size, int group, int encounter, int turn);
std::string addColumnStatement(const StructureChange& change);
/// What is written into the structure tables, once the new field's identifier is known.
std::vector<std::string> structureRows(const StructureChange& change, int id, bool isNew);

} // namespace Korvane::Bench
