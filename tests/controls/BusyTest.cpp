#include <korvane/controls/container/Busy.h>

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
    EXPECT_TRUE(child.updatesEnabled());
    window.setUpdatesEnabled(false);
    { const PaintLock lock(window); }
    EXPECT_FALSE(window.updatesEnabled()) << "what the host locked stays locked";
}

} // namespace Korvane
