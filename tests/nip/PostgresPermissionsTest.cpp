#include "support/CaseTable.h"
#include "support/Errors.h"
#include "support/RecordingInteraction.h"
#include "support/ScratchDir.h"
#include "support/ServerTest.h"
#include "support/StoppedClock.h"

#include <korvane/ado/Transaction.h>
#include <korvane/ado/postgres/Error.h>
#include <korvane/data/Tables.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Attachment.h>
#include <korvane/records/Encounter.h>
#include <korvane/runtime/Text.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>

namespace Korvane::Testing {

using testing::HasSubstr;

namespace {

/// A clinic whose logins have the rights that docs/permissions.md gives them: its very statements are run, on
/// a schema and with roles of the test's own. The encounter 7 of the patient P1 has the pulse 72.
class Permissions : public ServerTest {
  protected:
    void prepare() override {
        mAdmin.emplace(mSchema->address());
        mAdmin->run(documented(1));
        carla = connect(loginOf("carla"));
        installTables(*carla);
        makeGroup(2);
        for (const char* row : {"Insert Into Provider (ProviderID,LastName) Values (1,'Hale')",
                                "Insert Into Encounter (EncounterID,EncounterMethodID,PatientID,ProviderID,"
                                "EncounterDate,[Description]) Values (7,1,'P1',1,'1/2/2026','Visit')",
                                "Insert Into Attachment (AttachmentID,EncounterID) Values (1,7)",
                                "Insert Into NIP_Custom2 (EncounterID,Pulse) Values (7,'72')"})
            carla->Execute(row);
        NativeHandle(mSchema->address(loginOf("carla"))).run(documented(2));
        alice = connect(loginOf("alice"));
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
        for (; n > 0; --n) {
            begin = text.find(fence, begin);
            if (begin == std::string::npos) throw std::runtime_error("the document has no such statements");
            begin += fence.size();
        }
        return own(text.substr(begin, text.find("```", begin) - begin));
    }

    std::string own(std::string sql) const {
        const auto replace = [&](const std::string& word, const std::string& by) {
            for (std::size_t at = 0; (at = sql.find(word, at)) != std::string::npos; at += by.size())
                sql.replace(at, word.size(), by);
        };
        for (const std::string role : {"clinic_", "alice", "carla", "rita"})
            replace(role, mSchema->name() + "_" + role);
        replace("Schema public", "Schema " + mSchema->name());
        return sql;
    }

    std::string loginOf(const std::string& name) const { return "password=change-me&user=" + own(name); }

    /// A group of one text field, Pulse, which is carried forward.
    void makeGroup(int id) const {
        const std::string number = std::to_string(id);
        const std::string table = "NIP_Custom" + number;
        carla->Execute("Insert Into DBFieldGroups (DBFieldGroupID,GroupName,TableName,Ordinal) Values (" +
                       number + ",'Group','" + table + "'," + number + ")");
        carla->Execute("Insert Into DBFields (ID,FieldName,DBFieldGroupID,MaxLength,DisplayType,Ordinal,"
                       "InitialValueRuleID) Values (" +
                       number + ",'Pulse'," + number + ",50,'TEXT',1,1)");
        carla->Execute("Create Table [" + table + "] ([EncounterID] Integer Primary Key)");
        carla->Execute("Alter Table [" + table + "] Add Column [Pulse] VarChar(50)");
    }

    /// Everything that is stored, seen by one who may see it.
    std::string stored() const {
        std::string all;
        for (const std::string table :
             {"DBFieldGroups", "DBFields", "DBFieldValues", "Encounter", "Attachment", "NIP_Custom2"})
            all += mAdmin->value("select string_agg(t::text, '' order by t::text) from " + table + " t");
        return all;
    }

    std::string told() {
        std::string all = dir.read("ERR.txt") + dir.read("err.txt");
        for (const ShownBox& box : user->boxes)
            all += box.text;
        return all;
    }

    StoppedClock clock;
    ScratchDir dir{ScratchDir::AsAppPath};
    RecordedInteraction user;
    std::shared_ptr<ado::Connection> carla;
    std::shared_ptr<ado::Connection> alice;

