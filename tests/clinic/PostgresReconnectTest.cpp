#include "ClinicWindow.h"

#include "support/ScratchSchema.h"

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
        schema.emplace();
        login = schema->name() + "_login";
        server = ado::open(schema->address());
        server->Execute("Create Role " + login + " Login Password 'hush'");
        server->Execute("Grant Usage, Create On Schema " + schema->name() + " To " + login);
        clinic.emplace(schema->address("user=" + login + "&password=hush"));
    }

    void TearDown() override {
        clinic.reset();
        if (!server) return;
        server->Execute("Drop Owned By " + login);
        server->Execute("Drop Role " + login);
    }

    /// The window learns of it when it uses the connection the next time.
    void endConnection() {
        const std::string backend = std::to_string(clinic->number("Select pg_backend_pid()"));
        server->Execute("Select pg_terminate_backend(" + backend + ", 5000)");
    }
    void letIn(bool on) { server->Execute("Alter Role " + login + " Connection Limit " + (on ? "-1" : "0")); }

    void click(const char* button) const {
        QTest::mouseClick(&clinic->part<QAbstractButton>(button), Qt::LeftButton);
    }
    bool isLost() const { return clinic->part<QWidget>("connectionBar").isVisible(); }
    bool saysSo() const {
        return QTest::qWaitFor([this] { return isLost(); });
    }
    std::string said() const { return clinic->part<QLabel>("connectionText").text().toStdString(); }

    std::int32_t stored(const char* description) const {
        return clinic->number(std::string("Select Count(*) From Encounter Where Description='") +
                              description + "'");
    }

    std::optional<ScratchSchema> schema;
    std::string login;
    std::shared_ptr<ado::Connection> server;
    std::optional<ClinicWindow> clinic;
};

TEST_F(Reconnect, KeepsWhatWasTypedAndSavesItOnceTheServerIsBack) {
    clinic->openNewest("P-0007");
    clinic->write("txtEncounterInfo", "Typed before");
    EXPECT_FALSE(isLost());
    letIn(false);
    endConnection();
    click("cmdNipButton(0)");
    EXPECT_THAT(clinic->user->boxes, Not(IsEmpty())) << "the user was not told";
    ASSERT_TRUE(saysSo());
    EXPECT_THAT(said(), HasSubstr("lost"));
    EXPECT_TRUE(clinic->isNipOpen());

    clinic->part<QLineEdit>("txtEncounterInfo").setFocus();
    clinic->press(Qt::Key_End);
    click("reconnect");
    EXPECT_TRUE(isLost());
    EXPECT_THAT(said(),
                AllOf(HasSubstr("still no connection"), HasSubstr("too many"), Not(HasSubstr("hush"))));
    clinic->type(" and after"); // a click on the bar leaves the cursor where it was

    letIn(true);
    click("reconnect");
    EXPECT_FALSE(isLost());
    EXPECT_EQ(clinic->part<QLineEdit>("txtEncounterInfo").text(), "Typed before and after");
    EXPECT_EQ(stored("Typed before and after"), 0);
    click("cmdNipButton(0)");
    EXPECT_FALSE(clinic->isNipOpen());
    EXPECT_EQ(stored("Typed before and after"), 1);
    EXPECT_EQ(clinic->chosen("encounters", 1), "Typed before and after");
}

TEST_F(Reconnect, IsInReachOfTheKeyboardAndGivesTheCursorBack) {
    for (const bool byLetter : {true, false}) {
        clinic->openNewest("P-0002");
        clinic->write("txtEncounterInfo", "Typed");
        endConnection();
        clinic->press(Qt::Key_F5); // reads, and so notices
        ASSERT_TRUE(saysSo());
        if (byLetter) {
            clinic->press(Qt::Key_R, Qt::AltModifier);
        } else {
            clinic->press(Qt::Key_F6);
            EXPECT_EQ(QApplication::focusWidget()->objectName(), "reconnect");
            clinic->press(Qt::Key_Space);
        }
        EXPECT_TRUE(QTest::qWaitFor([this] { return !isLost(); }));
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtEncounterInfo");
        click("cmdNipButton(0)");
        EXPECT_FALSE(clinic->isNipOpen());
    }
}

TEST_F(Reconnect, HappensByItselfBeforeWhateverNeedsTheServer) {
    const auto lose = [&] {
        endConnection();
        clinic->press(Qt::Key_F5);
        ASSERT_TRUE(saysSo());
        clinic->user->clear();
    };
    clinic->click("patients", "P-0007");
    lose();
    clinic->press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(clinic->isNipOpen());
    clinic->write("txtEncounterInfo", "Brought a letter");
    clinic->part<QComboBox>("pvcEncounterInfo").setCurrentIndex(0);
    lose();
    click("cmdNipButton(0)");
    EXPECT_EQ(stored("Brought a letter"), 1);
    EXPECT_EQ(clinic->chosen("encounters", 1), "Brought a letter");
    lose();
    clinic->click("patients", "P-0002");
    EXPECT_EQ(clinic->part<QTableView>("encounters").model()->rowCount(), 0) << "of the patient before";
    clinic->press(Qt::Key_F5);
    EXPECT_GT(clinic->part<QTableView>("encounters").model()->rowCount(), 0);
    EXPECT_THAT(clinic->user->boxes, IsEmpty());
    EXPECT_FALSE(isLost());
}

TEST_F(Reconnect, IsOfferedWithinTheUsualWindowAtTwiceTheTextSize) {
    const QFont usual = QApplication::font();
    clinic->openNewest("P-0005");
    letIn(false);
    endConnection();
    clinic->press(Qt::Key_F5);
    ASSERT_TRUE(saysSo());
    click("reconnect");
    for (int i = 0; i < 5; ++i)
        clinic->press(Qt::Key_Plus, Qt::ControlModifier);
    QTest::qWait(10);
    EXPECT_LE(clinic->window->minimumSizeHint().width(), 1280);
    EXPECT_LE(clinic->window->minimumSizeHint().height(), 800);
    QApplication::setFont(usual);
}

} // namespace Korvane::Testing
