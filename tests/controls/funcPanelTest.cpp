#include "support/ButtonForm.h"
#include "support/NothingIsClipped.h"

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/buttons/funcPanel.h>

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;

namespace {

struct Column {
    int width, height, count;
    int frameWidth, frameHeight, buttonWidth, buttonHeight;
};

} // namespace

TEST(funcPanel, DividesAResizedControlAmongItsButtons) {
    constexpr std::array rows{Column{3010, 3650, 5, 3000, 3600, 2700, 600},
                              Column{6010, 2450, 1, 6000, 2400, 5700, 1800},
                              Column{610, 1150, 2, 600, 1100, 300, 250}};
    for (const Column& row : rows) {
        SCOPED_TRACE(row.count);
        SizedPanel<funcPanel> made(4000, 4000);
        made.panel.buttonCount(static_cast<qint16>(row.count));
        made.resize(row.width, row.height);
        EXPECT_TRUE(made.isAt(made.frame(), 5, 25, row.frameWidth, row.frameHeight));
        for (int i = 0, top = 345; i < row.count; ++i, top += row.buttonHeight + 40)
            EXPECT_TRUE(made.isAt(made.button(i), 150, top, row.buttonWidth, row.buttonHeight));
        for (int i = row.count; i < 5; ++i)
            EXPECT_TRUE(made.button(i).isHidden() && made.button(i).y() > made.twips().px(10000));
        made.resize(300, 3000);
        made.resize(3000, 600);
        EXPECT_TRUE(made.isAt(made.frame(), 5, 25, row.frameWidth, row.frameHeight)) << "too small to follow";
    }
}

TEST(funcPanel, ShowsMoreButtonsAtOnceAndFewerWithTheNextResize) {
    SizedPanel<funcPanel> made(3010, 3650);
    made.panel.buttonCount(2);
    EXPECT_TRUE(made.isAt(made.button(4), 150, 345 + 4 * 640, 2700, 600));
    EXPECT_TRUE(made.button(4).isVisible());
    EXPECT_NEAR(made.panel.height(), made.twips().px(345 + 2 * 600 + 40 + 350), 1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(made.button(1).isVisible() && !made.button(2).isVisible());
    made.resize(3010, 3650);
    made.panel.buttonCount(4);
    EXPECT_TRUE(made.button(3).isVisible() && !made.button(4).isVisible());
    EXPECT_TRUE(made.isAt(made.button(3), 150, 345 + 3 * (775 + 40), 2700, (3600 - 500) / 4));
}

TEST(funcPanel, RefusesACountWithoutButtonsOrWithMoreThanItHas) {
    ButtonForm<funcPanel> form;
    form.panel->buttonCount(3);
    const int height = form.panel->height();
    for (const int count : {0, 6, 65536 + 2})
        form.panel->setProperty("buttonCount", count);
    for (const char* code : {"buttonStyle", "FrameFontSize", "ButtonFontSize"})
        form.panel->setProperty(code, 65536);
    EXPECT_EQ(form.panel->buttonStyle() + form.panel->FrameFontSize() + form.panel->ButtonFontSize(), 3);
    EXPECT_EQ(form.panel->buttonCount(), 3);
    EXPECT_EQ(form.panel->height(), height);
    const ShownBox tooMany{"buttonCount must not be greater than 5.", 0, ""};
    EXPECT_THAT(form.user->boxes,
                ElementsAre(ShownBox{"buttonCount must be at least 1.", 0, ""}, tooMany, tooMany));
}

TEST(funcPanel, RemembersWhatWasEnabledButOnlyByItsMethods) {
    ButtonForm<funcPanel> form;
    EXPECT_FALSE(form.panel->btn2Enabled());
    form.panel->btnEnable(1);
    form.panel->btnDisable(4);
    form.panel->Enabled(false);
    EXPECT_TRUE(form.panel->btn2Enabled() && !form.button(1).isEnabled());
    form.panel->Enabled(true);
    EXPECT_TRUE(!form.panel->btn5Enabled() && form.button(4).isEnabled());
    form.form.setEnabled(false);
    EXPECT_TRUE(form.panel->Enabled()) << "it is the form that is not";
    form.panel->btnEnable(5);
    for (const qint16 index : std::initializer_list<qint16>{-1, 6})
        EXPECT_THROW(form.panel->btnEnable(index), RuntimeError);
}

TEST(funcPanel, TakesItsFontsByCodeAndGrowsWithALargeForm) {
    SizedPanel<funcPanel> made(3010, 3650);
    const auto points = [](const QWidget& part) { return part.font().pointSizeF(); };
    EXPECT_EQ(points(made.button(4)), 10);
    made.panel.ButtonFontSize(0);
    made.panel.FrameFontSize(7);
    made.panel.FrameFontSize(-1);
    made.panel.btnsFontBold(true);
    made.panel.btnFontBold(3, false);
    made.panel.setFont(QFont(made.panel.font().family(), 20));
    made.panel.btnText4("Sign and close");
    made.panel.resize(made.panel.minimumSizeHint());
    EXPECT_EQ(points(made.frame()), 24) << "the largest";
    EXPECT_EQ(points(made.button(4)), 16);
    EXPECT_TRUE(made.button(2).font().bold() && !made.button(3).font().bold());
    expectNothingIsClipped(made.panel);
}

TEST(funcPanel, ShortensACaptionThatHasNoRoomAndTellsAllOfIt) {
    SizedPanel<funcPanel> made(3010, 3650);
    const auto tipOf = [](QWidget& part) {
        QToolTip::hideText();
        QHelpEvent asked(QEvent::ToolTip, {1, 1}, part.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&part, &asked);
        return asked.isAccepted() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText() : "none";
    };
    made.panel.FrameCaption("&Orders" + QString(5000, 'W'));
    made.panel.btnText1("Salt && &Pepper <b>" + QString(5000, 'W'));
    EXPECT_LT(made.panel.minimumSizeHint().width(), 2 * made.twips().px(widestCaption));
    EXPECT_EQ(tipOf(made.button(0)), "Salt & Pepper <b>" + QString(5000, 'W'));
    EXPECT_EQ(tipOf(made.frame()), "Orders" + QString(5000, 'W'));
    EXPECT_EQ(tipOf(made.button(1)), "none") << "but what the form has for all of the panel";
    QToolTip::hideText();
}

} // namespace Korvane
