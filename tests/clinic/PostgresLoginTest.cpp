#include "clinic/Database.h"

#include "support/ScratchSchema.h"

#include <korvane/ado/Recordset.h>
#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

namespace Korvane::Testing {

/// Somebody who may come in, but neither own nor make anything until rights are given.
class Login : public testing::Test {
  protected:
    void SetUp() override {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        schema = std::make_unique<ScratchSchema>();
        name = schema->name() + "_login";
        owner = ado::open(schema->address());
        owner->Execute("Create Role " + name + " Login Password 'hush'");
        owner->Execute("Grant Usage On Schema " + schema->name() + " To " + name);
    }
    void TearDown() override {
        if (!owner) return;
        owner->Execute("Drop Owned By " + name);
        owner->Execute("Drop Role " + name);
    }
    QString address() const {
        return QString::fromStdString(schema->address("user=" + name + "&password=hush"));
    }

    std::unique_ptr<ScratchSchema> schema;
    std::string name;
    std::shared_ptr<ado::Connection> owner;
};

TEST_F(Login, ThatMayMakeNoTablesWorksWithThoseThatAreThere) {
    try {
        Clinic::openDatabase(address());
        ADD_FAILURE() << "made a clinic without the right to";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), RuntimeError::PermissionDenied);
        EXPECT_THAT(error.Description(), testing::HasSubstr("lacks a right"));
    }
    Clinic::openDatabase(QString::fromStdString(schema->address()));
    owner->Execute("Grant Select, Insert, Update On All Tables In Schema " + schema->name() + " To " + name);
    const auto db = Clinic::openDatabase(address());
    EXPECT_EQ(db->Execute("Update Patient Set [Phone]='(555) 010-0199' Where PatientID='P-0001'"), 1);
}

} // namespace Korvane::Testing
