#include "clinic/RowTable.h"

#include <korvane/controls/container/ColumnShares.h>

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>

namespace Clinic {

namespace {

/// A third of the one colour on two thirds of the other.
QColor mixed(const QColor& colour, const QColor& ground) {
    const auto part = [](int a, int b) { return (a + 2 * b) / 3; };
    return {part(colour.red(), ground.red()), part(colour.green(), ground.green()),
            part(colour.blue(), ground.blue())};
}

} // namespace

RowTable::RowTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    fitRows();
}

void RowTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    // Not the current row: a list that gets the focus makes its first row current, which is no choice.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!mSetting && chosenRow() >= 0) emit chosen(chosenRow());
    });
}

void RowTable::setStretchColumns(std::initializer_list<int> columns) {
    new Korvane::ColumnShares(*horizontalHeader(), columns);
}

void RowTable::setEmptyText(const QString& text) {
    mEmptyText = text;
    viewport()->update();
}

int RowTable::chosenRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void RowTable::setChosenRow(int row) {
    const QScopedValueRollback setting(mSetting, true);
    if (row < 0) {
        selectionModel()->clear();
        return;
    }
    selectRow(row);
    scrollTo(model()->index(row, 0));
}

void RowTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitRows();
}

void RowTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!model() || model()->rowCount() > 0) return;
    const int margin = fontMetrics().height() / 2;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, mEmptyText);
}

// Home and End go to the first and the last row; a table's own go along the row.
QModelIndex RowTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const bool alongTheRow = action == MoveHome || action == MoveEnd;
    return QTableView::moveCursor(action, alongTheRow ? modifiers | Qt::ControlModifier : modifiers);
}

void RowTable::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
    if (hasFocus()) return;
    option->palette.setColor(QPalette::Highlight,
                             mixed(palette().color(QPalette::Highlight), palette().color(QPalette::Base)));
    option->palette.setColor(QPalette::HighlightedText, palette().color(QPalette::Text));
}

// The row that is chosen stays chosen, also under Ctrl+click.
QItemSelectionModel::SelectionFlags RowTable::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
    const auto command = QTableView::selectionCommand(index, event);
    const bool changesNothing = command == QItemSelectionModel::NoUpdate || !index.isValid();
    return changesNothing ? QItemSelectionModel::NoUpdate
                          : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void RowTable::fitRows() {
    const int height = fontMetrics().height() + fontMetrics().height() / 3;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

} // namespace Clinic
