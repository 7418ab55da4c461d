#include "support/NipDatabase.h"
#include "support/PrivateServer.h"
#include "support/Relay.h"

#include <korvane/nip/cNIP.h>
#include <korvane/records/Attachment.h>
#include <korvane/records/Encounter.h>

#include <gmock/gmock.h>

#include <functional>
#include <optional>
#include <thread>

namespace Korvane {

using namespace Testing;
using testing::AnyOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// A clinic on a server of its own, over a network of its own.
struct FarClinic {
    PrivateServer server;
    Relay network{server.socketFile()};
    ServerInForce inForce{"postgresql://clinic@" + network.host() + "/postgres?statement_timeout=300"};
    NipDatabase clinic;
};

/// Something that is saved without a panel: its content holds the word "Marked".
struct Saved {
    std::function<bool()> save;
    std::function<bool()> isStored;
    const char* rows; ///< reads the word once for each row that has it
};

} // namespace

class RecordsOnAServer : public testing::Test {
  protected:
    void SetUp() override {
        if (!PrivateServer::isInstalled()) GTEST_SKIP() << PrivateServer::notInstalled;
        mFar.emplace();
        NipDatabase& clinic = mFar->clinic;
        clinic.group(2, "Vitals", "NIP_Custom1");
        clinic.field(2, "NIP_Custom1", "Pulse");
        clinic.encounter(7, "P1", "1/2/2026");
    }

    /// The line is lost with the save that is told of here; the next one is refused, and after `Reset` all is
    /// stored, once.
    void expectStoredOnce(const Saved& saved) {
        NipDatabase& clinic = mFar->clinic;
        saved.save();
        EXPECT_TRUE(mFar->network.sprung());
        EXPECT_FALSE(saved.isStored());
        EXPECT_EQ(clinic.db->State(), 0);
        EXPECT_EQ(clinic.db->transactionLevel(), 0);
        saved.save();
        EXPECT_FALSE(saved.isStored());
        clinic.db->Reset();
        EXPECT_THAT(clinic.rows(saved.rows), AnyOf("", "Marked"));
        EXPECT_TRUE(saved.save());
        EXPECT_TRUE(saved.isStored());
        EXPECT_EQ(clinic.rows(saved.rows), "Marked");
        EXPECT_TRUE(saved.save());
        EXPECT_EQ(clinic.rows(saved.rows), "Marked");
    }

    std::optional<FarClinic> mFar;
};

TEST_F(RecordsOnAServer, AreStoredOnceThoughTheLineIsLostWithThem) {
    for (const Relay::Fate fate : {Relay::LoseRequest, Relay::LoseAnswer}) {
        NipDatabase& clinic = mFar->clinic;
        Encounter encounter;
        encounter.Connection(clinic.db);
        encounter.PatientID("P2");
        encounter.ProviderID(1);
        encounter.EncounterDate(Clock::now());
        encounter.Description("Marked");
        mFar->network.on("Marked", fate);
        clinic.user->boxes.clear();
        expectStoredOnce({[&] { return encounter.Save(); }, [&] { return encounter.Stored(); },
                          "Select Description From Encounter Where PatientID='P2'"});
        EXPECT_THAT(clinic.user->boxes.front().text, HasSubstr("connection to the database server was lost"));
        EXPECT_EQ(encounter.EncounterID(), 8);

        Attachment attachment;
        attachment.Connection(clinic.db);
        attachment.EncounterID(8);
        attachment.Description("Marked");
        attachment.CategoryID("2");
        attachment.EntryDate("2 January, 1970");
        attachment.OriginDate("8:30 PM");
        attachment.Locked(true);
        mFar->network.on("Marked", fate);
        expectStoredOnce({[&] { return attachment.Save(); }, [&] { return attachment.Stored(); },
                          "Select Description From Attachment"});
        clinic.db->quietly("Delete From Encounter Where EncounterID=8");
        clinic.db->quietly("Delete From Attachment");
    }
}

TEST_F(RecordsOnAServer, ValuesOfAModelAreStoredWholeOrNotAtAll) {
    const struct {
        const char* text;
        Relay::Fate fate;
        const char* logged = "connection to the database server was lost";
    } cases[] = {{"Marked", Relay::LoseRequest},
                 {"Marked", Relay::LoseAnswer},
                 {"Commit", Relay::LoseRequest},
                 {"Commit", Relay::LoseAnswer},
                 {"Marked", Relay::HoldAnswer, "not answered in time"}};
    NipDatabase& clinic = mFar->clinic;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        clinic.db->quietly("Delete From NIP_Custom1");
        cNIP nip;
        ASSERT_TRUE(nip.LoadStructure(clinic.db));
        ASSERT_TRUE(nip.Load(7, "P1", false));
        nip.value(1, 1, "Marked");
        mFar->network.on(c.text, c.fate);
        bool stored = false;
        expectStoredOnce(
            {[&] { return stored = nip.Save(); }, [&] { return stored; }, "Select Pulse From NIP_Custom1"});
        EXPECT_THAT(clinic.errorLog(), HasSubstr(std::string("Error in cNip.Save: The ")));
        EXPECT_THAT(clinic.errorLog(), HasSubstr(c.logged));
        mFar->network.resume();
    }
}

} // namespace Korvane
