#include "gallery/PropertyTable.h"

#include "gallery/PropertyModel.h"

#include <QComboBox>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace Gallery {

namespace {

/// A combo box where a value is one of several.
class PropertyDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        const QStringList choices = index.data(PropertyModel::choicesRole).toStringList();
        if (choices.isEmpty()) return QStyledItemDelegate::createEditor(parent, option, index);
        auto* box = new QComboBox(parent);
        box->addItems(choices);
        return box;
    }
};

} // namespace

PropertyTable::PropertyTable(PropertyModel& model) {
    setObjectName(QStringLiteral("lstProperties"));
    setAccessibleName(tr("Properties"));
    setModel(&model);
    setItemDelegate(new PropertyDelegate(this));
    setTabKeyNavigation(false);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setEditTriggers(EditKeyPressed | AnyKeyPressed | DoubleClicked | SelectedClicked);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    QHeaderView& titles = *horizontalHeader();
    titles.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    titles.setHighlightSections(false);
    titles.setSectionResizeMode(QHeaderView::ResizeToContents);
    titles.setSectionResizeMode(PropertyModel::Value, QHeaderView::Stretch);
    setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    setCurrentIndex(model.index(0, PropertyModel::Value));
}

} // namespace Gallery
