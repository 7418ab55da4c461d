#include "support/PanelDesk.h"
#include "support/PrivateServer.h"
#include "support/Relay.h"

#include <korvane/ado/Transaction.h>

#include <QApplication>

#include <gmock/gmock.h>

#include <chrono>
#include <future>
#include <optional>

namespace Korvane {

using namespace Testing;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using namespace std::chrono_literals;

namespace {

/// A desk that reaches a server of its own over a network of its own.
struct Ward {
    PrivateServer server;
    Relay network{server.socketFile()};
    std::optional<ServerInForce> inForce;
    std::optional<PanelDesk> desk;
    std::future<void> meanwhile; ///< what happens while the panel saves

    /// A new clinic.
    void open() {
        inForce.emplace("postgresql://clinic@" + network.host() +
                        "/postgres?statement_timeout=500&application_name=desk");
        desk.emplace();
    }

    /// Past the network.
    std::shared_ptr<ado::Connection> other() const {
        const std::string given = desk->address();
        return ado::open(server.address("options=" + given.substr(given.find("-csearch_path"))));
    }
    void run(std::string_view statement) const { other()->Execute(statement); }
    std::string rows(std::string_view statement) const {
        const auto rs = ado::Recordset::create();
        rs->Open(statement, other());
        std::string text;
        for (; !rs->Eof(); rs->MoveNext())
            text += (text.empty() ? "" : " ") + rs->Value(0).text();
        return text;
    }

    /// Lets every row that is written to a table do this first.
    void before(const std::string& event, const std::string& body) const {
        run("Create Or Replace Function hinder() Returns Trigger Language plpgsql As 'Begin " + body +
            " Return New; End'");
        run("Create Trigger hinder Before " + event + " For Each Row Execute Function hinder()");
    }
    void free() const { run("Drop Function hinder Cascade"); }

    void terminate() const {
        EXPECT_EQ(
            rows(
                "Select pg_terminate_backend(pid, 5000) From pg_stat_activity Where application_name='desk'"),
            "True");
    }
    /// As soon as the desk's statement sleeps or waits.
    void whileItWaits(std::function<void()> action) {
        meanwhile = std::async(std::launch::async, [this, action = std::move(action)] {
            const auto watch = ado::open(server.address());
            const auto waiting = [&] {
                const auto rs = ado::Recordset::create();
                rs->Open("Select Count(*) From pg_stat_activity Where application_name='desk' And "
                         "(wait_event='PgSleep' Or wait_event_type='Lock')",
                         watch);
                return rs->Value(0).text() != "0";
            };
            for (int i = 0; i < 2000 && !waiting(); ++i)
                std::this_thread::sleep_for(2ms);
            action();
        });
    }
};

struct Fault {
    const char* name;
    std::function<void(Ward&)> begin;
    std::function<void(Ward&)> end;
    const char* says; ///< in one of the boxes
};

const auto nothing = [](Ward&) {};
const auto free = [](Ward& ward) { ward.free(); };
const auto resume = [](Ward& ward) { ward.network.resume(); };
const auto lost = "connection to the database server was lost";

Fault refusing(const char* name, const char* body, const char* says) {
    return {name, [body](Ward& ward) { ward.before("Insert Or Update On NIP_Custom1", body); }, free, says};
}

Fault stopped(const char* name, const char* mode) {
    return {name,
            [mode](Ward& ward) {
                ward.before("Insert Or Update On NIP_Custom1", "Perform pg_sleep(1);");
                ward.whileItWaits([&ward, mode] { ward.server.stop(mode); });
            },
            [](Ward& ward) {
                ward.server.start();
                ward.free();
            },
            lost};
}

Fault network(const char* name, const char* text, Relay::Fate fate, const char* says) {
    return {name, [=](Ward& ward) { ward.network.on(text, fate); }, resume, says};
}

const std::vector<Fault>& faults() {
    static const std::vector<Fault> all{
        {"stopped before", [](Ward& ward) { ward.server.stop("fast"); },
         [](Ward& ward) { ward.server.start(); }, lost},
        {"crashed before and up again", [](Ward& ward) { ward.server.restart("immediate"); }, nothing, lost},
        stopped("stopped while saving", "fast"),
        stopped("crashed while saving", "immediate"),
        {"terminated before", [](Ward& ward) { ward.terminate(); }, nothing, lost},
        {"terminated while saving",
         [](Ward& ward) {
             ward.before("Insert Or Update On NIP_Custom1", "Perform pg_sleep(1);");
             ward.whileItWaits([&ward] { ward.terminate(); });
         },
         free, lost},
        refusing("a trigger", "Raise Exception ''not on Sundays'';", "not on Sundays"),
        refusing("a full disk", "Raise Exception ''could not extend'' Using Errcode=''53100'';",
                 "no room left"),
        refusing("too slow", "Perform pg_sleep(5);", "longer than it is given"),
        {"a check",
         [](Ward& ward) { ward.run("Alter Table NIP_Custom1 Add Constraint young Check (Pulse<>'80')"); },
         [](Ward& ward) { ward.run("Alter Table NIP_Custom1 Drop Constraint young"); }, "young"},
        {"too long", [](Ward& ward) { ward.run("Alter Table Encounter Alter Description Type VarChar(6)"); },
         [](Ward& ward) { ward.run("Alter Table Encounter Alter Description Type Text"); },
         "longer than its column"},
        {"refused at the very end",
         [](Ward& ward) {
             ward.run("Create Function hinder() Returns Trigger Language plpgsql As "
                      "'Begin Raise Exception ''too late''; End'");
             ward.run("Create Constraint Trigger hinder After Insert Or Update On NIP_Custom1 "
                      "Deferrable Initially Deferred For Each Row Execute Function hinder()");
         },
         free, "too late"},
        {"read-only", [](Ward& ward) { ward.desk->db->quietly("Set default_transaction_read_only=on"); },
         [](Ward& ward) { ward.desk->db->quietly("Set default_transaction_read_only=off"); }, "read-only"},
        network("hangs while saving", "First visit", Relay::HoldRequest, "not answered in time"),
        network("is cut while saving", "First visit", Relay::LoseAnswer, lost),
    };
    return all;
}

void expectAtRest(PanelDesk& desk) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(desk.panel.updatesEnabled());
    EXPECT_EQ(desk.db->transactionLevel(), 0);
}

void expectKept(PanelDesk& desk) {
    EXPECT_THAT(desk.heard, IsEmpty());
    EXPECT_TRUE(desk.panel.isModified());
    EXPECT_EQ(desk.description().text(), "First visit");
    EXPECT_EQ(desk.pulse().text(), "80");
    EXPECT_EQ(desk.providers().currentIndex(), 0);
    expectAtRest(desk);
}

/// Another desk changes the values of the encounter, and what then happens while the panel waits for it.
Fault contended(const char* name, const char* setting, const char* says,
                std::function<void(ado::Connection&)> action) {
    auto rival = std::make_shared<std::shared_ptr<ado::Connection>>();
    return {name,
            [=](Ward& ward) {
                ward.desk->db->quietly(setting);
                *rival = ward.other();
                (*rival)->BeginTrans();
                (*rival)->Execute("Update NIP_Custom1 Set Pulse='72'");
                ward.whileItWaits([=] { action(**rival); });
            },
            [=](Ward&) {
                if ((*rival)->transactionLevel() > 0) (*rival)->RollbackTrans();
            },
            says};
}

} // namespace

