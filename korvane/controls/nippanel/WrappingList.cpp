#include <korvane/controls/nippanel/WrappingList.h>

#include <korvane/controls/nippanel/ChoiceRowDelegate.h>

namespace Korvane {

WrappingList::WrappingList(QWidget* parent) : QListView(parent) {
    setWordWrap(true);
    setResizeMode(QListView::Adjust);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new ChoiceRowDelegate(this));
}

} // namespace Korvane
