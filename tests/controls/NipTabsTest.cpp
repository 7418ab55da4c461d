#include "support/NipForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gmock/gmock.h>

namespace Korvane {

using testing::ElementsAre;
using testing::HasSubstr;
using Testing::NipForm;

namespace {

constexpr const char* types[] = {"TEXT", "COMBOBOX",      "COMBOBOX-RESTRICTED",
                                 "LIST", "LIST-MULTIPLE", "LIST-EDITCONTENT"};

/// Two groups with a field of each display type.
void everyTypeTwice(NipForm& form) {
    for (const int id : {2, 3}) {
        const std::string table = "T" + std::to_string(id);
        form.group(id, "Group " + std::to_string(id), table);
        int number = 0;
        for (const char* type : types) {
            const std::string name = "F" + std::to_string(++number);
            form.field(id, table, name, {.displayType = type, .maxLength = 10, .columnType = "TEXT"});
            form.allowed(id, name, "A", static_cast<float>(number));
        }
    }
}

std::string focusName() {
    const QWidget* focus = QApplication::focusWidget();
    if (!focus) return "nothing";
    return utf8(focus->objectName().isEmpty() ? QString::fromLatin1(focus->metaObject()->className())
                                              : focus->objectName());
}

} // namespace

TEST(NipTabs, GiveEveryFieldItsElementsThoughTheControlsAreMadeWhenTheirTabIsShown) {
    NipForm form;
    everyTypeTwice(form);
    form.open();
    const std::int16_t controls[2][6] = {{0, 0, 1, 0, 1, 2}, {1, 2, 3, 3, 4, 5}};
    for (std::int16_t g = 1; g <= 2; ++g)
        for (std::int16_t f = 1; f <= 6; ++f) {
            EXPECT_EQ(form.nip.ControlIndex(g, f), controls[g - 1][f - 1]) << g << " " << f;
            EXPECT_EQ(form.nip.ControlIndexLabel(g, f), (g - 1) * 6 + f - 1);
        }
    EXPECT_EQ(form.tabs.findChild<QWidget*>("txtNip(1)"), nullptr);
    form.tabs.setCurrentIndex(1);

    const struct {
        const char* name;
        const char* tag;
    } tags[] = {{"txtNip(0)", "1::1"},
                {"cboNip(3)", "2::3"},
                {"gridNip(5)", "2::6"},
                {"cmdNip(0)", "1::6::1"},
                {"cmdNip(3)", "2::6::2"}};
    for (const auto& t : tags)
        EXPECT_EQ(form.control<QWidget>(t.name)->property("Tag"), t.tag) << t.name;
    auto* label = form.control<QLabel>("lblNip(7)");
    EXPECT_EQ(label->text(), "The F2");
    EXPECT_EQ(label->buddy(), form.control<QComboBox>("cboNip(2)"));
    EXPECT_EQ(label->buddy()->accessibleName(), "The F2");
}

TEST(NipTabs, SaveWhatTheUserDidNotTouchAsItWasLoaded) {
    const std::string values[] = {"plain",
                                  "one\r\ntwo\tthree",
                                  "longer than ten",
                                  " blanks ",
                                  "it's \"&\" <b>x</b>",
                                  "a|gone|a|",
                                  "|",
                                  "\xE4\xBD\x93\xE6\xB8\xA9",
                                  "\xFF\xFE",
                                  std::string(40000, 'x'),
                                  ""};
    for (const std::string& value : values) {
        if (value == "\xFF\xFE" && Testing::ScratchDatabase::onServer())
            continue; // nothing but UTF-8 is kept there
        NipForm form;
        everyTypeTwice(form);
        for (const char* table : {"T2", "T3"})
            form.store(
                table,
                {{"F1", value}, {"F2", value}, {"F3", value}, {"F4", value}, {"F5", value}, {"F6", value}});
        form.open();
        ASSERT_EQ(form.tabs.findChild<QWidget*>("txtNip(1)"), nullptr) << "the second tab is never shown";
        form.tabs.collect();
        EXPECT_TRUE(form.nip.Save());
        for (const char* table : {"T2", "T3"})
            for (const char* column : {"F1", "F2", "F3", "F4", "F5", "F6"})
                EXPECT_TRUE(form.rows(std::string("Select ") + column + " From " + table) == value)
                    << value.substr(0, 20) << " " << table << "." << column;
        EXPECT_EQ(form.edits, 0);
    }
}

TEST(NipTabs, ReportUnknownDisplayTypesOnceAndBuildTheRest) {
    NipForm form;
    form.group(2, "One", "T2");
    form.field(2, "T2", "Lower", {.displayType = "text"});
    form.field(2, "T2", "Good");
    form.group(3, "Two", "T3");
    form.field(3, "T3", "Odd", {.displayType = "SLIDER"});
    form.store("T2", {{"Lower", "kept"}, {"Good", "g"}});
    form.open();
    ASSERT_EQ(form.user->boxes.size(), 1U);
    EXPECT_EQ(form.user->boxes[0].text, "The following problems occurred when loading the NIP controls:\n\n"
                                        "Lower has unrecognized display type:text\n"
                                        "Odd has unrecognized display type:SLIDER\n");
    EXPECT_EQ(form.user->boxes[0].style, MsgBoxStyle::OkOnly);
    EXPECT_THAT(form.errorLog(), HasSubstr("ucNipPanel.CreateNipControls: Could not understand Nip field "
                                           "DisplayType'Lower' Display Type: 'text'"));
    EXPECT_THAT(form.errorLog(), HasSubstr("DisplayType'Odd' Display Type: 'SLIDER'"));
    EXPECT_EQ(form.control<QLineEdit>("txtNip(0)")->text(), "g");
    EXPECT_EQ(form.saved("Lower", "T2"), "kept");
}

TEST(NipTabs, FollowTheStructureAndKeepTheTabInView) {
    NipForm form;
    everyTypeTwice(form);
    form.open();
    form.tabs.setCurrentIndex(1);
    form.group(9, "R&D", "T9", 0.5F);
    form.field(9, "T9", "New");
    form.open();
    EXPECT_EQ(form.tabs.count(), 3);
    EXPECT_EQ(form.tabs.tabText(0), "R&&D") << "an ampersand, not a shortcut";
    EXPECT_EQ(form.tabs.tabText(form.tabs.currentIndex()), "Group 3");
    EXPECT_EQ(form.control<QWidget>("txtNip(2)")->property("Tag"), "3::1");
    EXPECT_EQ(form.tabs.findChild<QWidget*>("txtNip(1)"), nullptr);

    form.db->quietly("Delete From DBFieldGroups Where DBFieldGroupID In (3, 9)");
    form.db->quietly("Delete From DBFields Where DBFieldGroupID In (3, 9)");
    form.open();
    EXPECT_EQ(form.tabs.count(), 1);
    QTest::keyClicks(form.control<QLineEdit>("txtNip(0)"), "x");
    EXPECT_EQ(form.edits, 1);
}

TEST(NipTabs, GoThroughTheControlsByTabInTheOrderOfTheFields) {
    NipForm form;
    everyTypeTwice(form);
    form.open();
    form.before.setFocus();
    form.tabs.setCurrentIndex(1);
    EXPECT_TRUE(form.before.hasFocus()) << "showing a tab takes the focus from nobody";
    std::vector<std::string> visited;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.push_back(focusName());
    }
    EXPECT_THAT(visited, ElementsAre("qt_tabwidget_tabbar", "txtNip(1)", "cboNip(2)", "cboNip(3)",
                                     "gridNip(3)", "gridNip(4)", "gridNip(5)", "cmdNip(2)", "QPushButton"));
    EXPECT_TRUE(form.after.hasFocus()) << "Remove is disabled";

    form.control<QLineEdit>("txtNip(1)")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(focusName(), "txtNip(0)") << "the focus goes along";
}

TEST(NipTabs, StopOnceAtTheTabBarAlsoWhereItScrolls) {
    NipForm form;
    for (int id = 2; id < 40; ++id) {
        const std::string number = std::to_string(id);
        form.group(id, "Group number " + number, "T" + number);
        form.field(id, "T" + number, "F");
    }
    form.open();
    form.before.setFocus();
    QTest::keyClick(&form.before, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(focusName(), "txtNip(0)");
}

TEST(NipTabs, StayAtTheSecondOfTwoGroupsOfOneName) {
    NipForm form;
    for (const int id : {2, 3}) {
        form.group(id, "Same", "T" + std::to_string(id));
        form.field(id, "T" + std::to_string(id), "F");
    }
    form.open();
    form.tabs.setCurrentIndex(1);
    form.tabs.CreateNipControls(form.nip);
    EXPECT_EQ(form.tabs.currentIndex(), 1);
}

} // namespace Korvane
