#pragma once

#include <QFont>

namespace Apps {

/// A font at so many percent of its size, whether that is in points or in pixels.
inline QFont scaled(QFont font, int percent) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * percent / 100);
    else
        font.setPixelSize(font.pixelSize() * percent / 100);
    return font;
}

} // namespace Apps
