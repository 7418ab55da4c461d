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

/// Two groups, "Group 2" and "Group 3", with a field of each display type, F1 to F6.
struct EveryTypeTwice : NipForm {
    EveryTypeTwice() {
        for (const int id : {2, 3}) {
            const std::string table = "T" + std::to_string(id);
            group(id, "Group " + std::to_string(id), table);
            int number = 0;
            for (const char* type : types) {
                const std::string name = "F" + std::to_string(++number);
                field(id, table, name, {.displayType = type, .maxLength = 10, .columnType = "TEXT"});
                allowed(id, name, "A", static_cast<float>(number));
            }
        }
    }
    QWidget& part(const char* name) const { return *control<QWidget>(name); }
    QString text(const char* box) const { return control<QLineEdit>(box)->text(); }
    std::string tag(const char* name) const { return utf8(part(name).property("Tag").toString()); }
    std::string rowsOf(const char* list) const { return shownRows(control<QListView>(list)); }
    void type(const char* box, const char* text) const {
        part(box).setFocus();
        QTest::keyClicks(&part(box), text);
    }
    std::vector<QPointer<QWidget>> controlsOf(const char* tagOfGroup) const {
        std::vector<QPointer<QWidget>> controls;
        for (QWidget* widget : tabs.findChildren<QWidget*>())
            if (widget->property("Tag").toString().startsWith(tagOfGroup)) controls.emplace_back(widget);
        return controls;
    }
};

std::string focusName() {
    const QWidget* focus = QApplication::focusWidget();
    if (!focus) return "nothing";
    return utf8(focus->objectName().isEmpty() ? QString::fromLatin1(focus->metaObject()->className())
                                              : focus->objectName());
}

/// What Tab comes to, one control behind the other.
std::vector<std::string> tabbed(QWidget& from, int times) {
    from.setFocus();
    std::vector<std::string> visited;
    while (times-- > 0) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.push_back(focusName());
    }
    return visited;
}

} // namespace

TEST(NipTabs, GiveEveryFieldItsElementsThoughTheControlsAreMadeWhenTheirTabIsShown) {
    EveryTypeTwice form;
    form.open();
    const std::int16_t controls[2][6] = {{0, 0, 1, 0, 1, 2}, {1, 2, 3, 3, 4, 5}};
    for (std::int16_t g = 1; g <= 2; ++g)
        for (std::int16_t f = 1; f <= 6; ++f) {
            EXPECT_EQ(form.nip.ControlIndex(g, f), controls[g - 1][f - 1]) << g << " " << f;
            EXPECT_EQ(form.nip.ControlIndexLabel(g, f), (g - 1) * 6 + f - 1);
        }
    EXPECT_EQ(form.tabs.findChild<QWidget*>("txtNip(1)"), nullptr);
    form.tabs.setCurrentIndex(1);
    for (const auto& [name, tag] :
         {std::pair{"txtNip(0)", "1::1"}, {"gridNip(5)", "2::6"}, {"cmdNip(3)", "2::6::2"}})
        EXPECT_EQ(form.tag(name), tag) << name;
    const auto* label = form.control<QLabel>("lblNip(7)");
    EXPECT_EQ(label->buddy(), &form.part("cboNip(2)"));
    EXPECT_EQ(utf8(label->text() + label->buddy()->accessibleName()), "The F2The F2");
    EXPECT_THAT(tabbed(form.before, 9),
                ElementsAre("qt_tabwidget_tabbar", "txtNip(1)", "cboNip(2)", "cboNip(3)", "gridNip(3)",
                            "gridNip(4)", "gridNip(5)", "cmdNip(2)", "QPushButton"));
}

TEST(NipTabs, SaveWhatTheUserDidNotTouchAsItWasLoaded) {
    const std::string values[] = {
        "plain", "one\r\ntwo\tthree",        "longer than ten", "it's \"&\" <b>x</b>",   "a|gone|a|",
        "|",     "\xE4\xBD\x93\xE6\xB8\xA9", "\xFF\xFE",        std::string(40000, 'x'), ""};
    for (const std::string& v : values) {
        if (v == "\xFF\xFE" && Testing::ScratchDatabase::onServer()) continue; // only UTF-8 is kept there
        EveryTypeTwice form;
        for (const char* table : {"T2", "T3"})
            form.store(table, {{"F1", v}, {"F2", v}, {"F3", v}, {"F4", v}, {"F5", v}, {"F6", v}});
        form.open();
        ASSERT_EQ(form.tabs.findChild<QWidget*>("txtNip(1)"), nullptr) << "the second tab is never shown";
        const std::string expected = v + "|" + v + "|" + v + "|" + v + "|" + v + "|" + v;
        for (const char* table : {"T2", "T3"})
            EXPECT_TRUE(form.saved("F1,F2,F3,F4,F5,F6", table) == expected) << v.substr(0, 20) << table;
        EXPECT_EQ(form.edits, 0);
    }
}

TEST(NipTabs, ReportUnknownDisplayTypesOnceAndBuildTheRest) {
    NipForm form;
    form.group(2, "One", "T2");
    form.field(2, "T2", "Lower", {.displayType = "text"});
    form.field(2, "T2", "Good");
    form.field(2, "T2", "Odd", {.displayType = "SLIDER"});
    form.store("T2", {{"Lower", "kept"}, {"Good", "g"}});
    form.open();
    EXPECT_THAT(form.user->boxes, ElementsAre(Testing::ShownBox{
                                      "The following problems occurred when loading the NIP controls:\n\n"
                                      "Lower has unrecognized display type:text\n"
                                      "Odd has unrecognized display type:SLIDER\n",
                                      MsgBoxStyle::OkOnly, ""}));
    EXPECT_THAT(form.errorLog(), HasSubstr("ucNipPanel.CreateNipControls: Could not understand Nip field "
                                           "DisplayType'Lower' Display Type: 'text'"));
    EXPECT_EQ(form.control<QLineEdit>("txtNip(0)")->text(), "g");
    EXPECT_EQ(form.saved("Lower", "T2"), "kept");
}

