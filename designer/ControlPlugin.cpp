#include "designer/ControlPlugin.h"

#include "designer/NewControl.h"
#include "designer/PropertyGroups.h"

#include <korvane/controls/container/Translations.h>

namespace Designer {

QString ControlPlugin::domXml() const {
    return newControl(mKind);
}

void ControlPlugin::initialize(QDesignerFormEditorInterface* core) {
    mDesigner = core;
    Korvane::installTranslations(QLocale());
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
