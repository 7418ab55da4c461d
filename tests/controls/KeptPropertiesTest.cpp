#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QColor>
#include <QMetaEnum>
#include <QMetaProperty>

#include <gtest/gtest.h>

namespace Korvane {

namespace {

/// A value that the property can have, and has not.
QVariant another(const QMetaProperty& property, const QVariant& value) {
    if (property.isEnumType()) {
        const QMetaEnum values = property.enumerator();
        return values.value(values.value(0) == value.toInt() ? 1 : 0);
    }
    switch (property.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() - 1;
    case QMetaType::QColor:
        return QColor(1, 2, 3);
    default:
        return value.toString() + u'1';
    }
}

/// Saves the host's form and loads it again.
template <typename Control>
QVariant afterLoading(const Control& saved, const QMetaProperty& property) {
    PropertyBag written, bag;
    saved.WriteProperties(written);
    bag.Contents(written.Contents());
    Control loaded;
    loaded.ReadProperties(bag);
    EXPECT_EQ(bag.problems(), QStringList());
    return property.read(&loaded);
}

} // namespace

template <typename Control>
class KeptProperties : public testing::Test {};
using Controls = testing::Types<ucNIPPanel, axDate, funcPanel, movebtn, dbxadmin>;
TYPED_TEST_SUITE(KeptProperties, Controls);

TYPED_TEST(KeptProperties, AreTheOnesThatThePropertySystemCallsStored) {
    const QMetaObject& type = TypeParam::staticMetaObject;
    for (int i = UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        SCOPED_TRACE(property.name());
        TypeParam control;
        control.InitProperties();
        const QVariant before = property.read(&control);
        if (!property.write(&control, another(property, before))) {
            EXPECT_FALSE(property.isWritable());
            EXPECT_FALSE(property.isStored()) << "what nobody can set is never kept";
            continue;
        }
        const QVariant is = property.read(&control);
        EXPECT_NE(is, before);
        EXPECT_EQ(afterLoading(control, property) == is, property.isStored());
    }
}

} // namespace Korvane
