#include "designer/PropertyGroups.h"

#include <QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace Designer {

void groupProperties(QDesignerFormEditorInterface& designer, Korvane::UserControl& control) {
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(designer.extensionManager(), &control);
    if (!sheet) return;
    const QString kept = QString::fromLatin1(control.metaObject()->className());
    const QString passing = QCoreApplication::translate("Designer::PropertyGroups", "%1, not kept")
                                .arg(kept.section(QStringLiteral("::"), -1));
    for (const QMetaProperty& property : control.ownProperties()) {
        const int index = sheet->indexOf(QString::fromLatin1(property.name()));
        if (index >= 0) sheet->setPropertyGroup(index, property.isStored() ? kept : passing);
    }
}

} // namespace Designer