class FaultsOfAServer : public testing::Test {
  protected:
    void SetUp() override {
        if (!PrivateServer::isInstalled()) GTEST_SKIP() << PrivateServer::notInstalled;
        mWard.emplace();
    }
    std::optional<Ward> mWard;
};

TEST_F(FaultsOfAServer, LoseNothingOfANewNip) {
    for (const Fault& c : faults()) {
        SCOPED_TRACE(c.name);
        mWard->open();
        PanelDesk& desk = *mWard->desk;
        desk.enterNewNip();
        c.begin(*mWard);
        desk.save();
        if (mWard->meanwhile.valid()) mWard->meanwhile.get();
        EXPECT_THAT(desk.user->boxes, Contains(Field(&ShownBox::text, HasSubstr(c.says))));
        expectKept(desk);
        c.end(*mWard);
        if (desk.db->State() == 0) {
            desk.user->boxes.clear();
            desk.save();
            EXPECT_THAT(desk.user->boxes, Contains(Field(&ShownBox::text, HasSubstr(lost)))) << "once more";
            expectKept(desk);
            desk.db->Reset();
        }
        EXPECT_EQ(mWard->rows("Select EncounterID From Encounter"), "7");
        EXPECT_EQ(mWard->rows("Select EncounterID From NIP_Custom1"), "7");
        desk.user->boxes.clear();
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
        EXPECT_THAT(desk.user->boxes, IsEmpty());
        EXPECT_EQ(mWard->rows("Select PatientID||Description From Encounter Where EncounterID>7"),
                  "P2First visit");
        EXPECT_EQ(mWard->rows("Select Pulse From NIP_Custom1 Where EncounterID=8"), "80");
    }
    // What was told to be stored is, whatever happens next.
    mWard->server.restart("immediate");
    EXPECT_FALSE(mWard->desk->panel.LoadNipInfo(8, "P2"));
    mWard->desk->db->Reset();
    EXPECT_TRUE(mWard->desk->panel.LoadNipInfo(8, "P2"));
    EXPECT_EQ(mWard->desk->pulse().text(), "80");
}

