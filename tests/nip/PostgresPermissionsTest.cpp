#include "support/CaseTable.h"
#include "support/Errors.h"
#include "support/RecordingInteraction.h"
#include "support/ScratchDir.h"
#include "support/ServerTest.h"

#include <korvane/ado/Transaction.h>
#include <korvane/ado/postgres/Error.h>
#include <korvane/data/Tables.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Attachment.h>
#include <korvane/records/Encounter.h>
#include <korvane/runtime/Text.h>

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace Korvane::Testing {

using testing::HasSubstr;

namespace {

using Login = std::shared_ptr<ado::Connection>;

/// Saves the visit with that number, or a new one (-1) of the patient P1, with that pulse in every group.
bool savesVisit(const Login& db, std::int32_t id, const std::string& pulse) {
    Encounter encounter;
    encounter.Connection(db);
    if (id != -1) encounter.EncounterID(id);
    encounter.PatientID("P1");
    encounter.ProviderID(1);
    cNIP nip;
    if (!nip.LoadStructure(db)) return false;
    ado::Transaction work(*db);
    if (!encounter.Save() || !encounter.Stored() || !nip.Load(encounter.EncounterID(), "P1", id == -1))
        return false;
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group)
        nip.value(group, 1, pulse);
    if (!nip.Save()) return false;
    work.commit();
    return true;
}

bool savesAttachment(const Login& db, const Variant& id) {
    Attachment attachment;
    attachment.Connection(db);
    if (!id.isEmpty()) attachment.AttachmentID(id);
    attachment.EncounterID(1);
    return attachment.Save() && attachment.Stored();
}

/// The pulse of the first visit; empty when something of it cannot be seen.
std::string pulseSeenBy(const Login& db) {
    cNIP nip;
    Encounter encounter;
    encounter.Connection(db);
    encounter.EncounterID(1);
    encounter.LoadAttachments();
    const bool all = nip.LoadStructure(db) && nip.Load(1, "P1", false) && encounter.PatientID() == "P1" &&
                     encounter.AttachmentCount() > 0;
    return all ? nip.value(1, 1).textOrEmpty() : "";
}

/// A group of one text field, as somebody makes it who customizes.
void makeGroup(const Login& db) {
    cNIP nip;
    nip.numbersGroups(true);
    ASSERT_TRUE(nip.LoadStructure(db) && nip.CreateGroup("Group"));
    ASSERT_TRUE(
        nip.CreateField(nip.GroupCount(), {.fieldName = "Pulse", .maxLength = 50, .initialValueRule = 1}));
    ASSERT_TRUE(nip.SaveStructure());
}

/// A clinic whose logins have the rights that docs/permissions.md gives them: its very statements are run, on
/// a schema and with roles of the test's own. The visit 1 of the patient P1 has the pulse 72.
class Permissions : public ServerTest {
  protected:
    void prepare() override {
        mAdmin.emplace(mSchema->address());
        mAdmin->run(documented(1));
        carla = login("carla");
        installTables(*carla);
        makeGroup(carla);
        carla->Execute("Insert Into Provider (ProviderID,LastName) Values (1,'Hale')");
        ASSERT_TRUE(savesVisit(carla, -1, "72") && savesAttachment(carla, {}));
        NativeHandle(mSchema->address(loginOf("carla"))).run(documented(2));
        alice = login("alice");
    }

    void TearDown() override {
        if (!mSchema) return;
        alice.reset();
        carla.reset();
        for (const char* role : {"alice", "rita", "carla", "clinic_entry", "clinic_reading", "clinic_owner"})
            mAdmin->run(own(std::string("Drop Owned By ") + role + " Cascade; Drop Role " + role));
    }

    /// The n-th SQL of the document, for this test's schema and roles.
    std::string documented(int n) const {
        std::ifstream file(KORVANE_TESTS_DIR "/../docs/permissions.md");
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::string fence = "```sql\n";
        std::size_t begin = 0;
        for (; n > 0; --n)
            begin = text.find(fence, begin) + fence.size();
        return own(text.substr(begin, text.find("```", begin) - begin));
    }

    std::string own(std::string sql) const {
        for (const auto& [word, by] :
             {std::pair<std::string, std::string>("clinic_", mSchema->name() + "_clinic_"),
              {"alice", mSchema->name() + "_alice"},
              {"carla", mSchema->name() + "_carla"},
              {"rita", mSchema->name() + "_rita"},
              {"Schema public", "Schema " + mSchema->name()}})
            for (std::size_t at = 0; (at = sql.find(word, at)) != std::string::npos; at += by.size())
                sql.replace(at, word.size(), by);
        return sql;
    }

    std::string loginOf(const std::string& name) const { return "password=change-me&user=" + own(name); }
    Login login(const std::string& name) const { return connect(loginOf(name)); }

    /// Everything that data entry may store.
    std::string stored() const {
        std::string all;
        for (const std::string table : {"Encounter", "Attachment", "\"NIP_Custom1\""})
            all += mAdmin->value("select string_agg(t::text, '' order by t::text) from " + table + " t");
        return all;
    }

    std::string told() {
        std::string all = dir.read("ERR.txt") + dir.read("err.txt");
        for (const ShownBox& box : user->boxes)
            all += box.text;
        return all;
    }

    ScratchDir dir{ScratchDir::AsAppPath};
    RecordedInteraction user;
    Login carla, alice;

  private:
    std::optional<NativeHandle> mAdmin;
};

} // namespace

