#include <korvane/nip/cNIP.h>

#include "support/CaseTable.h"
#include "support/NipDatabase.h"

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr const char* vitals = "NIP_Custom1";

/// A group of one field for each way in which a new encounter gets its value, one of them a list.
struct LoadValues : NipTest {
    LoadValues() {
        nips.group(2, "Vitals", vitals);
        nips.group(3, "Empty", "NIP_Custom2");
        nips.field(2, vitals, "Temp-1", {.rule = 1});
        nips.field(2, vitals, "Description");
        nips.field(2, vitals, "Chosen", {"List-Multiple", 1});
        nips.field(2, vitals, "Rank", {.columnType = "INTEGER"});
        nips.allowed(2, "Description", "as usual", 1, true);
        nips.encounter(1, "P1", "9/30/2025 8:00:00 AM");
        nips.encounter(2, "P1", "10/1/2025 9:00:00 PM");
        nips.encounter(3, "P1", "10/1/2025 10:00:00 AM");
        nips.encounter(4, "O'Neil", "11/1/2025");
        row(1, "36.1", "one", "a", 1);
        row(2, "37.2", "two", "a|b|", 2);
        row(3, "38.3", "three", "  ", Variant::null());
    }

    void row(std::int32_t id, const char* temp, const char* description, const char* chosen,
             const Variant& rank) {
        nips.insert(vitals, {{"EncounterID", id},
                             {"Temp-1", temp},
                             {"Description", description},
                             {"Chosen", chosen},
                             {"Rank", rank}});
    }

    std::vector<std::string> values() const {
        std::vector<std::string> texts;
        for (std::int16_t field = 1; field <= nip.FieldCount(1); ++field)
            texts.push_back(nip.value(1, field).textOrEmpty());
        return texts;
    }
};

} // namespace

TEST_F(LoadValues, ReadsEveryGroupsRowOfAnEncounter) {
    loadStructure();
    nips.db->statements.clear();
    nips.db->announced.clear();
    load(2);
    EXPECT_THAT(values(), ElementsAre("37.2", "two", "a|b|", "2"));
    EXPECT_TRUE(nip.value(1, 4).isText());
    EXPECT_THAT(nip.ChoiceList(1, 3).array().elements, ElementsAre(Variant("a"), Variant("b"), Variant("")));
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 3);
    EXPECT_THAT(nips.db->statements,
                ElementsAre("Select [Temp-1],Description,Chosen,Rank From NIP_Custom1 Where EncounterID=2"));
    EXPECT_EQ(nips.db->announced, nips.db->statements);

    load(3);
    EXPECT_THAT(values(), ElementsAre("38.3", "three", "  ", "0"));
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 0);
    EXPECT_THAT(nip.ChoiceList(1, 3).array().elements, ElementsAre(Variant()));
    save();
    EXPECT_EQ(nips.rows("Select Chosen From NIP_Custom1 Where EncounterID=3"), "  ") << "blanks stay, too";

    nips.db->quietly("Update NIP_Custom1 Set Rank=Null, Description=Null Where EncounterID=3");
    load(3);
    EXPECT_THAT(values(), ElementsAre("38.3", "", "  ", "")) << "a null number is nothing entered";

    load(99);
    EXPECT_THAT(values(), ElementsAre("", "", "", "")) << "an encounter without a row";
    EXPECT_EQ(nips.db->transactionLevel(), 0);
    EXPECT_TRUE(nips.user->boxes.empty());
}

TEST_F(LoadValues, FillsANewEncounterFromDefaultsAndThePatientsLatestOne) {
    loadStructure();
    nips.insert(vitals, {{"EncounterID", 5}, {"Temp-1", "nobody's"}});
    nips.encounter(5, "", "12/1/2025");
    nips.db->statements.clear();
    load(-1, true);
    EXPECT_THAT(values(), ElementsAre("37.2", "as usual", "a|b|", ""));
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 3);
    EXPECT_EQ(nips.db->statements, statementsOf("new values"));

    load(2, true);
    EXPECT_THAT(values(), ElementsAre("38.3", "as usual", "  ", "")) << "it is not its own predecessor";
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 0);

    for (const char* patient : {"P9", "O'Neil", "' Or ''='", "P1' --", ""}) {
        ASSERT_TRUE(nip.Load(-1, patient, true)) << patient;
        EXPECT_THAT(values(), ElementsAre("", "as usual", "", "")) << patient;
    }
    nip.InitialValueRule(1, 1, 0);
    nip.InitialValueRule(1, 3, -1);
    nip.DefaultValue(1, 3, "x|y");
    load(-1, true);
    EXPECT_THAT(values(), ElementsAre("", "as usual", "x|y", "")) << "a negative rule means the default";
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 2);
    nip.DefaultValue(1, 3, 7);
    load(-1, true);
    EXPECT_THAT(nip.ChoiceList(1, 3).array().elements, ElementsAre(Variant("7")));
    nip.InitialValueRule(1, 4, 1);
    load(3, true);
    EXPECT_EQ(nip.value(1, 4), Variant("2"));
    nips.db->quietly("Update NIP_Custom1 Set Rank=Null Where EncounterID=2");
    load(3, true);
    EXPECT_EQ(nip.value(1, 4), Variant("")) << "nothing carried forward is no 0";
    EXPECT_TRUE(nips.user->boxes.empty());
}

