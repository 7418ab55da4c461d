#include <korvane/nip/cNIP.h>

#include "support/NipDatabase.h"

#include <gmock/gmock.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string table(int group) {
    return "NIP_Custom" + std::to_string(group);
}

/// As many groups, each of a text field, a memo field and a list.
void makeGroups(NipDatabase& nips, int count) {
    for (int group = 1; group <= count; ++group) {
        nips.group(group + 1, "Group", table(group));
        nips.field(group + 1, table(group), "Temp-1");
        nips.field(group + 1, table(group), "Order", {.columnType = "TEXT"});
        nips.field(group + 1, table(group), "Chosen", {"LIST-EDITCONTENT", 0, 0, 0, "TEXT"});
    }
}

void setAll(cNIP& nip, const std::string& text) {
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group) {
        nip.value(group, 1, text);
        nip.value(group, 2, text);
        nip.ChoiceList(group, 3, VariantArray{0, {Variant(text), Variant(""), Variant(text)}});
        nip.ChoiceListCount(group, 3, 3);
    }
}

const std::string longText = [] {
    std::string text;
    while (text.size() < 40000)
        text += "long 'text' ";
    return text;
}();

const std::string hostileTexts[] = {"it's",
                                    "''",
                                    "'",
                                    "a|b|",
                                    "|",
                                    "line\nline",
                                    "line\r\nline\r",
                                    "\t",
                                    longText,
                                    "😀 é ß",
                                    "'; Drop Table NIP_Custom1; --",
                                    "/* [x] \"y\" ` \\' */",
                                    "%_?*#",
                                    "Null",
                                    "True",
                                    "007",
                                    "1e5",
                                    "0.10",
                                    "11/15/2026",
                                    "#1/1/2026#",
                                    "",
                                    "  around  ",
                                    ":1 ?1 @a $b"};

} // namespace

TEST(SaveValues, WritesARowAtFirstAndTheSameRowAfterwards) {
    NipDatabase nips;
    makeGroups(nips, 1);
    nips.group(9, "Empty", "NIP_Custom9");
    cNIP nip;
    ASSERT_TRUE(nip.LoadStructure(nips.db));
    ASSERT_TRUE(nip.Load(-1, "P1", true));
    setAll(nip, "x");
    nip.value(1, 2, std::int16_t{5});
    nips.db->statements.clear();
    nips.db->announced.clear();
    nip.EncounterID(12);
    ASSERT_TRUE(nip.Save());
    const std::string update =
        "Update NIP_Custom1 Set [Temp-1]='x',[Order]=5,[Chosen]='x||x' Where EncounterID=12";
    EXPECT_THAT(nips.db->statements,
                ElementsAre(update,
                            "Insert Into NIP_Custom1([Temp-1],[Order],[Chosen],[EncounterID])  values "
                            "('x',5,'x||x',12)"));
    EXPECT_THAT(nips.db->announced, ElementsAre(update));
    nips.db->statements.clear();
    ASSERT_TRUE(nip.Save());
    EXPECT_THAT(nips.db->statements, ElementsAre(update));
    EXPECT_EQ(nips.rows("Select Count(*) From NIP_Custom1"), "1");
    EXPECT_EQ(nips.errorLog(), "");
}

TEST(SaveValues, BringsEveryTextBackByteForByte) {
    NipDatabase nips;
    makeGroups(nips, 2);
    std::int32_t id = 0;
    for (const std::string& text : hostileTexts) {
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

TEST(SaveValues, WritesNothingAtAllWhenAStatementFails) {
    NipDatabase nips;
    makeGroups(nips, 3);
    cNIP nip;
    ASSERT_TRUE(nip.LoadStructure(nips.db));
    setAll(nip, "old");
    EXPECT_FALSE(nip.Save()) << "no encounter yet";
    nip.EncounterID(-1);
    EXPECT_FALSE(nip.Save());
    EXPECT_EQ(nips.rows("Select Count(*) From NIP_Custom1"), "0");
    nip.EncounterID(1);
    ASSERT_TRUE(nip.Save());

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
}

TEST(SaveValues, LeavesTheOldRowsOrTheNewOnesWhenTheProcessIsKilled) {
    NipDatabase nips;
    makeGroups(nips, 20);
    nips.db->Close(); // a process of its own opens the file below
    for (int round = 0; round < 12; ++round) {
        int ready[2];
        ASSERT_EQ(pipe(ready), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            cNIP nip;
            bool saved = nip.LoadStructure(ado::open(nips.address()));
            nip.EncounterID(1);
            for (int i = 0; saved; ++i) {
                setAll(nip, std::to_string(round) + "." + std::to_string(i));
                saved = nip.Save();
                if (i == 0 && write(ready[1], "r", 1) != 1) break;
            }
            _exit(1);
        }
        char byte = 0;
        close(ready[1]);
        const bool started = read(ready[0], &byte, 1) == 1;
        usleep(static_cast<useconds_t>(500 + round * 733));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        close(ready[0]);
        ASSERT_TRUE(started);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saving process ended by itself";

        cNIP nip;
        ASSERT_TRUE(nip.LoadStructure(ado::open(nips.address())));
        ASSERT_TRUE(nip.Load(1, "P1", false));
        const Variant whole = nip.value(1, 1);
        EXPECT_EQ(whole.text().find(std::to_string(round) + "."), 0u);
        for (std::int16_t group = 1; group <= nip.GroupCount(); ++group)
            for (std::int16_t field = 1; field <= 2; ++field)
                ASSERT_EQ(nip.value(group, field), whole) << "group " << group << " in round " << round;
    }
}

} // namespace Korvane
