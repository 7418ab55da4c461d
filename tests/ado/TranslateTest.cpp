#include <korvane/ado/sql/Lift.h>
#include <korvane/ado/sqlite/Translate.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace Korvane::ado::sqlite {

namespace {

/// The columns of the library's tables, without a database.
class KnownTables : public sql::Tables {
  public:
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
                                 {DataType::Double, {"Weight"}}})},
    };
};

std::string namesOf(const sql::Translation& translation) {
    std::string names;
    for (const sql::ParameterRule& rule : translation.parameters) {
        names += names.empty() ? "" : " ";
        names += rule.column ? rule.column->name + (rule.use == sql::Use::Store ? "!" : "") : "-";
    }
    return names;
}

/// One entry of the golden file, as it is now: the statement (>), its shape (~) and what its values meet (?),
/// its translation (=) or the error (!). Lines that would say nothing are left out.
std::string described(const std::string& statement) {
    const KnownTables tables;
    sql::Lifter lifter;
    lifter.lift(statement);
    const std::string shape(lifter.shape());
    std::string text = "> " + statement + "\n";
    if (shape != statement) text += "~ " + shape + "\n? " + namesOf(translate(shape, tables)) + "\n";
    try {
        const std::string translated = translate(statement, tables).text;
        if (translated != statement) text += "= " + translated + "\n";
    } catch (const RuntimeError& error) {
        text += "! " + error.Description() + "\n";
    }
    return text;
}

} // namespace

// The file's entries are told apart by blank lines; # begins a remark.
TEST(Translate, GivesWhatTheGoldenFileHolds) {
    std::ifstream file(KORVANE_TESTS_DIR "/ado/golden/sqlite.txt");
    std::string statement;
    std::string expected;
    int entries = 0;
    const auto check = [&] {
        if (statement.empty()) return;
        EXPECT_EQ(described(statement), expected);
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

TEST(Translate, KnowsTheTypesOfComputedColumns) {
    const KnownTables tables;
    const auto types =
        translate(
            "Select Top 5 Max(e.[EncounterDate]) As M, Description, Count(*), Sum(ProviderID), 7 As Seven, "
            "Min(Pulse), Upper(Description) From NIP_Custom1 Inner Join Encounter As e On 1=1",
            tables)
            .resultTypes;
    const std::vector<std::optional<DataType>> expected{
        DataType::Date,    std::nullopt,       DataType::Integer, DataType::Integer,
        DataType::Integer, DataType::VarWChar, std::nullopt};
    EXPECT_EQ(types, expected);
    EXPECT_TRUE(translate("Select *, Max(EncounterID) From Encounter", tables).resultTypes.empty());
}

} // namespace Korvane::ado::sqlite
