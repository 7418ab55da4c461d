#include "support/ButtonForm.h"

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/buttons/funcPanel.h>

#include <QHelpEvent>
#include <QMetaProperty>
#include <QToolTip>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Column {
    int width, height, count;
    int frameWidth, frameHeight, buttonWidth, buttonHeight;
};

QStringList storedPropertiesOf(const QObject& control) {
    QStringList names;
    for (int i = QWidget::staticMetaObject.propertyCount(); i < control.metaObject()->propertyCount(); ++i)
        if (control.metaObject()->property(i).isStored()) names << control.metaObject()->property(i).name();
    return names;
}

} // namespace

TEST(funcPanel, DividesAResizedControlAmongItsButtons) {
    constexpr std::array rows{
        Column{3010, 3650, 5, 3000, 3600, 2700, 600}, Column{3010, 3650, 3, 3000, 3600, 2700, 1000},
        Column{6010, 2450, 1, 6000, 2400, 5700, 1800}, Column{610, 1150, 2, 600, 1100, 300, 250}};
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
        for (const int points : {9, 10, 12, 18}) { // a twip is a fraction of a pixel
            made.panel.setFont(QFont(made.panel.font().family(), points));
            made.resize(350, 650);
            EXPECT_TRUE(made.isAt(made.frame(), 5, 25, 340, 600)) << points;
        }
    }
}

