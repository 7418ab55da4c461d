#include "ClinicWindow.h"

#include <QComboBox>
#include <QMenuBar>
#include <QSet>

#include <gmock/gmock.h>

#include <functional>

namespace Korvane::Testing {

using testing::HasSubstr;

class MainWindow : public testing::Test, public ClinicWindow {
  protected:
    static constexpr int Description = 1;
    static constexpr int ID = 2;

    void expectTogether(const char* patientID, const char* description) const {
        EXPECT_TRUE(isNipOpen());
        EXPECT_EQ(chosen("patients", ID), patientID);
        EXPECT_THAT(header(), HasSubstr(patientID));
        EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("García"));
        EXPECT_EQ(part<QLineEdit>("txtEncounterInfo").text(), description);
    }
};

TEST_F(MainWindow, ListsANewNipAndChoosesItOnceItIsSaved) {
    click("patients", "P-0007");
    const int before = part<QTableView>("encounters").model()->rowCount();
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(chosen("encounters", Description), "nothing");
    write("txtEncounterInfo", "Brought a letter");
    part<QComboBox>("pvcEncounterInfo").setCurrentIndex(0);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(part<QTableView>("encounters").model()->rowCount(), before + 1);
    EXPECT_EQ(chosen("encounters", Description), "Brought a letter");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "encounters");
    EXPECT_EQ(
        number("Select Count(*) From Encounter Where PatientID='P-0007' And Description='Brought a letter'"),
        1);
}

TEST_F(MainWindow, FollowsARenamedNipToItsNewPlace) {
    openNewest("P-0007");
    write("txtEncounterInfo", "Moved");
    auto& date = part<QWidget>("pvdateEncounter");
    date.setProperty("dateTime", QDateTime(QDate(2020, 1, 2), QTime(8, 0)));
    pressSave();
    const auto& list = part<QTableView>("encounters");
    EXPECT_EQ(chosen("encounters", Description), "Moved");
    EXPECT_EQ(list.selectionModel()->selectedRows().first().row(), list.model()->rowCount() - 1);
    EXPECT_EQ(list.model()->index(list.model()->rowCount() - 1, 0).data().toString(), "1/2/2020");
}

TEST_F(MainWindow, KeepsPatientAndPanelTogetherWhenTheUserWantsToKeepUnsavedEntries) {
    const std::vector<std::pair<const char*, std::function<void()>>> temptations{
        {"a click on another patient", [&] { click("patients", "P-0002"); }},
        {"a search for another patient",
         [&] {
             press(Qt::Key_F, Qt::ControlModifier);
             type("brien");
             press(Qt::Key_Down);
             press(Qt::Key_F, Qt::ControlModifier);
             press(Qt::Key_Escape);
         }},
        {"another encounter",
         [&] {
             part<QTableView>("encounters").selectRow(1);
             part<QTableView>("encounters").setFocus();
             press(Qt::Key_Return);
         }},
        {"a new Nip", [&] { press(Qt::Key_N, Qt::ControlModifier); }},
        {"closing the Nip", [&] { press(Qt::Key_W, Qt::ControlModifier); }},
        {"closing the window", [&] { EXPECT_FALSE(window->close()); }}};
    openNewest("P-0007");
    write("txtEncounterInfo", "Not yet saved");
    const std::string encounter = chosen("encounters", Description);
    for (const auto& [name, tempt] : temptations) {
        SCOPED_TRACE(name);
        user->clear();
        user->answers = {Answer::No};
        tempt();
        QTest::qWait(1);
        EXPECT_EQ(user->boxes.size(), 1U);
        expectTogether("P-0007", "Not yet saved");
        EXPECT_EQ(chosen("encounters", Description), encounter);
    }
}

TEST_F(MainWindow, MovesOnWhenTheUserGivesUnsavedEntriesUp) {
    openNewest("P-0007");
    write("txtEncounterInfo", "Given up");
    user->answers = {Answer::Yes};
    click("patients", "P-0002");
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(chosen("patients", ID), "P-0002");
    EXPECT_THAT(header(), HasSubstr("O'Brien, Séamus"));
    EXPECT_EQ(number("Select Count(*) From Encounter Where Description='Given up'"), 0);
    user->clear();
    openNewest("P-0007");
    write("txtEncounterInfo", "Given up");
    user->answers = {Answer::Yes};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(user->boxes.size(), 1U);
}

