#include "clinic/sample/SampleClinic.h"
#include "support/ScratchDatabase.h"
#include "support/ScratchDir.h"

#include <korvane/ado/Recordset.h>
#include <korvane/nip/cNIP.h>
#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace {

using Korvane::Variant;
using Korvane::ado::Connection;
using Korvane::ado::Recordset;
using Korvane::Testing::ScratchDatabase;
using testing::ElementsAre;
using testing::SizeIs;

std::vector<std::string> column(const std::shared_ptr<Connection>& db, const std::string& query) {
    auto rows = Recordset::create();
    std::vector<std::string> texts;
    for (rows->Open(query, db); !rows->Eof(); rows->MoveNext())
        texts.push_back(rows->Value(0).textOrEmpty());
    return texts;
}

class SampleClinic : public testing::Test {
  protected:
    std::shared_ptr<Connection> empty() {
        const std::string name = "clinic" + std::to_string(databases.size());
        return Korvane::ado::open(
            databases.emplace_back(std::make_unique<ScratchDatabase>(dir.file(name)))->address());
    }

    Korvane::Testing::ScratchDir dir;
    std::vector<std::unique_ptr<ScratchDatabase>> databases;
};

TEST_F(SampleClinic, HoldsTheSamePatientsProvidersAndThreeYearsOfEncountersEveryTime) {
    const auto db = empty();
    EXPECT_FALSE(Clinic::isInstalled(*db));
    Clinic::installTables(*db);
    EXPECT_TRUE(Clinic::isInstalled(*db));
    const auto patients = [&] { return column(db, "Select PatientID From Patient"); };
    EXPECT_THAT(patients(), SizeIs(0));
    Clinic::installSample(*db);
    EXPECT_THAT(column(db, "Select LastName From Patient Where PatientID='P-0002'"), ElementsAre("O'Brien"));
    EXPECT_THAT(column(db, "Select FirstName From Patient Where LastName='李'"), ElementsAre("小龙"));
    EXPECT_THAT(patients(), SizeIs(22));
    const auto encounters = column(db, "Select EncounterID From Encounter Order By EncounterDate");
    EXPECT_THAT(encounters.size(), testing::AllOf(testing::Ge(280u), testing::Le(330u)));
    for (std::size_t i = 0; i < encounters.size(); ++i)
        ASSERT_EQ(encounters[i], std::to_string(i + 1));
    EXPECT_THAT(column(db, "Select Count(*) From Encounter Where EncounterDate<'11/13/2023' "
                           "Or EncounterDate>'11/18/2026'"),
                ElementsAre("0"));
    for (const std::string& table : column(db, "Select TableName From DBFieldGroups Where DBFieldGroupID>1"))
        EXPECT_THAT(column(db, "Select EncounterID From " + table), SizeIs(encounters.size())) << table;

    EXPECT_THROW(Clinic::installSample(*db), Korvane::RuntimeError);
    EXPECT_EQ(db->transactionLevel(), 0);
    Clinic::installTables(*db);
    EXPECT_THAT(patients(), SizeIs(22)) << "what is there is left alone";
    const auto second = empty();
    Clinic::installSample(*second);
    for (const char* query : {"Select Description From Encounter Order By EncounterID",
                              "Select services From NIP_Custom6 Order By EncounterID"})
        EXPECT_EQ(column(db, query), column(second, query));
}

TEST_F(SampleClinic, LoadsIntoANipWithValuesFromItsLists) {
    const auto db = empty();
    Clinic::installSample(*db);
    Korvane::cNIP nip;
    ASSERT_TRUE(nip.LoadStructure(db));
    ASSERT_EQ(nip.GroupCount(), 6);
    EXPECT_EQ(nip.RowCount(1), nip.FieldCount(1) - 5) << "five fields stand beside another";
    ASSERT_TRUE(nip.Load(1, column(db, "Select PatientID From Encounter Where EncounterID=1").at(0), false));
    EXPECT_EQ(nip.GroupName(2), "PHQ-9");
    for (std::int16_t field = 1; field <= nip.FieldCount(2); ++field) {
        if (nip.displayType(2, field) != "COMBOBOX-RESTRICTED") continue;
        const auto& allowed = nip.ValueList(2, field).array().elements;
        EXPECT_THAT(allowed, testing::Contains(Variant(nip.value(2, field).text()))) << field;
    }
    EXPECT_GT(nip.ChoiceListCount(5, 1), 0);
}

} // namespace