TEST_F(LoadValues, TellsTheColumnsOfAnEncounterFromThoseOfAGroup) {
    nips.db->quietly("Alter Table Encounter Add Column [Temp-1] TEXT"); // a host's own
    nips.group(4, "Clashing", "My Nip");
    nips.define(4, " ");
    for (const char* name : {"PatientID", "EncounterDate", "Order"})
        nips.field(4, "My Nip", name, {.rule = 1});
    nips.insert("[My Nip]",
                {{"EncounterID", 1}, {"PatientID", "9"}, {"EncounterDate", "z"}, {"Order", "old"}});
    nips.insert("[My Nip]",
                {{"EncounterID", 2}, {"PatientID", "8"}, {"EncounterDate", "a"}, {"Order", "new"}});
    loadStructure();
    load(-1, true);
    EXPECT_EQ(nip.value(1, 1), Variant("37.2"));
    std::string latest;
    for (std::int16_t field = 1; field <= 4; ++field)
        latest += nip.value(3, field).text() + "|";
    EXPECT_EQ(latest, "|8|a|new|");
    EXPECT_THAT(nips.errorLog(), HasSubstr("cNip.GetFieldList-Trying to add a blank field to a select list"));
}

TEST_F(LoadValues, HoldsNothingOfAnEncounterAfterAFailure) {
    nips.group(4, "Later", "NIP_Custom3");
    nips.field(4, "NIP_Custom3", "Note");
    loadStructure();
    load(2);
    nips.db->failOn = "NIP_Custom3";
    EXPECT_FALSE(nip.Load(1, "P1", false));
    EXPECT_THAT(values(), ElementsAre("", "", "", ""));
    EXPECT_EQ(nip.ChoiceListCount(1, 3), 0);
    EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.Load: disk I/O error"));
    EXPECT_EQ(nips.user->boxes.size(), 1u);
    nips.db->failOn.clear();
    EXPECT_FALSE(nip.Save()) << "empty values must not replace those that could not be read";
    EXPECT_EQ(nips.rows("Select Description From NIP_Custom1 Where EncounterID=1"), "one");
}

TEST_F(LoadValues, LoadsTheStructureItselfWhenItIsNotThere) {
    EXPECT_FALSE(nip.Load(2, "P1", false)) << "without a connection";
    EXPECT_EQ(nips.errorLog(), "");
    nips.db->failOn = "DBFields";
    EXPECT_FALSE(nip.LoadStructure(nips.db));
    nips.db->failOn.clear();
    EXPECT_TRUE(nip.Load(2, "P1", false));
    EXPECT_THAT(values(), ElementsAre("37.2", "two", "a|b|", "2"));

    nips.db->Close();
    nips.user->boxes.clear();
    EXPECT_FALSE(nip.Load(2, "P1", false));
    ASSERT_EQ(nips.user->boxes.size(), 1u);
    EXPECT_THAT(nips.user->boxes[0].text, HasSubstr("Attempt to query while ADO Connection not open"));
}

TEST_F(LoadValues, RefusesFieldsThatNoStatementCanTellApart) {
    for (const auto& [name, line] :
         {std::pair("a] From Encounter --", "Error in cNip.Load: \"a] From Encounter --\" cannot be"),
          std::pair("TEMP-1",
                    "Error in cNip.Load: Two fields of the table NIP_Custom1 have the name TEMP-1")}) {
        nips.define(2, name);
        loadStructure();
        EXPECT_FALSE(nip.Load(2, "P1", false));
        EXPECT_THAT(nips.errorLog(), HasSubstr(line));
        nip.EncounterID(2);
        EXPECT_FALSE(nip.Save());
        EXPECT_EQ(nips.rows("Select Description From NIP_Custom1 Where EncounterID=2"), "two");
        nips.db->quietly("Delete From DBFields Where FieldName='" + std::string(name) + "'");
    }
}

} // namespace Korvane
