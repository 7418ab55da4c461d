#include "support/PanelDesk.h"
#include "support/PrivateServer.h"
#include "support/Relay.h"

#include <QApplication>

#include <chrono>
#include <future>
#include <optional>

namespace Korvane {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
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

    std::string stored() const {
        return rows("Select EncounterID||'|'||PatientID||'|'||Description From Encounter Order By "
                    "EncounterID") +
               ", " + rows("Select EncounterID||'|'||Pulse From NIP_Custom1 Order By EncounterID");
    }

    /// Lets every row of values that is written do this first, or at the commit.
    void hinder(const std::string& body, bool atCommit = false) const {
        run("Create Or Replace Function hinder() Returns Trigger Language plpgsql As 'Begin " + body +
            " Return New; End'");
        run(std::string("Create ") +
            (atCommit ? "Constraint Trigger hinder After" : "Trigger hinder Before") +
            " Insert Or Update On NIP_Custom1 " + (atCommit ? "Deferrable Initially Deferred " : "") +
            "For Each Row Execute Function hinder()");
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
            const auto waiting = [&] {
                return rows("Select Count(*) From pg_stat_activity Where application_name='desk' And "
                            "(wait_event='PgSleep' Or wait_event_type='Lock')") != "0";
            };
            for (int i = 0; i < 2000 && !waiting(); ++i)
                std::this_thread::sleep_for(2ms);
            action();
        });
    }
};

/// What a user does, and what is stored before and behind.
struct Task {
    std::function<void(PanelDesk&)> enter;
    const char* told;
    const char* stored;
};
const auto* const before = "7|P1|Visit, 7|72";
const Task aNewNip{[](PanelDesk& desk) { desk.enterNewNip(); }, "created 8",
                   "7|P1|Visit 8|P2|First visit, 7|72 8|80"};
const Task anEditedNip{[](PanelDesk& desk) { desk.does("Load; description=Renamed; pulse=80"); },
                       "renamed 7 Renamed 1/2/2026 3:04:05 PM", "7|P1|Renamed, 7|80"};

struct Fault {
    const char* name;
    const Task& task;
    std::function<void(Ward&)> begin;
    std::function<void(Ward&)> end;
    const char* says; ///< in one of the boxes
};

const auto nothing = [](Ward&) {};
const auto free = [](Ward& ward) { ward.free(); };
const auto* const lost = "connection to the database server was lost";
const auto* const notKnown = "not known";

Fault refusing(const char* name, const char* body, const char* says, bool atCommit = false) {
    return {name, aNewNip, [=](Ward& ward) { ward.hinder(body, atCommit); }, free, says};
}

Fault network(const char* name, const Task& task, const char* text, Relay::Fate fate, const char* says) {
    return {name, task, [=](Ward& ward) { ward.network.on(text, fate); },
            [](Ward& ward) { ward.network.resume(); }, says};
}

/// Another desk holds the values of the encounter, waits for the panel, and goes on in the end.
Fault deadlock() {
    auto rival = std::make_shared<std::shared_ptr<ado::Connection>>();
    return {"a deadlock", anEditedNip,
            [=](Ward& ward) {
                ward.desk->db->quietly("Set deadlock_timeout=200");
                *rival = ward.other();
                (*rival)->BeginTrans();
                (*rival)->Execute("Update NIP_Custom1 Set Pulse='72'");
                ward.whileItWaits([=] { (*rival)->Execute("Update Encounter Set Transport=1"); });
            },
            [=](Ward&) { (*rival)->RollbackTrans(); }, "another program was changing the same rows"};
}

const std::vector<Fault>& faults() {
    static const std::vector<Fault> all{
        {"stopped before", aNewNip, [](Ward& ward) { ward.server.stop("fast"); },
         [](Ward& ward) { ward.server.start(); }, lost},
        {"crashed while saving", aNewNip,
         [](Ward& ward) {
             ward.hinder("Perform pg_sleep(1);");
             ward.whileItWaits([&ward] { ward.server.stop("immediate"); });
         },
         [](Ward& ward) {
             ward.server.start();
             ward.free();
         },
         lost},
        refusing("a trigger", "Raise Exception ''not on Sundays'';", "not on Sundays"),
        refusing("a full disk", "Raise Exception ''could not extend'' Using Errcode=''53100'';",
                 "no room left"),
        refusing("refused at the very end", "Raise Exception ''too late'';", "too late", true),
        network("hangs while saving", aNewNip, "First visit", Relay::HoldRequest, "not answered in time"),
        network("is cut while saving", aNewNip, "First visit", Relay::LoseAnswer, lost),
        deadlock(),
        {"terminated before", anEditedNip, [](Ward& ward) { ward.terminate(); }, nothing, lost},
        network("is cut before the commit", anEditedNip, "Commit", Relay::LoseRequest, notKnown),
        network("is cut behind the commit", anEditedNip, "Commit", Relay::LoseAnswer, notKnown),
    };
    return all;
}