TEST(funcPanel, ShowsMoreButtonsAtOnceAndFewerWithTheNextResize) {
    SizedPanel<funcPanel> made(3010, 3650);
    made.panel.buttonCount(2);
    EXPECT_TRUE(made.isAt(made.button(4), 150, 345 + 4 * 640, 2700, 600));
    EXPECT_TRUE(made.button(4).isVisible());
    EXPECT_NEAR(made.panel.height(), made.twips().px(345 + 2 * 600 + 40 + 350), 1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(made.button(1).isVisible());
    EXPECT_FALSE(made.button(2).isVisible());
    made.resize(3010, 3650);
    made.panel.buttonCount(4);
    EXPECT_TRUE(made.button(3).isVisible());
    EXPECT_FALSE(made.button(4).isVisible());
    EXPECT_TRUE(made.isAt(made.button(3), 150, 345 + 3 * (775 + 40), 2700, (3600 - 500) / 4));
    EXPECT_NEAR(made.panel.height(), made.twips().px(345 + 4 * 775 + 3 * 40 + 350), 1);
    made.panel.setFixedSize(made.panel.size());
    made.panel.buttonCount(1);
    EXPECT_TRUE(made.button(3).isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(made.button(1).isVisible()) << "its height is what it was";
}

TEST(funcPanel, RefusesACountWithoutButtonsOrWithMoreThanItHas) {
    ButtonForm<funcPanel> form;
    form.panel->buttonCount(3);
    const Marks marked(*form.panel);
    const int height = form.panel->height();
    form.panel->buttonCount(0);
    form.panel->buttonCount(6);
    form.panel->setProperty("buttonCount", 65536 + 2);
    for (const char* code : {"buttonStyle", "FrameFontSize", "ButtonFontSize"})
        form.panel->setProperty(code, 65536);
    EXPECT_EQ(form.panel->buttonStyle() + form.panel->FrameFontSize() + form.panel->ButtonFontSize(), 3);
    EXPECT_EQ(form.panel->buttonCount(), 3);
    EXPECT_EQ(form.panel->height(), height);
    EXPECT_THAT(marked.names, IsEmpty());
    EXPECT_THAT(form.user->boxes, ElementsAre(ShownBox{"buttonCount must be at least 1.", 0, ""},
                                              ShownBox{"buttonCount must not be greater than 5.", 0, ""},
                                              ShownBox{"buttonCount must not be greater than 5.", 0, ""}));
}

TEST(funcPanel, RemembersWhatWasEnabledButOnlyByItsMethods) {
    ButtonForm<funcPanel> form;
    const Marks marked(*form.panel);
    EXPECT_FALSE(form.panel->btn2Enabled());
    form.panel->btnEnable(1);
    form.panel->btnEnable(4);
    form.panel->btnDisable(4);
    form.panel->btnEnable(5);
    EXPECT_EQ(marked.names, (QStringList{"btn2Enabled", "btn5Enabled", "btn5Enabled"}));
    form.panel->Enabled(false);
    EXPECT_TRUE(form.panel->btn2Enabled() && !form.button(1).isEnabled());
    form.panel->Enabled(true);
    EXPECT_TRUE(!form.panel->btn5Enabled() && form.button(4).isEnabled());
    form.form.setEnabled(false);
    EXPECT_TRUE(form.panel->Enabled()) << "it is the form that is not";
    for (const qint16 index : std::initializer_list<qint16>{-1, 6}) {
        EXPECT_THROW(form.panel->btnEnable(index), RuntimeError);
        EXPECT_THROW(form.panel->btnDisable(index), RuntimeError);
        EXPECT_THROW(form.panel->btnFontBold(index, true), RuntimeError);
    }
    form.panel->btnFontBold(5, true);
}

TEST(funcPanel, TakesItsFontsByCodeAndGrowsWithALargeForm) {
    SizedPanel<funcPanel> made(3010, 3650);
    const auto points = [](const QWidget& part) { return part.font().pointSizeF(); };
    EXPECT_EQ(points(made.button(4)), 10);
    made.panel.ButtonFontSize(0);
    made.panel.FrameFontSize(7);
    EXPECT_EQ(made.panel.FrameFontSize(), 2);
    made.panel.FrameFontSize(-1);
    made.panel.btnsFontBold(true);
    made.panel.btnFontBold(3, false);
    QFont large = made.panel.font();
    large.setPointSizeF(20);
    made.panel.setFont(large);
    made.panel.btnText4("Sign and close");
    made.panel.resize(made.panel.minimumSizeHint());
    EXPECT_EQ(points(made.frame()), 24);
    EXPECT_EQ(points(made.button(4)), 16);
    EXPECT_TRUE(made.button(2).font().bold() && !made.button(3).font().bold());
    const QFontMetrics text = made.button(3).fontMetrics();
    EXPECT_GT(made.button(3).width(), text.horizontalAdvance("Sign and close"));
    EXPECT_GT(made.button(3).height(), text.height());
    EXPECT_GT(made.button(0).y(), made.frame().fontMetrics().height()) << "below the frame's caption";
}

TEST(funcPanel, ShortensACaptionThatHasNoRoomAndTellsAllOfIt) {
    funcPanel panel;
    panel.FrameCaption(QString(5000, 'W'));
    panel.btnText1("Salt && &Pepper" + QString(5000, 'W'));
    EXPECT_LT(panel.minimumSizeHint().width(), 2 * Twips(panel).px(widestCaption));
    QWidget& button = ButtonForm<funcPanel>::buttonOf(panel, 0);
    QHelpEvent asked(QEvent::ToolTip, {}, {});
    QCoreApplication::sendEvent(&button, &asked);
    EXPECT_EQ(QToolTip::text(), "Salt & Pepper" + QString(5000, 'W'));
    QToolTip::hideText();
}

TEST(funcPanel, WritesItsCaptionSoThatItCanBeReadOnTheBackColour) {
    funcPanel panel;
    const auto& frame = *panel.findChild<QGroupBox*>("frame1");
    EXPECT_FALSE(frame.autoFillBackground());
    panel.BackColor(0x800000);
    EXPECT_EQ(frame.palette().color(QPalette::Window), QColor(0, 0, 128));
    EXPECT_EQ(frame.palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_TRUE(panel.setProperty("BackColor", QColor(1, 2, 3)));
    EXPECT_EQ(panel.BackColor(), 0x030201);
    panel.BackColor(static_cast<qint32>(0x8000000DU));
    EXPECT_EQ(panel.property("BackColor"), panel.palette().color(QPalette::Highlight));
    panel.setProperty("BackColor", QVariant()); // resets it
    EXPECT_EQ(panel.BackColor(), static_cast<qint32>(0x8000000FU));
    EXPECT_FALSE(frame.autoFillBackground());
}

TEST(funcPanel, ComesBackFromTheBag) {
    const QStringList kept{"BackColor", "ButtonFontSize", "FrameCaption", "FrameFontSize",
                           "btnText1",  "btnText2",       "btnText3",     "btnText4",
                           "btnText5",  "buttonCount",    "buttonStyle"};
    funcPanel saved;
    QStringList stored = storedPropertiesOf(saved);
    stored.sort();
    EXPECT_EQ(stored, kept);
    const Marks marked(saved);
    for (const QString& name : kept) {
        const QVariant before = saved.property(name.toUtf8());
        saved.setProperty(name.toUtf8(), name == "BackColor"                     ? QColor(Qt::red)
                                         : before.typeId() == QMetaType::QString ? "my " + name
                                         : name == "buttonStyle"                 ? QVariant(0)
                                                                                 : QVariant(2));
    }
    EXPECT_EQ(marked.names, kept);
    saved.Enabled(false);
    saved.btnsFontBold(true);
    PropertyBag bag, again;
    saved.WriteProperties(bag);
    EXPECT_EQ(bag.values().keys(), kept);
    funcPanel read;
    read.ReadProperties(bag);
    read.WriteProperties(again);
    EXPECT_EQ(again.values(), bag.values());
    EXPECT_TRUE(read.Enabled() && !read.btnsFontBold());
    EXPECT_EQ(read.findChildren<QWidget*>(QRegularExpression("^cmdButton")).at(4)->isHidden(), true);
}

TEST(funcPanel, HasOneCaptionWhenNewAndAnotherFromAnEmptyBag) {
    funcPanel made, read;
    EXPECT_EQ(made.FrameCaption(), "Func Btn");
    read.buttonCount(2);
    read.ReadProperties(PropertyBag());
    EXPECT_EQ(read.FrameCaption(), "Function Btn");
    EXPECT_EQ(read.buttonCount(), 5);
    read.btnText5("Sign");
    read.buttonCount(2);
    read.InitProperties();
    EXPECT_EQ(read.FrameCaption(), "Func Btn");
    EXPECT_EQ(read.btnText5(), "5");
    EXPECT_EQ(read.buttonCount(), 5);
}

} // namespace Korvane
