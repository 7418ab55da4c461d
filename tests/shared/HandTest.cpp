#include "shared/Hand.h"
#include "shared/Failure.h"

#include "support/InFront.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include <functional>
#include <utility>
#include <vector>

namespace Apps {

namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

/// A window with a text box and a button that asks a question.
class Hands : public testing::Test {
  protected:
    Hands() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&box);
        layout->addWidget(&button);
        QObject::connect(&button, &QPushButton::clicked,
                         [this] { answer = QMessageBox::question(&window, {}, "Really?"); });
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    QLineEdit box;
    QPushButton button;
    Hand hand;
    int answer = 0;
};

} // namespace

TEST_F(Hands, TypeWhereTheyClicked) {
    hand.click(box);
    hand.type("Ab c");
    hand.press(Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "Ab ");
}

TEST_F(Hands, CannotClickThroughWhatLiesAbove) {
    QWidget cover(&window);
    cover.setGeometry(window.rect());
    cover.show();
    hand.click(button);
    EXPECT_EQ(answer, 0);
}

TEST_F(Hands, FailWhereABoxIsMissingUnexpectedOrNotAsItShouldBe) {
    const std::vector<std::pair<std::function<void()>, const char*>> failures{
        {[&] { hand.answering([] {}, [](QWidget&) {}); }, "should have come up"},
        {[&] { hand.click(button); }, "Really?"},
        {[&] { hand.answering([&] { hand.click(button); }, [](QWidget&) { throw Failure("no icon"); }); },
         "no icon"}};
    for (const auto& [deed, message] : failures) {
        Korvane::Testing::bringToFront(window);
        EXPECT_THAT(deed, ThrowsMessage<Failure>(HasSubstr(message)));
    }
}

} // namespace Apps
