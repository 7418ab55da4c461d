#include <korvane/records/Attachment.h>

#include "support/CaseTable.h"
#include "support/Errors.h"
#include "support/ScratchClinic.h"

#include <korvane/data/MessageLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Korvane;
using namespace Korvane::Testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class AttachmentTest : public ::testing::Test, protected ScratchClinic {
  protected:
    AttachmentTest() {
        attachment.Connection(db);
        attachment.EncounterID(12);
    }
    Attachment attachment;
};

TEST_F(AttachmentTest, InsertsOnceAndUpdatesFromThenOn) {
    attachment.AttachmentType("scan");
    attachment.Description("it's");
    attachment.CategoryID("2");
    attachment.FileName("a.png");
    attachment.EntryDate("2 January, 1970");
    attachment.OriginDate("8:30 PM");
    attachment.Locked(true);
    EXPECT_FALSE(attachment.Stored());
    ASSERT_TRUE(attachment.Save());
    EXPECT_TRUE(attachment.Stored());
    EXPECT_EQ(attachment.AttachmentID(), Variant(1));
    attachment.Deleted(false);
    attachment.InUseBy("me");
    ASSERT_TRUE(attachment.Save());
    EXPECT_EQ(db->statements, statementsOf("attachment saved"));

    Attachment again;
    again.Connection(db);
    again.AttachmentID(1);
    EXPECT_EQ(again.AttachmentID(), Variant("1"));
    EXPECT_EQ(again.Description(), "it's");
    EXPECT_EQ(again.CategoryID(), "2");
    EXPECT_EQ(again.EntryDate(), "1/2/1970");
    EXPECT_EQ(again.OriginDate(), "8:30:00 PM");
    EXPECT_TRUE(again.Deleted());
    EXPECT_TRUE(again.Locked());
    EXPECT_TRUE(again.Save());
    EXPECT_TRUE(again.Stored());
    db->quietly("Insert Into Attachment (AttachmentID) Values (2)");
    again.AttachmentID(2);
    EXPECT_TRUE(again.Save());
    EXPECT_TRUE(again.Stored());
    EXPECT_EQ(rows("Select EncounterID, Description, EntryDate, Locked From Attachment Where AttachmentID=2"),
              "NULL|NULL|NULL|NULL");
}

TEST_F(AttachmentTest, IsStoredOnceAlsoWhenTheAnswerWasLost) {
    attachment.EntryDate("2 January, 1970");
    attachment.Locked(true);
    db->loseAnswerOf = "Insert";
    EXPECT_TRUE(attachment.Save());
    EXPECT_TRUE(attachment.AttachmentID().isEmpty());
    EXPECT_FALSE(attachment.Stored());
    db->Reset();
    EXPECT_TRUE(attachment.Save());
    EXPECT_TRUE(attachment.Stored());
    EXPECT_EQ(rows("Select AttachmentID, EncounterID, Locked From Attachment"), "1|12|True");
}

TEST_F(AttachmentTest, LeavesARowAloneWhoseNumberIsAnotherEncountersByNow) {
    ASSERT_TRUE(attachment.Save());
    Attachment loaded;
    loaded.Connection(db);
    loaded.AttachmentID(1);
    db->quietly("Update Attachment Set EncounterID=13, Description='theirs'");
    for (Attachment* each : {&attachment, &loaded}) {
        EXPECT_TRUE(each->Save());
        EXPECT_FALSE(each->Stored());
        EXPECT_FALSE(each->Delete());
    }
    EXPECT_EQ(rows("Select EncounterID, Description From Attachment"), "13|theirs");
    EXPECT_THAT(dir.read("ERR.txt"), HasSubstr("Error in Attachment.SaveObjectToDatabase: The stored row is "
                                               "no longer there, or no longer this record's, aborting!\n"));
}

TEST_F(AttachmentTest, IsLockedUnlessPlainlyNot) {
    db->quietly("Drop Table Attachment");
    db->quietly("Create Table Attachment (AttachmentID INTEGER PRIMARY KEY, Deleted BOOLEAN, Locked TEXT)");
    const std::pair<std::string, bool> cases[] = {{"Null", false},    {"''", false},     {"'0'", false},
                                                  {"'False'", false}, {"'false'", true}, {"'1'", true},
                                                  {"'True'", true},   {"'no'", true}};
    for (int id = 0; const auto& [stored, locked] : cases) {
        const std::string key = std::to_string(++id);
        db->quietly("Insert Into Attachment (AttachmentID, Deleted, Locked) Values (" + key + ", Null, " +
                    stored + ")");
        attachment.AttachmentID(key);
        EXPECT_EQ(attachment.Locked(), locked) << stored;
        EXPECT_FALSE(attachment.Deleted());
    }
}

