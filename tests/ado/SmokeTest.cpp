#include <korvane/ado/Recordset.h>
#include <korvane/ado/Transaction.h>

#include <gtest/gtest.h>

namespace Korvane::ado {

TEST(Smoke, Runs) {
    auto db = open("sqlite::memory:");
    db->Execute("Create Table Encounter (EncounterID Integer Primary Key, PatientID VarChar(50), "
                "EncounterDate DateTime, Outgoing Boolean, Kind SmallInt)");
    EXPECT_EQ(
        1, db->Execute("Insert into Encounter ([EncounterID],[PatientID],[EncounterDate],[Outgoing],[Kind])  "
                       "values (12,'P-0042''s','11/15/2026 5:21:51 PM',True,'7')"));
    auto rs = Recordset::create();
    rs->Open("Select Top 1 * From Encounter Where EncounterDate >= '11/15/2026' Order By EncounterDate DESC",
             db);
    EXPECT_EQ("12", rs->Value("encounterid").text());
    EXPECT_EQ("P-0042's", rs->Value(1).text());
    EXPECT_EQ("11/15/2026 5:21:51 PM", rs->Value(2).text());
    EXPECT_EQ("True", rs->Value(3).text());
    EXPECT_EQ("7", rs->Value(4).text());
    EXPECT_EQ(50, rs->Fields(1).DefinedSize());
    rs->MoveNext();
    EXPECT_TRUE(rs->Eof());
    rs->Close();
    {
        Transaction t(*db);
        db->Execute("Delete From Encounter");
    }
    rs->CursorType(CursorType::Dynamic);
    rs->LockType(LockType::Optimistic);
    rs->Open("Select PatientID From Encounter", db);
    EXPECT_EQ(1, rs->RecordCount());
    rs->SetValue(0, "x'y");
    rs->Update();
    EXPECT_EQ("x'y", rs->Value(0).text());
    rs->Close();
    rs->CursorType(CursorType::ForwardOnly);
    rs->LockType(LockType::ReadOnly);
    rs->Open(
        "Select Max(Encounter.[EncounterDate]) as M, Max(PatientID) From Encounter Where EncounterID > 100",
        db);
    EXPECT_EQ(DataType::Date, rs->FieldType(0));
    EXPECT_TRUE(rs->Value("m").isNull());
}
} // namespace Korvane::ado