TEST(NipTabs, FollowTheStructureAndKeepTheTabInView) {
    EveryTypeTwice form;
    form.open();
    form.tabs.setCurrentIndex(1);
    form.group(9, "R&D", "T9", 0.5F);
    form.field(9, "T9", "New");
    form.group(10, "Group 3", "T10", 0.4F); // another of the same name
    form.open();
    EXPECT_EQ(form.tabs.count(), 4);
    EXPECT_EQ(form.tabs.tabText(1), "R&&D") << "an ampersand, not a shortcut";
    EXPECT_EQ(form.tabs.currentIndex(), 3);
    EXPECT_EQ(form.tag("txtNip(2)"), "4::1");
    form.db->quietly("Delete From DBFieldGroups Where DBFieldGroupID=3");
    form.open();
    EXPECT_EQ(form.tabs.currentIndex(), 0) << "what is left of that name";
}

TEST(NipTabs, KeepTheControlsOfWhatDidNotChangeAndRenumberThem) {
    EveryTypeTwice form;
    form.open();
    form.tabs.setCurrentIndex(1);
    const auto second = form.controlsOf("2::");
    ASSERT_EQ(second.size(), 8U);
    form.group(9, "First now", "T9", 0.5F);
    form.field(9, "T9", "New", {.displayType = "LIST-EDITCONTENT"});
    form.field(2, "T2", "Another", {.ordinal = 0.5F});
    form.db->quietly("Delete From DBFields Where DBFieldGroupID=2 And FieldName='F2'");
    form.rebuild();
    EXPECT_EQ(form.controlsOf("3::"), second);
    EXPECT_EQ(utf8(second[0]->objectName() + " " + second.back()->objectName()), "txtNip(2) cmdNip(5)");
    form.tabs.setCurrentIndex(1);
    EXPECT_THAT(tabbed(form.before, 5),
                ElementsAre("qt_tabwidget_tabbar", "txtNip(0)", "txtNip(1)", "cboNip(0)", "gridNip(1)"));
    EXPECT_EQ(form.tag("txtNip(0)") + form.tag("cboNip(0)") + form.tag("gridNip(1)"), "2::12::32::4");
    EXPECT_LT(form.part("txtNip(0)").y(), form.part("txtNip(1)").y());
}

TEST(NipTabs, ShowWhatIsNewOfAFieldInItsOldControl) {
    EveryTypeTwice form;
    form.store("T2", {{"F1", "text"}, {"F2", "A"}, {"F4", "A"}});
    form.open();
    const QPointer<QWidget> box = &form.part("txtNip(0)"), list = &form.part("gridNip(0)");
    auto& label = *form.control<QLabel>("lblNip(0)");
    const int height = label.height();
    form.db->quietly("Update DBFields Set MaxLength=4,FieldCaption='" + std::string(200, 'm') +
                     " m' Where FieldName='F1'");
    form.db->quietly("Update DBFields Set DisplayType='LIST' Where FieldName='F2'");
    form.allowed(2, "F4", "B", 9);
    form.rebuild();
    EXPECT_EQ(&form.part("txtNip(0)"), box);
    EXPECT_EQ(&form.part("gridNip(1)"), list);
    EXPECT_GT(label.height(), height);
    form.type("txtNip(0)", "more");
    EXPECT_EQ(form.text("txtNip(0)"), "text") << "it is full now";
    EXPECT_EQ(form.rowsOf("gridNip(0)") + ", " + form.rowsOf("gridNip(1)"), "[A], [A] B");
    EXPECT_EQ(form.saved("F1,F2", "T2"), "text|A");
}

TEST(NipTabs, LeaveTheUserWhereTheyAreWhenTheStructureChanges) {
    EveryTypeTwice form;
    form.store("T3", {{"F1", "stored"}, {"F2", "A"}});
    form.open({900, 250});
    form.tabs.setCurrentIndex(1);
    form.type("cboNip(2)", "typed");
    form.type("txtNip(1)", "new ");
    QScrollBar& bar = *form.control<QScrollArea>("scrollNip(1)")->verticalScrollBar();
    bar.setValue(40);
    ASSERT_EQ(bar.value(), 40);
    form.allowed(3, "F2", "B", 9);
    form.field(3, "T3", "New");
    form.rebuild();
    EXPECT_EQ(focusName(), "txtNip(1)");
    EXPECT_EQ(bar.value(), 40);
    EXPECT_EQ(form.text("txtNip(1)"), "new stored");
    EXPECT_EQ(form.control<QLineEdit>("txtNip(1)")->cursorPosition(), 4);
    EXPECT_EQ(form.control<QComboBox>("cboNip(2)")->currentText(), "typedA");
    EXPECT_EQ(form.saved("F1,F2", "T3"), "new stored|typedA");

    form.db->quietly("Update T3 Set F1='by another desk'");
    form.type("txtNip(1)", "more");
    form.rebuild();
    EXPECT_EQ(form.text("txtNip(1)"), "by another desk");
    form.db->quietly("Delete From DBFields Where FieldName='F1'");
    form.rebuild();
    EXPECT_EQ(focusName(), "cboNip(2)") << "the focus goes on";
}

} // namespace Korvane
