#include "ClinicWindow.h"
#include "ServerLogin.h"

#include <QComboBox>

#include <gmock/gmock.h>

#include <optional>

namespace Korvane::Testing {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The clinic's window, logged in to a server as somebody of its own, whose connection can be ended and who
/// can be kept from connecting again.
class Reconnect : public testing::Test {
  protected:
    void SetUp() override {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        login.emplace();
        login->grant("Create", "Schema");
        clinic.emplace(login->address());
    }

    /// The window learns of it when it uses the connection the next time.
    void endConnection() {
        const std::string backend = std::to_string(clinic->number("Select pg_backend_pid()"));
        login->owner->Execute("Select pg_terminate_backend(" + backend + ", 5000)");
    }
    /// Which it has done when it says so; it reads again at F5.
    void lose() {
        endConnection();
        clinic->press(Qt::Key_F5);
        ASSERT_TRUE(QTest::qWaitFor([this] { return isLost(); }));
        clinic->user->clear();
    }
    void letIn(bool on) {
        login->owner->Execute("Alter Role " + login->name + " Connection Limit " + (on ? "-1" : "0"));
    }
    bool isLost() const { return clinic->part<QWidget>("connectionBar").isVisible(); }
    std::string said() const { return clinic->part<QLabel>("connectionText").text().toStdString(); }

    std::optional<ServerLogin> login;
    std::optional<ClinicWindow> clinic;
};

TEST_F(Reconnect, KeepsWhatWasTypedAndSavesItOnceTheServerIsBack) {
    clinic->openNewest("P-0005");
    clinic->write("txtEncounterInfo", "Typed before");
    EXPECT_FALSE(isLost());
    letIn(false);
    endConnection();
    clinic->pressSave();
    EXPECT_THAT(clinic->user->boxes, Not(IsEmpty())) << "the user was not told";
    ASSERT_TRUE(QTest::qWaitFor([this] { return isLost(); }));
    EXPECT_THAT(said(), HasSubstr("lost"));
    EXPECT_TRUE(clinic->isNipOpen());

    clinic->part<QLineEdit>("txtEncounterInfo").setFocus();
    clinic->press(Qt::Key_End);
    clinic->click("reconnect");
    EXPECT_TRUE(isLost());
    EXPECT_THAT(said(),
                AllOf(HasSubstr("still no connection"), HasSubstr("too many"), Not(HasSubstr("hush"))));
    clinic->expectToFitAtTwiceTheTextSize();
    clinic->type(" and after"); // a click on the bar leaves the cursor where it was

    letIn(true);
    clinic->click("reconnect");
    EXPECT_FALSE(isLost());
    EXPECT_EQ(clinic->part<QLineEdit>("txtEncounterInfo").text(), "Typed before and after");
    EXPECT_EQ(clinic->stored("Typed before and after"), 0);
    clinic->pressSave();
    EXPECT_FALSE(clinic->isNipOpen());
    EXPECT_EQ(clinic->stored("Typed before and after"), 1);
    EXPECT_EQ(clinic->chosen("encounters", 1), "Typed before and after");
}

TEST_F(Reconnect, IsInReachOfTheKeyboardAndGivesTheCursorBack) {
    clinic->openNewest("P-0002");
    clinic->write("txtEncounterInfo", "Typed");
    lose();
    clinic->press(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isLost(); }));
    EXPECT_EQ(clinic->focus(), "txtEncounterInfo");
}

TEST_F(Reconnect, HappensByItselfBeforeWhateverNeedsTheServer) {
    clinic->click("patients", "P-0007");
    lose();
    clinic->ctrl(Qt::Key_N);
    EXPECT_TRUE(clinic->isNipOpen());
    clinic->write("txtEncounterInfo", "Brought a letter");
    clinic->part<QComboBox>("pvcEncounterInfo").setCurrentIndex(0);
    lose();
    clinic->pressSave();
    EXPECT_EQ(clinic->stored("Brought a letter"), 1);
    EXPECT_EQ(clinic->chosen("encounters", 1), "Brought a letter");
    lose();
    clinic->click("patients", "P-0002");
    EXPECT_EQ(clinic->encounters(), 0) << "of the patient before";
    clinic->press(Qt::Key_F5);
    EXPECT_GT(clinic->encounters(), 0);
    EXPECT_THAT(clinic->user->boxes, IsEmpty());
    EXPECT_FALSE(isLost());
}

} // namespace Korvane::Testing
