#include <korvane/controls/container/PropertyBag.h>

namespace Korvane {

QVariant PropertyBag::ReadProperty(const QString& name, const QVariant& defaultValue) const {
    QVariant value = mValues.value(name);
    if (!value.isValid()) return defaultValue;
    if (!defaultValue.isValid()) return value;
    return value.convert(defaultValue.metaType()) ? value : defaultValue;
}

void PropertyBag::WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue) {
    if (value == defaultValue) {
        mValues.remove(name);
    } else {
        mValues.insert(name, value);
    }
}

} // namespace Korvane
