#include <korvane/nip/cNIP.h>

#include "support/CaseTable.h"
#include "support/NipDatabase.h"

#include <korvane/ado/Transaction.h>

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string table(int group) {
    return "NIP_Custom" + std::to_string(group);
}

struct SaveValues : NipTest {
    /// As many groups, each of a text field, a memo field and a list.
    void makeGroups(int count) {
        for (int group = 1; group <= count; ++group) {
            nips.group(group + 1, "Group", table(group));
            nips.field(group + 1, table(group), "Temp-1", {.columnType = "TEXT"});
            nips.field(group + 1, table(group), "Order", {.columnType = "TEXT"});
            nips.field(group + 1, table(group), "Chosen", {"LIST-EDITCONTENT", 0, 0, 0, "TEXT"});
        }
    }
    void open(int groups) {
        makeGroups(groups);
        loadStructure();
    }
};

void setAll(cNIP& nip, const std::string& text) {
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group) {
        nip.value(group, 1, text);
        nip.value(group, 2, text);
        nip.ChoiceList(group, 3, VariantArray{0, {Variant(text), Variant(""), Variant(text)}});
        nip.ChoiceListCount(group, 3, 3);
    }
}

} // namespace

TEST_F(SaveValues, WritesARowAtFirstAndTheSameRowAfterwards) {
    makeGroups(1);
    nips.group(9, "Empty", "NIP_Custom9");
    loadStructure();
    load(-1, true);
    setAll(nip, "x");
    nip.value(1, 2, std::int16_t{5});
    nips.db->statements.clear();
    nips.db->announced.clear();
    nip.EncounterID(12);
    save();
    const std::string update =
        "Update NIP_Custom1 Set [Temp-1]='x',[Order]=5,[Chosen]='x||x' Where EncounterID=12";
    const std::string insert =
        "Insert Into NIP_Custom1([Temp-1],[Order],[Chosen],[EncounterID])  values ('x',5,'x||x',12)";
    const std::string owner = "Select PatientID From Encounter Where EncounterID=12";
    EXPECT_THAT(nips.db->statements, ElementsAre(owner, update, insert));
    EXPECT_THAT(nips.db->announced, ElementsAre(owner, update, insert));
    nips.db->statements.clear();
    save();
    EXPECT_THAT(nips.db->statements, ElementsAre(owner, update));
    EXPECT_EQ(nips.rows("Select Count(*) From NIP_Custom1"), "1");
    EXPECT_EQ(nips.errorLog(), "");
}

TEST_F(SaveValues, BringsEveryTextBackByteForByte) {
    makeGroups(2);
    std::vector<std::string> texts{std::string(40000, 'x') + "'|long 'text'"};
    for (const auto& row : readCases("hostiletexts.tsv"))
        texts.push_back(quotedText(row[0]));
    std::int32_t id = 0;
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 60));
        cNIP writer;
        ASSERT_TRUE(writer.LoadStructure(nips.db));
        ASSERT_TRUE(writer.Load(-1, "P1", true));
        setAll(writer, text);
        writer.EncounterID(++id);
        ASSERT_TRUE(writer.Save());

        cNIP reader;
        ASSERT_TRUE(reader.LoadStructure(nips.db));
        ASSERT_TRUE(reader.Load(id, "P1", false));
        for (std::int16_t group = 1; group <= 2; ++group) {
            EXPECT_EQ(reader.value(group, 1), Variant(text));
            EXPECT_EQ(reader.value(group, 2), Variant(text));
            const std::string joined = text + "||" + text;
            EXPECT_EQ(reader.value(group, 3), Variant(joined));
        }
        ASSERT_TRUE(reader.Save()) << "what nobody touched";
        ASSERT_TRUE(writer.Load(id, "P1", false));
        for (std::int16_t field = 1; field <= 3; ++field)
            EXPECT_EQ(writer.value(2, field), reader.value(2, field));
    }
    EXPECT_TRUE(nips.user->boxes.empty());
}

