#include <korvane/controls/nippanel/PageCell.h>

#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/PageSpacing.h>

#include <QFontMetrics>
#include <QLabel>
#include <QStyle>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

/// Places one cell after the other; the cells of a line keep their tops level.
class Placement {
  public:
    Placement(const std::vector<PageCell>& cells, const QWidget& page, QSize viewport)
        : mTwips(page), mFont(page.fontMetrics()), mColumns(columnsFor(cells, viewport.width())),
          mDirection(page.layoutDirection()), mWidth(viewport.width()),
          mMargin(mTwips.px(PageSpacing::margin)), mTabHeight(viewport.height() - 2 * mMargin),
          mTop(mMargin) {}

    void add(const PageCell& cell) {
        if (!continuesLine(cell)) endLine();
        mRow = cell.row;
        mColumn = cell.column;
        mLineHeight = std::max(mLineHeight, place(cell, cell.column == 2 ? mColumns.second : mColumns.first));
    }

    int finish() {
        endLine();
        const int spacing = mTwips.px(PageSpacing::betweenRows);
        return mTop == mMargin ? 0 : mTop - spacing + mMargin;
    }

  private:
    PageColumns columnsFor(const std::vector<PageCell>& cells, int width) const {
        CaptionWidths widths[2];
        bool hasSecond = false;
        for (const PageCell& cell : cells) {
            hasSecond = hasSecond || cell.column == 2;
            CaptionWidths& w = widths[cell.column == 2 ? 1 : 0];
            w = {std::max(w.widest, cell.width.widest), std::max(w.word, cell.width.word)};
        }
        return dividePage(width, widths[0], widths[1], hasSecond, mTwips);
    }

    bool continuesLine(const PageCell& cell) const {
        return mColumns.sideBySide && cell.row == mRow && cell.column > mColumn;
    }

    void endLine() {
        if (mLineHeight > 0) mTop += mLineHeight + mTwips.px(PageSpacing::betweenRows);
        mLineHeight = 0;
    }

    int labelHeight(const PageCell& cell, int width) const {
        if (cell.width.widest <= width) return mFont.height();
        constexpr int unlimited = std::numeric_limits<short>::max();
        return mFont.boundingRect(QRect(0, 0, width, unlimited), Qt::TextWordWrap, cell.caption).height();
    }

    int place(const PageCell& cell, const PageColumn& column) const {
        const int captionHeight = labelHeight(cell, column.labelWidth);
        int above = 0;
        int labelTop = mTop;
        if (mColumns.labelsAbove)
            above = captionHeight + mTwips.px(PageSpacing::belowLabel);
        else
            labelTop += std::max((mTwips.px(Twips::oneLine) - mFont.height()) / 2, 0);
        const int height = cell.entry->height(mTwips, mTabHeight - above);
        const int width = cell.entry->isWide() ? column.wideWidth : column.entryWidth;
        cell.label->setGeometry(inReadingOrder({column.labelX, labelTop, column.labelWidth, captionHeight}));
        cell.entry->place(inReadingOrder({column.entryX, mTop + above, width, height}), mTwips);
        return std::max(labelTop + captionHeight, mTop + above + height) - mTop;
    }

    QRect inReadingOrder(const QRect& area) const {
        return QStyle::visualRect(mDirection, QRect(0, 0, mWidth, 0), area);
    }

    Twips mTwips;
    QFontMetrics mFont;
    PageColumns mColumns;
    Qt::LayoutDirection mDirection;
    int mWidth;
    int mMargin;
    int mTabHeight;
    int mTop;
    int mLineHeight = 0;
    int mRow = 0;
    int mColumn = 0;
};

int widestWord(const QString& caption, const QFontMetrics& font) {
    int widest = 0;
    for (const QStringView word : QStringView(caption).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        widest = std::max(widest, font.horizontalAdvance(word.toString()));
    return widest;
}

} // namespace

// A line is broken by where its letters end, which may be beyond the place of the next one.
void measureCaption(PageCell& cell, const QFontMetrics& font) {
    const int overhang = font.averageCharWidth();
    cell.width = {font.horizontalAdvance(cell.caption) + overhang, widestWord(cell.caption, font) + overhang};
}

int placeCells(const std::vector<PageCell>& cells, const QWidget& page, QSize viewport) {
    std::vector<const PageCell*> inOrder;
    inOrder.reserve(cells.size());
    for (const PageCell& cell : cells)
        inOrder.push_back(&cell);
    std::stable_sort(inOrder.begin(), inOrder.end(), [](const PageCell* a, const PageCell* b) {
        return a->row != b->row ? a->row < b->row : a->column < b->column;
    });
    Placement placement(cells, page, viewport);
    for (const PageCell* cell : inOrder)
        placement.add(*cell);
    return placement.finish();
}

} // namespace Korvane
