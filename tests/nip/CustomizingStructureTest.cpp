#include <korvane/nip/cNIP.h>

#include "support/CaseTable.h"
#include "support/NipDatabase.h"

#include <korvane/ado/Catalog.h>
#include <korvane/ado/Table.h>

#include <gmock/gmock.h>

#include <functional>

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// Two groups: "Vitals" with Pulse, Weight and a list Mood, one stored encounter; "Notes" with Text.
struct CustomizingStructure : NipTest {
    CustomizingStructure() {
        nips.group(2, "Vitals", "NIP_Custom1");
        nips.field(2, "NIP_Custom1", "Pulse");
        nips.field(2, "NIP_Custom1", "Weight", {.rule = 1});
        nips.field(2, "NIP_Custom1", "Mood", {.displayType = "LIST"});
        nips.allowed(2, "Mood", "Good", 1, true);
        nips.allowed(2, "Mood", "Poor", 2);
        nips.group(3, "Notes", "NIP_Custom2");
        nips.field(3, "NIP_Custom2", "Text");
        nips.encounter(7, "P1", "1/2/2026");
        nips.insert("NIP_Custom1", {{"EncounterID", 7}, {"Pulse", "72"}, {"Weight", "80"}, {"Mood", "Poor"}});
        loadStructure();
    }

    /// Everything in the database that customizing may touch.
    std::string stored() const {
        std::string all =
            nips.rows("Select * From DBFieldGroups Where DBFieldGroupID>1 Order By DBFieldGroupID") +
            nips.rows("Select * From DBFields Order By ID") +
            nips.rows("Select * From DBFieldValues Order By DBFieldGroupID,FieldName,Ordinal");
        const ado::Catalog catalog(nips.db->real());
        for (const std::string& table : catalog.Tables().Names()) {
            if (table.find("ustom") == std::string::npos) continue;
            all += "\n" + table + ":";
            for (const ado::Column& column : catalog.Tables().Item(table).Columns().All())
                all += " " + column.Name();
            all += " = " + nips.rows("Select * From " + table);
        }
        return all;
    }

    /// Everything that the model says of the structure.
    std::string modelled() const {
        std::string all;
        for (std::int16_t g = 1; g <= nip.GroupCount(); ++g) {
            all += nip.GroupName(g) + "(" + std::to_string(nip.FieldCount(g)) + "): ";
            for (std::int16_t f = 1; f <= nip.FieldCount(g); ++f)
                all += nip.fieldName(g, f) + "/" + nip.Caption(g, f) + " ";
        }
        return all;
    }
};

const FieldDefinition temperature{.fieldName = "Temp-1",
                                  .caption = "The patient's temperature",
                                  .maxLength = 10,
                                  .displayType = "LIST",
                                  .initialValueRule = 1,
                                  .values = {"37", "38 'hot'"},
                                  .defaultValue = "38 'hot'"};

TEST_F(CustomizingStructure, MakesAGroupByTheRuleOfItsName) {
    // The greatest name is "NIP_Custom2": the rule gives "NIP_Custom0", and a third group finds that taken.
    ASSERT_TRUE(nip.CreateGroup("It's new"));
    EXPECT_EQ(nip.GroupCount(), 3);
    EXPECT_EQ(nip.GroupName(3), "It's new");
    EXPECT_THAT(
        nips.db->statements,
        Contains("Insert Into DBFieldGroups ([DBFieldGroupID],[GroupName],[TableName],[Ordinal])  values "
                 "('4','It''s new','NIP_Custom0',3)"));
    const auto before = stored();
    EXPECT_FALSE(nip.CreateGroup("One too many"));
    EXPECT_EQ(nip.GroupCount(), 3);
    EXPECT_EQ(stored(), before);
    EXPECT_THAT(nips.errorLog(), AllOf(HasSubstr("Error in cNip.CreateTableInDatabase:"),
                                       HasSubstr("Error in cNip.CreateGroup:")));

    nip.numbersGroups(true);
    EXPECT_TRUE(nip.CreateGroup("Numbered")) << nips.errorLog();
    nips.db->quietly("Create Table [NIP_Custom4] (EncounterID INTEGER)"); // of a group that is there no more
    EXPECT_TRUE(nip.CreateGroup("Numbered too")) << nips.errorLog();
    EXPECT_EQ(nips.rows("Select TableName From DBFieldGroups Where DBFieldGroupID>4 Order By DBFieldGroupID"),
              "NIP_Custom3 NIP_Custom5");
    loadStructure();
    EXPECT_EQ(nip.GroupCount(), 5);
    EXPECT_EQ(nip.FieldCount(5), 0);
}