TEST_F(SaveValues, LeavesUntouchedWhatItsTextDoesNotShow) {
    if (ScratchDatabase::onServer()) GTEST_SKIP() << "a server's columns hold nothing of another type";
    nips.group(2, "Group", "NIP_Custom1");
    std::string columns;
    std::string stored;
    for (const auto& row : readCases("foreigncells.tsv")) {
        const std::string name = "F" + std::to_string(std::ranges::count(columns, ','));
        nips.field(2, "NIP_Custom1", name, {.columnType = row[0]});
        columns += "," + name;
        stored += "," + row[1];
    }
    for (const char* id : {"1", "2"})
        nips.db->quietly("Insert Into NIP_Custom1(EncounterID" + columns + ") Select " + id + stored);
    const auto rows = [&] { return nips.rows("Select *, F0*3=1 From NIP_Custom1"); };
    const std::string before = rows();
    loadStructure();
    load(1);
    nips.db->statements.clear();
    EXPECT_TRUE(nip.Save()) << nips.errorLog();
    EXPECT_EQ(rows(), before);
    EXPECT_THAT(nips.db->statements[1], testing::StartsWith("Update NIP_Custom1 Set [F0]=[F0],"));
    EXPECT_THAT(nips.db->statements[1], HasSubstr("='text',[F9]=[F9] Where EncounterID=1"));

    // A value that was changed and changed back is the user's own, also when the first save came to nothing.
    const std::string shown = nip.value(1, 1).text();
    nip.value(1, 1, "5");
    {
        ado::Transaction givenUp(*nips.db);
        EXPECT_TRUE(nip.Save());
    }
    EXPECT_TRUE(nip.Save());
    EXPECT_EQ(nips.rows("Select F0 From NIP_Custom1 Where EncounterID=1"), "5");
    nip.value(1, 1, shown);
    EXPECT_TRUE(nip.Save());
    EXPECT_EQ(nips.rows("Select F0 From NIP_Custom1 Where EncounterID=1"), shown);

    // Values for another encounter are written whatever that one holds.
    load(1);
    nip.EncounterID(2);
    EXPECT_FALSE(nip.Save()) << "some of them cannot be written";
    for (const int field : {4, 5, 6, 8, 10})
        nip.value(1, static_cast<std::int16_t>(field), "");
    EXPECT_TRUE(nip.Save());
    EXPECT_EQ(nips.rows("Select F0*3=1 From NIP_Custom1 Where EncounterID=2"), "0");
}

TEST_F(SaveValues, WritesNothingForAStructureThatWasLoadedAnew) {
    open(1);
    nip.EncounterID(1);
    setAll(nip, "kept");
    save();
    loadStructure();
    EXPECT_FALSE(nip.Save());
    load(1);
    nip.ChoiceListCount(1, 3, -1);
    EXPECT_FALSE(nip.Save()) << "no count";
    EXPECT_EQ(nips.rows("Select [Temp-1], Chosen From NIP_Custom1"), "kept|kept||kept");
}

TEST_F(SaveValues, WritesNothingUnderAnEncounterThatIsNotThePatients) {
    makeGroups(2);
    nips.db->quietly("Drop Table Encounter");
    nips.db->quietly("Create Table Encounter (EncounterID INTEGER, EncounterMethodID INTEGER, PatientID "
                     "VARCHAR(9), ProviderID INTEGER, EncounterDate TIMESTAMP, Description TEXT)");
    nips.encounter(1, "P1", "1/2/2026");
    nips.encounter(2, "P2", "1/2/2026");
    loadStructure();
    load(-1, true);
    setAll(nip, "x");
    nip.EncounterID(2);
    EXPECT_FALSE(nip.Save());
    nip.EncounterID(1);
    nips.encounter(1, "P1", "1/2/2026"); // no key has refused it
    EXPECT_FALSE(nip.Save());
    EXPECT_EQ(nips.rows("Select EncounterID From NIP_Custom1"), "");
    EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.Save: The encounter 2 is another patient's\n"));
    EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.Save: The encounter 1 is there more than once\n"));
    nips.encounter(3, "P1", "1/2/2026");
    nip.EncounterID(3);
    EXPECT_TRUE(nip.Save());
    EXPECT_EQ(nips.rows("Select EncounterID From NIP_Custom2"), "3");
}

