#include <korvane/controls/axdate/Report.h>
#include <korvane/controls/axdate/axDate.h>

#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateVoice.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

#include <QLineEdit>
#include <QPointer>

#include <exception>
#include <utility>

namespace Korvane {

namespace {

const QString& nextField() {
    static const QString words = QStringLiteral("Next Field");
    return words;
}

const QString& previousField() {
    static const QString words = QStringLiteral("Previous Field");
    return words;
}

/// A flag whose default in the bag is the text "True" is kept as text, so that the two can be compared.
const char* flagText(bool on) {
    return on ? "True" : "False";
}

/// A text that is no flag is one of the bag's problems, and the failure to be told once all else has been
/// read.
bool readFlag(const PropertyBag& bag, const QString& name, std::exception_ptr& failure) {
    try {
        return Variant(utf8(bag.ReadProperty(name, flagText(true)).toString())).toBoolean();
    } catch (const RuntimeError&) {
        failure = std::current_exception();
        bag.addProblem(name, axDate::tr("that is no \"True\" or \"False\", True is used"));
        return true;
    }
}

} // namespace

QString axDate::MaximumDate() const {
    return mMaximumDate;
}

void axDate::MaximumDate(const QString& text) {
    mMaximumDate = text;
    emit PropertyChanged("MaximumDate");
}

QString axDate::MinimumDate() const {
    return mMinimumDate;
}

void axDate::MinimumDate(const QString& text) {
    mMinimumDate = text;
    emit PropertyChanged("MinimumDate");
}

bool axDate::DragonSpeechEnabled() const {
    return mDragonSpeechEnabled;
}

void axDate::DragonSpeechEnabled(bool on) {
    if (std::exchange(mDragonSpeechEnabled, on) != on) switchVoice();
    emit PropertyChanged("DragonSpeechEnabled");
}

bool axDate::CriticalValidation() const {
    return mCriticalValidation;
}

void axDate::CriticalValidation(bool on) {
    mCriticalValidation = on;
    emit PropertyChanged("CriticalValidation");
}

QString axDate::month() const {
    return box(0).text();
}

void axDate::month(const QString& text) {
    setPart(0, text, "month");
}

QString axDate::day() const {
    return box(1).text();
}

void axDate::day(const QString& text) {
    setPart(1, text, "day");
}

QString axDate::year() const {
    return box(2).text();
}

void axDate::year(const QString& text) {
    setPart(2, text, "year");
}

void axDate::setPart(int index, const QString& text, const QString& property) {
    const QPointer<axDate> self = this;
    box(index).setText(text);
    if (self) emit PropertyChanged(property);
}

QString axDate::wholeDate() const {
    return txtWholeDate->text();
}

void axDate::wholeDate(const QString& text) {
    setWholeDate(text);
    const QPointer<axDate> self = this;
    emit PropertyChanged("axDate");
    if (self) emit OnChange();
}

bool axDate::Enlivened() const {
    return mEnlivened;
}

void axDate::Enlivened(bool on) {
    mEnlivened = on;
    txtWholeDate->setEnabled(on);
    emit PropertyChanged("Enlivened");
}

QString axDate::NextFieldCommand() const {
    return mNextFieldCommand;
}

void axDate::NextFieldCommand(const QString& words) {
    mNextFieldCommand = words;
    emit PropertyChanged("NextFieldCommand");
}

QString axDate::PreviousFieldCommand() const {
    return mPreviousFieldCommand;
}

void axDate::PreviousFieldCommand(const QString& words) {
    mPreviousFieldCommand = words;
    emit PropertyChanged("PreviousFieldCommand");
}

void axDate::InitProperties() {
    Enlivened(true);
    NextFieldCommand(nextField());
    PreviousFieldCommand(previousField());
}

void axDate::ReadProperties(const PropertyBag& bag) {
    reported("UserControl.ReadProperties", [&] {
        std::exception_ptr failure;
        setWholeDate(bag.ReadProperty("axDate", "").toString());
        mDragonSpeechEnabled = bag.ReadProperty("DragonSpeechEnabled", false).toBool();
        mNextFieldCommand = bag.ReadProperty("NextFieldCommand", nextField()).toString();
        mPreviousFieldCommand = bag.ReadProperty("PreviousFieldCommand", previousField()).toString();
        mRequireFourDigitYear = readFlag(bag, "requireFourDigitYear", failure);
        mEnlivened = readFlag(bag, "Enlivened", failure);
        txtWholeDate->setEnabled(mEnlivened);
        mVoice->followFocus(mDragonSpeechEnabled);
        mVoice->activateDictation(mDragonSpeechEnabled && mFocus->isInside());
        setupVoiceMenu();
        if (failure) std::rethrow_exception(failure);
    });
}

void axDate::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("axDate", wholeDate(), "");
    bag.WriteProperty("DragonSpeechEnabled", mDragonSpeechEnabled, false);
    bag.WriteProperty("NextFieldCommand", mNextFieldCommand, nextField());
    bag.WriteProperty("PreviousFieldCommand", mPreviousFieldCommand, previousField());
    bag.WriteProperty("requireFourDigitYear", flagText(mRequireFourDigitYear), flagText(true));
    bag.WriteProperty("Enlivened", flagText(mEnlivened), flagText(true));
}

} // namespace Korvane
