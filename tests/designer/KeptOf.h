#pragma once

#include <korvane/controls/container/UserControl.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QWidget>

#include <string>

namespace Korvane::Testing {

/// The control of that name on a form. The plugin may have a library of its own, in which the classes are
/// the same but not identical to Qt.
inline UserControl& control(const QWidget& form, const char* name) {
    auto* found = form.findChild<QWidget*>(QString(name));
    if (!found || !QByteArray(found->metaObject()->className()).startsWith("Korvane::"))
        throw std::runtime_error(std::string("there is no control ") + name);
    return *static_cast<UserControl*>(found);
}

/// What a control keeps, as JSON.
inline std::string keptOf(const UserControl& control) {
    PropertyBag bag;
    control.WriteProperties(bag);
    return QJsonDocument(bag.toJson()).toJson(QJsonDocument::Compact).toStdString();
}

/// What the controls of the form `visit.ui` keep.
inline void expectVisit(const QWidget& form) {
    const std::pair<const char*, const char*> kept[] = {
        {"nip", R"({"AllowClosePanel":false,"CustomizeOnly":true})"},
        {"born", R"({"Enlivened":"False","NextFieldCommand":"Onwards",)"
                 R"("PreviousFieldCommand":"Back & again","axDate":"11/15/2026"})"},
        {"orders", R"({"BackColor":197121,"ButtonFontSize":2,"FrameCaption":"Orders","btnText1":"&Print",)"
                   R"("buttonCount":2,"buttonStyle":0})"},
        {"visits", R"({"Caption":"Visits","Enabled":false,"btnText4":"Last"})"},
        {"field", R"({"DisplayType":3,"FieldRequired":2,"ListData":"never/sometimes","UpdateEnabled":false,)"
                  R"("fldCaption1":"Column","fldName":"Smoker"})"}};
    for (const auto& [name, json] : kept)
        EXPECT_EQ(keptOf(control(form, name)), json) << name;
    EXPECT_EQ(control(form, "orders").size(), QSize(160, 250)) << "the form's size, not that of two buttons";
}

} // namespace Korvane::Testing
