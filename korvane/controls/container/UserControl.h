#pragma once

#include <korvane/controls/container/PropertyBag.h>

#include <QWidget>

namespace Korvane {

/// What every control of the library is to its host: a widget with properties that the host keeps, and a
/// design mode in which it shows itself but does nothing.
class UserControl : public QWidget {
    Q_OBJECT

  public:
    explicit UserControl(QWidget* parent = nullptr);

    /// The defaults of a new instance.
    virtual void InitProperties() {}
    virtual void ReadProperties(const PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) const = 0;

    /// Whether the host is designing its form; false unless it says so.
    bool designMode() const { return mDesignMode; }
    void setDesignMode(bool on) { mDesignMode = on; }

  signals:
    /// Raised by every property setter, also for properties that are never kept.
    void PropertyChanged(const QString& name);

  private:
    bool mDesignMode = false;
};

} // namespace Korvane
