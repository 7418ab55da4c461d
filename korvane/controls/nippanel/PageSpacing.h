#pragma once

namespace Korvane {

/// Distances on a page, in twips.
struct PageSpacing {
    static constexpr int margin = 150;
    static constexpr int afterLabel = 150;
    static constexpr int betweenColumns = 300;
    static constexpr int betweenRows = 90;
    static constexpr int belowLabel = 30;
};

} // namespace Korvane