TEST_F(SaveValues, WritesNothingAtAllWhenAStatementFails) {
    open(3);
    setAll(nip, "old");
    EXPECT_FALSE(nip.Save()) << "no encounter yet";
    nip.EncounterID(-1);
    EXPECT_FALSE(nip.Save());
    EXPECT_EQ(nips.rows("Select Count(*) From NIP_Custom1"), "0");
    nip.EncounterID(1);
    save();

    nips.user->whenShown = [&] { EXPECT_EQ(nips.db->transactionLevel(), 0) << "others wait for the user"; };
    setAll(nip, "new");
    nips.db->failOn = "Update NIP_Custom3";
    EXPECT_FALSE(nip.Save());
    nip.EncounterID(2);
    nips.db->failOn = "Insert Into NIP_Custom3";
    EXPECT_FALSE(nip.Save());
    nips.db->failOn.clear();
    nip.value(3, 1, Variant(VariantArray{}));
    EXPECT_FALSE(nip.Save()) << "a value that has no text";
    for (int group = 1; group <= 3; ++group) {
        EXPECT_EQ(nips.rows("Select Count(*) From " + table(group)), "1");
        EXPECT_EQ(nips.rows("Select [Order] From " + table(group)), "old");
    }
    EXPECT_THAT(nips.errorLog(), HasSubstr("Error in cNip.Save: disk I/O error"));
    EXPECT_EQ(nips.db->transactionLevel(), 0);
    EXPECT_EQ(nips.user->boxes.size(), 3u) << "one for each failure of a statement or a list";
    nip.value(3, 1, "new");
    save();
    for (int group = 1; group <= 3; ++group)
        EXPECT_EQ(nips.rows("Select [Order] From " + table(group) + " Where EncounterID=2"), "new")
            << "nothing is lost";
}

TEST_F(SaveValues, LeavesTheOldRowsOrTheNewOnesWhenTheProcessIsKilled) {
    makeGroups(3);
    const auto saved = [](const auto& db, const std::string& text, const std::function<bool()>& begin) {
        cNIP own;
        if (!own.LoadStructure(db)) return false;
        own.EncounterID(1);
        setAll(own, text);
        return begin() && own.Save();
    };
    ASSERT_TRUE(saved(nips.db, "old", [] { return true; }));
    nips.db->Close();
    const auto stored = [&] {
        cNIP own;
        EXPECT_TRUE(own.LoadStructure(ado::open(nips.address())) && own.Load(1, "P1", false));
        std::string all;
        for (std::int16_t group = 1; group <= own.GroupCount(); ++group)
            all += own.value(group, 1).text() + own.value(group, 2).text();
        return all;
    };
    int steps = 0;
    for (int status = -1; status != 0; ++steps) { // each gets a step further than the one before
        ASSERT_LT(steps, 100);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const auto db = std::make_shared<RecordingConnection>(ado::open(nips.address()));
            db->insteadOfFailing = [] { kill(getpid(), SIGKILL); };
            _exit(saved(db, "new", [&] { return (db->failAfter = steps) >= 0; }) ? 0 : 1);
        }
        waitpid(child, &status, 0);
        ASSERT_TRUE(status == 0 || WIFSIGNALED(status)) << "it failed by itself";
        if (status != 0) {
            ASSERT_EQ(stored(), "oldoldoldoldoldold") << "killed at step " << steps;
        }
    }
    EXPECT_GT(steps, 4);
    EXPECT_EQ(stored(), "newnewnewnewnewnew");
}

} // namespace Korvane