TEST_F(CustomizingStructure, MakesAFieldThatKeepsWhatIsEnteredInIt) {
    ASSERT_TRUE(nip.CreateField(1, temperature));
    EXPECT_EQ(nip.FieldCount(1), 4);
    EXPECT_EQ(nip.dataType(1, 4), "dbText");
    EXPECT_EQ(nip.RowIndex(1, 4), 4);
    EXPECT_THAT(stored(), Not(HasSubstr("Temp-1"))) << "only the model knows it so far";
    nips.db->statements.clear();
    ASSERT_TRUE(nip.SaveStructure()) << nips.errorLog();
    EXPECT_THAT(nips.db->statements, testing::IsSupersetOf(statementsOf("new field")));
    loadStructure();
    EXPECT_EQ(nip.DefaultValue(1, 4), Variant("38 'hot'"));
    EXPECT_EQ(nip.ValueListCount(1, 4), 2);
    load(7);
    EXPECT_EQ(nip.value(1, 1), Variant("72"));
    nip.value(1, 4, "37");
    save();
    EXPECT_EQ(nips.rows("Select Pulse,[Temp-1] From NIP_Custom1"), "72|37");
}

TEST_F(CustomizingStructure, PutsACommentBesideItsField) {
    ASSERT_TRUE(nip.CreateField(1, {.fieldName = "Pulse_Comments", .maxLength = 5}));
    EXPECT_EQ(nip.ColIndex(1, 4), 2);
    EXPECT_EQ(nip.RowIndex(1, 4), nip.RowIndex(1, 1));
    ASSERT_TRUE(nip.CreateField(1, {.fieldName = "None_Comments", .maxLength = 5}));
    EXPECT_EQ(nip.ColIndex(1, 5), 1);
    EXPECT_EQ(nip.RowIndex(1, 5), 4);
}

TEST_F(CustomizingStructure, RefusesNamesThatAGroupCannotHold) {
    const auto before = std::pair(stored(), modelled());
    const std::string tooLong(64, 'n');
    for (const char* name : {"Pulse", "pulse", "ENCOUNTERID", "", "  ", "a]b", tooLong.c_str()}) {
        EXPECT_FALSE(nip.CreateField(1, {.fieldName = name, .maxLength = 5})) << name;
        EXPECT_FALSE(nip.EditField(1, 2, {.fieldName = name, .maxLength = 5})) << name;
    }
    EXPECT_THAT(nips.errorLog(), HasSubstr("has a field pulse already"));
    EXPECT_FALSE(nip.CreateField(-1, temperature));
    EXPECT_THAT(nips.errorLog(), HasSubstr("cNip.CreateField error: pGroupIndex=-1"));
    EXPECT_FALSE(nip.CreateField(9, temperature));
    EXPECT_FALSE(nip.EditField(1, 9, temperature));
    EXPECT_FALSE(nip.DeleteField(1, 0));
    EXPECT_FALSE(nip.DeleteGroup(0));
    EXPECT_FALSE(nip.CreateGroup(" "));
    EXPECT_FALSE(nip.CreateField(1, {.fieldName = "Short", .maxLength = 0}));
    EXPECT_FALSE(nip.EditField(1, 1, {.fieldName = "Pulse", .maxLength = -1}));
    EXPECT_TRUE(nip.SaveStructure());
    EXPECT_EQ(std::pair(stored(), modelled()), before);
    EXPECT_TRUE(nip.EditField(1, 1, {.fieldName = "Rate", .maxLength = 5}));
    EXPECT_FALSE(nip.EditField(1, 2, {.fieldName = "RATE", .maxLength = 5})) << "which is as good as taken";
}

