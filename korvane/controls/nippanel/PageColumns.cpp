#include <korvane/controls/nippanel/PageColumns.h>

#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/PageSpacing.h>

#include <algorithm>

namespace Korvane {

namespace {

constexpr int narrowPage = 4275;
constexpr int pageForTwoColumns = 7800;
constexpr int widestEntry = 6300;
constexpr int widestLabel = 6300;
constexpr double firstColumnPart = 0.6;
constexpr double labelPart = 0.4;
constexpr double longWordPart = 0.6;

PageColumn divideColumn(int x, int width, const CaptionWidths& captions, const Twips& twips) {
    const auto part = [width](double share) { return static_cast<int>(width * share); };
    const int comfortable = std::min(part(labelPart), twips.px(widestLabel));
    const int atLeast = std::min(captions.word, part(longWordPart));
    const int label = std::max(std::min(captions.widest, comfortable), atLeast);
    const int indent = label > 0 ? label + twips.px(PageSpacing::afterLabel) : 0;
    const int entry = width - indent;
    return {x, label, x + indent, std::min(entry, twips.px(widestEntry)), entry};
}

PageColumns withLabelsAbove(int margin, int width) {
    const PageColumn column{margin, width, margin, width, width};
    return {column, column, false, true};
}

} // namespace

PageColumns dividePage(int width, const CaptionWidths& first, const CaptionWidths& second, bool hasSecond,
                       const Twips& twips) {
    const int margin = twips.px(PageSpacing::margin);
    const int inner = std::max(width - 2 * margin, 1);
    if (width < twips.px(narrowPage)) return withLabelsAbove(margin, inner);

    if (hasSecond && width >= twips.px(pageForTwoColumns)) {
        const int gap = twips.px(PageSpacing::betweenColumns);
        const int left = static_cast<int>((inner - gap) * firstColumnPart);
        const PageColumn firstColumn = divideColumn(margin, left, first, twips);
        const int x = firstColumn.entryX + firstColumn.entryWidth + gap;
        const int right = std::min(inner - gap - left, left);
        return {firstColumn, divideColumn(x, right, second, twips), true, false};
    }
    const CaptionWidths all{std::max(first.widest, second.widest), std::max(first.word, second.word)};
    const PageColumn column = divideColumn(margin, inner, all, twips);
    return {column, column, false, false};
}

} // namespace Korvane