TEST_F(AttachmentTest, NumbersItsCategoriesFromZeroAndListsThemFromOne) {
    attachment.CategoryID("3");
    EXPECT_EQ(attachment.Category(), "Image Series");
    attachment.CategoryID("0");
    EXPECT_EQ(attachment.Category(), "Audio");
    for (const char* outside : {"7", "-1", "", "Image", "40000"}) {
        attachment.CategoryID(outside);
        EXPECT_EQ(errorOf([&] { attachment.Category(); }), RuntimeError::SubscriptOutOfRange) << outside;
    }
    const Variant pairs = attachment.ListCategories();
    std::string text;
    for (const Variant& element : pairs.array().elements)
        text += element.asText() + ";";
    EXPECT_EQ(text, "Audio;1;Audio-Video;2;Image;3;Image Series;4;Text;5;Video;6;Other;7;");
}

TEST_F(AttachmentTest, TakesOnlyDatesForItsDates) {
    attachment.EntryDate("soon");
    EXPECT_EQ(attachment.EntryDate(), "");
    attachment.EntryDate("1/2/2026");
    attachment.EntryDate("2026-01-02");
    attachment.EntryDate("");
    EXPECT_EQ(attachment.EntryDate(), "1/2/2026");
    attachment.EntryDate("2026-01-03");
    EXPECT_EQ(attachment.EntryDate(), "2026-01-03");
}

TEST_F(AttachmentTest, FindsAndHarmsNothingWithAnIdentifierThatIsNoNumber) {
    db->quietly("Insert Into Attachment (AttachmentID, EncounterID, Description) Values (1, 12, 'kept')");
    const Variant identifiers[] = {"1 Or 1=1",     "1;Delete From Attachment", "x", "-", "1.5", 2.5, "",
                                   Variant::null()};
    for (const Variant& id : identifiers) {
        attachment.AttachmentID(id);
        EXPECT_EQ(attachment.Description(), "");
        EXPECT_FALSE(attachment.Delete());
        if (id.textOrEmpty().empty()) continue;
        EXPECT_TRUE(attachment.Save());
        EXPECT_FALSE(attachment.Stored());
    }
    EXPECT_THAT(db->statements, IsEmpty());
    EXPECT_THAT(user->boxes, IsEmpty());
    attachment.AttachmentID(" 1 ");
    EXPECT_EQ(attachment.Description(), "kept");
}

TEST_F(AttachmentTest, TellsTheMessageLogThatThereIsNothingToDelete) {
    ASSERT_TRUE(attachment.Save());
    db->statements.clear();
    EXPECT_TRUE(attachment.Delete());
    EXPECT_EQ(db->statements, statementsOf("attachment deleted"));
    EXPECT_FALSE(attachment.Delete());
    EXPECT_THAT(user->boxes, IsEmpty());
    ASSERT_TRUE(bLogInit(dir.path(), 1));
    EXPECT_FALSE(attachment.Delete());
    logClose();
    EXPECT_THAT(user->boxes, ElementsAre(ShownBox{"AttachmentID doesn't exist, aborting!", 0,
                                                  "Attachment:DeleteObjectFromDatabase"}));
}

TEST_F(AttachmentTest, DoesNotSaveWhatIsInvalidOrCouldNotBeRead) {
    attachment.EncounterID(-1);
    EXPECT_FALSE(attachment.Save());
    attachment.EncounterID(12);
    db->failOn = "Max(";
    EXPECT_FALSE(attachment.Save());
    db->failOn.clear();
    db->failOn = "Insert";
    ASSERT_TRUE(attachment.Save());
    db->failOn.clear();
    ASSERT_TRUE(attachment.Save());
    db->failOn = "select *";
    attachment.AttachmentID("1");
    db->failOn.clear();
    EXPECT_FALSE(attachment.Save());
    EXPECT_EQ(rows("Select EncounterID From Attachment"), "12");
    const std::string log = dir.read("ERR.txt"), prefix = "Error in Attachment.SaveObjectToDatabase: ";
    EXPECT_THAT(log, HasSubstr(prefix + "Invalid EncounterID, aborting!\n"));
    EXPECT_THAT(log, HasSubstr(prefix + "3604 disk I/O error\n"));
    EXPECT_THAT(log, HasSubstr(prefix + "The stored row could not be read, aborting!\n"));
}