TEST_F(CustomizingStructure, RenamesAFieldWithItsDataItsValuesAndWhatItCarriesForward) {
    for (const char* name : {"MOOD", "HUMOUR"})
        nips.allowed(2, name, "left over", 3);
    loadStructure();
    for (const char* name : {"Humour", "humour", "Order", "Sp\"ecial", "it's", "Top"}) {
        ASSERT_TRUE(nip.EditField(1, 3,
                                  {.fieldName = name,
                                   .caption = "Mood",
                                   .maxLength = 50,
                                   .displayType = "LIST",
                                   .initialValueRule = 1,
                                   .values = {"Good", "Poor"},
                                   .defaultValue = "Good"}));
        ASSERT_TRUE(nip.SaveStructure()) << name << nips.errorLog();
        load(7); // by its new name already
        loadStructure();
        EXPECT_EQ(nip.fieldName(1, 3), name);
        EXPECT_EQ(nip.ValueListCount(1, 3), 2);
        EXPECT_EQ(nip.DefaultValue(1, 3), Variant("Good"));
        load(7);
        EXPECT_EQ(nip.value(1, 3), Variant("Poor")) << name;
        load(-1, true);
        EXPECT_EQ(nip.value(1, 3), Variant("Poor")) << name;
    }
    EXPECT_EQ(nips.rows("Select Count(*) From DBFieldValues"), "2");
}

TEST_F(CustomizingStructure, LoadsAndSavesBesideAFieldThatIsNotSavedYet) {
    ASSERT_TRUE(nip.CreateField(1, {.fieldName = "A", .maxLength = 5, .values = {"x"}}));
    nip.fieldName(1, 4, "B");
    load(7);
    nip.value(1, 1, "73");
    save();
    ASSERT_TRUE(nip.SaveStructure()) << nips.errorLog();
    loadStructure();
    EXPECT_EQ(nip.fieldName(1, 4), "B");
    EXPECT_EQ(nip.ValueListCount(1, 4), 1);
    EXPECT_EQ(nips.rows("Select Pulse,B From NIP_Custom1"), "73|NULL");
}

TEST_F(CustomizingStructure, WidensAColumnAndNeverNarrowsIt) {
    const auto edit = [&](std::int16_t length) {
        return nip.EditField(1, 1, {.fieldName = "Pulse", .caption = "Pulse", .maxLength = length}) &&
               nip.SaveStructure() && nip.LoadStructure(nips.db) && nip.Load(7, "P1", false);
    };
    const std::string longText(300, 'x');
    ASSERT_TRUE(edit(300)) << nips.errorLog();
    nip.value(1, 1, longText);
    save();
    ASSERT_TRUE(edit(10)) << nips.errorLog();
    EXPECT_EQ(nip.maxLength(1, 1), 10);
    EXPECT_EQ(nip.value(1, 1), Variant(longText));
    save();
    EXPECT_EQ(nips.rows("Select Pulse From NIP_Custom1"), longText);
}

TEST_F(CustomizingStructure, MovesAFieldToAnotherRow) {
    ASSERT_TRUE(
        nip.EditField(1, 3, {.fieldName = "Mood", .maxLength = 50, .displayType = "LIST", .rowIndex = 1}));
    ASSERT_TRUE(nip.CreateField(1, {.fieldName = "New", .maxLength = 5, .rowIndex = 2}));
    ASSERT_TRUE(nip.SaveStructure()) << nips.errorLog();
    loadStructure();
    EXPECT_EQ(modelled().substr(0, modelled().find("Notes")),
              "Vitals(4): Mood/ New/ Pulse/The Pulse Weight/The Weight ");
}

TEST_F(CustomizingStructure, DeletesFieldsAndGroupsWithTheirData) {
    ASSERT_TRUE(nip.DeleteField(1, 3)) << nips.errorLog();
    EXPECT_EQ(nips.rows("Select * From NIP_Custom1"), "7|72|80");
    EXPECT_EQ(nips.rows("Select Count(*) From DBFieldValues"), "0");
    EXPECT_EQ(nip.FieldCount(1), 3) << "until the structure is loaded anew";
    loadStructure();
    ASSERT_TRUE(nip.DeleteGroup(1)) << nips.errorLog();
    loadStructure();
    EXPECT_EQ(modelled(), "Notes(1): Text/The Text ");
    EXPECT_FALSE(ado::Catalog(nips.db).Tables().Exists("NIP_Custom1"));
    EXPECT_EQ(nips.rows("Select Count(*) From Encounter"), "1");

    nips.db->quietly("Drop Table NIP_Custom2");
    loadStructure();
    EXPECT_TRUE(nip.DeleteField(1, 1));
    EXPECT_THAT(nips.errorLog(), HasSubstr("deleting field, but table does not exist:NIP_Custom2"));
    EXPECT_EQ(nips.rows("Select Count(*) From DBFields"), "0");
    ASSERT_TRUE(nip.CreateField(1, temperature));
    EXPECT_TRUE(nip.SaveStructure()) << "a missing table is made: " << nips.errorLog();
    EXPECT_EQ(nips.rows("Select * From nip_custom2"), "");
}

