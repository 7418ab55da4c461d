#pragma once

#include <korvane/controls/container/FocusSteps.h>
#include <korvane/controls/container/UserControl.h>

#include <QString>
#include <QVariant>

#include <array>
#include <memory>

class QLineEdit;

namespace Korvane {

class DatePartBox;
class DateVoice;
struct DateParts;

/// A control for entering one date. At rest it shows the whole date (`txtWholeDate`); with the focus it shows
/// three boxes for the month, the day and the year (`txtDate(0)` to `txtDate(2)`), which are filled one after
/// the other: two digits that make a month or a day move on to the next box, Enter leaves for the next
/// control of the form.
///
///     auto* born = new axDate(form);
///     born->MaximumDate("11/15/2026");
///     connect(born, &axDate::Exception, form, &Form::showMessage);
///     connect(born, &axDate::SystemMessage, form, [=] { if (born->ValidateMinMax() != 0) ... });
///
/// The whole date follows every change of a box, in the form month/day/year as typed. It is empty while a box
/// holds something that cannot be right, and stays as it was when the boxes name a day that does not exist.
/// Coming and going writes a whole date that the host set anew from its parts (01/02/2026 becomes 1/2/2026);
/// a text that does not read as a date stays until the user types something.
///
/// A box that holds no month, day or year does not let the focus go to a control that asks for validation
/// (see `FocusSteps.h`): it keeps its text, and `Exception` says why. No message box is shown for it.
///
/// Beyond that: Up and Down step the part in hand, Left and Right at the edge of a box move to the next one,
/// a whole date pasted or dropped fills all boxes, copying copies the whole date.
///
/// Voice: with `DragonSpeechEnabled` in the property bag, and a speech engine installed (`SpeechEngine.h`),
/// saying "Next Field" and "Previous Field" moves between the boxes, round and round, and what is dictated
/// is told by `Dictated`; both only while the focus is inside. `placeDictated` does the usual with it.
/// Without an engine the user is told so once, and the control works by hand.
///
/// Its slots may show boxes. They delete it with `deleteLater` only: the key that raised the event is still
/// being handled.
///
/// Its own errors are shown in a message box without a title. What `requireFourDigitYear` is comes from the
/// property bag alone; without one it is True.
class axDate : public UserControl, private FocusSteps::Handler {
    Q_OBJECT
    Q_PROPERTY(bool FourDigitYearError READ FourDigitYearError STORED false)
    Q_PROPERTY(QString MaximumDate READ MaximumDate WRITE MaximumDate STORED false)
    Q_PROPERTY(QString MinimumDate READ MinimumDate WRITE MinimumDate STORED false)
    Q_PROPERTY(bool DragonSpeechEnabled READ DragonSpeechEnabled WRITE DragonSpeechEnabled)
    Q_PROPERTY(bool CriticalValidation READ CriticalValidation WRITE CriticalValidation STORED false)
    Q_PROPERTY(QString day READ day WRITE day STORED false)
    Q_PROPERTY(QString month READ month WRITE month STORED false)
    Q_PROPERTY(QString year READ year WRITE year STORED false)
    Q_PROPERTY(QString axDate READ wholeDate WRITE wholeDate NOTIFY OnChange USER true)
    Q_PROPERTY(bool Enlivened READ Enlivened WRITE Enlivened)
    Q_PROPERTY(QString NextFieldCommand READ NextFieldCommand WRITE NextFieldCommand)
    Q_PROPERTY(QString PreviousFieldCommand READ PreviousFieldCommand WRITE PreviousFieldCommand)

  public:
    /// One that is made with its voice on readies the engine for it at once; one that gets it from the bag
    /// does so when it needs it.
    explicit axDate(QWidget* parent = nullptr, bool dragonSpeechEnabled = false);
    ~axDate() override;

    /// Whether the year is not exactly four characters long where four are required; also when it is empty.
    bool FourDigitYearError() const;

    /// The bounds for `ValidateMinMax`: any text, empty for none. Not kept in the host's bag.
    QString MaximumDate() const;
    void MaximumDate(const QString& text);
    QString MinimumDate() const;
    void MinimumDate(const QString& text);

    /// Whether voice commands and dictation are on. Default false: no part of the engine is touched then. The
    /// commands take effect when it is read from the bag; switching it off and on again silences them and
    /// brings them back.
    bool DragonSpeechEnabled() const;
    void DragonSpeechEnabled(bool on);

    /// Held for the host. Default false; not kept in its bag.
    bool CriticalValidation() const;
    void CriticalValidation(bool on);

