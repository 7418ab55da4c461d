#include "clinic/sample/SampleClinic.h"
#include "support/ScratchDatabase.h"
#include "support/ScratchDir.h"

#include <korvane/ado/Recordset.h>
#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace {

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

TEST_F(SampleClinic, HoldsTheSamePatientsAndThreeYearsOfEncountersEveryTime) {
    const auto db = empty();
    EXPECT_FALSE(Clinic::isInstalled(*db));
    Clinic::installSample(*db);
    EXPECT_TRUE(Clinic::isInstalled(*db));
    EXPECT_THAT(column(db, "Select FirstName From Patient Where LastName='李'"), ElementsAre("小龙"));
    const auto patients = [&] { return column(db, "Select PatientID From Patient"); };
    EXPECT_THAT(patients(), SizeIs(22));
    const auto encounters = column(db, "Select EncounterID From Encounter");
    EXPECT_THAT(encounters.size(), testing::AllOf(testing::Ge(280u), testing::Le(330u)));
    EXPECT_THAT(column(db, "Select Count(*) From Encounter Where EncounterDate<'11/13/2023' "
                           "Or EncounterDate>'11/18/2026'"),
                ElementsAre("0"));
    for (const std::string& table : column(db, "Select TableName From DBFieldGroups Where DBFieldGroupID>1"))
        EXPECT_THAT(column(db, "Select EncounterID From " + table), SizeIs(encounters.size())) << table;

    EXPECT_THROW(Clinic::installSample(*db), Korvane::RuntimeError);
    Clinic::installTables(*db);
    EXPECT_THAT(patients(), SizeIs(22)) << "what is there is left alone";
    const auto second = empty();
    Clinic::installSample(*second);
    const char* query = "Select services From NIP_Custom6 Order By EncounterID";
    EXPECT_EQ(column(db, query), column(second, query));
}

} // namespace