TEST_F(CustomizingStructure, ReportsAnUpdateOfAFieldThatHasNoRow) {
    nips.db->quietly("Delete From DBFields Where FieldName='Weight'");
    ASSERT_TRUE(nip.EditField(1, 2, {.fieldName = "Weight", .maxLength = 50}));
    EXPECT_TRUE(nip.SaveStructure());
    EXPECT_THAT(nips.errorLog(),
                HasSubstr("Error in cNip.SaveStructure: updated 0 record(s) for field Weight in "
                          "group Vitals"));
}

// Every operation fails once at each of its steps; nothing may have changed then, and the next try succeeds.
TEST_F(CustomizingStructure, ChangesAllOrNothingWhereverItFails) {
    struct Change {
        const char* what;
        std::function<void()> prepare;
        std::function<bool()> run;
    };
    nip.numbersGroups(true);
    const Change changes[] = {
        {"CreateGroup", [] {}, [&] { return nip.CreateGroup("New"); }},
        {"new and renamed fields",
         [&] {
             ASSERT_TRUE(nip.CreateField(1, temperature));
             ASSERT_TRUE(nip.CreateField(2, temperature));
             ASSERT_TRUE(nip.EditField(1, 3, {.fieldName = "Humour", .maxLength = 90, .values = {"a", "b"}}));
         },
         [&] { return nip.SaveStructure(); }},
        {"DeleteField", [] {}, [&] { return nip.DeleteField(1, 3); }},
        {"DeleteGroup", [] {}, [&] { return nip.DeleteGroup(1); }},
    };
    for (const Change& change : changes) {
        loadStructure();
        change.prepare();
        const auto before = std::pair(stored(), modelled());
        int steps = 0;
        for (bool done = false; !done; ++steps) {
            ASSERT_LT(steps, 100) << change.what;
            nips.db->failAfter = steps;
            done = change.run();
            nips.db->failAfter = -1;
            if (done) break;
            ASSERT_EQ(std::pair(stored(), modelled()), before) << change.what << " at step " << steps;
            ASSERT_EQ(nips.db->transactionLevel(), 0);
        }
        EXPECT_GT(steps, 4) << change.what;
        EXPECT_NE(stored(), before.first);
    }
}

// Another desk has customized since the structure was loaded.
struct CustomizedElsewhere : CustomizingStructure {
    std::vector<LostEntry> lost;

    /// A Nip in which fields have been typed into.
    void enter() {
        load(7);
        nip.value(1, 1, "99");
        nip.value(1, 2, "81");
    }
    /// What the other desk does, with the structure as it stands now.
    void elsewhere(const std::function<bool(cNIP&)>& change) const {
        cNIP other;
        ASSERT_TRUE(other.LoadStructure(nips.db) && change(other) && other.SaveStructure())
            << nips.errorLog();
    }
    void makeElsewhere(std::int16_t group, const FieldDefinition& field) const {
        elsewhere([&](cNIP& other) { return other.CreateField(group, field) && other.SaveStructure(); });
    }
};

