#include <korvane/controls/axdate/Report.h>
#include <korvane/controls/axdate/axDate.h>

#include <korvane/controls/axdate/DateBounds.h>
#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/PartStep.h>
#include <korvane/controls/container/SendKeys.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Clock.h>

#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QSignalBlocker>

#include <utility>

namespace Korvane {

DateParts axDate::parts() const {
    return {{utf8(month()), utf8(day()), utf8(year())}};
}

bool axDate::FourDigitYearError() const {
    return mRequireFourDigitYear && year().size() != 4;
}

bool axDate::isValid(const QString& value, qint16 fieldIndex) const {
    bool result = true;
    reported("axDate.isValid", [&] { result = isValidPart(utf8(value), fieldIndex, mRequireFourDigitYear); });
    return result;
}

QString axDate::GetMonthNumberString(const QVariant& monthName) const {
    return qt(monthNumber(utf8(monthName.toString())));
}

qint16 axDate::ValidateMinMax() const {
    return compareWithBounds(utf8(wholeDate()), utf8(mMinimumDate), utf8(mMaximumDate));
}

void axDate::figureDate() {
    mWholeDateIsNew = false;
    txtWholeDate->setText(qt(composedDate(parts(), utf8(wholeDate()), mRequireFourDigitYear)));
}

void axDate::showDate() {
    const QPointer<axDate> self = this;
    month(month());
    if (self) day(day());
    if (self) year(year());
    if (!self) return;
    mWholeDateIsNew = false;
    txtWholeDate->setText(parts().makeDate() ? qt(parts().joined()) : QString());
}

void axDate::setWholeDate(const QString& text) {
    const bool isShown = text == wholeDate() && (mTellsOfChange || text == qt(parts().joined()));
    if (mFocus->isInside() && isShown) return;
    txtWholeDate->setText(text);
    mWholeDateIsNew = true;
    if (!mFocus->isInside()) return;
    takeOverWholeDate();
    box(mIndex).selectAll();
}

/// A whole date that is none leaves the boxes empty, and is kept until one of them is changed.
void axDate::takeOverWholeDate() {
    const auto split = splitDate(utf8(wholeDate()));
    if (!split && !mWholeDateIsNew) return;
    fill(split.value_or(DateParts{}));
    if (split) mWholeDateIsNew = false;
}

void axDate::fill(const DateParts& parts) {
    for (DatePartBox* each : mBoxes) {
        const QSignalBlocker quiet(each);
        each->setText(qt(parts.texts.at(static_cast<std::size_t>(each->index()))));
        each->setAccessibleDescription(QString());
    }
}

void axDate::partChanged(int index, bool movesOn) {
    figureDate();
    DatePartBox& changed = box(index);
    changed.setAccessibleDescription(QString());
    const QPointer<axDate> self = this;
    if (movesOn && index < 2 && changed.text().size() == 2 &&
        isValid(changed.text(), static_cast<qint16>(index)))
        focusBox(index + 1);
    if (!self) return;
    const bool isNested = std::exchange(mTellsOfChange, true);
    emit OnChange();
    if (self) mTellsOfChange = isNested;
}

/// Changes a box by other means than typing, and leaves its text selected.
void axDate::put(int index, const QString& text, bool movesOn) {
    const QString before = box(index).text();
    {
        const QSignalBlocker quiet(box(index));
        box(index).setText(text);
    }
    box(index).selectAll();
    if (text != before) partChanged(index, movesOn);
}

/// Every box is filled before the first change is told: nobody hears of a date made of two.
void axDate::take(const DateParts& given) {
    if (mWholeDateIsNew) takeOverWholeDate();
    const DateParts before = parts();
    fill(given);
    const QPointer<axDate> self = this;
    for (int i = 0; self && i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (before.texts.at(at) != given.texts.at(at)) partChanged(i, false);
    }
    if (self && mFocus->isInside()) focusBox(2);
}

void axDate::step(int index, int by) {
    put(index, qt(steppedPart(parts(), static_cast<std::size_t>(index), by, Clock::now())), false);
}

/// Beyond the first and the last box: to the end of the text.
void axDate::moveBy(int index, int by) {
    const int to = index + by;
    if (to >= 0 && to < std::ssize(mBoxes)) return focusBox(to);
    if (by < 0)
        box(index).home(false);
    else
        box(index).end(false);
}

void axDate::SetText(const QString& text) {
    const int index = mIndex;
    const QPointer<axDate> self = this;
    if (mWholeDateIsNew) takeOverWholeDate();
    put(index, text, true);
    if (!self || index == 2) return;
    mIndex = static_cast<qint16>(index + 1);
    focusBox(mIndex);
    if (self && box(index).hasFocus()) mIndex = static_cast<qint16>(index); // it was refused
}

/// What the boxes make, not what they made before; without a date, what is selected.
void axDate::copyDate(int index) const {
    const QString date = qt(composedDate(parts(), "", mRequireFourDigitYear));
    const QString text = date.isEmpty() ? box(index).selectedText() : date;
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

/// Once for each box that is left, so that Enter always goes to the next control of the form.
void axDate::leaveByTabs(int index) {
    for (int i = index; i < 3; ++i)
        sendKeys(QStringLiteral("{TAB}"));
}

} // namespace Korvane
