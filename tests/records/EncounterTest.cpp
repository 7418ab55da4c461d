#include <korvane/records/Encounter.h>
#include <korvane/records/RecordRow.h>

#include "support/CaseTable.h"
#include "support/Errors.h"
#include "support/ScratchClinic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using namespace Korvane;
using namespace Korvane::Testing;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class EncounterTest : public ::testing::Test, protected ScratchClinic {
  protected:
    Encounter made() const {
        Encounter fresh;
        fresh.Connection(db);
        fresh.PatientID("P-0042");
        fresh.ProviderID(3);
        fresh.Description("it's");
        return fresh;
    }

    /// The lines of the error log without their date and time.
    std::string errors() const {
        std::string lines = dir.read("ERR.txt");
        const std::string stamp = "11/15/2026 5:21:51 PM ";
        for (std::size_t at; (at = lines.find(stamp)) != std::string::npos;)
            lines.erase(at, stamp.size());
        return lines;
    }

    Encounter encounter = made();
    int raised = 0;
    EventHandle listener = encounter.SavedNewEncounter.connect([this] { ++raised; });
};

TEST_F(EncounterTest, InsertsOnceAndUpdatesFromThenOn) {
    db->quietly("Insert Into Encounter (EncounterID) Values (11)");
    std::int32_t announced = 0;
    const auto hearing = encounter.SavedNewEncounter.connect([&] { announced = encounter.EncounterID(); });
    EXPECT_FALSE(encounter.Stored());
    ASSERT_TRUE(encounter.Save());
    EXPECT_TRUE(encounter.Stored());
    EXPECT_EQ(announced, 12);

    encounter.Description("");
    encounter.EncounterDate(Date::of(2026, 1, 2));
    encounter.Outgoing(false);
    encounter.LocationID(4);
    encounter.Transport(5);
    encounter.MethodID(2);
    ASSERT_TRUE(encounter.Save());
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(db->statements, statementsOf("encounter saved"));
    EXPECT_EQ(rows("Select * From Encounter Where EncounterID=12"), "12|2|P-0042|3|0|4|1/2/2026|False||5");
}

TEST_F(EncounterTest, LoadsWhatWasSavedByteForByte) {
    const std::string hostile = "'); Drop Table Encounter; --\n\t\"[x]\" \xC3\xA9 % _ ?";
    encounter.PatientID(hostile);
    encounter.Description(hostile + "'");
    ASSERT_TRUE(encounter.Save());
    EXPECT_EQ(encounter.EncounterID(), 1);
    db->quietly("Update Encounter Set ForeignProviderID=77 Where EncounterID=1");

    Encounter again;
    again.Connection(db);
    again.EncounterID(1);
    EXPECT_EQ(db->statements.back(), "select * from Encounter Where EncounterID=1");
    EXPECT_EQ(again.PatientID(), hostile);
    EXPECT_EQ(again.Description(), hostile + "'");
    EXPECT_EQ(again.ProviderID(), 3);
    EXPECT_EQ(again.EncounterDate().text(), "11/15/2026 5:21:51 PM");
    ASSERT_TRUE(again.Save());
    EXPECT_EQ(rows("Select ForeignProviderID, Outgoing From Encounter"), "77|True");
}