TEST_F(Permissions, OfDataEntryAreEnoughForADaysWork) {
    installTables(*alice);
    EXPECT_EQ(pulseSeenBy(alice), "72");
    EXPECT_TRUE(savesVisit(alice, -1, "80"));
    EXPECT_TRUE(savesVisit(alice, 1, "81"));
    EXPECT_TRUE(savesAttachment(alice, {}));
    EXPECT_TRUE(savesAttachment(alice, 2));
    makeGroup(carla);
    EXPECT_TRUE(savesVisit(alice, -1, "90"));
    EXPECT_TRUE(savesVisit(alice, 1, "91"));
    EXPECT_EQ(told(), "");
    EXPECT_THAT(stored(), HasSubstr("(1,91)(2,80)(3,90)"));
}

TEST_F(Permissions, ThatAreMissingAreNamedAndNothingIsHalfSaved) {
    const std::string before = stored();
    for (const std::string right : {"Insert", "Update"}) {
        carla->Execute("Revoke " + right + " On \"NIP_Custom1\" From " + own("clinic_entry"));
        EXPECT_FALSE(savesVisit(alice, right == "Insert" ? -1 : 1, "80"));
        EXPECT_THAT(lowerCase(told()), HasSubstr("for table nip_custom1"));
        EXPECT_EQ(stored(), before) << right;
        EXPECT_EQ(alice->transactionLevel(), 0);
    }
}

TEST_F(Permissions, OfALoginThatOnlyLooksRefuseEverySave) {
    const Login rita = login("rita");
    const std::string before = stored();
    installTables(*rita);
    EXPECT_EQ(pulseSeenBy(rita), "72");
    EXPECT_EQ(told(), "");
    EXPECT_FALSE(savesVisit(rita, -1, "80") || savesVisit(rita, 1, "80"));
    EXPECT_FALSE(savesAttachment(rita, {}) || savesAttachment(rita, 1));
    EXPECT_EQ(user->boxes.size(), 4u);
    for (const ShownBox& box : user->boxes)
        EXPECT_THAT(box.text, HasSubstr("lacks a right"));
    EXPECT_EQ(stored(), before);
}

TEST_F(Permissions, OfDataEntryDoNotReachTheStructureAndThoseOfCustomizingDo) {
    for (const auto& row : readCases("customizingstatements.tsv")) {
        SCOPED_TRACE(row[0]);
        const RuntimeError refused = raised([&] { alice->Execute(row[0]); });
        EXPECT_EQ(refused.Number(), RuntimeError::PermissionDenied);
        EXPECT_EQ(ado::postgres::sqlState(refused.NativeCode()), "42501");
        EXPECT_THAT(refused.Description(), HasSubstr(row[1]));
        EXPECT_NO_THROW(carla->Execute(row[0]));
    }
}

} // namespace Korvane::Testing
