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

TEST(GalleryWindow, ScrollsAPageThatIsLargerThanItselfToWhatGetsTheFocus) {
    GalleryWindow window;
    Korvane::Testing::bringToFront(window);
    window.resize(300, 300);
    for (int pages = window.count(); pages > 0; --pages) {
        SCOPED_TRACE(window.page().control().objectName().toStdString());
        const QSize least = window.page().minimumSizeHint();
        EXPECT_EQ(window.page().size().expandedTo(least), window.page().size());
        for (int parts = 0; parts < 4; ++parts) {
            QTest::keyClick(&window, Qt::Key_F6);
            const QWidget& focus = *QApplication::focusWidget();
            EXPECT_FALSE(focus.visibleRegion().isEmpty()) << focus.objectName().toStdString();
        }
        QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
    }
}

} // namespace Gallery
