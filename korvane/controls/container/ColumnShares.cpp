#include <korvane/controls/container/ColumnShares.h>

#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <functional>
#include <utility>

namespace Korvane {

ColumnShares::ColumnShares(QHeaderView& header, std::vector<int> columns, Narrow narrow)
    : QObject(&header), mHeader(header), mColumns(std::move(columns)), mNarrow(narrow) {
    mHeader.setTextElideMode(Qt::ElideRight);
    mHeader.setStretchLastSection(false);
    mHeader.setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const int column : mColumns)
        mHeader.setSectionResizeMode(column, QHeaderView::Fixed);
    mHeader.viewport()->installEventFilter(this);
    connect(&mHeader, &QHeaderView::sectionResized, this, [this] {
        if (!mSharing) shareSoon();
    });
    connect(&mHeader, &QHeaderView::geometriesChanged, this, &ColumnShares::shareSoon);
    share();
}

bool ColumnShares::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) shareSoon();
    return QObject::eventFilter(watched, event);
}

// A header that is in the middle of laying out its columns does not know its length.
void ColumnShares::shareSoon() {
    if (!std::exchange(mDue, true))
        QMetaObject::invokeMethod(this, &ColumnShares::share, Qt::QueuedConnection);
}

void ColumnShares::share() {
    mDue = false;
    const QScopedValueRollback sharing(mSharing, true);
    int left = mHeader.viewport()->width() - mHeader.length();
    int headings = 0;
    for (const int column : mColumns) {
        left += mHeader.sectionSize(column);
        headings += mHeader.sectionSizeHint(column);
    }
    const bool shortens = mNarrow == Narrow::Shortens && headings > left;
    // The widest headings first: what they take beyond an equal part, the others do without.
    std::ranges::stable_sort(mColumns, std::greater(),
                             [this](int column) { return mHeader.sectionSizeHint(column); });
    auto count = static_cast<int>(mColumns.size());
    for (const int column : mColumns) {
        const int width = std::max(left / count--, shortens ? 0 : mHeader.sectionSizeHint(column));
        mHeader.resizeSection(column, width);
        left -= width;
    }
}

} // namespace Korvane