  private:
    std::optional<NativeHandle> mAdmin;
};

using Login = std::shared_ptr<ado::Connection>;

bool seesAVisit(const Login& db) {
    cNIP nip;
    Encounter encounter;
    encounter.Connection(db);
    encounter.EncounterID(7);
    encounter.LoadAttachments();
    return nip.LoadStructure(db) && nip.Load(7, "P1", false) && nip.value(1, 1).textOrEmpty() == "72" &&
           encounter.PatientID() == "P1" && encounter.AttachmentCount() == 1;
}

/// Saves the visit with that number, or a new one (-1), whose values are carried forward from the one before.
bool saveVisit(const Login& db, std::int32_t id) {
    const bool isNew = id == -1;
    Encounter encounter;
    encounter.Connection(db);
    if (!isNew) encounter.EncounterID(id);
    encounter.PatientID("P1");
    encounter.ProviderID(1);
    encounter.Description(isNew ? "Visit" : "Changed");
    cNIP nip;
    if (!nip.LoadStructure(db)) return false;
    ado::Transaction work(*db);
    if (!encounter.Save() || !encounter.Stored() || !nip.Load(encounter.EncounterID(), "P1", isNew))
        return false;
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group) {
        if (isNew) { // a group made since has nothing yet
            EXPECT_EQ(nip.value(group, 1).textOrEmpty(), group == 1 ? "72" : "");
        }
        nip.value(group, 1, isNew ? "80" : "81");
    }
    if (!nip.Save()) return false;
    work.commit();
    return true;
}

bool saveAttachment(const Login& db, const Variant& id) {
    Attachment attachment;
    attachment.Connection(db);
    if (!id.isEmpty()) attachment.AttachmentID(id);
    attachment.EncounterID(7);
    attachment.Description("Scan");
    return attachment.Save() && attachment.Stored();
}

using Work = bool (*)(const Login&);
constexpr Work entersAVisit = [](const Login& db) { return saveVisit(db, -1); };
constexpr Work changesAVisit = [](const Login& db) { return saveVisit(db, 7); };
constexpr Work addsAnAttachment = [](const Login& db) { return saveAttachment(db, {}); };
constexpr Work changesAnAttachment = [](const Login& db) { return saveAttachment(db, 1); };

} // namespace

TEST_F(Permissions, OfDataEntryAreEnoughForADaysWork) {
    installTables(*alice);
    EXPECT_TRUE(seesAVisit(alice));
    EXPECT_TRUE(entersAVisit(alice));
    EXPECT_TRUE(changesAVisit(alice));
    EXPECT_TRUE(addsAnAttachment(alice));
    carla->Execute("Delete From Attachment Where AttachmentID=2");
    EXPECT_TRUE(changesAnAttachment(alice));
    makeGroup(3); // made later, by one who customizes
    carla->Execute("Update NIP_Custom2 Set Pulse='72'");
    EXPECT_TRUE(entersAVisit(alice));
    EXPECT_TRUE(changesAVisit(alice));
    EXPECT_EQ(told(), "");
    EXPECT_THAT(stored(), HasSubstr("(7,81)(8,72)(9,80)"));
}

TEST_F(Permissions, ThatAreMissingAreNamedAndNothingIsHalfSaved) {
    const std::string before = stored();
    for (const auto& [right, work] : {std::pair("Insert On NIP_Custom2", entersAVisit),
                                      std::pair("Update On NIP_Custom2", changesAVisit)}) {
        carla->Execute("Revoke " + std::string(right) + " From " + own("clinic_entry"));
        EXPECT_FALSE(work(alice));
        EXPECT_THAT(lowerCase(told()), HasSubstr("for table nip_custom2"));
        EXPECT_EQ(stored(), before) << right;
        EXPECT_EQ(alice->transactionLevel(), 0);
    }
}

TEST_F(Permissions, OfALoginThatOnlyLooksRefuseEverySave) {
    const Login rita = connect(loginOf("rita"));
    const std::string before = stored();
    installTables(*rita);
    EXPECT_TRUE(seesAVisit(rita));
    EXPECT_EQ(told(), "");
    for (const Work work : {entersAVisit, changesAVisit, addsAnAttachment, changesAnAttachment}) {
        user->clear();
        EXPECT_FALSE(work(rita));
        ASSERT_EQ(user->boxes.size(), 1u);
        EXPECT_THAT(user->boxes[0].text, HasSubstr("lacks a right"));
    }
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
