#include <korvane/controls/nippanel/ChoiceView.h>

#include <korvane/controls/nippanel/ChoiceModel.h>

#include <QKeyEvent>
#include <QMouseEvent>

namespace Korvane {

// The view asks here before it starts an editor: with the release of a click on a row, with a key on the
// current one. The rows have no editor.
bool ChoiceView::edit(const QModelIndex& index, EditTrigger, QEvent* event) {
    if (!event || !(index.flags() & Qt::ItemIsUserCheckable)) return false;
    const bool clicked = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    const bool pressed =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!clicked && !pressed) return false;
    static_cast<ChoiceModel*>(model())->toggle(index.row());
    return true;
}

} // namespace Korvane
