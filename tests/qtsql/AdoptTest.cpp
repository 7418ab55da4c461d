#include <korvane/qtsql/Adopt.h>

#include "support/Errors.h"
#include "support/HostDatabase.h"
#include "support/PanelDesk.h"

#include <korvane/ado/Transaction.h>
#include <korvane/records/Encounter.h>

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlResult>

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <filesystem>

namespace Korvane::Testing {

using testing::HasSubstr;

namespace {

// How often this process has the file open.
int timesOpen(const std::string& file) {
    int times = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (std::filesystem::read_symlink(entry, gone) == file) ++times;
    }
    return times;
}

// A driver of some other database, which is always open.
class OtherDriver : public QSqlDriver {
  public:
    explicit OtherDriver(QVariant handle) : mHandle(std::move(handle)) { setOpen(true); }
    QVariant handle() const override { return mHandle; }
    bool hasFeature(DriverFeature) const override { return false; }
    bool open(const QString&, const QString&, const QString&, const QString&, int, const QString&) override {
        return true;
    }
    void close() override {}
    QSqlResult* createResult() const override { return nullptr; }

  private:
    QVariant mHandle;
};

} // namespace

/// A clinic with the encounter 7 of the patient P1, whose pulse is 72, and the host's own Qt connection to
/// it.
class AQtDatabase : public PanelDesk, public testing::Test {
  protected:
    std::string pulseSeenByHost() const { return host.value("Select Pulse From NIP_Custom1"); }

    HostDatabase host{address()};
};

TEST_F(AQtDatabase, IsWorkedOnByBothSidesInTurn) {
    host.run("Create Temporary Table Mine (Note VarChar(50))");
    ucNIPPanel lentTo;
    lentTo.Initialize(ado::adopt(host.database()));
    ASSERT_TRUE(lentTo.LoadNipInfo(7, "P1"));
    auto* box = lentTo.findChild<QLineEdit*>("txtNip(0)");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "72");
    host.run("Insert Into Mine (Note) Values ('meanwhile')");
    type(*box, "81");
    lentTo.SaveNipInfo();
    EXPECT_EQ(pulseSeenByHost(), "81");
    host.run("Update NIP_Custom1 Set Pulse='90 \u00e9'");
    ASSERT_TRUE(lentTo.LoadNipInfo(7, "P1"));
    EXPECT_EQ(lentTo.findChild<QLineEdit*>("txtNip(0)")->text(), QStringLiteral("90 \u00e9"));
    EXPECT_EQ(host.value("Select Note From Mine"), "meanwhile");
}

TEST_F(AQtDatabase, KeepsTheTransactionThatItsHostHasOpen) {
    for (const bool commits : {false, true}) {
        SCOPED_TRACE(commits);
        const std::string before = host.settings();
        ASSERT_TRUE(host.database().transaction());
        host.run("Update NIP_Custom1 Set Pulse='1'");
        {
            const auto lent = ado::adopt(host.database());
            Encounter encounter;
            encounter.Connection(lent);
            encounter.PatientID("P2");
            encounter.ProviderID(1);
            ado::Transaction work(*lent);
            EXPECT_TRUE(encounter.Save() && encounter.Stored());
            work.commit();
            const auto undone = std::make_unique<ado::Transaction>(*lent);
            lent->Execute("Update NIP_Custom1 Set Pulse='2'");
        }
        EXPECT_EQ(rows("Select Pulse From NIP_Custom1"), "72");
        EXPECT_EQ(host.settings(), before);
        ASSERT_TRUE(commits ? host.database().commit() : host.database().rollback());
        EXPECT_EQ(rows("Select Pulse From NIP_Custom1"), commits ? "1" : "72");
        EXPECT_EQ(rows("Select PatientID From Encounter Order By EncounterID"), commits ? "P1 P2" : "P1");
    }
}

