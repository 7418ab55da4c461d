#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QColor>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QMetaProperty>

#include <gtest/gtest.h>

#include <map>

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
    case QMetaType::Short:
        return value.toInt() - 1;
    case QMetaType::QColor:
        return QColor(1, 2, 3);
    default:
        return value.toString() + u'1';
    }
}

PropertyBag bagOf(const UserControl& control) {
    PropertyBag bag;
    control.WriteProperties(bag);
    return bag;
}

std::string jsonOf(const PropertyBag& bag) {
    return QJsonDocument(bag.toJson()).toJson(QJsonDocument::Compact).toStdString();
}

/// By class: the names in a bag, and what a new control keeps because an empty bag would make it another.
struct Kept {
    const char* names;
    const char* whenNew = "{}";
};
const std::map<std::string, Kept> keptBy{
    {"Korvane::ucNIPPanel", {"AllowClosePanel CustomizeOnly"}},
    {"Korvane::axDate", {"DragonSpeechEnabled Enlivened NextFieldCommand PreviousFieldCommand axDate"}},
    {"Korvane::funcPanel",
     {"BackColor ButtonFontSize FrameCaption FrameFontSize btnText1 btnText2 btnText3 btnText4 btnText5 "
      "buttonCount buttonStyle",
      R"({"FrameCaption":"Func Btn"})"}},
    {"Korvane::movebtn",
     {"Caption Enabled btnText1 btnText2 btnText3 btnText4", R"({"Caption":"Move Buttons"})"}},
    {"Korvane::dbxadmin",
     {"DisplayType FieldCaption FieldRequired FrameName ListBoxText ListData ListMode RecNum UpdateEnabled "
      "fldCaption1 fldCaption2 fldCaption3 fldCaption4 fldName",
      R"({"DisplayType":0,"ListData":"Item 1/Item 2/Item 3/Etc."})"}}};

/// Saves the host's form and loads it again.
template <typename Control>
QVariant afterLoading(const Control& saved, const QMetaProperty& property) {
    PropertyBag bag;
    bag.Contents(bagOf(saved).Contents());
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
        QStringList marked;
        QObject::connect(&control, &TypeParam::PropertyChanged, [&](auto& name) { marked << name; });
        const QVariant before = property.read(&control);
        if (!property.write(&control, another(property, before))) {
            EXPECT_FALSE(property.isWritable());
            EXPECT_FALSE(property.isStored()) << "what nobody can set is never kept";
            continue;
        }
        EXPECT_EQ(marked.join(' ').toLower(), QString(property.name()).toLower());
        const QVariant is = property.read(&control);
        EXPECT_NE(is, before);
        EXPECT_EQ(afterLoading(control, property) == is, property.isStored());
    }
}

TYPED_TEST(KeptProperties, HaveTheirNamesInTheBagAndAreGoneFromItAtTheirDefaults) {
    const QMetaObject& type = TypeParam::staticMetaObject;
    const Kept& kept = keptBy.at(type.className());
    TypeParam control;
    control.InitProperties();
    EXPECT_EQ(jsonOf(bagOf(control)), kept.whenNew);
    control.ReadProperties(PropertyBag());
    for (int i = UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        type.property(i).write(&control, another(type.property(i), type.property(i).read(&control)));
    EXPECT_EQ(bagOf(control).values().keys().join(' ').toStdString(), kept.names);
    control.ReadProperties(PropertyBag());
    EXPECT_EQ(jsonOf(bagOf(control)), "{}");
}

} // namespace Korvane
