#include <korvane/controls/nippanel/FieldGrid.h>

#include <korvane/controls/container/ColumnShares.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/controls/nippanel/DisplayTypes.h>
#include <korvane/nip/cNIP.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <iterator>

namespace Korvane {

namespace {

/// The first ones: they share what the numbers leave.
constexpr int elidedColumns[] = {0, 1, 2};

/// Rows that the list has room for at least.
constexpr int lowest = 5;

QTreeWidgetItem* itemOf(const cNIP& nip, std::int16_t group, std::int16_t field) {
    const std::string& keyword = nip.displayType(group, field);
    const DisplayType* type = findDisplayType(keyword);
    auto* item = new QTreeWidgetItem(
        {qt(nip.fieldName(group, field)), qt(nip.Caption(group, field)), type ? type->caption() : qt(keyword),
         QString::number(nip.maxLength(group, field)), QString::number(nip.RowIndex(group, field))});
    for (const int column : elidedColumns)
        item->setToolTip(column, item->text(column));
    return item;
}

} // namespace

FieldGrid::FieldGrid(QWidget* parent) : QTreeWidget(parent) {
    setObjectName("gridNipFields");
    setAccessibleName(tr("Fields of the group"));
    setHeaderLabels({tr("Name"), tr("Caption"), tr("Display Type"), tr("Width"), tr("Row")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    header()->setMinimumSectionSize(1);
    new ColumnShares(*header(), {std::begin(elidedColumns), std::end(elidedColumns)},
                     ColumnShares::Narrow::Shortens);
    connect(this, &QTreeWidget::currentItemChanged, this, &FieldGrid::tell, Qt::QueuedConnection);
    connect(this, &QTreeWidget::itemClicked, this, &FieldGrid::tell, Qt::QueuedConnection);
    connect(this, &QTreeWidget::itemActivated, this, &FieldGrid::tell, Qt::QueuedConnection);
}

void FieldGrid::list(const cNIP* nip, std::int16_t group) {
    const QSignalBlocker quiet(this);
    clear();
    mMarked = 0;
    if (!nip || group < 1 || group > nip->GroupCount()) return;
    QList<QTreeWidgetItem*> items;
    for (const std::int16_t field : CountedFrom1(nip->FieldCount(group)))
        items.append(itemOf(*nip, group, field));
    addTopLevelItems(items);
}

void FieldGrid::mark(std::int16_t field) {
    const QSignalBlocker quiet(this);
    mMarked = field;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        QFont font = this->font();
        font.setBold(i + 1 == field);
        item->setFont(0, font);
        item->setSelected(i + 1 == field);
    }
    setCurrentItem(topLevelItem(field - 1));
}

QSize FieldGrid::minimumSizeHint() const {
    const int rows = lowest * (fontMetrics().height() + 1);
    int headings = verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < header()->count(); ++column)
        headings += header()->sectionSizeHint(column);
    return {headings + 2 * frameWidth(), header()->sizeHint().height() + rows + 2 * frameWidth()};
}

/// A view without a current row takes its first one then, which nobody has chosen.
void FieldGrid::focusInEvent(QFocusEvent* event) {
    const QSignalBlocker quiet(this);
    QTreeWidget::focusInEvent(event);
    if (mMarked == 0) setCurrentItem(nullptr);
}

void FieldGrid::tell() {
    const int row = indexOfTopLevelItem(currentItem()) + 1;
    if (row > 0 && row != mMarked) emit chosen(row);
}

} // namespace Korvane
