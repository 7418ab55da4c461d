#include "ServerLogin.h"

#include "clinic/Database.h"

#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

namespace Korvane::Testing {

TEST(Login, ThatMayMakeNoTablesWorksWithThoseThatAreThere) {
    if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
    ServerLogin login;
    const auto open = [&] { return Clinic::openDatabase(QString::fromStdString(login.address())); };
    try {
        open();
        ADD_FAILURE() << "made a clinic without the right to";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), RuntimeError::PermissionDenied);
        EXPECT_THAT(error.Description(), testing::HasSubstr("lacks a right"));
    }
    Clinic::openDatabase(QString::fromStdString(login.schema.address()));
    login.grant("Select, Insert, Update", "All Tables In Schema");
    EXPECT_EQ(open()->Execute("Update Patient Set [Phone]='(555) 010-0199' Where PatientID='P-0001'"), 1);
}

} // namespace Korvane::Testing
