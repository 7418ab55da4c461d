#include "support/AdminDesk.h"
#include "support/NothingIsClipped.h"

#include <QScrollArea>
#include <QScrollBar>

#include <functional>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(dbxadmin, TakesFromABagWhatItCanAndSaysWhatItCannot) {
    AdminDesk desk;
    PropertyBag bag;
    bag.WriteProperty("RecNum", 4, {}); // what it writes, and does not read
    bag.WriteProperty("DisplayType", "3", {});
    bag.WriteProperty("FieldRequired", 70000, {});
    desk.admin->ReadProperties(bag);
    EXPECT_EQ(desk.admin->RecNumber(), "1");
    EXPECT_EQ(desk.admin->displayType(), 3) << "a text that is a number";
    EXPECT_EQ(desk.admin->FieldRequired(), 0) << "no 16-bit number";
    EXPECT_EQ(bag.problems().size(), 1);
    EXPECT_EQ(desk.items(), "") << "not what it had before";
    bag.WriteProperty("RecNumber", 5, {});
    desk.admin->ReadProperties(bag);
    EXPECT_EQ(desk.admin->RecNumber(), "5");
}

TEST(dbxadmin, EachChangeOfTheUsersIsNotedAndNoneOfTheForms) {
    AdminDesk desk;
    desk.admin->ListBoxText("");
    for (const auto& [part, marks] : {std::pair{"txtFldName", "fldName"},
                                      {"txtFldCaption", "FieldCaption"},
                                      {"cboRequired", "FieldRequired"},
                                      {"txtAddtoList", "ListBoxText"},
                                      {"cboInputDisplay", "DisplayType"}}) {
        SCOPED_TRACE(part);
        EXPECT_FALSE(desk.admin->DataChanged());
        desk.heard();
        desk.part(part).setFocus();
        desk.type("s"); // in a combo box: the first that begins with it
        if (desk.focus() == "cboRequired") desk.press(Qt::Key_Down);
        EXPECT_THAT(desk.heard(), ElementsAre(marks));
        EXPECT_TRUE(desk.admin->DataChanged());
        desk.admin->DataChanged(false);
    }
    EXPECT_EQ(desk.admin->displayType(), dbxadmin::SpecialFormat);
    EXPECT_EQ(desk.admin->FieldRequired(), dbxadmin::Required);
}

TEST(dbxadmin, AFormMayAnswerEachChangeWithTheSameOrWithWhatItMakesOfIt) {
    AdminDesk desk;
    bool upper = false;
    QObject::connect(desk.admin, &dbxadmin::PropertyChanged, desk.admin, [&](const QString& name) {
        const QSignalBlocker quiet(desk.admin);
        for (const char* each : {"fldName", "ListBoxText", "ListData"}) {
            const QString text = desk.admin->property(each).toString();
            if (name == each) desk.admin->setProperty(each, upper ? text.toUpper() : text);
        }
    });
    for (const char* name : {"txtFldName", "txtAddtoList"}) {
        upper = false;
        auto& box = desk.part<QLineEdit>(name);
        box.setFocus();
        desk.type("bd");
        upper = true;
        desk.press(Qt::Key_Left);
        desk.type("co");
        EXPECT_EQ(box.text(), "BCOD");
        EXPECT_EQ(box.cursorPosition(), 3);
        EXPECT_TRUE(box.hasFocus());
    }
    desk.click(desk.button("cmdUpdate"));
    EXPECT_TRUE(desk.admin->DataChanged()) << "what is in capitals now is not in the list";
    upper = false;
    desk.clickItem(1);
    desk.press(Qt::Key_Delete);
    EXPECT_EQ(desk.list().currentRow(), 1) << "the next one, not the first";
    desk.click(desk.button());
    desk.click(desk.button());
    EXPECT_EQ(desk.items(), "[a]");
    desk.admin->setFocus();
    desk.admin->ListData("a");
    EXPECT_TRUE(desk.list().item(0)->isSelected()) << "of another field";
}

TEST(dbxadmin, KeepsACodeThatItDoesNotKnowUntilAnotherIsChosen) {
    AdminDesk desk;
    auto& types = desk.part<QComboBox>("cboInputDisplay");
    for (const qint16 code : std::initializer_list<qint16>{42, 9, -1}) {
        desk.admin->displayType(code);
        desk.admin->FieldRequired(code);
        EXPECT_EQ(desk.admin->displayType(), code);
        EXPECT_EQ(desk.admin->FieldRequired(), code);
        EXPECT_EQ(types.placeholderText(), code == -1 ? QString(" ") : QString::number(code));
    }
    for (const char* name : {"displayType", "FieldRequired"})
        desk.admin->setProperty(name, 65536 + 1);
    EXPECT_EQ(desk.admin->displayType() + desk.admin->FieldRequired(), -2) << "no 16-bit numbers";
    types.setFocus();
    desk.press(Qt::Key_End);
    EXPECT_EQ(desk.admin->displayType(), dbxadmin::Email);
}

