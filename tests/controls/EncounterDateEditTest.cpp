#include "support/PanelDesk.h"

#include <QApplication>

#include <gmock/gmock.h>

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
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
        panel.LoadNipInfo(7, "P1");
        description().setFocus();
        QTest::keyClick(&description(), Qt::Key_Tab);
        EXPECT_TRUE(date().hasFocus());
    }
    void press(const char* text) {
        for (const char* key = text; *key; ++key)
            QTest::keyClick(QApplication::focusWidget(), *key);
    }
    std::string stored() { return rows("Select EncounterDate From Encounter"); }
};

} // namespace

TEST(EncounterDateEdit, StoresADateAsItIsTyped) {
    struct Case {
        const char* typed;
        const char* stored;
    };
    const Case cases[] = {{"3/4/2025", "3/4/2025 3:04:05 PM"},        {"11/15/2025", "11/15/2025 3:04:05 PM"},
                          {"2/28/2025", "2/28/2025 3:04:05 PM"},      {"12/31/2025", "12/31/2025 3:04:05 PM"},
                          {"2/29/2024", "2/29/2024 3:04:05 PM"},      {"1/2/25", "1/2/2025 3:04:05 PM"},
                          {"1/2/2025 9:30 AM", "1/2/2025 9:30:00 AM"}};
    for (const bool selectAll : {false, true}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << c.typed << (selectAll ? " over everything" : ""));
            DateDesk desk;
            if (selectAll) QTest::keyClick(&desk.date(), Qt::Key_A, Qt::ControlModifier);
            desk.press(c.typed);
            EXPECT_TRUE(desk.panel.isModified());
            QTest::keyClick(&desk.date(), Qt::Key_S, Qt::ControlModifier);
            EXPECT_EQ(desk.stored(), c.stored);
            EXPECT_EQ(desk.heard.size(), 2U) << "renamed and closed";
        }
    }
}

TEST(EncounterDateEdit, KeepsWhatIsNoDateForTheUserToMend) {
    for (const char* typed : {"2/30/2025", "2/30/2025 3:04 PM", "1/2/2026 3: PM", "3/4/2", "3//2025", "x"}) {
        SCOPED_TRACE(typed);
        DateDesk desk;
        QTest::keyClick(&desk.date(), Qt::Key_A, Qt::ControlModifier);
        desk.press(typed);
        QTest::keyClick(&desk.date(), Qt::Key_Tab);
        EXPECT_TRUE(desk.providers().hasFocus());
        QTest::mouseClick(desk.date().findChild<QLineEdit*>(), Qt::LeftButton, {}, {3, 5});
        desk.save();
        EXPECT_THAT(desk.user->boxes, ElementsAre(notADate));
        EXPECT_TRUE(desk.date().hasFocus());
        EXPECT_EQ(desk.date().text(), typed);
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_EQ(desk.stored(), "1/2/2026 3:04:05 PM");

        desk.panel.SaveNipInfo();
        EXPECT_TRUE(desk.panel.isModified()) << "the date is still to be saved";
        desk.user->answers = {Answer::Yes};
        desk.panel.LoadNipInfo(7, "P1");
        EXPECT_EQ(desk.date().text(), "1/2/2026 3:04 PM");
    }
}

TEST(EncounterDateEdit, KeepsWhatIsNoDateThroughHidingAndTheCalendar) {
    DateDesk desk;
    QTest::keyClick(&desk.date(), Qt::Key_A, Qt::ControlModifier);
    desk.press("13/4/2025");
    desk.date().hide();
    desk.date().show();
    QTest::mouseClick(&desk.date(), Qt::LeftButton, {}, {desk.date().width() - 5, 10});
    EXPECT_EQ(desk.date().text(), "13/4/2025");
    desk.save();
    EXPECT_THAT(desk.user->boxes, ElementsAre(notADate));
}

TEST(EncounterDateEdit, KnowsOfATextThatCameWithoutKeys) {
    DateDesk desk;
    auto* line = desk.date().findChild<QLineEdit*>();
    line->selectAll();
    line->insert("11/15/2025 9:30 AM");
    EXPECT_TRUE(desk.panel.isModified());
    desk.save();
    EXPECT_EQ(desk.stored(), "11/15/2025 9:30:00 AM");
}

TEST(EncounterDateEdit, UpAndDownStepThePartAtTheCursor) {
    DateDesk desk;
    const auto lineEdit = desk.date().findChild<QLineEdit*>();
    struct Case {
        int cursor;
        const char* text;
    };
    for (const Case& c :
         {Case{0, "2/2/2026 3:04 PM"}, Case{3, "1/3/2026 3:04 PM"}, Case{8, "1/2/2027 3:04 PM"},
          Case{10, "1/2/2026 4:04 PM"}, Case{13, "1/2/2026 3:05 PM"}, Case{16, "1/2/2026 3:04 AM"}}) {
        lineEdit->setCursorPosition(c.cursor);
        const int key = c.cursor == 16 ? Qt::Key_Down : Qt::Key_Up;
        QTest::keyClick(&desk.date(), static_cast<Qt::Key>(key));
        EXPECT_EQ(desk.date().text(), c.text) << c.cursor;
        desk.user->answers = {Answer::Yes};
        desk.panel.LoadNipInfo(7, "P1");
    }
}

} // namespace Korvane
