#include <korvane/nip/cNIP.h>

#include "support/CaseTable.h"
#include "support/NipDatabase.h"

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using LoadStructure = NipTest;

/// "row/column" of a field.
std::string place(const cNIP& nip, std::int16_t group, std::int16_t field) {
    return std::to_string(nip.RowIndex(group, field)) + "/" + std::to_string(nip.ColIndex(group, field));
}

std::string told(const cNIP& nip) {
    std::string all;
    for (std::int16_t g = 1; g <= nip.GroupCount(); ++g) {
        all += nip.GroupName(g) + ": ";
        for (std::int16_t f = 1; f <= nip.FieldCount(g); ++f)
            all += nip.fieldName(g, f) + "," + nip.Caption(g, f) + "," + nip.displayType(g, f) + "," +
                   std::to_string(nip.maxLength(g, f)) + "," + std::to_string(nip.InitialValueRule(g, f)) +
                   "," + Variant(nip.Ordinal(g, f)).text() + " (" + nip.TableName(g, f) + "," +
                   std::to_string(nip.GroupID(g, f)) + "," + nip.GroupName(g, f) + ") ";
        all += std::to_string(nip.RowCount(g)) + " rows\n";
    }
    return all;
}

} // namespace

TEST_F(LoadStructure, ReadsGroupsInTheirOrderAndLeavesOutWhatIsReserved) {
    nips.group(5, "History", "NIP_Custom2", 2);
    nips.group(3, "Vitals", "NIP_Custom1", 1);
    nips.group(9, "Empty", "NIP_Custom3", 3);
    nips.group(0, "Reserved", "NIP_Custom4", 4);
    nips.define(0, "Hidden");
    nips.define(3, "EncounterID");
    nips.define(3, "encounterid");
    nips.field(3, "NIP_Custom1", "Pulse", {"COMBOBOX", 1, 7.5F, 12});
    nips.field(3, "NIP_Custom1", "Weight", {"TEXT", 0, 2.F});
    nips.field(5, "NIP_Custom2", "Smoker");

    loadStructure();
    EXPECT_EQ(told(nip), "Vitals: Weight,The Weight,TEXT,50,0,2 (NIP_Custom1,3,Vitals) "
                         "Pulse,The Pulse,COMBOBOX,12,1,7.5 (NIP_Custom1,3,Vitals) 2 rows\n"
                         "History: Smoker,The Smoker,TEXT,50,0,6 (NIP_Custom2,5,History) 1 rows\n"
                         "Empty: 0 rows\n");
    EXPECT_EQ(nip.RowCountMax(), 2);
    EXPECT_EQ(nip.dataType(1, 2), "");

    EXPECT_FALSE(nip.LoadStructure(nullptr));
    EXPECT_EQ(nip.fieldName(1, 2), "Pulse");
    EXPECT_EQ(nips.errorLog(), "");
}

TEST_F(LoadStructure, RunsExactlyItsThreeStatements) {
    loadStructure();
    EXPECT_EQ(nip.FieldCount(1), 0);
    EXPECT_EQ(nips.db->statements, statementsOf("structure"));
    EXPECT_EQ(nips.db->announced, nips.db->statements);
    EXPECT_EQ(nips.db->transactionLevel(), 0);
}

TEST_F(LoadStructure, PutsACommentBesideItsField) {
    nips.group(2, "Vitals", "NIP_Custom1");
    nips.group(3, "Late", "NIP_Custom2");
    for (const char* name :
         {"A", "B", "A_COMMENTS", "b_COMMENTS", "B_Comments", "C_COMMENTS", "C", "B_COMMENTS"})
        nips.define(2, name);
    nips.define(3, "A_COMMENTS");
    loadStructure();
    std::vector<std::string> places;
    for (std::int16_t field = 1; field <= nip.FieldCount(1); ++field)
        places.push_back(place(nip, 1, field));
    EXPECT_THAT(places, ElementsAre("1/1", "2/1", "1/2", "3/1", "4/1", "5/1", "6/1", "2/2"));
    EXPECT_EQ(nip.RowCount(1), 6);
    EXPECT_EQ(place(nip, 2, 1), "1/1") << "the field of another group is none of its own";
    EXPECT_EQ(nip.RowCountMax(), 6);
}

