#pragma once

#include <QGridLayout>

namespace Korvane {

/// As high as there is room, from its least height on. A scroll area would otherwise give a wrapped text, and
/// all that stands with it, the height that they would like best.
class LeastGrid : public QGridLayout {
  public:
    using QGridLayout::QGridLayout;
    int heightForWidth(int width) const override { return minimumHeightForWidth(width); }
};

} // namespace Korvane
