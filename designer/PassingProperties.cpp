#include "designer/PassingProperties.h"

#include <korvane/controls/container/UserControl.h>

#include <QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace Designer {

namespace {

std::vector<QMetaProperty> ownProperties(const Korvane::UserControl& control) {
    std::vector<QMetaProperty> found;
    const QMetaObject& type = *control.metaObject();
    for (int i = Korvane::UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        found.push_back(type.property(i));
    return found;
}

} // namespace

std::vector<QMetaProperty> passingProperties(const Korvane::UserControl& control) {
    auto found = ownProperties(control);
    std::erase_if(found, [](const QMetaProperty& property) { return property.isStored(); });
    return found;
}

void groupProperties(QDesignerFormEditorInterface& designer, Korvane::UserControl& control) {
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(designer.extensionManager(), &control);
    if (!sheet) return;
    const QString kept = QString::fromLatin1(control.metaObject()->className());
    const QString passing = QCoreApplication::translate("Designer::PassingProperties", "%1, not kept")
                                .arg(kept.section(QStringLiteral("::"), -1));
    for (const QMetaProperty& property : ownProperties(control)) {
        const int index = sheet->indexOf(QString::fromLatin1(property.name()));
        if (index >= 0) sheet->setPropertyGroup(index, property.isStored() ? kept : passing);
    }
}

} // namespace Designer
