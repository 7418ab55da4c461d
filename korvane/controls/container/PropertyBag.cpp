#include <korvane/controls/container/PropertyBag.h>

#include <korvane/controls/container/PropertyValue.h>

namespace Korvane {

QVariant PropertyBag::ReadProperty(const QString& name, const QVariant& defaultValue) const {
    mAskedFor.insert(name);
    if (!mValues.contains(name)) return defaultValue;
    const QVariant value = mValues.value(name);
    if (!defaultValue.isValid()) return value;
    QVariant taken = propertyValue(value, defaultValue.metaType());
    if (taken.isValid()) return taken;
    addProblem(name, tr("%1, %2 is used").arg(notOfType(defaultValue.metaType()), shownValue(defaultValue)));
    return defaultValue;
}

void PropertyBag::WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue) {
    if (value == defaultValue) {
        mValues.remove(name);
    } else {
        mValues.insert(name, value);
    }
}

void PropertyBag::addProblem(const QString& name, const QString& why) const {
    mProblems[name] = tr("%1 holds %2: %3").arg(name, shownValue(mValues.value(name)), why);
}

QStringList PropertyBag::problems() const {
    auto found = mProblems;
    for (auto each = mValues.keyBegin(); each != mValues.keyEnd(); ++each)
        if (!mAskedFor.contains(*each))
            found[*each] = tr("%1 is not the name of a property that is kept").arg(*each);
    return found.values();
}

} // namespace Korvane
