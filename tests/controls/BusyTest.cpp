#include <korvane/controls/container/Busy.h>

#include <QGuiApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace Korvane {

TEST(Busy, LocksNestInAnyOrderAndLeavePaintingAsItWas) {
    QWidget window;
    QWidget child(&window);
    {
        const PaintLock outer(window);
        const PaintLock inner(child);
        EXPECT_FALSE(window.updatesEnabled());
    }
    EXPECT_TRUE(window.updatesEnabled());
    EXPECT_TRUE(child.updatesEnabled());

    window.setUpdatesEnabled(false);
    { const PaintLock lock(window); }
    EXPECT_FALSE(window.updatesEnabled()) << "what the host locked stays locked";
}

TEST(Busy, TheHourglassGivesBackThePointerBefore) {
    {
        const Hourglass outer;
        { const Hourglass inner; }
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace Korvane
