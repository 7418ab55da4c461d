#include "support/InFront.h"
#include "support/PanelDesk.h"

#include <QApplication>
#include <QWheelEvent>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const ShownBox notADate{"The date of this encounter is not a valid date. Please enter it as month/day/year.",
                        MsgBoxStyle::Information, ""};

/// A saved Nip of 1/2/2026 3:04:05 PM with the focus on its date, reached with the Tab key.
struct DateDesk : PanelDesk {
    DateDesk() {
        Testing::bringToFront(panel);
        load();
        description().setFocus();
        QTest::keyClick(&description(), Qt::Key_Tab);
        EXPECT_TRUE(date().hasFocus());
    }
    void press(const char* text) {
        for (const char* key = text; *key; ++key)
            QTest::keyClick(QApplication::focusWidget(), *key);
    }
    void replaceBy(const char* text) {
        QTest::keyClick(&date(), Qt::Key_A, Qt::ControlModifier);
        press(text);
    }
    QLineEdit& line() { return *date().findChild<QLineEdit*>(); }
    std::string dateStored() { return rows("Select EncounterDate From Encounter"); }
};

} // namespace

TEST(EncounterDateEdit, StoresADateAsItIsTyped) {
    const std::pair<const char*, const char*> cases[] = {{"3/4/2025", "3/4/2025 3:04:05 PM"},
                                                         {"1/2/25", "1/2/2025 3:04:05 PM"},
                                                         {"1/2/2025 9:30 AM", "1/2/2025 9:30:00 AM"}};
    using Enter = std::function<void(DateDesk&, const char*)>;
    const Enter ways[] = {[](auto& d, auto* text) { d.press(text); },
                          [](auto& d, auto* text) { d.replaceBy(text); },
                          [](auto& d, auto* text) { d.line().selectAll(), d.line().insert(text); }};
    for (const Enter& enter : ways) {
        for (const auto& [typed, stored] : cases) {
            SCOPED_TRACE(testing::Message() << typed << &enter - ways);
            DateDesk desk;
            enter(desk, typed);
            EXPECT_TRUE(desk.panel.isModified());
            QTest::keyClick(&desk.date(), Qt::Key_S, Qt::ControlModifier);
            EXPECT_EQ(desk.dateStored(), stored);
            EXPECT_EQ(desk.heard.size(), 2U) << "renamed and closed";
        }
    }
}

TEST(EncounterDateEdit, KeepsWhatIsNoDateForTheUserToMend) {
    for (const char* typed : {"2/30/2025", "1/2/2026 3: PM", "3/4/2", "pasted"}) {
        SCOPED_TRACE(typed);
        DateDesk desk;
        desk.line().selectAll();
        *typed == 'p' ? desk.line().insert(typed) : desk.replaceBy(typed);
        QTest::keyClick(&desk.date(), Qt::Key_Tab);
        EXPECT_TRUE(desk.providers().hasFocus());
        desk.date().hide();
        desk.date().show();
        QTest::mouseClick(&desk.date(), Qt::LeftButton, {}, {desk.date().width() - 5, 10}); // its calendar
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "it would put its date over the text";
        QTest::mouseClick(&desk.line(), Qt::LeftButton, {}, {3, 5});
        desk.save();
        EXPECT_THAT(desk.told(), ElementsAre(notADate));
        EXPECT_TRUE(desk.date().hasFocus());
        EXPECT_EQ(desk.date().text(), typed);
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_EQ(desk.dateStored(), "1/2/2026 3:04:05 PM");

        desk.panel.SaveNipInfo();
        EXPECT_TRUE(desk.panel.isModified()) << "the date is still to be saved";
        desk.user->answers = {Answer::Yes};
        desk.load();
        EXPECT_EQ(desk.date().text(), "1/2/2026 3:04 PM");
    }
}

TEST(EncounterDateEdit, UpAndDownStepThePartAtTheCursorAndTheWheelNone) {
    DateDesk desk;
    QWheelEvent wheel({5, 5}, desk.date().mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&desk.date(), &wheel);
    for (const auto& [cursor, text] : {std::pair{0, "2/2/2026 3:04 PM"},
                                       {3, "2/3/2026 3:04 PM"},
                                       {8, "2/3/2027 3:04 PM"},
                                       {10, "2/3/2027 4:04 PM"},
                                       {13, "2/3/2027 4:05 PM"}}) {
        desk.line().setCursorPosition(cursor);
        QTest::keyClick(&desk.date(), Qt::Key_Up);
        EXPECT_EQ(desk.date().text(), text);
    }
    desk.line().setCursorPosition(16);
    QTest::keyClick(&desk.date(), Qt::Key_Down);
    EXPECT_EQ(desk.date().text(), "2/3/2027 4:05 AM");
}

} // namespace Korvane
