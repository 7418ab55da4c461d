#include <korvane/controls/container/Twips.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace Korvane {

TEST(Twips, AOneLineControlHoldsItsTextAtAnyFontSize) {
    for (const int points : {7, 10, 14, 20, 36}) {
        SCOPED_TRACE(points);
        QWidget form;
        QFont font = form.font();
        font.setPointSize(points);
        form.setFont(font);
        QLineEdit text(&form);
        QComboBox list(&form);
        QDateTimeEdit date(&form);
        const int height = Twips(form).px(285);
        EXPECT_GE(height, text.sizeHint().height());
        EXPECT_GE(height, list.sizeHint().height());
        EXPECT_GE(height, date.sizeHint().height());
        EXPECT_LE(height, text.sizeHint().height() * 5 / 4) << "no taller than it has to be";
        EXPECT_EQ(Twips(font).px(285), height);
        EXPECT_NEAR(Twips(font).px(1140), 4 * height, 2);
        EXPECT_NEAR(Twips(font).fromPx(height), 285, 10);
    }
}

TEST(Twips, FollowsOneStyleSheetAfterTheOther) {
    QLineEdit text;
    for (const char* sheet : {"QLineEdit { padding: 6px }", "QLineEdit { padding: 16px }", ""}) {
        qApp->setStyleSheet(sheet);
        EXPECT_NEAR(Twips(text).px(285), text.sizeHint().height(), 4) << sheet;
    }
}

} // namespace Korvane
