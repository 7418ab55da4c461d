#include <korvane/controls/nippanel/EncounterPane.h>

#include "support/PanelDesk.h"

#include <QLabel>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;

TEST(EncounterPane, OffersTheProvidersAsTheTableHasThem) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    EXPECT_THAT(desk.db->statements,
                testing::Contains("Select FirstName,LastName,ProviderID,ProviderType,Suffix From Provider"));
    EXPECT_EQ(desk.providers().count(), 2);
    EXPECT_EQ(desk.providers().currentText(), "Dr. Ann Hale MD");
    EXPECT_EQ(desk.providers().itemText(1), "Nurse Bo Lee ") << "an empty suffix leaves its blank";
    desk.provider(3, "Dr.", "Cy", "Ng", "DO");
    desk.db->quietly("Update Encounter Set ProviderID=3");
    desk.panel.LoadNipInfo(7, "P1");
    EXPECT_EQ(desk.providers().currentText(), "Dr. Cy Ng DO");
    desk.panel.CreateNip("P2");
    EXPECT_EQ(desk.providers().currentIndex(), -1);
}

TEST(EncounterPane, AWheelThatPassesOverItChangesNothing) {
    PanelDesk desk;
    desk.panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desk.panel));
    desk.panel.LoadNipInfo(7, "P1");
    for (QWidget* control : {static_cast<QWidget*>(&desk.providers()), static_cast<QWidget*>(&desk.date())}) {
        control->setFocus();
        QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &wheel);
    }
    EXPECT_FALSE(desk.panel.isModified());
}

TEST(EncounterPane, TakesADescriptionOfAnyLength) {
    PanelDesk desk;
    desk.db->quietly("Update Encounter Set Description='" + std::string(40000, 'x') + "'");
    desk.panel.LoadNipInfo(7, "P1");
    QTest::keyClick(&desk.description(), Qt::Key_End);
    QTest::keyClick(&desk.description(), 'y');
    desk.save();
    EXPECT_EQ(desk.rows("Select Description From Encounter"), std::string(40000, 'x') + "y");
}

TEST(EncounterPane, WrapsRatherThanClipsAtAnyWidthAndFontSize) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    QWidget& pane = desk.part<QWidget>("paneEncounter");
    for (const int percent : {100, 150, 200}) {
        QFont font = desk.panel.font();
        font.setPointSizeF(9.0 * percent / 100);
        desk.panel.setFont(font);
        for (const int width : {2400, 600, 300, 2400}) {
            SCOPED_TRACE(testing::Message() << percent << " % at " << width);
            desk.panel.resize(width, 900);
            QCoreApplication::processEvents();
            for (const QWidget* part :
                 std::initializer_list<QWidget*>{&desk.description(), &desk.date(), &desk.providers()}) {
                EXPECT_TRUE(pane.rect().contains(part->geometry()));
                EXPECT_GE(part->height(), part->minimumSizeHint().height());
            }
            for (const QLabel* label : pane.findChildren<QLabel*>()) {
                EXPECT_GE(label->width(), label->sizeHint().width());
                EXPECT_FALSE(label->geometry().intersects(label->buddy()->geometry()));
            }
            EXPECT_GE(desk.date().width(), desk.date().sizeHint().width());
            EXPECT_EQ(pane.height() < 2 * desk.date().height(), width == 2400)
                << "one row only where it fits";
        }
    }
}

TEST(EncounterPane, NamesItsControlsForKeyboardAndScreenReader) {
    PanelDesk desk;
    for (const auto& [name, spoken] :
         {std::pair{"txtEncounterInfo", "Description"}, std::pair{"pvdateEncounter", "Date"},
          std::pair{"pvcEncounterInfo", "Provider"}}) {
        const QWidget& control = desk.part<QWidget>(name);
        EXPECT_EQ(control.accessibleName(), spoken);
        int buddies = 0;
        for (const QLabel* label : desk.part<QWidget>("paneEncounter").findChildren<QLabel*>())
            buddies += label->buddy() == &control && label->text().contains('&');
        EXPECT_EQ(buddies, 1);
    }
}

} // namespace Korvane
