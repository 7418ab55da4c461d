#include <korvane/controls/nippanel/ChoiceModel.h>

#include <korvane/controls/nippanel/ListEntryText.h>

#include <algorithm>

namespace Korvane {

void ChoiceModel::show(std::vector<ChoiceRow> rows) {
    beginResetModel();
    mRows = std::move(rows);
    endResetModel();
}

void ChoiceModel::append(const QString& content) {
    insert(rowCount(), {false, content, rowCount() + 1});
}

void ChoiceModel::insert(int row, ChoiceRow choice) {
    beginInsertRows({}, row, row);
    mRows.insert(mRows.begin() + row, std::move(choice));
    endInsertRows();
}

void ChoiceModel::move(int row, int before) {
    if (before == row || before == row + 1) return;
    beginMoveRows({}, row, row, {}, before);
    const auto moved = mRows.begin() + row;
    if (before < row)
        std::rotate(mRows.begin() + before, moved, moved + 1);
    else
        std::rotate(moved, moved + 1, mRows.begin() + before);
    endMoveRows();
}

void ChoiceModel::remove(int row) {
    beginRemoveRows({}, row, row);
    mRows.erase(mRows.begin() + row);
    endRemoveRows();
}

void ChoiceModel::toggle(int row) {
    const bool check = !at(row).checked;
    setData(index(row), check ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

QStringList ChoiceModel::contents() const {
    QStringList all;
    for (const ChoiceRow& row : mRows)
        all << row.content;
    return all;
}

QStringList ChoiceModel::checkedContents() const {
    QStringList checked;
    for (const ChoiceRow& row : mRows)
        if (row.checked) checked << row.content;
    return checked;
}

int ChoiceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const ChoiceRow& row = mRows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.content;
    case Qt::CheckStateRole:
        return mChecking == None ? QVariant() : QVariant(row.checked ? Qt::Checked : Qt::Unchecked);
    case IndexRole:
        return row.index;
    default:
        return {};
    }
}

bool ChoiceModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || mChecking == None) return false;
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
    ChoiceRow& row = at(index.row());
    const bool check = value.toInt() == Qt::Checked;
    if (row.checked == check) return true;
    if (check && mChecking == Many && !canBeListEntry(row.content)) return false;
    if (check && mChecking == One)
        for (ChoiceRow& other : mRows)
            other.checked = false;
    row.checked = check;
    emit dataChanged(this->index(0), this->index(rowCount() - 1), {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags ChoiceModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags row = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return mChecking == None ? row : row | Qt::ItemIsUserCheckable;
}

QHash<int, QByteArray> ChoiceModel::roleNames() const {
    return {{Qt::CheckStateRole, "Checked"}, {Qt::DisplayRole, "content"}, {IndexRole, "Index"}};
}

} // namespace Korvane
