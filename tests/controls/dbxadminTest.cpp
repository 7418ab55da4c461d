#include "support/AdminDesk.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMetaProperty>
#include <QScrollArea>
#include <QScrollBar>

#include <functional>

namespace Korvane {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QStringList texts{"FrameName", "ListBoxText", "ListData",    "fieldCaption", "fldCaption1",
                        "fldName",   "fldCaption2", "fldCaption3", "fldCaption4",  "RecNumber"};
const QStringList codes{"FieldRequired", "ListMode", "displayType"};

} // namespace

TEST(dbxadmin, ComesBackFromTheBagButForItsRecordNumber) {
    dbxadmin saved, read;
    std::vector<std::string> marked;
    QObject::connect(&saved, &dbxadmin::PropertyChanged,
                     [&](const QString& name) { marked.push_back(utf8(name)); });
    for (const QString& name : texts)
        EXPECT_TRUE(saved.setProperty(name.toUtf8(), "my/" + name));
    for (const QString& name : codes)
        EXPECT_TRUE(saved.setProperty(name.toUtf8(), name == "displayType" ? 8 : 1));
    saved.UpdateEnabled(false);
    saved.DataChanged(true);
    saved.fldCode(4711);
    EXPECT_THAT(marked,
                ElementsAre("FrameName", "ListBoxText", "ListData", "FieldCaption", "fldCaption1", "fldName",
                            "fldCaption2", "fldCaption3", "fldCaption4", "RecNumber", "FieldRequired",
                            "ListMode", "DisplayType", "UpdateEnabled", "DataChanged", "fldCode"));
    PropertyBag bag, again;
    saved.WriteProperties(bag);
    EXPECT_EQ(bag.values().keys(),
              (QStringList{"DisplayType", "FieldCaption", "FieldRequired", "FrameName", "ListBoxText",
                           "ListData", "ListMode", "RecNum", "UpdateEnabled", "fldCaption1", "fldCaption2",
                           "fldCaption3", "fldCaption4", "fldName"}));
    read.ReadProperties(bag);
    EXPECT_EQ(read.RecNumber(), "1");
    EXPECT_THAT(bag.problems(), IsEmpty());
    EXPECT_FALSE(read.DataChanged() || read.fldCode().isValid());
    read.RecNumber("my/RecNumber");
    read.WriteProperties(again);
    EXPECT_EQ(again.values(), bag.values());
    bag = {};
    bag.WriteProperty("RecNumber", 5, {});
    bag.WriteProperty("DisplayType", "3", {});
    bag.WriteProperty("FieldRequired", 70000, {});
    bag.WriteProperty("UpdateEnabled", "False", {});
    read.ReadProperties(bag);
    EXPECT_EQ(read.RecNumber(), "5");
    EXPECT_EQ(read.displayType(), 3) << "a text that is a number";
    EXPECT_EQ(read.FieldRequired(), 0) << "no 16-bit number";
    EXPECT_EQ(bag.problems().size(), 1);
    EXPECT_FALSE(read.UpdateEnabled());
    EXPECT_EQ(read.findChild<QListWidget*>("lstAddtoList")->count(), 0) << "what it had before";
}

TEST(dbxadmin, HasItsDefaultsWhenNewAndOthersFromAnEmptyBag) {
    dbxadmin made, read;
    made.InitProperties();
    read.ReadProperties(PropertyBag());
    EXPECT_EQ(made.ListData(), "Item 1/Item 2/Item 3/Etc.");
    EXPECT_EQ(made.findChild<QListWidget*>("lstAddtoList")->count(), 4);
    EXPECT_EQ(read.ListData(), "");
    EXPECT_EQ(made.displayType(), 0);
    EXPECT_EQ(read.displayType(), 1);
    PropertyBag bag;
    read.WriteProperties(bag);
    EXPECT_THAT(bag.values(), IsEmpty());
    for (const dbxadmin* each : {&made, &read}) {
        EXPECT_EQ(each->fldCaption1() + '|' + each->fldCaption2() + '|' + each->fldCaption3() + '|' +
                      each->fldCaption4(),
                  "Field Name|Field Caption|Input Display|Required");
        EXPECT_EQ(each->RecNumber() + each->FrameName() + each->fldName() + each->ListBoxText(), "1");
        EXPECT_TRUE(each->UpdateEnabled() && each->ListMode() == 0 && each->FieldRequired() == 0);
    }
    QStringList unstored;
    for (int i = QWidget::staticMetaObject.propertyCount(); i < made.metaObject()->propertyCount(); ++i)
        if (!made.metaObject()->property(i).isStored()) unstored << made.metaObject()->property(i).name();
    EXPECT_EQ(unstored, (QStringList{"DataChanged", "fldCode", "RecNumber"}));
}

