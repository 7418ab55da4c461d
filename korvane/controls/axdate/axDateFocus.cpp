#include <korvane/controls/axdate/Report.h>
#include <korvane/controls/axdate/axDate.h>

#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/DateVoice.h>
#include <korvane/controls/container/Text.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>

namespace Korvane {

namespace {

constexpr voice::DatePart awaitedParts[] = {voice::DatePart::Month, voice::DatePart::Day,
                                            voice::DatePart::Year};

/// -1 for the whole date box.
int indexOf(const QWidget& part) {
    const auto* box = qobject_cast<const DatePartBox*>(&part);
    return box ? box->index() : -1;
}

/// What the user does waits: the focus is on its way.
void letEventsRun() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

void axDate::enterFocus(Qt::FocusReason reason) {
    takeOverWholeDate();
    if (!mWholeDateIsNew) figureDate();
    const QPointer<axDate> self = this;
    if (mEnlivened && txtWholeDate->hasFocus()) focusBox(reason == Qt::BacktabFocusReason ? 2 : 0);
    if (self && mDragonSpeechEnabled && mFocus->isInside()) mVoice->activateDictation(true);
}

void axDate::exitFocus() {
    if (!mWholeDateIsNew) figureDate();
    txtWholeDate->show();
    txtWholeDate->raise();
    setFocusProxy(txtWholeDate);
    for (DatePartBox* each : mBoxes)
        each->hide();
    if (mDragonSpeechEnabled) mVoice->activateDictation(false);
    const QPointer<axDate> self = this;
    emit SystemMessage(QStringLiteral("exitfocus"));
    if (self) letEventsRun();
}

void axDate::gotFocus(QWidget& part) {
    const int index = indexOf(part);
    if (index < 0) return;
    txtWholeDate->hide();
    box(index).selectAll();
    mIndex = static_cast<qint16>(index);
    mVoice->await(awaitedParts[index]);
    emit OnIndexChange(mIndex);
}

bool axDate::accepts(const QWidget& part) {
    const int index = indexOf(part);
    return index < 0 || isValid(box(index).text(), static_cast<qint16>(index));
}

void axDate::refused(QWidget& part) {
    const int index = indexOf(part);
    box(index).selectAll();
    refuse(index, tr("Invalid date format. Please re-enter."));
}

void axDate::lostFocus(QWidget& part) {
    const int index = indexOf(part);
    if (index < 0) return;
    reported("axDate.txtDate.EnterFocus", [&] {
        if (!mWholeDateIsNew) figureDate();
        if (index == DateParts::year) checkYear();
    });
}

void axDate::checkYear() {
    DatePartBox& yearBox = box(DateParts::year);
    if (isValid(year(), DateParts::year)) {
        if (year().size() == 2) yearBox.setText(qt(widenedYear(utf8(year()))));
        return;
    }
    const QPointer<axDate> self = this;
    letEventsRun();
    if (self)
        refuse(DateParts::year, mRequireFourDigitYear ? tr("Year requires four digits. Please re-enter.")
                                                      : tr("Invalid date format. Please re-enter."));
    if (self && yearBox.isVisible()) yearBox.setFocus();
}

/// Heard by a screen reader, too, each time; the box says it until its text is changed.
void axDate::refuse(int index, const QString& message) {
    box(index).setAccessibleDescription(QString());
    box(index).setAccessibleDescription(message);
    QAccessibleEvent alert(&box(index), QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    emit Exception(message);
}

void axDate::SetElementFocus(qint16 index) {
    if (index < 0 || index >= std::ssize(mBoxes)) return;
    if (mWholeDateIsNew) takeOverWholeDate();
    focusBox(index);
}

/// The box has the focus before the whole date is hidden: hiding what has it would send it on to any other.
void axDate::focusBox(int index) {
    for (DatePartBox* each : mBoxes)
        each->show();
    setFocusProxy(mBoxes.front());
    const QPointer<axDate> self = this;
    box(index).setFocus();
    if (self) txtWholeDate->hide();
}

} // namespace Korvane