TEST_F(FaultsOfAServer, LoseNothingOfAnEditedNip) {
    const Fault cases[] = {
        contended("a deadlock", "Set deadlock_timeout=200", "another program was changing the same rows",
                  [](ado::Connection& rival) { rival.Execute("Update Encounter Set Transport=1"); }),
        contended("a lost race", "Set default_transaction_isolation='repeatable read'",
                  "another program was changing the same rows",
                  [](ado::Connection& rival) { rival.CommitTrans(); }),
        contended("another that holds the row", "Select 1", "longer than it is given",
                  [](ado::Connection&) {}),
        {"terminated before", [](Ward& ward) { ward.terminate(); }, nothing, lost},
        network("is cut while saving", "Renamed", Relay::LoseAnswer, lost),
        network("is cut before the commit", "Commit", Relay::LoseRequest, "not known"),
        network("is cut behind the commit", "Commit", Relay::LoseAnswer, "not known"),
    };
    for (const Fault& c : cases) {
        SCOPED_TRACE(c.name);
        mWard->open();
        PanelDesk& desk = *mWard->desk;
        ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
        desk.type(desk.description(), "Renamed");
        desk.type(desk.pulse(), "80");
        c.begin(*mWard);
        desk.save();
        if (mWard->meanwhile.valid()) mWard->meanwhile.get();
        EXPECT_THAT(desk.user->boxes, Contains(Field(&ShownBox::text, HasSubstr(c.says))));
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_EQ(desk.state(), "Saved Nip with changes that are not saved");
        EXPECT_EQ(desk.description().text() + desk.pulse().text(), "Renamed80");
        expectAtRest(desk);
        c.end(*mWard);
        if (desk.db->State() == 0) desk.db->Reset();
        EXPECT_THAT(mWard->rows("Select Description||Pulse From Encounter,NIP_Custom1"),
                    AnyOf("Visit72", "Renamed80"))
            << "whole or not at all";
        desk.user->boxes.clear();
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("renamed 7 Renamed 1/2/2026 3:04:05 PM", "closed"));
        EXPECT_THAT(desk.user->boxes, IsEmpty());
        EXPECT_EQ(mWard->rows("Select Description||Pulse From Encounter,NIP_Custom1"), "Renamed80");
    }
}

// Whether it is stored only the server knows, and it may not even have made up its mind.
TEST_F(FaultsOfAServer, AtTheCommitNeverStoreANipTwice) {
    const struct {
        const char* name;
        Relay::Fate fate;
        bool stored;
        bool taken = false; ///< another desk takes the number
    } cases[] = {
        {"it is not asked", Relay::LoseRequest, false},
        {"it is not asked, and another desk comes first", Relay::LoseRequest, false, true},
        {"its answer is lost", Relay::LoseAnswer, true},
        {"it is asked much later", Relay::HoldRequest, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        mWard->open();
        PanelDesk& desk = *mWard->desk;
        desk.enterNewNip();
        mWard->network.on("Commit", c.fate);
        desk.save();
        EXPECT_TRUE(mWard->network.sprung());
        EXPECT_THAT(desk.user->boxes, ElementsAre(Field(&ShownBox::text, HasSubstr("not known"))));
        expectKept(desk);
        EXPECT_EQ(mWard->rows("Select PatientID From Encounter Where EncounterID=8"), c.stored ? "P2" : "");
        desk.db->Reset();
        if (c.fate == Relay::HoldRequest) {
            desk.save();
            expectKept(desk);
            mWard->network.resume();
            while (mWard->rows("Select PatientID From Encounter Where EncounterID=8").empty())
                std::this_thread::sleep_for(2ms);
        }
        if (c.taken) mWard->run("Insert into Encounter (EncounterID,PatientID) values (8,'P5')");
        desk.user->boxes.clear();
        desk.type(desk.pulse(), "81");
        desk.save();
        EXPECT_THAT(desk.user->boxes, IsEmpty());
        EXPECT_THAT(desk.heard, ElementsAre(c.taken ? "created 9" : "created 8", "closed"));
        EXPECT_EQ(mWard->rows("Select EncounterID From Encounter Where PatientID='P2'"), c.taken ? "9" : "8");
        EXPECT_EQ(mWard->rows("Select Pulse From NIP_Custom1 Where EncounterID>7"), "81");
        mWard->network.resume();
    }
}

TEST_F(FaultsOfAServer, ShowNothingThatCouldNotBeRead) {
    mWard->open();
    PanelDesk& desk = *mWard->desk;
    const std::function<bool()> shows[] = {[&] { return desk.panel.LoadNipInfo(7, "P1"); },
                                           [&] { return desk.panel.CreateNip("P1"); }};
    for (const auto& show : shows) {
        mWard->terminate();
        for (const char* attempt : {"the first to notice", "the next"}) {
            SCOPED_TRACE(attempt);
            desk.user->boxes.clear();
            EXPECT_FALSE(show());
            EXPECT_THAT(desk.user->boxes, Contains(Field(&ShownBox::text, HasSubstr("could not be read"))));
            EXPECT_THAT(desk.user->boxes, Contains(Field(&ShownBox::text, HasSubstr("onnection"))));
            EXPECT_EQ(desk.state(), "No Nip is open");
            EXPECT_EQ(desk.pulse().text(), "");
            expectAtRest(desk);
        }
        desk.db->Reset();
        EXPECT_TRUE(show());
    }
}

} // namespace Korvane
