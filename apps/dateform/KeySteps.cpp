#include "dateform/KeySteps.h"

#include "dateform/Parts.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>

namespace DateForm {

using Apps::require;

namespace {

void requireRefusal(Journey& j) {
    constexpr const char* refusal = "Invalid date format. Please re-enter.";
    j.requireEvents({QStringLiteral("Exception ") + Korvane::axDate::tr(refusal)});
}

void typeADate(Journey& j) {
    j.hand.type(QStringLiteral("Luisa"));
    j.hand.press(Qt::Key_Tab);
    j.requireDate({}, month);
    j.hand.type(QStringLiteral("11"));
    j.hand.type(QStringLiteral("15"));
    j.hand.type(QStringLiteral("2026"));
    j.requireDate(QStringLiteral("11/15/2026"), year);
    j.album.add(QStringLiteral("A date is typed"));
}

void leaveByEnter(Journey& j) {
    j.hand.press(Qt::Key_Return);
    j.requireDate(QStringLiteral("11/15/2026"), after);
    j.requireEvents({QStringLiteral("SystemMessage exitfocus")});
    j.album.add(QStringLiteral("Enter leaves the control"));
}

void stepTheMonth(Journey& j) {
    j.enterDate();
    j.hand.press(Qt::Key_Down);
    j.hand.press(Qt::Key_Down);
    j.requireDate(QStringLiteral("9/15/2026"), month);
    j.album.add(QStringLiteral("Arrows step the month"));
}

void refuseAMonth(Journey& j) {
    j.hand.type(QStringLiteral("13"));
    j.hand.press(Qt::Key_Tab);
    j.requireDate({}, month);
    requireRefusal(j);
    j.album.add(QStringLiteral("A month of 13 is refused"));
}

void pasteADate(Journey& j) {
    QApplication::clipboard()->setText(QStringLiteral("3/1/1970"));
    j.hand.press(Qt::Key_V, Qt::ControlModifier);
    j.requireDate(QStringLiteral("3/1/1970"), year);
    j.album.add(QStringLiteral("A whole date is pasted"));
}

void refuseAYear(Journey& j) {
    j.hand.type(QStringLiteral("70"));
    j.hand.press(Qt::Key_Tab);
    j.requireDate({}, year);
    requireRefusal(j);
    j.album.add(QStringLiteral("A year needs four digits"));
    j.hand.type(QStringLiteral("1970"));
}

void exceedTheMaximum(Journey& j) {
    j.write(QStringLiteral("txtMinimum"), QStringLiteral("1/1/1900"));
    j.write(QStringLiteral("txtMaximum"), QStringLiteral("11/15/2026"));
    j.enterDate();
    j.hand.type(QStringLiteral("11162026"));
    j.closeDateError([&] { j.hand.press(Qt::Key_Tab); },
                     TestForm::tr("The date must not be after %1.").arg(QStringLiteral("11/15/2026")),
                     QStringLiteral("A date after the maximum"));
    j.requireDate(QStringLiteral("11/16/2026"), month);
}

void fallBelowTheMinimum(Journey& j) {
    j.hand.type(QStringLiteral("12311899"));
    j.closeDateError([&] { j.hand.press(Qt::Key_Tab); },
                     TestForm::tr("The date must not be before %1.").arg(QStringLiteral("1/1/1900")),
                     QStringLiteral("A date before the minimum"));
    j.requireDate(QStringLiteral("12/31/1899"), month);
    j.hand.type(QStringLiteral("0101"));
    j.hand.type(QStringLiteral("1900"));
    j.hand.press(Qt::Key_Tab);
    j.requireDate(QStringLiteral("01/01/1900"), after);
}

void takeTheLifeOut(Journey& j) {
    auto& enlivened = j.part<QCheckBox>(QStringLiteral("chkEnlivened"));
    enlivened.setFocus(Qt::ShortcutFocusReason);
    j.hand.press(Qt::Key_Space);
    require(!j.date().Enlivened(), QStringLiteral("The control is still enlivened."));
    j.part(after).setFocus(Qt::ShortcutFocusReason);
    j.hand.press(Qt::Key_Backtab, Qt::ShiftModifier);
    j.requireDate(QStringLiteral("01/01/1900"), QStringLiteral("txtBefore"));
    j.album.add(QStringLiteral("Not enlivened the control is passed over"));
    enlivened.setFocus(Qt::ShortcutFocusReason);
    j.hand.press(Qt::Key_Space);
    require(j.date().Enlivened(), QStringLiteral("The control is not enlivened again."));
}

} // namespace

const std::vector<Step>& keySteps() {
    static const std::vector<Step> steps{{"type a date", typeADate},
                                         {"leave by Enter", leaveByEnter},
                                         {"step the month", stepTheMonth},
                                         {"a month that is refused", refuseAMonth},
                                         {"paste a date", pasteADate},
                                         {"a year that is refused", refuseAYear},
                                         {"a date after the maximum", exceedTheMaximum},
                                         {"a date before the minimum", fallBelowTheMinimum},
                                         {"a control that is not enlivened", takeTheLifeOut}};
    return steps;
}

} // namespace DateForm