TEST(dbxadmin, EachChangeOfTheUsersIsNotedAndNoneOfTheForms) {
    AdminDesk desk;
    for (const auto& [part, marks] :
         std::vector<std::pair<QString, std::string>>{{"txtFldName", "fldName"},
                                                      {"txtFldCaption", "FieldCaption"},
                                                      {"cboRequired", "FieldRequired"},
                                                      {"txtAddtoList", "ListBoxText"},
                                                      {"cboInputDisplay", "DisplayType"}}) {
        SCOPED_TRACE(part.toStdString());
        desk.admin->fldName("n");
        desk.admin->fieldCaption("c");
        desk.admin->displayType(3);
        desk.admin->ListBoxText("");
        EXPECT_FALSE(desk.admin->DataChanged());
        desk.heard();
        desk.part(part.toUtf8()).setFocus();
        desk.type("s"); // in a combo box: the first that begins with it
        if (part == "cboRequired") desk.press(Qt::Key_Down);
        EXPECT_THAT(desk.heard(), ElementsAre(marks));
        EXPECT_TRUE(desk.admin->DataChanged());
        desk.admin->DataChanged(false);
    }
    EXPECT_EQ(desk.admin->displayType(), dbxadmin::SpecialFormat);
    EXPECT_EQ(desk.admin->FieldRequired(), dbxadmin::Required);
}

TEST(dbxadmin, KeepsACodeThatItDoesNotKnowUntilAnotherIsChosen) {
    AdminDesk desk;
    auto& types = desk.part<QComboBox>("cboInputDisplay");
    for (const int code : {42, 9, -7, -1}) {
        desk.admin->setProperty("displayType", code);
        desk.admin->FieldRequired(static_cast<qint16>(code));
        EXPECT_EQ(desk.admin->displayType(), code);
        EXPECT_EQ(desk.admin->FieldRequired(), code);
        EXPECT_EQ(types.currentIndex(), -1);
        EXPECT_EQ(types.placeholderText(), code == -1 ? QString(" ") : QString::number(code));
        EXPECT_FALSE(desk.list().isEnabled());
    }
    for (const char* name : {"displayType", "FieldRequired", "ListMode"})
        desk.admin->setProperty(name, 65536 + 1);
    EXPECT_EQ(desk.admin->displayType() + desk.admin->FieldRequired(), -2) << "no 16-bit numbers";
    EXPECT_EQ(desk.admin->ListMode(), 0);
    types.setFocus();
    desk.press(Qt::Key_End);
    EXPECT_EQ(desk.admin->displayType(), dbxadmin::Email);
    EXPECT_EQ(desk.admin->property("displayType").toInt(), dbxadmin::Email);
}

TEST(dbxadmin, TellsOfMovesAndUpdatesAndWhatIsChangedSince) {
    AdminDesk desk;
    std::vector<std::function<void()>> onUpdate{[] {}, [&] { desk.admin->DataChanged(true); },
                                                [&] { desk.type("typed meanwhile"); }};
    std::size_t update = 0;
    QObject::connect(desk.admin, &dbxadmin::RecordMove, [](qint16& index) { index = 7; });
    QObject::connect(desk.admin, &dbxadmin::RecordMove, [](qint16& index) { EXPECT_EQ(index, 7); });
    QObject::connect(desk.admin, &dbxadmin::UpdateClick, [&] {
        EXPECT_TRUE(desk.admin->DataChanged());
        desk.part("txtFldName").setFocus();
        onUpdate[update++]();
    });
    desk.click(desk.button("cmdMove(2)"));
    desk.press(Qt::Key_Home);
    desk.press(Qt::Key_Return);
    EXPECT_THAT(desk.heard(), ElementsAre("move 2", "move 0"));
    for (const bool changed : {false, true, true}) {
        desk.admin->DataChanged(true);
        desk.click(desk.button("cmdUpdate"));
        EXPECT_EQ(desk.admin->DataChanged(), changed);
    }
    EXPECT_EQ(desk.admin->fldName(), "typed meanwhile");
    for (const bool typed : {false, true}) {
        desk.admin->ListBoxText("d");
        desk.entry().setFocus();
        if (typed) desk.type("e");
        desk.admin->DataChanged(true);
        onUpdate.emplace_back([] {});
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
    EXPECT_EQ(desk.focus() + utf8(desk.button().text()), "cmdMove(0)Add to List") << "past the list";
    desk.admin->setFocus();
    desk.heard();
    desk.admin->UpdateEnabled(false);
    for (const char* name : {"cmdUpdate", "txtFldName", "txtFldCaption", "cboInputDisplay", "cboRequired"})
        EXPECT_FALSE(desk.part(name).isEnabled()) << name;
    EXPECT_EQ(desk.focus(), "cmdMove(0)");
    desk.click(desk.button("cmdMove(3)"));
    EXPECT_THAT(desk.heard(), ElementsAre("UpdateEnabled", "move 3"));
    desk.admin->UpdateEnabled(true);
    QObject::connect(desk.admin, &dbxadmin::UpdateClick, [&] { desk.admin->UpdateEnabled(false); });
    desk.button("cmdUpdate").setFocus();
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.focus(), "cmdMove(3)") << "not the dialog's OK";
}