TEST_F(MainWindow, SearchesWithoutChangingWhoIsChosen) {
    click("patients", "P-0007");
    press(Qt::Key_F, Qt::ControlModifier);
    type("brien");
    EXPECT_EQ(part<QTableView>("patients").model()->rowCount(), 1);
    EXPECT_EQ(chosen("patients", ID), "nothing");
    EXPECT_THAT(header(), HasSubstr("García"));
    press(Qt::Key_Escape);
    EXPECT_EQ(chosen("patients", ID), "P-0007");
}

TEST_F(MainWindow, LetsTheKeyboardGoRoundThePanesAndComeBack) {
    openNewest("P-0007");
    auto& search = part<QLineEdit>("searchPatient");
    search.setFocus();
    QStringList round;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_F6);
        round << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(round, (QStringList{"encounters", "txtEncounterInfo", "searchPatient"}));
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtEncounterInfo");
    part<QAbstractButton>("cmdNipButton(2)").click();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "gridNipFields");
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtEncounterInfo");
    press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "gridNipFields");
}

TEST_F(MainWindow, HidesTheListsWhileANipIsOpenUntilTheyAreNeeded) {
    const auto& encounters = part<QTableView>("encounters");
    press(Qt::Key_F9);
    EXPECT_TRUE(encounters.isVisible()) << "no Nip is open";
    openNewest("P-0007");
    part<QTableView>("encounters").setFocus();
    press(Qt::Key_F9);
    EXPECT_FALSE(encounters.isVisible());
    EXPECT_TRUE(part<QWidget>("nipPanel").isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(encounters.isVisible());
    press(Qt::Key_F9);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(encounters.isVisible());
    EXPECT_TRUE(encounters.hasFocus());
}

TEST_F(MainWindow, LetsTheKeyboardWalkThroughThePatientsWhileANipIsOpen) {
    openNewest("P-0007");
    part<QTableView>("patients").setFocus();
    press(Qt::Key_Home);
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(chosen("patients", ID), "P-0001");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "patients");
    press(Qt::Key_Down);
    EXPECT_NE(chosen("patients", ID), "P-0001");
    EXPECT_THAT(header(), HasSubstr(chosen("patients", ID)));
}

TEST_F(MainWindow, GivesEveryUnderlinedLetterOnce) {
    openNewest("P-0007");
    QStringList letters;
    const auto add = [&](const QString& text) {
        const QKeySequence letter = QKeySequence::mnemonic(text);
        if (!letter.isEmpty()) letters << letter.toString();
    };
    for (const auto* menu : window->menuBar()->actions())
        add(menu->text());
    for (const auto* label : window->findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) add(label->text());
    for (const auto* button : window->findChildren<QAbstractButton*>())
        if (button->isVisible()) add(button->text());
    EXPECT_GE(letters.size(), 8);
    EXPECT_EQ(QSet<QString>(letters.begin(), letters.end()).size(), letters.size())
        << letters.join(' ').toStdString();
}

TEST_F(MainWindow, FitsItsUsualSizeAtTwiceTheTextSizeWhateverTheName) {
    const QFont usual = QApplication::font();
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Plus, Qt::ControlModifier);
    for (const char* patient : {"P-0005", "P-0016"}) {
        openNewest(patient);
        QTest::qWait(10);
        EXPECT_LE(window->minimumSizeHint().width(), 1280) << patient;
        EXPECT_LE(window->minimumSizeHint().height(), 800) << patient;
    }
    QApplication::setFont(usual);
}

TEST_F(MainWindow, KeepsTextSizeAndPlaceForTheNextStart) {
    const QFont usual = QApplication::font();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual.pointSizeF() * 1.25);
    window->resize(1000, 700);
    EXPECT_TRUE(window->close());
    window.reset();
    QApplication::setFont(usual);
    open();
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual.pointSizeF() * 1.25);
    EXPECT_EQ(window->size(), QSize(1000, 700));
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual.pointSizeF());
}

} // namespace Korvane::Testing
