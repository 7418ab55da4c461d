#include "designer/NewControl.h"

#include "designer/PassingProperties.h"

#include <QCoreApplication>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace Designer {

namespace {

using Korvane::UserControl;

class Writer {
  public:
    explicit Writer(QString& text) : mXml(&text) { mXml.setAutoFormatting(true); }

    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    /// An element with what is written inside it.
    template <typename Inside>
    void element(const char* name, Attributes attributes, Inside inside) {
        mXml.writeStartElement(QLatin1String(name));
        for (const auto& [attribute, value] : attributes)
            mXml.writeAttribute(QLatin1String(attribute), value);
        inside();
        mXml.writeEndElement();
    }
    void text(const char* name, const QString& text) { mXml.writeTextElement(QLatin1String(name), text); }
    void characters(const QString& text) { mXml.writeCharacters(text); }

  private:
    QXmlStreamWriter mXml;
};

QSize firstSize(const ControlKind& kind, const UserControl& control) {
    const QFontMetrics text = control.fontMetrics();
    const QSize room(kind.roomFor.width() * text.averageCharWidth(), kind.roomFor.height() * text.height());
    return control.sizeHint().expandedTo(room);
}

void writeSize(Writer& xml, QSize size) {
    xml.element("property", {{"name", QStringLiteral("geometry")}}, [&] {
        xml.element("rect", {}, [&] {
            for (const char* corner : {"x", "y"})
                xml.text(corner, QStringLiteral("0"));
            xml.text("width", QString::number(size.width()));
            xml.text("height", QString::number(size.height()));
        });
    });
}

/// What the user enters or edits. It has no translation: a form that is put into another language meanwhile
/// would bring back what it came with.
bool isContent(const QMetaProperty& property) {
    using namespace std::string_view_literals;
    constexpr std::array contents{"axDate"sv, "ListBoxText"sv, "ListData"sv, "fldName"sv, "fieldCaption"sv};
    return std::ranges::find(contents, property.name()) != contents.end();
}

/// All that `InitProperties` sets are texts and flags.
void writeValue(Writer& xml, const QMetaProperty& property, const QVariant& value) {
    if (value.typeId() == QMetaType::Bool)
        xml.text("bool", value.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
    else if (isContent(property))
        xml.element("string", {{"notr", QStringLiteral("true")}}, [&] { xml.characters(value.toString()); });
    else
        xml.text("string", value.toString());
}

void writeProperties(Writer& xml, const UserControl& plain, const UserControl& fresh) {
    const QMetaObject& type = *fresh.metaObject();
    for (int i = UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        const QVariant value = property.read(&fresh);
        if (!property.isStored() || value == property.read(&plain)) continue;
        xml.element("property", {{"name", QString::fromLatin1(property.name())}},
                    [&] { writeValue(xml, property, value); });
    }
}

void writeToolTips(Writer& xml, const UserControl& control) {
    const QString notKept = QCoreApplication::translate("Designer::NewControl", "%1: no form keeps it.");
    const QString readOnly = QCoreApplication::translate("Designer::NewControl", "%1: the control tells it.");
    for (const QMetaProperty& property : passingProperties(control)) {
        const QString name = QString::fromLatin1(property.name());
        xml.element("tooltip", {{"name", name}},
                    [&] { xml.characters((property.isWritable() ? notKept : readOnly).arg(name)); });
    }
}

void writeContents(Writer& xml, const UserControl& control) {
    const QMetaObject& type = *control.metaObject();
    for (int i = UserControl::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        if (isContent(type.property(i)))
            xml.element("stringpropertyspecification",
                        {{"name", QString::fromLatin1(type.property(i).name())},
                         {"type", QStringLiteral("singleline")},
                         {"notr", QStringLiteral("true")}},
                        [] {});
}

} // namespace

QString newControl(const ControlKind& kind) {
    const std::unique_ptr<UserControl> plain(kind.make(nullptr)), fresh(kind.make(nullptr));
    fresh->InitProperties();
    QString text;
    Writer xml(text);
    xml.element("ui", {{"language", QStringLiteral("c++")}, {"displayname", QLatin1String(kind.name)}}, [&] {
        xml.element("widget", {{"class", kind.className()}, {"name", QLatin1String(kind.name)}}, [&] {
            writeSize(xml, firstSize(kind, *fresh));
            writeProperties(xml, *plain, *fresh);
        });
        xml.element("customwidgets", {}, [&] {
            xml.element("customwidget", {}, [&] {
                xml.text("class", kind.className());
                xml.text("extends", QStringLiteral("QWidget"));
                xml.element("propertyspecifications", {}, [&] {
                    writeToolTips(xml, *fresh);
                    writeContents(xml, *fresh);
                });
            });
        });
    });
    return text;
}

} // namespace Designer
