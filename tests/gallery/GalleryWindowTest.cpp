#include "gallery/GalleryWindow.h"

#include "support/InFront.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace Gallery {

TEST(GalleryWindow, CanBeReachedByKeysInTheOrderInWhichItIsSeen) {
    GalleryWindow window;
    Korvane::Testing::bringToFront(window);
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        return QApplication::focusWidget()->objectName();
    };
    while (window.page().control().objectName() != "movebtn")
        press(Qt::Key_Tab, Qt::ControlModifier);
    window.page().findChild<QWidget*>("cmdMove(0)")->setFocus();
    QStringList reached;
    for (int i = 0; i < 8; ++i)
        reached << press(Qt::Key_Tab);
    EXPECT_EQ(reached, (QStringList{"call Focus(0)", "lstEvents", "cmdClear", "lstProperties", "txtBag",
                                    "cmdWrite", "cmdRead", "cmdSave"}));
    reached.clear();
    for (int i = 0; i < 4; ++i)
        reached << press(Qt::Key_F6);
    reached << press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(reached,
              (QStringList{"call Focus(0)", "cmdClear", "lstProperties", "cmdSave", "lstProperties"}))
        << "each part gets the focus back where it was last";
}

} // namespace Gallery
