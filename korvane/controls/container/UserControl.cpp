#include <korvane/controls/container/UserControl.h>

#include <korvane/controls/container/QtInteraction.h>

namespace Korvane {

UserControl::UserControl(QWidget* parent) : QWidget(parent) {
    QtInteraction::installOnce();
}

std::vector<QMetaProperty> UserControl::ownProperties() const {
    std::vector<QMetaProperty> found;
    const QMetaObject& type = *metaObject();
    for (int i = staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        found.push_back(type.property(i));
    return found;
}

} // namespace Korvane
