#include "designer/ControlPlugin.h"

#include "designer/NewControl.h"
#include "designer/PassingProperties.h"

namespace Designer {

QString ControlPlugin::domXml() const {
    return newControl(mKind);
}

QWidget* ControlPlugin::createWidget(QWidget* parent) {
    Korvane::UserControl* control = mKind.make(parent);
    if (mDesigner) {
        control->setDesignMode(true);
        groupProperties(*mDesigner, *control);
    }
    return control;
}

} // namespace Designer
