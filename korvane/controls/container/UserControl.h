#pragma once

#include <korvane/controls/container/PropertyBag.h>

#include <QMetaProperty>
#include <QWidget>

#include <vector>

namespace Korvane {

/// What every control of the library is to its host: a widget with properties that the host keeps, and a
/// design mode in which it shows itself but does nothing.
class UserControl : public QWidget {
    Q_OBJECT

  public:
    /// Not in design mode.
    explicit UserControl(QWidget* parent = nullptr);

    /// The defaults of a new instance.
    virtual void InitProperties() {}
    /// Takes the kept properties from a bag, and writes them to one. What the bag lacks, or has in a way that
    /// cannot be used, reads as its default, which may differ from that of a new instance.
    virtual void ReadProperties(const PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) const = 0;

    /// Whether the host is designing its form; false unless it says so.
    bool designMode() const { return mDesignMode; }
    void setDesignMode(bool on) { mDesignMode = on; }

    /// The properties that the control has and a plain widget has not.
    std::vector<QMetaProperty> ownProperties() const;

  signals:
    /// Raised by every property setter, also for properties that are never kept.
    void PropertyChanged(const QString& name);

  private:
    bool mDesignMode = false;
};

} // namespace Korvane
