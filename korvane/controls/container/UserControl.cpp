#include <korvane/controls/container/UserControl.h>

#include <korvane/controls/container/QtInteraction.h>

namespace Korvane {

UserControl::UserControl(QWidget* parent) : QWidget(parent) {
    QtInteraction::installOnce();
}

} // namespace Korvane
