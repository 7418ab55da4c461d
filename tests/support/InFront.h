#pragma once

#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>

namespace Korvane::Testing {

/// Shows a window as the one that the keys go to.
inline void bringToFront(QWidget& window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

} // namespace Korvane::Testing