TEST_F(LoadStructure, GivesEveryFieldItsOwnAllowedValues) {
    nips.group(2, "Vitals", "NIP_Custom1");
    nips.group(3, "Other", "NIP_Custom2");
    nips.define(2, "Smoker's");
    nips.define(2, "Plain");
    nips.define(3, "Smoker's");
    nips.allowed(2, "Smoker's", "never", 3, true);
    nips.allowed(2, "SMOKER'S", "daily", 1, true);
    nips.allowed(2, "Smoker's", "it's | \n", 2);
    nips.allowed(3, "Smoker's", "other", 1);
    nips.allowed(3, "Smoker's", "null", 2);
    nips.db->quietly("Update DBFieldValues Set FieldValue=Null,DefaultValue=Null Where FieldValue='null'");
    nips.allowed(4, "Smoker's", "nobody's", 1, true);
    loadStructure();
    EXPECT_THAT(nip.ValueList(1, 1).array().elements,
                ElementsAre(Variant(), Variant("daily"), Variant("it's | \n"), Variant("never")));
    EXPECT_EQ(nip.ValueListCount(1, 1), 3);
    EXPECT_EQ(nip.DefaultValue(1, 1), Variant("never")) << "of two defaults the later one counts";
    EXPECT_THAT(nip.ValueList(2, 1).array().elements, ElementsAre(Variant(), Variant("other"), Variant("")));
    EXPECT_THAT(nip.ValueList(1, 2).array().elements, ElementsAre(Variant()));
    EXPECT_EQ(nip.ValueListCount(1, 2), 0);
    EXPECT_TRUE(nip.DefaultValue(2, 1).isEmpty());
}

TEST_F(LoadStructure, TellsTheFieldsOfALargeNipApart) {
    constexpr std::int16_t fields = 400, each = 25;
    for (const std::int16_t group : {std::int16_t{1}, std::int16_t{2}}) {
        nips.group(group + 1, "Group", "NIP_Custom" + std::to_string(group));
        for (int field = 1; field <= fields; ++field) {
            const std::string name = "Field" + std::to_string(field);
            nips.define(group + 1, name);
            if (field % each == 0) nips.allowed(group + 1, name, std::to_string(group) + name, 1);
        }
    }
    loadStructure();
    for (const std::int16_t group : {std::int16_t{1}, std::int16_t{2}}) {
        for (std::int16_t field = 1; field <= fields; ++field) {
            const std::string own = std::to_string(group) + "Field" + std::to_string(field);
            ASSERT_EQ(nip.ValueListCount(group, field), field % each == 0 ? 1 : 0) << own;
            if (field % each == 0) {
                EXPECT_EQ(nip.ValueList(group, field).array().at(1), Variant(own));
            }
        }
    }
}

TEST_F(LoadStructure, EndsWithFalseAndALineWhenAStatementFails) {
    nips.group(2, "Vitals", "NIP_Custom1");
    nips.define(2, "Pulse");
    for (const char* failing : {"GROUP BY", "INNER JOIN", "DBFieldValues"}) {
        nips.db->failOn = failing;
        EXPECT_FALSE(nip.LoadStructure(nips.db)) << failing;
        EXPECT_FALSE(nip.Save()) << "with half a structure";
    }
    EXPECT_EQ(nip.fieldName(1, 1), "Pulse") << "what was loaded up to the failure stays";
    EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.LoadStructure: disk I/O error"));
    EXPECT_EQ(nips.user->boxes.size(), 3u);
    EXPECT_EQ(nips.db->transactionLevel(), 0);
}

TEST_F(LoadStructure, NamesTheCellThatIsNoSuchNumber) {
    if (ScratchDatabase::onServer()) GTEST_SKIP() << "a server's columns hold nothing of another type";
    nips.group(2, "Vitals", "NIP_Custom1");
    nips.define(2, "Pulse");
    nips.allowed(2, "Pulse", "72", 1);
    for (const auto& [change, line] : {std::pair("Update DBFields Set InitialValueRuleID=40000-1+1",
                                                 "InitialValueRuleID of the field Pulse: Overflow"),
                                       std::pair("Update DBFieldValues Set DefaultValue='per'||'haps'",
                                                 "DefaultValue of the field Pulse: Type mismatch")}) {
        nips.db->quietly("Update DBFields Set InitialValueRuleID=0");
        nips.db->quietly(change);
        EXPECT_FALSE(nip.LoadStructure(nips.db));
        EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.LoadStructure: " + std::string(line)));
    }
}

TEST_F(LoadStructure, CountsNoFurtherThan16Bits) {
    nips.group(2, "Huge", "NIP_Custom1");
    nips.db->quietly("With Recursive n(i) As (Select 1 Union All Select i + 1 From n Where i < 32768) "
                     "Insert Into DBFields(ID, FieldName, DBFieldGroupID, Ordinal) "
                     "Select i, 'F' || i, 2, i From n");
    EXPECT_FALSE(nip.LoadStructure(ado::open(nips.address())));
    EXPECT_EQ(nip.FieldCount(1), 32767);
    EXPECT_THAT(nips.errorLog(), HasSubstr("More than 32767 fields in the group Huge"));
    nips.db->quietly("Delete From DBFields Where ID=1");
    EXPECT_TRUE(nip.LoadStructure(ado::open(nips.address())));
    EXPECT_EQ(nip.fieldName(1, 32767), "F32768");
}

} // namespace Korvane