TEST_F(AQtDatabase, MayBeClosedWhileItIsLent) {
    const std::string file = dir.file("clinic.db");
    const int others = timesOpen(file);
    for (const bool inTransaction : {false, true}) {
        SCOPED_TRACE(inTransaction);
        ucNIPPanel lentTo;
        auto lent = ado::adopt(host.database());
        lentTo.Initialize(lent);
        ASSERT_TRUE(lentTo.LoadNipInfo(7, "P1"));
        auto* box = lentTo.findChild<QLineEdit*>("txtNip(0)");
        type(*box, "typed");
        std::unique_ptr<ado::Transaction> open;
        if (inTransaction) {
            open = std::make_unique<ado::Transaction>(*lent);
            lent->Execute("Update NIP_Custom1 Set Pulse='lost'");
        }
        host.database().close();
        EXPECT_EQ(lent->State(), 0);
        EXPECT_EQ(raised([&] { lent->Execute("Update NIP_Custom1 Set Pulse='5'"); }).Number(),
                  RuntimeError::ObjectClosed);
        EXPECT_EQ(raised([&] { lent->Reset(); }).Number(), RuntimeError::ObjectClosed);
        if (!inTransaction) {
            lentTo.SaveNipInfo();
            EXPECT_THAT(errorLog(), HasSubstr("closed by the program that opened it"));
            EXPECT_EQ(box->text(), "typed");
        }
        open.reset();
        lentTo.Initialize(db);
        lent.reset();
        EXPECT_EQ(timesOpen(file), others);
        host.reopen();
        EXPECT_EQ(pulseSeenByHost(), "72");
        EXPECT_EQ(ado::adopt(host.database())->Execute("Update NIP_Custom1 Set Pulse='72'"), 1);
    }
}

TEST_F(AQtDatabase, IsRefusedWhenItCannotBeWorkedOn) {
    const auto refusal = [](const QSqlDatabase& lent) { return raised([&] { ado::adopt(lent); }); };
    const auto other = [&](const QVariant& handle) {
        const RuntimeError error = refusal(QSqlDatabase::addDatabase(new OtherDriver(handle), "other"));
        QSqlDatabase::removeDatabase("other");
        return error.Description();
    };
    EXPECT_THAT(other({}), HasSubstr("\"other\""));
    EXPECT_THAT(other(QVariant(QString("sqlite3*"))), HasSubstr("QSQLITE and QPSQL"));

    host.database().close();
    EXPECT_EQ(refusal(host.database()).Number(), RuntimeError::ObjectClosed);
    EXPECT_THAT(refusal(host.database()).Description(), HasSubstr("not open"));
    EXPECT_EQ(refusal(QSqlDatabase()).Number(), RuntimeError::ObjectClosed);
}

TEST_F(AQtDatabase, OfAnotherSqliteThanOursIsRefused) {
    HostDatabase other("sqlite::memory:", "other");
    auto* handle = *static_cast<sqlite3* const*>(other.database().driver()->handle().constData());
    sqlite3_create_function(
        handle, "sqlite_source_id", 0, SQLITE_UTF8, nullptr,
        [](sqlite3_context* context, int, sqlite3_value**) {
            sqlite3_result_text(context, "2001-01-01 another", -1, SQLITE_STATIC);
        },
        nullptr, nullptr);
    EXPECT_THAT(raised([&] { ado::adopt(other.database()); }).Description(),
                HasSubstr("brings a SQLite of its own"));
}

// A server's answer that comes row by row occupies the line; SQLite has no line.
TEST_F(AQtDatabase, ThatStillGivesRowsToItsHostIsNotDisturbed) {
    encounter(8, "P1", "1/3/2026");
    encounter(9, "P1", "1/4/2026");
    const auto lent = ado::adopt(host.database());
    const auto change = [&] { return lent->Execute("Update NIP_Custom1 Set Pulse='6'"); };
    {
        QSqlQuery pending(host.database());
        pending.setForwardOnly(true);
        ASSERT_TRUE(pending.exec("Select EncounterID From Encounter") && pending.next());
        if (ScratchDatabase::onServer()) {
            EXPECT_EQ(raised([&] { ado::adopt(host.database()); }).Number(), RuntimeError::InvalidConnection);
            EXPECT_THAT(raised(change).Description(), HasSubstr("pending"));
        } else {
            EXPECT_EQ(change(), 1);
        }
        int rowsGiven = 1;
        while (pending.next())
            ++rowsGiven;
        EXPECT_EQ(rowsGiven, 3);
    }
    EXPECT_EQ(change(), 1);
}

} // namespace Korvane::Testing
