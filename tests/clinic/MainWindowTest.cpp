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
    using ClinicWindow::click;
};

TEST_F(MainWindow, ListsANewNipOnceItIsSavedAndARenamedOneAtItsNewPlace) {
    click("patients", "P-0007");
    const int before = encounters();
    ctrl(Qt::Key_N);
    EXPECT_EQ(chosen("encounters", Description), "nothing");
    write("txtEncounterInfo", "Brought a letter");
    part<QComboBox>("pvcEncounterInfo").setCurrentIndex(0);
    ctrl(Qt::Key_S);
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(encounters(), before + 1);
    EXPECT_EQ(chosen("encounters", Description), "Brought a letter");
    EXPECT_EQ(focus(), "encounters");
    EXPECT_EQ(stored("Brought a letter' And PatientID='P-0007"), 1);

    openNewest("P-0007");
    write("txtEncounterInfo", "Moved");
    part<QWidget>("pvdateEncounter").setProperty("dateTime", QDateTime(QDate(2020, 1, 2), QTime(8, 0)));
    pressSave();
    EXPECT_EQ(chosen("encounters", Description), "Moved");
    EXPECT_EQ(chosen("encounters", 0), "1/2/2020");
    EXPECT_EQ(part<QTableView>("encounters").selectionModel()->selectedRows().first().row(), before);
}

TEST_F(MainWindow, KeepsPatientAndPanelTogetherUntilTheUserGivesUnsavedEntriesUp) {
    const std::vector<std::pair<const char*, std::function<void()>>> temptations{
        {"a click on another patient", [&] { click("patients", "P-0002"); }},
        {"a search for another patient",
         [&] {
             ctrl(Qt::Key_F);
             type("brien");
             press(Qt::Key_Down);
             ctrl(Qt::Key_F);
             press(Qt::Key_Escape);
         }},
        {"another encounter",
         [&] {
             part<QTableView>("encounters").selectRow(1);
             part<QTableView>("encounters").setFocus();
             press(Qt::Key_Return);
         }},
        {"a new Nip", [&] { ctrl(Qt::Key_N); }},
        {"closing the Nip", [&] { ctrl(Qt::Key_W); }},
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
        EXPECT_TRUE(isNipOpen());
        EXPECT_EQ(chosen("patients", ID), "P-0007");
        EXPECT_THAT(header(), HasSubstr("P-0007"));
        EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("García"));
        EXPECT_EQ(part<QLineEdit>("txtEncounterInfo").text(), "Not yet saved");
        EXPECT_EQ(chosen("encounters", Description), encounter);
    }
    user->answers = {Answer::Yes};
    click("patients", "P-0002");
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(chosen("patients", ID), "P-0002");
    EXPECT_THAT(header(), HasSubstr("O'Brien, Séamus"));
    EXPECT_EQ(stored("Not yet saved"), 0);
    user->clear();
    openNewest("P-0007");
    write("txtEncounterInfo", "Given up");
    user->answers = {Answer::Yes};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(user->boxes.size(), 1U);
}

TEST_F(MainWindow, SearchesWithoutChangingWhoIsChosen) {
    click("patients", "P-0007");
    ctrl(Qt::Key_F);
    type("brien");
    EXPECT_EQ(part<QTableView>("patients").model()->rowCount(), 1);
    EXPECT_EQ(chosen("patients", ID), "nothing");
    EXPECT_THAT(header(), HasSubstr("García"));
    press(Qt::Key_Escape);
    EXPECT_EQ(chosen("patients", ID), "P-0007");
}

TEST_F(MainWindow, LetsTheKeyboardGoRoundThePanesAndWalkThroughThePatients) {
    openNewest("P-0007");
    part<QLineEdit>("searchPatient").setFocus();
    for (const char* pane : {"encounters", "txtEncounterInfo", "searchPatient"}) {
        press(Qt::Key_F6);
        EXPECT_EQ(focus(), pane);
    }
    part<QTableView>("patients").setFocus();
    press(Qt::Key_Home);
    EXPECT_FALSE(isNipOpen());
    EXPECT_EQ(chosen("patients", ID), "P-0001");
    EXPECT_EQ(focus(), "patients");
    press(Qt::Key_Down);
    EXPECT_NE(chosen("patients", ID), "P-0001");
    EXPECT_THAT(header(), HasSubstr(chosen("patients", ID)));
}

TEST_F(MainWindow, GivesEveryUnderlinedLetterOnceAndFitsItsUsualSizeAtTwiceTheTextSize) {
    openNewest("P-0005");
    expectToFitAtTwiceTheTextSize();
    openNewest("P-0016");
    expectToFitAtTwiceTheTextSize();
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

TEST_F(MainWindow, KeepsTextSizeAndPlaceForTheNextStart) {
    const QFont usual = QApplication::font();
    ctrl(Qt::Key_Plus);
    ctrl(Qt::Key_Plus);
    window->resize(1000, 700);
    EXPECT_TRUE(window->close());
    window.reset();
    QApplication::setFont(usual);
    open();
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual.pointSizeF() * 1.25);
    EXPECT_EQ(window->size(), QSize(1000, 700));
    ctrl(Qt::Key_0);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual.pointSizeF());
}

} // namespace Korvane::Testing
