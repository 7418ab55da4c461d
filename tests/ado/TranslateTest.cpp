#include <korvane/ado/sql/Lift.h>
#ifdef KORVANE_HAS_POSTGRES
#include <korvane/ado/postgres/Translate.h>
#endif
#include <korvane/ado/sqlite/Translate.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace Korvane::ado::Testing {

namespace {

/// The columns of the library's tables, without a database.
class KnownTables : public sql::Tables {
  public:
    /// As a server's catalog spells the names: plain ones in lower case. Those of DBFieldValues were made by
    /// somebody who wrote them with marks.
    void fold() {
        for (auto& [table, columns] : mTables) {
            const bool hadMarks = table == "dbfieldvalues";
            mNames[table] = hadMarks ? "DBFieldValues" : table;
            for (ColumnInfo& column : columns) {
                const bool needsMarks = column.name.find_first_of("- ") != std::string::npos;
                if (!hadMarks && !needsMarks) column.name = lowerCase(column.name);
                column.nullable = table != "encounter" || column.name != "encounterid";
            }
        }
    }

    std::string nameOf(std::string_view table) const override {
        const auto found = mNames.find(lowerCase(table));
        return found == mNames.end() ? std::string() : found->second;
    }

    std::span<const ColumnInfo> columnsOf(std::string_view table) const override {
        const auto found = mTables.find(lowerCase(table));
        return found == mTables.end() ? std::span<const ColumnInfo>{} : found->second;
    }

  private:
    static std::vector<ColumnInfo>
    columns(std::initializer_list<std::pair<DataType, std::initializer_list<const char*>>> groups) {
        std::vector<ColumnInfo> all;
        for (const auto& [type, names] : groups) {
            for (const char* name : names)
                all.push_back({name, type, 0});
        }
        return all;
    }

    std::map<std::string, std::vector<ColumnInfo>> mTables{
        {"encounter", columns({{DataType::Integer,
                                {"EncounterID", "EncounterMethodID", "ProviderID", "ForeignProviderID",
                                 "LocationID", "Transport"}},
                               {DataType::VarWChar, {"PatientID", "Description"}},
                               {DataType::Date, {"EncounterDate"}},
                               {DataType::Boolean, {"Outgoing"}}})},
        {"attachment", columns({{DataType::Integer, {"AttachmentID", "EncounterID"}},
                                {DataType::VarWChar,
                                 {"AttachmentType", "Description", "Category", "Archived", "Origin",
                                  "Filename", "Orientation", "InUseBy"}},
                                {DataType::Date, {"EntryDate", "OriginDate"}},
                                {DataType::Boolean, {"Deleted", "Locked"}}})},
        {"dbfieldgroups", columns({{DataType::Integer, {"DBFieldGroupID"}},
                                   {DataType::VarWChar, {"GroupName", "TableName"}},
                                   {DataType::Double, {"Ordinal"}}})},
        {"dbfields", columns({{DataType::Integer, {"ID", "DBFieldGroupID", "MaxLength"}},
                              {DataType::SmallInt, {"InitialValueRuleID"}},
                              {DataType::VarWChar, {"FieldName", "FieldCaption", "dataType", "DisplayType"}},
                              {DataType::Single, {"Ordinal"}}})},
        {"dbfieldvalues", columns({{DataType::VarWChar, {"FieldName", "FieldValue"}},
                                   {DataType::Boolean, {"DefaultValue"}},
                                   {DataType::Integer, {"DBFieldGroupID", "Ordinal"}}})},
        {"nip_custom1", columns({{DataType::Integer, {"EncounterID"}},
                                 {DataType::VarWChar, {"Pulse", "Temp-1", "Problem List"}},
                                 {DataType::Date, {"Seen"}},
                                 {DataType::Boolean, {"Smoker"}},
                                 {DataType::Double, {"Weight", "User"}}})},
    };
    std::map<std::string, std::string> mNames;
};

/// An engine's translation, with tables as it has them and the file of what it makes of statements.
struct Translating {
    std::string name;
    sql::Translation (*translate)(std::string_view, const sql::Tables&, std::string_view);
    bool isServer;

    KnownTables tables() const {
        KnownTables tables;
        if (isServer) tables.fold();
        return tables;
    }
    friend void PrintTo(const Translating& engine, std::ostream* out) { *out << engine.name; }
};

const std::vector<Translating>& translations() {
    static const std::vector<Translating> all{
        {"sqlite", sqlite::translate, false},
#ifdef KORVANE_HAS_POSTGRES
        {"postgres", postgres::translate, true},
#endif
    };
    return all;
}

std::string namesOf(const sql::Translation& translation) {
    std::string names;
    for (const sql::ParameterRule& rule : translation.parameters) {
        names += names.empty() ? "" : " ";
        names += rule.column ? rule.column->name + (rule.use == sql::Use::Store ? "!" : "") : "-";
    }
    return names;
}

/// One entry of the golden file, as it is now: the statement (>), its shape (~; of a server what it prepares)
/// and what its values meet (?), its translation (=) or the error (!). Lines that would say nothing are left
/// out.
std::string described(const std::string& statement, const Translating& engine) {
    const KnownTables tables = engine.tables();
    sql::Lifter lifter;
    lifter.lift(statement);
    const std::string shape(lifter.shape());
    std::string text = "> " + statement + "\n";
    if (shape != statement) {
        const sql::Translation prepared = engine.translate(shape, tables, {});
        text += "~ " + (engine.isServer ? prepared.text : shape) + "\n? " + namesOf(prepared) + "\n";
    }
    try {
        const std::string translated = engine.translate(statement, tables, {}).text;
        if (translated != statement) text += "= " + translated + "\n";
    } catch (const RuntimeError& error) {
        text += "! " + error.Description() + "\n";
    }
    return text;
}

} // namespace

class Translate : public testing::TestWithParam<Translating> {};

// The file's entries are told apart by blank lines; # begins a remark.
TEST_P(Translate, GivesWhatTheGoldenFileHolds) {
    std::ifstream file(KORVANE_TESTS_DIR "/ado/golden/" + GetParam().name + ".txt");
    std::string statement;
    std::string expected;
    int entries = 0;
    const auto check = [&] {
        if (statement.empty()) return;
        EXPECT_EQ(described(statement, GetParam()), expected);
        statement.clear();
        expected.clear();
        ++entries;
    };
    for (std::string line; std::getline(file, line);) {
        if (line.empty()) check();
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with("> ")) statement = line.substr(2);
        expected += line + "\n";
    }
    check();
    EXPECT_GT(entries, 50);
}

TEST_P(Translate, KnowsTheTypesOfComputedColumns) {
    const KnownTables tables = GetParam().tables();
    const auto types =
        GetParam()
            .translate("Select Top 5 Max(e.[EncounterDate]) As M, Description, Count(*), Sum(ProviderID), 7 "
                       "As Seven, "
                       "Min(Pulse), Upper(Description) From NIP_Custom1 Inner Join Encounter As e On 1=1",
                       tables, {})
            .resultTypes;
    const std::vector<std::optional<DataType>> expected{
        DataType::Date,    std::nullopt,       DataType::Integer, DataType::Integer,
        DataType::Integer, DataType::VarWChar, std::nullopt};
    EXPECT_EQ(types, expected);
    EXPECT_TRUE(
        GetParam().translate("Select *, Max(EncounterID) From Encounter", tables, {}).resultTypes.empty());
}

INSTANTIATE_TEST_SUITE_P(Engines, Translate, testing::ValuesIn(translations()),
                         [](const auto& engine) { return engine.param.name; });

} // namespace Korvane::ado::Testing
