#include "designer/NewControl.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace Designer {

namespace {

using Korvane::UserControl;

QSize firstSize(const ControlKind& kind, const UserControl& control) {
    const QFontMetrics text = control.fontMetrics();
    const QSize room(kind.roomFor.width() * text.averageCharWidth(), kind.roomFor.height() * text.height());
    return control.sizeHint().expandedTo(room);
}

/// What the user enters or edits. It has no translation: a form that is put into another language meanwhile
/// would bring back what it came with.
bool isContent(const QMetaProperty& property) {
    using namespace std::string_view_literals;
    constexpr std::array contents{"axDate"sv, "ListBoxText"sv, "ListData"sv, "fldName"sv, "fieldCaption"sv};
    return std::ranges::find(contents, property.name()) != contents.end();
}

/// All that `InitProperties` sets are texts and flags.
QString valueElement(const QMetaProperty& property, const QVariant& value) {
    const QString text = value.toString().toHtmlEscaped();
    if (value.typeId() == QMetaType::Bool) return QStringLiteral("<bool>%1</bool>").arg(text);
    return QStringLiteral("<string%1>%2</string>").arg(isContent(property) ? " notr=\"true\"" : "", text);
}

/// What a new control has otherwise than one that was only made.
QString propertyElements(const UserControl& plain, const UserControl& fresh) {
    QString elements;
    for (const QMetaProperty& property : fresh.ownProperties()) {
        const QVariant value = property.read(&fresh);
        if (property.isStored() && value != property.read(&plain))
            elements += QStringLiteral("<property name=\"%1\">%2</property>")
                            .arg(property.name(), valueElement(property, value));
    }
    return elements;
}

QString toolTipElements(const UserControl& control) {
    const QString notKept = QCoreApplication::translate("Designer::NewControl", "%1: no form keeps it.");
    const QString readOnly = QCoreApplication::translate("Designer::NewControl", "%1: the control tells it.");
    QString elements;
    for (const QMetaProperty& property : control.ownProperties()) {
        const QString text = (property.isWritable() ? notKept : readOnly).arg(property.name());
        if (!property.isStored())
            elements += QStringLiteral("<tooltip name=\"%1\">%2</tooltip>")
                            .arg(property.name(), text.toHtmlEscaped());
    }
    return elements;
}

QString contentElements(const UserControl& control) {
    QString elements;
    for (const QMetaProperty& property : control.ownProperties())
        if (isContent(property))
            elements +=
                QStringLiteral(R"(<stringpropertyspecification name="%1" type="singleline" notr="true"/>)")
                    .arg(property.name());
    return elements;
}

} // namespace

QString newControl(const ControlKind& kind) {
    const std::unique_ptr<UserControl> plain(kind.make(nullptr)), fresh(kind.make(nullptr));
    fresh->InitProperties();
    const QSize size = firstSize(kind, *fresh);
    return QStringLiteral(R"(<ui language="c++" displayname="%1">
  <widget class="%2" name="%1">
    <property name="geometry">
      <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>
    </property>
    %5
  </widget>
  <customwidgets>
    <customwidget>
      <class>%2</class>
      <extends>QWidget</extends>
      <propertyspecifications>%6</propertyspecifications>
    </customwidget>
  </customwidgets>
</ui>
)")
        .arg(kind.name, kind.className(), QString::number(size.width()), QString::number(size.height()),
             propertyElements(*plain, *fresh), toolTipElements(*fresh) + contentElements(*fresh));
}

} // namespace Designer