void expectAtRest(PanelDesk& desk) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(desk.panel.updatesEnabled());
    EXPECT_EQ(desk.db->transactionLevel(), 0);
}

void expectKept(PanelDesk& desk, const std::string& shown) {
    EXPECT_THAT(desk.heard, IsEmpty());
    EXPECT_TRUE(desk.panel.isModified());
    EXPECT_EQ(desk.shown(), shown);
    EXPECT_EQ(desk.providers().currentIndex(), 0);
    expectAtRest(desk);
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

TEST_F(FaultsOfAServer, LoseNothingOfANip) {
    for (const Fault& c : faults()) {
        SCOPED_TRACE(c.name);
        mWard->open();
        PanelDesk& desk = *mWard->desk;
        c.task.enter(desk);
        const std::string shown = desk.shown();
        c.begin(*mWard);
        desk.save();
        if (mWard->meanwhile.valid()) mWard->meanwhile.get();
        EXPECT_THAT(desk.told(), Contains(says(c.says)));
        expectKept(desk, shown);
        c.end(*mWard);
        if (desk.db->State() == 0) {
            desk.save();
            EXPECT_THAT(desk.told(), Contains(says(lost))) << "once more";
            expectKept(desk, shown);
            desk.db->Reset();
        }
        const std::string stored = mWard->stored();
        EXPECT_TRUE(stored == before || (c.says == notKnown && stored == c.task.stored)) << stored;
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre(c.task.told, "closed"));
        EXPECT_THAT(desk.told(), IsEmpty());
        EXPECT_EQ(mWard->stored(), c.task.stored);
    }
    // What was told to be stored is, whatever happens next.
    mWard->server.restart("immediate");
    EXPECT_FALSE(mWard->desk->load());
    mWard->desk->db->Reset();
    EXPECT_TRUE(mWard->desk->load());
    EXPECT_EQ(mWard->desk->shown(), "Saved Nip: Renamed|80");
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
        const std::string shown = desk.shown();
        mWard->network.on("Commit", c.fate);
        desk.save();
        EXPECT_TRUE(mWard->network.sprung());
        EXPECT_THAT(desk.told(), ElementsAre(says(notKnown)));
        expectKept(desk, shown);
        EXPECT_EQ(mWard->stored(), c.stored ? aNewNip.stored : before);
        desk.db->Reset();
        if (c.fate == Relay::HoldRequest) {
            desk.save();
            expectKept(desk, shown);
            mWard->network.resume();
            while (mWard->stored() == before)
                std::this_thread::sleep_for(2ms);
        }
        if (c.taken)
            mWard->run("Insert into Encounter (EncounterID,PatientID,Description) values (8,'P5','')");
        desk.told();
        desk.does("pulse=81");
        desk.save();
        EXPECT_THAT(desk.told(), IsEmpty());
        EXPECT_THAT(desk.heard, ElementsAre(c.taken ? "created 9" : "created 8", "closed"));
        EXPECT_EQ(mWard->stored(), c.taken ? "7|P1|Visit 8|P5| 9|P2|First visit, 7|72 9|81"
                                           : "7|P1|Visit 8|P2|First visit, 7|72 8|81");
        mWard->network.resume();
    }
}

TEST_F(FaultsOfAServer, ShowNothingThatCouldNotBeRead) {
    mWard->open();
    PanelDesk& desk = *mWard->desk;
    const std::function<bool()> shows[] = {[&] { return desk.load(); },
                                           [&] { return desk.panel.CreateNip("P1"); }};
    for (const auto& show : shows) {
        mWard->terminate();
        for (const char* attempt : {"the first to notice", "the next"}) {
            SCOPED_TRACE(attempt);
            desk.told();
            EXPECT_FALSE(show());
            EXPECT_THAT(desk.user->boxes, Contains(says("could not be read")));
            EXPECT_THAT(desk.user->boxes, Contains(says("onnection")));
            EXPECT_EQ(desk.shown(), "No Nip is open: |");
            expectAtRest(desk);
        }
        desk.db->Reset();
        EXPECT_TRUE(show());
    }
}

} // namespace Korvane
