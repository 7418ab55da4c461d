#include <korvane/data/Tables.h>

#include "support/Errors.h"
#include "support/ScratchClinic.h"

#include <korvane/runtime/Text.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

std::string schemaQuery() {
    if (ScratchDatabase::onServer())
        return "Select table_name, column_name, data_type From information_schema.columns "
               "Where table_schema=current_schema() Order By table_name, ordinal_position";
    return "Select type, name, sql From sqlite_master Order By name";
}

class Tables : public ::testing::Test, protected ScratchClinic {
  protected:
    /// Runs it on another, empty database, prepared by `before`.
    std::shared_ptr<ado::Connection> prepared(const std::string& before) {
        db = std::make_shared<RecordingConnection>(ado::open(another.address()));
        db->quietly(before);
        return db->real();
    }

    ScratchDatabase another{dir.file("another.db")};
};

} // namespace

TEST_F(Tables, TakeTheRowsOfTheLibraryAndOfForeignWriters) {
    EXPECT_EQ(rows("Select * From DBFieldGroups"), "1|Reserved||0");
    for (const char* table : {"DBFields", "DBFieldValues", "Encounter", "Attachment", "Provider"})
        EXPECT_EQ(rows("Select * From " + std::string(table)), "") << table;
    db->quietly(
        "Insert Into DBFields (ID, Code, FieldName, FieldCaption, DBFieldGroupID, MaxLength, dataType, "
        "DisplayType, Indexed, Required, Ordinal, InitialValueRuleID) "
        "Values (1,1,'Pulse','Pulse',2,20,'dbText','TEXT',0,0,1.5,1)");
    db->quietly("Insert Into DBFieldValues (FieldName) Values ('Pulse')");
    db->quietly("Insert Into Provider (ProviderID) Values (3)");
    EXPECT_EQ(rows("Select Ordinal, Indexed, Required From DBFields"), "1.5|0|0");
    EXPECT_EQ(rows("Select FieldValue, DefaultValue From DBFieldValues"), "NULL|NULL");
    EXPECT_THROW(db->quietly("Insert Into Provider (ProviderID) Values (3)"), RuntimeError);
}

TEST_F(Tables, StayAsTheyAreWhenInstalledAgain) {
    db->quietly("Update DBFieldGroups Set GroupName='Mine' Where DBFieldGroupID=1");
    const std::string before = rows(schemaQuery());
    installTables(*db->real());
    EXPECT_EQ(rows(schemaQuery()), before);
    EXPECT_EQ(rows("Select DBFieldGroupID, GroupName From DBFieldGroups"), "1|Mine");

    prepared(
        "Create Table DBFieldGroups (DBFieldGroupID INTEGER PRIMARY KEY, GroupName TEXT, TableName TEXT, "
        "Ordinal INTEGER, Note TEXT)");
    db->quietly("Insert Into DBFieldGroups (DBFieldGroupID, GroupName, Note) Values (4,'Vitals','theirs')");
    installTables(*db->real());
    EXPECT_EQ(rows("Select * From DBFieldGroups"), "4|Vitals|NULL|NULL|theirs");
    EXPECT_EQ(rows("Select * From Encounter"), "");
}

TEST_F(Tables, ChangeNothingWhereAForeignTableLacksAnIndexedColumn) {
    const auto connection =
        prepared("Create Table Attachment (AttachmentID INTEGER PRIMARY KEY, Visit INTEGER)");
    const std::string before = rows(schemaQuery());
    const std::string said = raised([&] { installTables(*connection); }).Description();
    EXPECT_THAT(said, ::testing::StartsWith("The tables could not be installed: "));
    EXPECT_THAT(lowerCase(said), ::testing::HasSubstr("encounterid"));
    EXPECT_EQ(rows(schemaQuery()), before);
    EXPECT_EQ(connection->transactionLevel(), 0);
}

TEST_F(Tables, AreFoundByTheirIndexes) {
    if (ScratchDatabase::onServer()) GTEST_SKIP() << "a server plans by what is in the tables";
    const std::pair<std::string, std::string> queries[] = {
        {"Select * From Encounter Where PatientID='P' Order By EncounterDate DESC", "EncounterByPatient"},
        {"Select AttachmentID From Attachment Where EncounterID=1", "AttachmentByEncounter"},
        {"Delete from DBFieldValues Where fieldName='a' and DBFieldGroupID=2", "DBFieldValuesByField"},
        {"Delete From DBFields Where DBFieldGroupID=2", "DBFieldsByGroup"},
    };
    for (const auto& [statement, index] : queries) {
        const std::string plan = rows("Explain Query Plan " + statement);
        EXPECT_THAT(plan, ::testing::HasSubstr(index)) << statement;
        EXPECT_THAT(plan, ::testing::Not(::testing::HasSubstr("TEMP B-TREE"))) << statement;
    }
}
