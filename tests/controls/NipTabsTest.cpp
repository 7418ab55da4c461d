#include "support/NipForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace Korvane {

using testing::ElementsAre;
using testing::HasSubstr;
using Testing::NipForm;
using Testing::shownRows;

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

std::vector<QPointer<QWidget>> controlsOf(const NipForm& form, const char* tagOfGroup) {
    std::vector<QPointer<QWidget>> controls;
    for (QWidget* widget : form.tabs.findChildren<QWidget*>())
        if (widget->property("Tag").toString().startsWith(tagOfGroup)) controls.emplace_back(widget);
    return controls;
}

void type(const NipForm& form, const char* box, const QString& text) {
    form.control<QWidget>(box)->setFocus();
    QTest::keyClicks(form.control<QWidget>(box), text);
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
    EXPECT_EQ(form.tabs.findChild<QWidget*>("txtNip(0)"), nullptr) << "the new one has not been shown";

    form.db->quietly("Delete From DBFieldGroups Where DBFieldGroupID In (3, 9)");
    form.db->quietly("Delete From DBFields Where DBFieldGroupID In (3, 9)");
    form.open();
    EXPECT_EQ(form.tabs.count(), 1);
    QTest::keyClicks(form.control<QLineEdit>("txtNip(0)"), "x");
    EXPECT_EQ(form.edits, 1);
}

TEST(NipTabs, KeepTheControlsOfWhatDidNotChangeAndRenumberThem) {
    NipForm form;
    everyTypeTwice(form);
    form.open();
    form.tabs.setCurrentIndex(1);
    const auto second = controlsOf(form, "2::");
    ASSERT_EQ(second.size(), 8U);
    form.group(9, "First now", "T9", 0.5F);
    form.field(9, "T9", "New", {.displayType = "LIST-EDITCONTENT"});
    form.field(2, "T2", "Another", {.ordinal = 0.5F});
    form.db->quietly("Delete From DBFields Where DBFieldGroupID=2 And FieldName='F2'");
    form.rebuild();
    EXPECT_EQ(controlsOf(form, "3::"), second);
    for (const QWidget* widget : second)
        ASSERT_TRUE(widget && widget->isVisible());
    EXPECT_EQ(utf8(second[0]->objectName()), "txtNip(2)");
    EXPECT_EQ(utf8(second.back()->objectName()), "cmdNip(5)");
    EXPECT_EQ(form.control<QLabel>("lblNip(7)")->buddy(), second[0]);

    form.tabs.setCurrentIndex(1);
    form.before.setFocus();
    QTest::keyClick(&form.before, Qt::Key_Tab);
    std::vector<std::string> visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.push_back(focusName() + " " + utf8(QApplication::focusWidget()->property("Tag").toString()));
    }
    EXPECT_THAT(visited,
                ElementsAre("txtNip(0) 2::1", "txtNip(1) 2::2", "cboNip(0) 2::3", "gridNip(1) 2::4"));
    EXPECT_LT(form.control<QWidget>("txtNip(0)")->y(), form.control<QWidget>("txtNip(1)")->y());
    EXPECT_TRUE(form.control<QWidget>("txtNip(0)")->isVisible());
}

TEST(NipTabs, ShowWhatIsNewOfAFieldInItsOldControl) {
    NipForm form;
    everyTypeTwice(form);
    form.store("T2", {{"F1", "text"}, {"F2", "A"}, {"F4", "A"}});
    form.open();
    QPointer<QWidget> box = form.control<QWidget>("txtNip(0)");
    QPointer<QWidget> combo = form.control<QWidget>("cboNip(0)");
    QPointer<QWidget> list = form.control<QWidget>("gridNip(0)");
    const int height = form.control<QLabel>("lblNip(0)")->height();
    form.db->quietly("Update DBFields Set MaxLength=4,FieldCaption='" + std::string(200, 'm') +
                     " m' Where FieldName='F1'");
    form.db->quietly("Update DBFields Set DisplayType='LIST' Where FieldName='F2'");
    form.allowed(2, "F4", "B", 9);
    form.rebuild();
    EXPECT_EQ(form.control<QWidget>("txtNip(0)"), box);
    EXPECT_GT(form.control<QLabel>("lblNip(0)")->height(), height);
    EXPECT_EQ(form.control<QLabel>("lblNip(0)")->text(), box->accessibleName());
    type(form, "txtNip(0)", "more");
    EXPECT_EQ(form.control<QLineEdit>("txtNip(0)")->text(), "text") << "it is full now";
    EXPECT_TRUE(combo.isNull());
    EXPECT_EQ(shownRows(form.control<QListView>("gridNip(0)")), "[A]");
    EXPECT_EQ(form.control<QListView>("gridNip(1)"), list);
    EXPECT_EQ(shownRows(form.control<QListView>("gridNip(1)")), "[A] B");
    EXPECT_EQ(form.saved("F1", "T2"), "text");
}

TEST(NipTabs, LeaveTheUserWhereTheyAreWhenTheStructureChanges) {
    NipForm form;
    everyTypeTwice(form);
    form.store("T3", {{"F1", "stored"}, {"F2", "A"}});
    form.open({900, 250});
    form.tabs.setCurrentIndex(1);
    type(form, "cboNip(2)", "typed");
    type(form, "txtNip(1)", "new ");
    auto* area = form.control<QScrollArea>("scrollNip(1)");
    area->verticalScrollBar()->setValue(40);
    ASSERT_EQ(area->verticalScrollBar()->value(), 40);
    form.allowed(3, "F2", "B", 9);
    form.field(3, "T3", "New");
    form.rebuild();
    EXPECT_EQ(focusName(), "txtNip(1)");
    EXPECT_EQ(area->verticalScrollBar()->value(), 40);
    EXPECT_EQ(form.control<QLineEdit>("txtNip(1)")->text(), "new stored");
    EXPECT_EQ(form.control<QLineEdit>("txtNip(1)")->cursorPosition(), 4);
    EXPECT_EQ(form.control<QComboBox>("cboNip(2)")->currentText(), "typedA");
    EXPECT_EQ(form.saved("F1,F2", "T3"), "new stored|typedA");

    form.db->quietly("Update T3 Set F1='by another desk'");
    type(form, "txtNip(1)", "more");
    form.rebuild();
    EXPECT_EQ(form.control<QLineEdit>("txtNip(1)")->text(), "by another desk");
    form.db->quietly("Delete From DBFields Where FieldName='F1'");
    form.rebuild();
    EXPECT_EQ(focusName(), "cboNip(2)") << "the focus goes on";
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
