#pragma once

#include <korvane/runtime/Variant.h>

#include <QAbstractListModel>

#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The items of a combo box: a field's allowed values, read from the field's own list when they are drawn. A
/// stored value that is not among them stands at the end. Nothing is copied.
class ValueListModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    /// The list as `cNIP::ValueList` gives it: `count` values from index 1 on. With `canBeEmpty` an empty
    /// item stands in front, unless the list has one of its own.
    void show(const Variant& values, int count, bool canBeEmpty, std::string_view stored);

    /// The first item with this text, -1 when there is none.
    int find(std::string_view text) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::string item(int row) const;

    Variant mValues;
    int mCount = 0;
    bool mEmptyFirst = false;
    std::optional<std::string> mExtra;
};

} // namespace Korvane
