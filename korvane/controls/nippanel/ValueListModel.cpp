#include <korvane/controls/nippanel/ValueListModel.h>

#include <korvane/controls/container/Text.h>

namespace Korvane {

void ValueListModel::show(const Variant& values, int count, bool canBeEmpty, std::string_view stored) {
    beginResetModel();
    mValues = values;
    mCount = count;
    mEmptyFirst = false;
    mExtra.reset();
    mEmptyFirst = canBeEmpty && find("") < 0;
    if (!stored.empty() && find(stored) < 0) mExtra = stored;
    endResetModel();
}

int ValueListModel::find(std::string_view text) const {
    for (int row = 0; row < rowCount(); ++row)
        if (item(row) == text) return row;
    return -1;
}

int ValueListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : (mEmptyFirst ? 1 : 0) + mCount + (mExtra ? 1 : 0);
}

QVariant ValueListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    if (!index.isValid() || index.row() >= rowCount()) return {};
    return qt(item(index.row()));
}

std::string ValueListModel::item(int row) const {
    if (mEmptyFirst && row-- == 0) return {};
    return row < mCount ? mValues.array().at(row + 1).textOrEmpty() : *mExtra;
}

} // namespace Korvane