TEST(dbxadmin, TellsOfMovesAndUpdatesAndWhatIsChangedSince) {
    AdminDesk desk;
    QObject::connect(desk.admin, &dbxadmin::RecordMove, [](qint16& index) { index = 7; });
    QObject::connect(desk.admin, &dbxadmin::RecordMove, [](qint16& index) { EXPECT_EQ(index, 7); });
    desk.click(desk.button("cmdMove(2)"));
    desk.press(Qt::Key_Home);
    desk.press(Qt::Key_Return);
    EXPECT_THAT(desk.heard(), ElementsAre("move 2", "move 0"));
    std::function<void()> onUpdate;
    QObject::connect(desk.admin, &dbxadmin::UpdateClick, [&] { onUpdate(); });
    const std::pair<std::function<void()>, bool> updates[] = {
        {[] {}, false},
        {[&] { desk.admin->DataChanged(true); }, true},
        {[&] { desk.part("txtFldName").setFocus(), desk.type("typed meanwhile"); }, true}};
    for (const auto& [update, stillChanged] : updates) {
        desk.admin->DataChanged(true);
        onUpdate = update;
        desk.click(desk.button("cmdUpdate"));
        EXPECT_EQ(desk.admin->DataChanged(), stillChanged);
    }
    EXPECT_EQ(desk.admin->fldName(), "typed meanwhile");
    onUpdate = [] {};
    for (const bool typed : {false, true}) {
        desk.admin->ListBoxText("d");
        desk.entry().setFocus();
        if (typed) desk.type("e");
        desk.click(desk.button("cmdUpdate"));
        EXPECT_EQ(desk.admin->DataChanged(), typed) << "and not added";
    }
    desk.heard();
    desk.admin->setDesignMode(true);
    for (const char* name : {"cmdMove(0)", "cmdUpdate", "cmdAddtoList"})
        desk.click(desk.button(name));
    EXPECT_THAT(desk.heard(), IsEmpty());
}

TEST(dbxadmin, WithoutUpdatesOneCanOnlyMove) {
    AdminDesk desk;
    desk.entry().setFocus();
    desk.admin->displayType(1);
    EXPECT_EQ(desk.focus(), "cmdMove(0)") << "past the list";
    desk.admin->UpdateEnabled(false);
    desk.admin->UpdateEnabled(true);
    QObject::connect(desk.admin, &dbxadmin::UpdateClick, [&] { desk.admin->UpdateEnabled(false); });
    desk.button("cmdUpdate").setFocus();
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.focus(), "cmdMove(0)") << "not the dialog's OK";
    for (const char* name : {"cmdUpdate", "txtFldName", "txtFldCaption", "cboInputDisplay", "cboRequired"})
        EXPECT_FALSE(desk.part(name).isEnabled()) << name;
    desk.heard();
    desk.click(desk.button("cmdMove(3)"));
    EXPECT_THAT(desk.heard(), ElementsAre("move 3"));
}

TEST(dbxadmin, ShowsAllOfItAtAnySizeOnTheWayThroughItByTab) {
    AdminDesk desk;
    desk.admin->ListBoxText("x");
    const auto& area = *desk.admin->findChild<QScrollArea*>();
    for (const int points : {9, 18}) {
        desk.form.setFont(QFont(desk.form.font().family(), points));
        QCoreApplication::processEvents();
        desk.form.resize(desk.form.sizeHint());
        QCoreApplication::processEvents();
        expectNothingIsClipped(desk.form);
        EXPECT_FALSE(area.verticalScrollBar()->isVisible() || area.horizontalScrollBar()->isVisible());
        desk.form.resize(desk.form.minimumSizeHint());
        QCoreApplication::processEvents();
        desk.admin->setFocus();
        std::vector<std::string> order;
        for (; !desk.ok->hasFocus(); desk.press(Qt::Key_Tab)) {
            order.push_back(desk.focus());
            const QWidget& part = *QApplication::focusWidget();
            const QSize seen = part.visibleRegion().boundingRect().size();
            EXPECT_EQ(seen.width(), part.width()) << desk.focus();
            EXPECT_GE(seen.height(), std::min(part.height(), points * 3 / 2)) << desk.focus();
        }
        EXPECT_THAT(order,
                    ElementsAre("txtFldName", "txtFldCaption", "cboInputDisplay", "cboRequired",
                                "txtAddtoList", "cmdAddtoList", "lstAddtoList", "cmdMove(0)", "cmdUpdate"));
    }
}

} // namespace Korvane
