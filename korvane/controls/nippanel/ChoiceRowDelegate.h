#pragma once

#include <QStyledItemDelegate>

namespace Korvane {

/// Gives the rows of a list some air, so that check boxes do not touch.
class ChoiceRowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 4);
    }
};

} // namespace Korvane
