#include <korvane/nip/FieldList.h>

#include "support/ScratchDir.h"

#include <korvane/nip/GroupRecord.h>
#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

namespace Korvane {

namespace {

std::string encounter(const FieldList& list, std::int32_t id) {
    std::string statement = "left from before";
    encounterStatement(list, id, statement);
    return statement;
}

std::string latest(const GroupRecord& group, std::string_view patient, std::int32_t id) {
    FieldList list = GetFieldList(group);
    qualifyColumns(list, group, {"PatientID", "EncounterDate", "Description"});
    std::string statement = "left from before";
    latestEncounterStatement(list, patient, id, statement);
    return statement;
}

GroupRecord groupOf(std::string_view table, std::initializer_list<std::string_view> fieldNames) {
    GroupRecord group;
    group.tableName = table;
    group.fields.resize(1);
    for (const std::string_view name : fieldNames)
        group.fields.emplace_back().fieldName = name;
    group.fieldCount = static_cast<std::int16_t>(fieldNames.size());
    return group;
}

} // namespace

TEST(FieldList, SkipsABlankFieldAndSaysSo) {
    Testing::ScratchDir logs(Testing::ScratchDir::AsAppPath);
    const FieldList list = GetFieldList(groupOf("NIP_Custom1", {"A", "  ", "Temp-1"}));
    EXPECT_EQ(list.columns, "A,[Temp-1]");
    EXPECT_THAT(list.columnOf, testing::ElementsAre(-1, 0, -1, 1));
    EXPECT_THAT(logs.read("ERR.txt"),
                testing::HasSubstr("cNip.GetFieldList-Trying to add a blank field to a select list"));
    EXPECT_EQ(GetFieldList(groupOf("NIP_Custom1", {})).columns, "");
    EXPECT_THROW(GetFieldList(groupOf("NIP_Custom1", {"a] From Encounter--"})), RuntimeError);
}

TEST(FieldList, ShapesTheStatementsOfAGroup) {
    const GroupRecord plain = groupOf("NIP_Custom1", {"Pulse", "description", "Order"});
    EXPECT_EQ(encounter(GetFieldList(plain), -1),
              "Select Pulse,description,[Order] From NIP_Custom1 Where EncounterID=-1");
    EXPECT_EQ(latest(plain, "O'Neil", -1),
              "Select Top 1 Pulse,NIP_Custom1.description,[Order] From NIP_Custom1 INNER JOIN Encounter ON "
              "Encounter.EncounterID=NIP_Custom1.EncounterID Where PatientID='O''Neil' Order By "
              "EncounterDate DESC");
    const GroupRecord clashing = groupOf("My Nip", {"PatientID", "EncounterDate"});
    EXPECT_EQ(latest(clashing, "P1", 12),
              "Select Top 1 [My Nip].PatientID,[My Nip].EncounterDate From [My Nip] INNER JOIN Encounter ON "
              "Encounter.EncounterID=[My Nip].EncounterID Where Encounter.PatientID='P1' And "
              "Encounter.EncounterID<>12 Order By Encounter.EncounterDate DESC");
}

} // namespace Korvane
