#pragma once

#include "designer/ControlKinds.h"

#include <QPointer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Designer {

/// One control in Designer's palette, and for Qt's form loader. In Designer its controls are in design mode;
/// the properties that a form does not keep stand in a group of their own, and their tool tips say so.
class ControlPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

  public:
    ControlPlugin(const ControlKind& kind, QObject* parent) : QObject(parent), mKind(kind) {}

    QString name() const override { return mKind.className(); }
    QString group() const override { return QStringLiteral("Korvane"); }
    QString toolTip() const override { return mKind.toolTip(); }
    QString whatsThis() const override { return mKind.whatsThis(); }
    QString includeFile() const override { return QLatin1String(mKind.header); }
    QIcon icon() const override { return mKind.icon(); }
    bool isContainer() const override { return false; }
    /// The form that a new control is dropped as, see `newControl`.
    QString domXml() const override;

    bool isInitialized() const override { return !mDesigner.isNull(); }
    /// In Designer, whose language the controls speak then. A form loader leaves that to its host.
    void initialize(QDesignerFormEditorInterface* core) override;
    QWidget* createWidget(QWidget* parent) override;

  private:
    const ControlKind& mKind;
    QPointer<QDesignerFormEditorInterface> mDesigner; ///< none: a form loader makes the controls
};

} // namespace Designer
