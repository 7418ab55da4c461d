#pragma once

#include <QHeaderView>

#include <vector>

namespace Korvane {

/// Lets some columns of a list share, in equal parts, the width that the others leave, with none narrower
/// than its heading. Where the headings do not fit side by side, the list scrolls sideways; or all columns
/// stay in sight, and headings are shortened.
///
///     new ColumnShares(*table->horizontalHeader(), {Description, Provider});      // Date fits its contents
///
/// It belongs to the header, whose columns have to be there already; the other columns become as wide as what
/// they hold. It follows the width of the list, its contents and its font.
class ColumnShares : public QObject {
  public:
    enum class Narrow { Scrolls, Shortens };

    ColumnShares(QHeaderView& header, std::vector<int> columns, Narrow narrow = Narrow::Scrolls);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void shareSoon();
    void share();

    QHeaderView& mHeader;
    std::vector<int> mColumns;
    Narrow mNarrow;
    bool mDue = false;
    bool mSharing = false;
};

} // namespace Korvane
