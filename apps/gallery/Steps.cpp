#include "gallery/Journey.h"

#include <korvane/controls/buttons/funcPanel.h>

#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>

namespace Gallery {

using Apps::require;

namespace {

/// What the control would have its host keep, by the button "Write".
void requireKept(Journey& j, const QByteArray& json) {
    j.push(QStringLiteral("cmdWrite"));
    const auto shown = j.part<QPlainTextEdit>(QStringLiteral("txtBag")).toPlainText().simplified();
    require(shown == QString::fromUtf8(json),
            QStringLiteral("%1 is kept, and not %2.").arg(shown, QString::fromUtf8(json)));
}

void lookAtTheNipPanel(Journey& j) {
    j.turnTo(QStringLiteral("ucNIPPanel"));
    j.album.add(QStringLiteral("ucNIPPanel"));
}

void takeTheCloseButtonsAway(Journey& j) {
    j.goTo(QStringLiteral("AllowClosePanel"));
    j.hand.press(Qt::Key_Space);
    j.requireEvents({QStringLiteral("PropertyChanged \"AllowClosePanel\"")});
    requireKept(j, R"({ "AllowClosePanel": false })");
    j.album.add(QStringLiteral("ucNIPPanel without its close buttons"));
}

void customizeTheNip(Journey& j) {
    j.turnTo(QStringLiteral("ucNIPPanel"));
    j.push(QStringLiteral("call CustomizeNip"));
    j.album.add(QStringLiteral("ucNIPPanel being customized"));
}

void enterADate(Journey& j) {
    j.turnTo(QStringLiteral("axDate"));
    j.push(QStringLiteral("call SetElementFocus(1)"));
    j.requireEvents({QStringLiteral("OnIndexChange 1"), QStringLiteral("SetElementFocus(1) ")});
    j.hand.press(Qt::Key_Left);
    j.hand.type(QStringLiteral("11152026"));
    j.requireProperty("axDate", QStringLiteral("11/15/2026"));
    j.album.add(QStringLiteral("axDate"));
}

void exceedTheMaximum(Journey& j) {
    j.set(QStringLiteral("MaximumDate"), QStringLiteral("11/14/2026"));
    j.push(QStringLiteral("call ValidateMinMax"));
    j.requireEvents(
        {QStringLiteral("PropertyChanged \"MaximumDate\""), QStringLiteral("ValidateMinMax = 1")});
    requireKept(j, R"({ "axDate": "11/15/2026" })");
    j.album.add(QStringLiteral("axDate after its maximum"));
}

void shapeTheButtons(Journey& j) {
    j.turnTo(QStringLiteral("funcPanel"));
    j.set(QStringLiteral("FrameCaption"), QStringLiteral("Orders"));
    j.set(QStringLiteral("btnText1"), QStringLiteral("Print"));
    j.set(QStringLiteral("btnText2"), QStringLiteral("Sign"));
    j.set(QStringLiteral("btnText3"), QStringLiteral("Send"));
    j.set(QStringLiteral("buttonCount"), QStringLiteral("3"));
    j.goTo(QStringLiteral("buttonStyle"));
    j.hand.press(Qt::Key_F2);
    j.hand.type(QStringLiteral("F"));
    j.hand.press(Qt::Key_Return);
    j.requireProperty("buttonStyle", QVariant::fromValue(Korvane::funcPanel::Flat));
    j.push(QStringLiteral("cmdButton(1)"));
    j.requireEvents({QStringLiteral("btnClick 1")});
    requireKept(j, R"({ "FrameCaption": "Orders", "btnText1": "Print", "btnText2": "Sign", )"
                   R"("btnText3": "Send", "buttonCount": 3, "buttonStyle": 0 })");
    j.album.add(QStringLiteral("funcPanel"));
}

void askForTooManyButtons(Journey& j) {
    constexpr const char* why = "buttonCount must not be greater than 5.";
    j.hand.answering([&] { j.set(QStringLiteral("buttonCount"), QStringLiteral("6")); },
                     [&](QWidget& box) {
                         const auto* message = qobject_cast<QMessageBox*>(&box);
                         require(message && message->text() == Korvane::funcPanel::tr(why),
                                 QStringLiteral("Another box came up."));
                         j.album.add(QStringLiteral("funcPanel refuses a sixth button"));
                         j.hand.press(Qt::Key_Return);
                     });
    j.requireProperty("buttonCount", 3);
}

void readABagWrittenByHand(Journey& j) {
    auto& bag = j.part<QPlainTextEdit>(QStringLiteral("txtBag"));
    bag.setFocus(Qt::ShortcutFocusReason);
    j.hand.press(Qt::Key_A, Qt::ControlModifier);
    j.hand.type(QStringLiteral(R"({"buttonCount": "2", "FrameCaption": "Visit", "ButtonStyle": 0, )"
                               R"("FrameFontSize": "large"})"));
    j.push(QStringLiteral("cmdRead"));
    j.requireProperty("buttonCount", 2);
    require(j.part<QLabel>(QStringLiteral("lblProblems")).text().count(u'\n') == 1,
            QStringLiteral("There should be two problems."));
    j.album.add(QStringLiteral("funcPanel from a bag written by hand"));
}

void moveByKeys(Journey& j) {
    j.turnTo(QStringLiteral("movebtn"));
    j.push(QStringLiteral("call Focus(0)"));
    j.hand.press(Qt::Key_Right);
    j.hand.press(Qt::Key_Right);
    j.hand.press(Qt::Key_Space);
    j.requireEvents({QStringLiteral("btnClick 2")});
    j.album.add(QStringLiteral("movebtn"));
}

void defineAField(Journey& j) {
    j.turnTo(QStringLiteral("dbxadmin"));
    j.goTo(QStringLiteral("displayType"));
    j.hand.press(Qt::Key_F2);
    j.hand.type(QStringLiteral("L"));
    j.hand.press(Qt::Key_Return);
    j.part(QStringLiteral("txtFldName")).setFocus(Qt::ShortcutFocusReason);
    j.hand.type(QStringLiteral("Smoker"));
    j.part(QStringLiteral("txtAddtoList")).setFocus(Qt::ShortcutFocusReason);
    j.hand.type(QStringLiteral("never"));
    j.hand.press(Qt::Key_Return);
    j.requireProperty("ListData", QStringLiteral("Item 1/Item 2/Item 3/Etc./never/"));
    j.push(QStringLiteral("cmdMove(2)"));
    j.requireEvents({QStringLiteral("RecordMove 2")});
    j.push(QStringLiteral("cmdUpdate"));
    j.requireEvents({QStringLiteral("UpdateClick ")});
    requireKept(j, R"({ "DisplayType": 3, "ListData": "Item 1/Item 2/Item 3/Etc./never/", )"
                   R"("fldName": "Smoker" })");
    j.album.add(QStringLiteral("dbxadmin"));
}

} // namespace

const std::vector<Step>& steps() {
    static const std::vector<Step> all{{"the Nip panel", lookAtTheNipPanel},
                                       {"the Nip panel without its close buttons", takeTheCloseButtonsAway},
                                       {"a date", enterADate},
                                       {"a date after its maximum", exceedTheMaximum},
                                       {"function buttons", shapeTheButtons},
                                       {"too many function buttons", askForTooManyButtons},
                                       {"a property bag written by hand", readABagWrittenByHand},
                                       {"record-move buttons", moveByKeys},
                                       {"the definition of a field", defineAField},
                                       {"the Nip panel being customized", customizeTheNip}};
    return all;
}

} // namespace Gallery