TEST_F(CustomizedElsewhere, IsNoticedBeforeAnythingIsWrittenAndKeepsTheEntries) {
    enter();
    // "Pulse" becomes another field's name, and the column of the old name holds something else.
    elsewhere([](cNIP& other) {
        return other.EditField(1, 1, {.fieldName = "HeartRate", .caption = "The Pulse", .maxLength = 50}) &&
               other.SaveStructure();
    });
    elsewhere([](cNIP& other) { return other.DeleteField(1, 2); });
    makeElsewhere(1, {.fieldName = "Pulse", .caption = "Foot pulse", .maxLength = 50});
    const auto before = stored();

    EXPECT_FALSE(nip.Save());
    EXPECT_TRUE(nip.StructureChanged());
    EXPECT_FALSE(nip.DeleteField(1, 1));
    EXPECT_TRUE(nip.StructureChanged());
    EXPECT_EQ(stored(), before);
    ASSERT_TRUE(nip.ReloadStructure(lost)) << nips.errorLog();
    EXPECT_FALSE(nip.StructureChanged());
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].caption + ": " + lost[0].text, "The Weight: 81");
    save();
    EXPECT_EQ(nips.rows("Select HeartRate,Mood,Pulse From NIP_Custom1"), "99|Poor|");
}

// The new field takes over name, column and identifier of the one that was deleted.
TEST_F(CustomizedElsewhere, PutsNothingIntoAFieldOfTheSameNameThatMeansSomethingElse) {
    load(7);
    nip.value(2, 1, "hello");
    elsewhere([](cNIP& other) { return other.DeleteField(2, 1); });
    makeElsewhere(2, {.fieldName = "Text", .caption = "Allergies", .maxLength = 50});
    EXPECT_FALSE(nip.Load(7, "P1", false));
    EXPECT_TRUE(nip.StructureChanged());
    loadStructure();
    load(7);
    nip.value(2, 1, "penicillin");
    elsewhere([](cNIP& other) {
        return other.EditField(2, 1, {.fieldName = "Text", .caption = "Diet", .maxLength = 50}) &&
               other.SaveStructure();
    });
    EXPECT_FALSE(nip.Save());
    ASSERT_TRUE(nip.ReloadStructure(lost));
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].text, "penicillin");
    EXPECT_EQ(nip.value(2, 1), Variant(""));
}

TEST_F(CustomizedElsewhere, TakesOverWhatOthersHaveStoredMeanwhileAlsoWhereNobodyCounts) {
    for (const bool counts : {true, false}) {
        const std::string name = counts ? "New" : "Newer";
        if (!counts) nips.db->quietly("Delete From DBFieldGroups Where DBFieldGroupID=1");
        loadStructure();
        enter();
        makeElsewhere(1, {.fieldName = name, .caption = name, .maxLength = 50});
        nips.db->quietly("Update NIP_Custom1 Set [" + name + "]='theirs',Mood='Good'");
        EXPECT_FALSE(nip.Save());
        EXPECT_TRUE(nip.StructureChanged());
        ASSERT_TRUE(nip.ReloadStructure(lost));
        EXPECT_TRUE(lost.empty());
        save();
        EXPECT_EQ(nips.rows("Select Pulse,Weight,Mood,[" + name + "] From NIP_Custom1"), "99|81|Good|theirs");
        nips.db->quietly("Update NIP_Custom1 Set Pulse='72',Mood='Poor'");
    }
}

TEST_F(CustomizedElsewhere, IsNotSuspectedOfATableThatIsNoneOfTheNips) {
    enter();
    nips.db->quietly("Create Table Unrelated (A INTEGER)");
    EXPECT_TRUE(nip.Save()) << nips.errorLog();
    EXPECT_TRUE(nip.Load(7, "P1", false));
    nips.db->failAfter = 1;
    nips.db->insteadOfFailing = [&] { nips.db->quietly("Alter Table NIP_Custom2 Add Column halfway TEXT"); };
    EXPECT_TRUE(nip.Save()) << nips.errorLog();
    EXPECT_EQ(nips.db->failAfter, -1);
    EXPECT_THAT(stored(), Not(HasSubstr("halfway"))) << "begun anew when it came to light before the commit";
    nips.db->quietly("Drop Table Unrelated");
    EXPECT_TRUE(nip.CreateField(1, temperature));
    EXPECT_TRUE(nip.SaveStructure()) << nips.errorLog();
}

TEST_F(CustomizedElsewhere, LeavesEverythingWhenItCannotBeReloaded) {
    enter();
    nips.db->failOn = "DBFieldGroups";
    EXPECT_FALSE(nip.ReloadStructure(lost));
    nips.db->failOn.clear();
    EXPECT_EQ(nip.value(1, 1), Variant("99"));
    EXPECT_TRUE(nip.Save());
}

} // namespace

} // namespace Korvane