    /// The texts of the three boxes. Setting one writes it unchecked, and the whole date follows.
    QString day() const;
    void day(const QString& text);
    QString month() const;
    void month(const QString& text);
    QString year() const;
    void year(const QString& text);

    /// The property `axDate`: the whole date, or empty. Setting it shows the text unchecked and raises
    /// `OnChange`. The boxes take it over when they are next shown, at once when they are being shown: what
    /// they held of a date before is then gone. They are left alone when they show that date already, and
    /// when a slot of `OnChange` sets what it has just read.
    QString wholeDate() const;
    void wholeDate(const QString& text);

    /// Whether the user can get into the control. Default true.
    bool Enlivened() const;
    void Enlivened(bool on);

    /// The spoken words of the two commands. Default "Next Field" and "Previous Field". What counts is what
    /// they are when the properties are read; setting them later does not change the commands.
    QString NextFieldCommand() const;
    void NextFieldCommand(const QString& words);
    QString PreviousFieldCommand() const;
    void PreviousFieldCommand(const QString& words);

    /// Shows the boxes and puts the focus into box `index` (0 to 2; nothing happens for another).
    void SetElementFocus(qint16 index);

    /// Writes a text, one spoken for instance, into the box last entered, selects it, and moves on to the
    /// next box unless that was the year's.
    void SetText(const QString& text);

    /// Composes the whole date from the boxes by way of the properties: empty unless they make a date.
    void showDate();
    /// Composes the whole date from the boxes, see above.
    void figureDate();
    /// Whether a text will do for a part. An empty one does; else it has to be a number: a month (0) from 1
    /// to 12, a day (1) from 1 to 31 in any month, a year (2) of 4 characters that is not negative, or of 2
    /// when four are not required. Any number will do for another index.
    bool isValid(const QString& value, qint16 fieldIndex) const;
    /// The number of a month by its full English name, as text; else "not found".
    QString GetMonthNumberString(const QVariant& monthName) const;
    /// 1 when the whole date is after `MaximumDate`, -1 when it is before `MinimumDate`, else 0. What to do
    /// about it is the host's: the control refuses neither.
    qint16 ValidateMinMax() const;

    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// A box has got the focus.
    void OnIndexChange(qint16 index);
    /// A part was refused; the box that holds it has the focus, or gets it next.
    void Exception(const QString& message);
    /// "exitfocus": the control has lost the focus.
    void SystemMessage(const QString& message);
    /// The text of a box was changed, or the whole date was set.
    void OnChange();
    /// A value was dictated, in lower case as it was said: "november", "fifteen". It is the host's to place,
    /// see `placeDictated`. Raised only while a box has the focus.
    void Dictated(const QString& words);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void enterFocus(Qt::FocusReason reason) override;
    void exitFocus() override;
    void gotFocus(QWidget& part) override;
    bool accepts(const QWidget& part) override;
    void refused(QWidget& part) override;
    void lostFocus(QWidget& part) override;

    void makeBox(int index, const QString& name, const QString& placeholder);
    DatePartBox& box(int index) const { return *mBoxes[static_cast<std::size_t>(index)]; }
    DateParts parts() const;
    void fill(const DateParts& parts);
    void take(const DateParts& given);
    void setPart(int index, const QString& text, const QString& property);
    void partChanged(int index, bool movesOn);
    void put(int index, const QString& text, bool movesOn);
    void setWholeDate(const QString& text);
    void takeOverWholeDate();
    void checkYear();
    void refuse(int index, const QString& message);
    void focusBox(int index);
    void step(int index, int by);
    void moveBy(int index, int by);
    void copyDate(int index) const;
    static void leaveByTabs(int index);
    void arrange();
    void makeVoice();
    void setupVoiceMenu();
    void switchVoice();
    bool isListening() const;
    void commandRecognized(std::int32_t number);

    QLineEdit* txtWholeDate;
    std::array<DatePartBox*, 3> mBoxes{};
    QString mMaximumDate, mMinimumDate;
    QString mNextFieldCommand, mPreviousFieldCommand;
    bool mDragonSpeechEnabled = false;
    bool mCriticalValidation = false;
    bool mEnlivened = true;
    bool mRequireFourDigitYear = true;
    bool mWholeDateIsNew = false; ///< set by the host, and the boxes were not changed since
    bool mTellsOfChange = false;  ///< an `OnChange` for a box is being heard
    qint16 mIndex = 0;            ///< the box last entered
    std::unique_ptr<FocusSteps> mFocus;
    std::unique_ptr<DateVoice> mVoice;
};

} // namespace Korvane
