#include "designer/PassingProperties.h"

#include <korvane/controls/container/UserControl.h>

#include <QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace Designer {

std::vector<QMetaProperty> passingProperties(const Korvane::UserControl& control) {
    std::vector<QMetaProperty> found;
    const QMetaObject& type = *control.metaObject();
    for (int i = Korvane::UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        if (!type.property(i).isStored()) found.push_back(type.property(i));
    return found;
}

void groupPassingProperties(QDesignerFormEditorInterface& designer, Korvane::UserControl& control) {
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(designer.extensionManager(), &control);
    if (!sheet) return;
    const QString className = QString::fromLatin1(control.metaObject()->className());
    const QString group = QCoreApplication::translate("Designer::PassingProperties", "%1, not kept")
                              .arg(className.section(QStringLiteral("::"), -1));
    for (const QMetaProperty& property : passingProperties(control)) {
        const int index = sheet->indexOf(QString::fromLatin1(property.name()));
        if (index >= 0) sheet->setPropertyGroup(index, group);
    }
}

} // namespace Designer