TEST(dbxadmin, GoesThroughItsPartsByTabAndToOneByTheKeyOfItsCaption) {
    AdminDesk desk;
    desk.admin->ListBoxText("x");
    std::vector<std::string> order;
    for (int i = 0; i < 9; ++i, desk.press(Qt::Key_Tab))
        order.push_back(desk.focus());
    EXPECT_THAT(order,
                ElementsAre("txtFldName", "txtFldCaption", "cboInputDisplay", "cboRequired", "txtAddtoList",
                            "cmdAddtoList", "lstAddtoList", "cmdMove(0)", "cmdUpdate"));
    EXPECT_TRUE(desk.ok->hasFocus());
    desk.admin->fldCaption2("&Caption");
    QTest::keyClick(&desk.form, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(desk.focus(), "txtFldCaption");
    desk.press(Qt::Key_Return);
    EXPECT_THAT(desk.heard(), Contains("ok")) << "as everywhere in the dialog";
    const auto name = [&](const char* part) {
        return utf8(QAccessible::queryAccessibleInterface(&desk.part(part))->text(QAccessible::Name));
    };
    EXPECT_EQ(name("txtFldCaption") + '|' + name("txtAddtoList") + '|' + name("lstAddtoList") + '|' +
                  name("cmdMove(1)"),
              "Caption|Value to add|Values of the list|Previous record");
}

TEST(dbxadmin, ShowsAllOfItBesideOrBelowEachOtherAtAnySize) {
    AdminDesk desk;
    auto& area = *desk.admin->findChild<QScrollArea*>();
    const auto placed = [&](const char* name) {
        return QRect(desk.part(name).mapTo(desk.admin, QPoint()), desk.part(name).size());
    };
    for (const int points : {9, 18}) {
        QFont font = desk.form.font();
        font.setPointSize(points);
        desk.form.setFont(font);
        desk.form.setLayoutDirection(Qt::LeftToRight);
        QCoreApplication::processEvents();
        desk.form.resize(desk.form.sizeHint());
        QCoreApplication::processEvents();
        EXPECT_GT(placed("txtAddtoList").left(), placed("txtFldName").right());
        EXPECT_FALSE(area.verticalScrollBar()->isVisible() || area.horizontalScrollBar()->isVisible());
        desk.form.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        EXPECT_LT(placed("txtAddtoList").right(), placed("txtFldName").left());
        desk.form.resize(desk.form.minimumSizeHint());
        QCoreApplication::processEvents();
        EXPECT_GT(placed("txtAddtoList").top(), placed("cboRequired").bottom());
        desk.admin->setFocus();
        for (; !desk.ok->hasFocus(); desk.press(Qt::Key_Tab)) {
            const QWidget& part = *QApplication::focusWidget();
            const QRect shown(part.mapTo(area.viewport(), QPoint()), part.size());
            const QRect seen = shown & area.viewport()->rect();
            EXPECT_EQ(seen.width(), shown.width()) << desk.focus();
            EXPECT_GE(seen.height(), std::min(shown.height(), points * 3 / 2)) << desk.focus();
        }
    }
}

} // namespace Korvane