TEST_F(EncounterTest, RefusesWhatIsInvalid) {
    const std::pair<std::string, std::function<void(Encounter&)>> invalid[] = {
        {"EncounterMethodID", [](Encounter& each) { each.MethodID(-1); }},
        {"PatientID", [](Encounter& each) { each.PatientID(""); }},
        {"ProviderID", [](Encounter& each) { each.ProviderID(-1); }},
        {"LocationID", [](Encounter& each) { each.LocationID(-1); }},
    };
    for (const auto& [column, spoil] : invalid) {
        Encounter spoilt = encounter;
        spoil(spoilt);
        EXPECT_FALSE(spoilt.Save());
        EXPECT_THAT(errors(),
                    EndsWith("Error in Encounter.SaveObjectToDatabase: Invalid " + column + ", aborting!\n"));
    }
    EXPECT_THAT(db->statements, IsEmpty());
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(EncounterTest, NeverTakesAnIdentifierThatItCouldNotFind) {
    db->failOn = "Max(";
    EXPECT_FALSE(encounter.Save());
    EXPECT_THAT(errors(), HasSubstr("Error in Encounter.SaveObjectToDatabase: 3604 disk I/O error\n"));
    db->failOn.clear();
    EXPECT_EQ(nextIdentifier(db, "Select EncounterID as MaxID From Encounter", ""), std::nullopt) << "no row";
    db->quietly("Insert Into Encounter (EncounterID) Values (2147483647)");
    EXPECT_FALSE(encounter.Save());
    EXPECT_THAT(errors(), HasSubstr("Error in Encounter.SaveObjectToDatabase: 6 "));
    EXPECT_EQ(encounter.EncounterID(), -1);
    EXPECT_EQ(raised, 0);
    EXPECT_EQ(rows("Select EncounterID From Encounter"), "2147483647");
}

TEST_F(EncounterTest, NumbersFromOneWhateverTheTableHolds) {
    db->quietly("Insert Into Encounter (EncounterID) Values (-2)");
    encounter.Save();
    EXPECT_EQ(encounter.EncounterID(), 1);
    db->quietly("Drop Table Encounter");
    db->quietly("Create Table Encounter (EncounterID BIGINT PRIMARY KEY, EncounterMethodID INTEGER, "
                "PatientID TEXT, ProviderID INTEGER, ForeignProviderID INTEGER, LocationID INTEGER, "
                "EncounterDate TIMESTAMP, Outgoing BOOLEAN, Description TEXT, Transport INTEGER)");
    EXPECT_TRUE(made().Save());
    EXPECT_EQ(rows("Select EncounterID From Encounter"), "1");
}

TEST_F(EncounterTest, KeepsAListenersErrorToItself) {
    const auto failing =
        encounter.SavedNewEncounter.connect([] { throw RuntimeError(RuntimeError::Overflow); });
    EXPECT_TRUE(encounter.Save());
    EXPECT_TRUE(encounter.Stored());
    EXPECT_EQ(errors(), "Error in Encounter.SaveObjectToDatabase: Overflow\n");
}

TEST_F(EncounterTest, TellsApartWhatIsStoredAndWhatIsNot) {
    encounter.EncounterDate(Date(3e6)); // beyond what has a text
    std::int32_t announced = 0;
    const auto hearing = encounter.SavedNewEncounter.connect([&] { announced = encounter.EncounterID(); });
    EXPECT_TRUE(encounter.Save());
    EXPECT_FALSE(encounter.Stored());
    EXPECT_EQ(announced, -1);
    EXPECT_EQ(db->statements.size(), 1u) << "an insert list that is not whole was run";
    encounter.EncounterDate(Date(1));
    db->failOn = "Insert";
    db->failure = RuntimeError(RuntimeError::DuplicateKey);
    EXPECT_TRUE(encounter.Save());
    EXPECT_FALSE(encounter.Stored());
    EXPECT_TRUE(encounter.KeyTaken());
    EXPECT_EQ(announced, -1) << "the identifier is somebody else's";
    EXPECT_EQ(raised, 2);
    EXPECT_THAT(user->boxes, SizeIs(2));

    // Somebody else has taken the number meanwhile.
    db->failOn.clear();
    db->quietly("Insert Into Encounter (EncounterID, PatientID) Values (1, 'other')");
    encounter.Delete();
    EXPECT_TRUE(encounter.Save());
    EXPECT_TRUE(encounter.Stored());
    EXPECT_EQ(raised, 3);
    EXPECT_TRUE(encounter.Save());
    EXPECT_EQ(rows("Select EncounterID, PatientID From Encounter Order By EncounterID"), "1|other 2|P-0042");

    db->quietly("Delete From Encounter");
    EXPECT_TRUE(encounter.Save());
    EXPECT_FALSE(encounter.Stored());
    EXPECT_EQ(rows("Select * From Encounter"), "");
}

TEST_F(EncounterTest, IsStoredOnceAlsoWhenNobodyCouldSayWhetherItWas) {
    for (const bool carriedOut : {true, false}) {
        Encounter lost = made();
        db->loseAnswerOf = "Insert";
        db->carriedOut = carriedOut;
        EXPECT_TRUE(lost.Save());
        EXPECT_FALSE(lost.Stored());
        EXPECT_EQ(lost.EncounterID(), -1);
        EXPECT_FALSE(lost.Save()) << "it cannot be looked for yet";
        db->Reset();
        lost.Description("changed meanwhile");
        EXPECT_TRUE(lost.Save());
        EXPECT_TRUE(lost.Stored());
        EXPECT_EQ(rows("Select EncounterID, Description From Encounter"), "1|changed meanwhile");
        db->quietly("Delete From Encounter");
    }
    EXPECT_THAT(errors(), HasSubstr("Whether the row was stored before could not be read, aborting!\n"));

    // One that was loaded since has not been inserted: what it was before must not be taken for it.
    Encounter moved = encounter;
    EXPECT_TRUE(moved.Save());
    db->quietly("Insert Into Encounter (EncounterID, PatientID, ProviderID) Values (2, 'P', 3)");
    moved.EncounterID(2);
    moved.MayBeStored(Encounter(moved));
    EXPECT_TRUE(moved.Settle());
    EXPECT_EQ(moved.EncounterID(), 2);
    db->quietly("Delete From Encounter");

    // A row that another desk has inserted under that number is left alone.
    db->loseAnswerOf = "Insert";
    EXPECT_TRUE(encounter.Save());
    db->Reset();
    db->quietly("Insert Into Encounter (EncounterID, PatientID) Values (1, 'P-0042')");
    EXPECT_TRUE(encounter.Save());
    EXPECT_EQ(encounter.EncounterID(), 2);
}

TEST_F(EncounterTest, IsEmptyWithoutARowAndTakesNullsForNothing) {
    encounter.EncounterID(5);
    EXPECT_EQ(encounter.PatientID(), "");
    EXPECT_EQ(encounter.ProviderID(), 0);
    EXPECT_EQ(encounter.EncounterDate(), Date());

    db->quietly("Insert Into Encounter (EncounterID, Description) Values (6, 'nulls')");
    encounter.EncounterID(6);
    EXPECT_EQ(encounter.Description(), "nulls");
    EXPECT_EQ(encounter.EncounterDate(), Date());
    EXPECT_EQ(errors(), "");
    EXPECT_THAT(user->boxes, IsEmpty());
}

TEST_F(EncounterTest, ReadsAForeignRowAsFarAsItFits) {
    db->quietly("Drop Table Encounter");
    db->quietly(
        "Create Table Encounter (EncounterID INTEGER PRIMARY KEY, EncounterMethodID TEXT, PatientID TEXT, "
        "ProviderID DOUBLE, ForeignProviderID INTEGER, LocationID INTEGER, EncounterDate TEXT, "
        "Outgoing INTEGER, Description TEXT, Transport INTEGER)");
    db->quietly(
        "Insert Into Encounter (EncounterID, EncounterMethodID, PatientID, ProviderID, EncounterDate, "
        "Description) Values (7, 'odd', 'P', 9000000000.0, 'never', 'last')");
    encounter.EncounterID(7);
    EXPECT_EQ(encounter.PatientID(), "P");
    EXPECT_EQ(encounter.ProviderID(), 0);
    EXPECT_EQ(encounter.EncounterDate(), Date());
    EXPECT_EQ(encounter.Description(), "last");
    std::string line = "Error in Encounter.LoadObjectFromDatabase: [^\n]+\n";
    EXPECT_THAT(errors(), ::testing::MatchesRegex(line + line + line));

    encounter.Description("new");
    EXPECT_TRUE(encounter.Save());
    const std::string columns =
        "Select EncounterMethodID, ProviderID, EncounterDate, Outgoing, Description From ";
    EXPECT_EQ(rows(columns + "Encounter"), "odd|9000000000|never|NULL|new");
    encounter.ProviderID(4);
    encounter.Save();
    encounter.ProviderID(0);
    EXPECT_TRUE(encounter.Save());
    EXPECT_TRUE(encounter.Stored());
    EXPECT_EQ(rows(columns + "Encounter"), "odd|0|never|NULL|new") << "0 is a value of its own by now";
}

TEST_F(EncounterTest, DoesNotOverwriteARowThatItCouldNotRead) {
    db->quietly("Insert Into Encounter (EncounterID, Description) Values (1, 'precious')");
    db->failOn = "select *";
    encounter.EncounterID(1);
    db->failOn.clear();
    encounter.PatientID("P");
    EXPECT_FALSE(encounter.Save());
    EXPECT_EQ(errors(),
              "Error in Encounter.SaveObjectToDatabase: The stored row could not be read, aborting!\n");
    EXPECT_EQ(rows("Select Description From Encounter"), "precious");
}

TEST_F(EncounterTest, LeavesARowAloneWhoseNumberIsAnotherPatientsByNow) {
    ASSERT_TRUE(encounter.Save());
    Encounter loaded = made(), missing = made();
    loaded.EncounterID(1);
    missing.EncounterID(2);
    db->quietly("Delete From Encounter");
    for (const char* row : {"(1, 'Bert')", "(2, 'Carl')"})
        db->quietly("Insert Into Encounter (EncounterID, PatientID) Values " + std::string(row));
    missing.PatientID("Carl");
    missing.ProviderID(3);
    for (Encounter* each : {&encounter, &loaded, &missing}) {
        EXPECT_TRUE(each->Save());
        EXPECT_FALSE(each->Stored());
        EXPECT_TRUE(each->Gone());
        each->Delete();
    }
    EXPECT_EQ(rows("Select EncounterID, PatientID, ProviderID From Encounter Order By EncounterID"),
              "1|Bert|NULL 2|Carl|NULL");
    const std::string why = "The stored row is no longer there, or no longer this record's, aborting!\n";
    std::string expected;
    for (int i = 0; i < 3; ++i)
        expected += "Error in Encounter.SaveObjectToDatabase: " + why +
                    "Error in Encounter.DeleteObjectFromDatabase: " + why;
    EXPECT_EQ(errors(), expected);
    EXPECT_EQ(db->transactionLevel(), 0);
}

TEST_F(EncounterTest, FollowsItsRowToAnotherPatient) {
    db->quietly("Insert Into Encounter (EncounterID) Values (1)");
    encounter.EncounterID(1);
    encounter.ProviderID(3);
    for (const char* patient : {"Anna", "O'Hara", "O'Hara", "Bert"}) {
        encounter.PatientID(patient);
        EXPECT_TRUE(encounter.Save());
        EXPECT_TRUE(encounter.Stored()) << patient;
    }
    EXPECT_EQ(rows("Select PatientID From Encounter"), "Bert");
    encounter.Delete();
    db->quietly("Insert Into Encounter (EncounterID, PatientID) Values (1, 'Bert')");
    EXPECT_TRUE(encounter.Save());
    EXPECT_FALSE(encounter.Stored()) << "it deleted its own row";
}

TEST_F(EncounterTest, ChangesNothingWhenItsTransactionFails) {
    ASSERT_TRUE(encounter.Save());
    encounter.PatientID("Bert");
    db->failAfter = 2; // the check and the update, but not the commit
    EXPECT_TRUE(encounter.Save());
    EXPECT_FALSE(encounter.Stored());
    EXPECT_THAT(user->boxes, SizeIs(1));
    EXPECT_EQ(rows("Select PatientID From Encounter"), "P-0042");
    EXPECT_TRUE(encounter.Save());
    EXPECT_TRUE(encounter.Stored());
    EXPECT_EQ(rows("Select PatientID From Encounter"), "Bert");
}

TEST_F(EncounterTest, DeletesItsRowAndIsNeverTrue) {
    encounter.Save();
    db->quietly("Insert Into Encounter (EncounterID) Values (2)");
    db->statements.clear();
    EXPECT_FALSE(encounter.Delete());
    EXPECT_EQ(db->statements, statementsOf("encounter deleted"));
    EXPECT_EQ(rows("Select EncounterID From Encounter"), "2");
    EXPECT_EQ(errors(), "");
    EXPECT_FALSE(encounter.Delete());
    EXPECT_EQ(errors(),
              "Error in Encounter.DeleteObjectFromDatabase: EncounterID doesn't exist, aborting!\n");
}

TEST_F(EncounterTest, HoldsItsAttachmentsByTheirIdentifiers) {
    db->quietly("Insert Into Attachment (AttachmentID, EncounterID, Description) Values (4, 1, 'four')");
    db->quietly("Insert Into Attachment (AttachmentID, EncounterID, Description) Values (9, 1, 'nine')");
    db->quietly("Insert Into Attachment (AttachmentID, EncounterID) Values (5, 2)");
    ASSERT_TRUE(encounter.Save());
    encounter.LoadAttachments();
    ASSERT_EQ(encounter.AttachmentCount(), 2);

    std::shared_ptr<Attachment> attachment;
    EXPECT_FALSE(encounter.AttachmentGet(2, attachment));
    EXPECT_EQ(attachment->Description(), "nine");
    EXPECT_EQ(errorOf([&] { encounter.AttachmentLet(attachment); }), RuntimeError::DuplicateKey);
    encounter.AttachmentLet(std::make_shared<Attachment>());
    EXPECT_EQ(encounter.AttachmentCount(), 3);
    EXPECT_TRUE(encounter.AttachmentGet(4, attachment));
    EXPECT_EQ(attachment, nullptr);
    EXPECT_THROW(encounter.AttachmentGet(0, attachment), RuntimeError);

    db->failOn = "Select AttachmentID";
    encounter.LoadAttachments();
    EXPECT_EQ(encounter.AttachmentCount(), 0);
}
