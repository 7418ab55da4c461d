#pragma once

#include <korvane/controls/buttons/BackColour.h>
#include <korvane/controls/buttons/ButtonColumn.h>
#include <korvane/controls/buttons/ButtonPanel.h>
#include <korvane/controls/container/Code.h>

#include <QColor>
#include <QString>

#include <array>

namespace Korvane {

/// A frame around a column of one to five function buttons (`cmdButton(0)` to `cmdButton(4)`).
///
///     auto* panel = new funcPanel(form);
///     panel->buttonCount(2);
///     panel->btnText1("&Print");
///     panel->btnText2("&Sign");
///     connect(panel, &funcPanel::btnClick, form, [=](qint16 index) { index == 0 ? print() : sign(); });
///
/// A new one reads "Func Btn" on its frame; one that is read from a bag without a caption "Function Btn".
///
/// In a control of W by H twips the frame is W - 10 by H - 50; each button is 300 narrower than the frame and
/// in its middle, the first one 345 below the top of the frame, each of the others 40 below the one before.
/// They share the frame's height less 600. A control lower than 650 or narrower than 350 keeps them as they
/// were.
class funcPanel : public ButtonPanel {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ backColour WRITE backColour RESET resetBackColour)
    Q_PROPERTY(bool btn1Enabled READ btn1Enabled STORED false)
    Q_PROPERTY(bool btn2Enabled READ btn2Enabled STORED false)
    Q_PROPERTY(bool btn3Enabled READ btn3Enabled STORED false)
    Q_PROPERTY(bool btn4Enabled READ btn4Enabled STORED false)
    Q_PROPERTY(bool btn5Enabled READ btn5Enabled STORED false)
    Q_PROPERTY(bool btnsFontBold READ btnsFontBold WRITE btnsFontBold STORED false)
    Q_PROPERTY(QString btnText5 READ btnText5 WRITE btnText5)
    Q_PROPERTY(int buttonCount READ buttonCount WRITE givenButtonCount)
    Q_PROPERTY(ButtonStyle buttonStyle READ styleCode WRITE styleCode)
    Q_PROPERTY(QString FrameCaption READ FrameCaption WRITE FrameCaption)
    Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled STORED false)
    Q_PROPERTY(FontSize FrameFontSize READ frameFontCode WRITE frameFontCode)
    Q_PROPERTY(FontSize ButtonFontSize READ buttonFontCode WRITE buttonFontCode)

  public:
    /// The codes of `buttonStyle`.
    enum ButtonStyle : int { Flat = 0, ThreeDimensional = 1 };
    Q_ENUM(ButtonStyle)
    /// The codes of the font sizes.
    enum FontSize : int { EightPoints = 0, TenPoints = 1, TwelvePoints = 2 };
    Q_ENUM(FontSize)

    /// With five buttons, captioned "1" to "5".
    explicit funcPanel(QWidget* parent = nullptr);

    /// The frame's back colour as a 32-bit colour (see `BackColour.h`). Default the button face, which leaves
    /// the frame as the form is. The caption turns black or white where it could not be read. To Qt's
    /// property system it is a `QColor`.
    qint32 BackColor() const { return mBackColor; }
    void BackColor(qint32 code);

    /// Whether the button was last enabled by `btnEnable`; false when it was last disabled by `btnDisable`,
    /// or neither was ever called. `Enabled` makes no difference.
    bool btn1Enabled() const { return mEnabled[0]; }
    bool btn2Enabled() const { return mEnabled[1]; }
    bool btn3Enabled() const { return mEnabled[2]; }
    bool btn4Enabled() const { return mEnabled[3]; }
    bool btn5Enabled() const { return mEnabled[4]; }

    /// Every caption bold or not. Default false; not kept in the host's bag.
    bool btnsFontBold() const { return mAllBold; }
    void btnsFontBold(bool bold);

    /// The caption of the fifth button, as `btnText1`.
    QString btnText5() const { return caption(4); }
    void btnText5(const QString& text) { caption(4, text); }

    /// How many buttons there are, 1 to 5. Default 5. Any other number is refused with a message box, and
    /// nothing is changed.
    ///
    /// More buttons are shown at once, and share the frame's height less 500 until the control is resized.
    /// Fewer hide none: the next resize does. In either case the control becomes as high as to end 350 below
    /// the last of them; that is a resize, which takes effect with the next turn of the event loop, also
    /// where something else keeps the height as it was.
    /// Set through Qt's property system before the control was first shown, as a form does that is being
    /// loaded, the control keeps its size, and exactly so many buttons show.
    qint16 buttonCount() const { return mCount; }
    void buttonCount(qint16 count) { setButtonCount(count); }

    /// How every button looks: 0 flat, anything else three-dimensional. Default 1.
    qint16 buttonStyle() const { return mStyle; }
    void buttonStyle(qint16 style);

    /// The frame's caption, see above for its two defaults.
    QString FrameCaption() const;
    void FrameCaption(const QString& text);

    /// Whether the control can be used. Setting it enables or disables every button, whatever `btnEnable` and
    /// `btnDisable` have said. Not kept in the host's bag.
    bool Enabled() const;
    void Enabled(bool on);

    /// The sizes of the captions: 0 for 8 points, 1 for 10, 2 and more for 12; a negative one changes
    /// nothing. Default 1. On a form whose font is larger than 10 points they grow with it.
    qint16 FrameFontSize() const { return mFrameFontSize; }
    void FrameFontSize(qint16 code);
    qint16 ButtonFontSize() const { return mButtonFontSize; }
    void ButtonFontSize(qint16 code);

    /// For one button, 0 to 4. 5 is allowed and has no button; any other index raises
    /// `RuntimeError::SubscriptOutOfRange`.
    void btnEnable(qint16 index) { setButtonEnabled(index, true); }
    void btnDisable(qint16 index) { setButtonEnabled(index, false); }
    void btnFontBold(qint16 index, bool bold);

    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    static constexpr int most = ButtonColumn::most;

    QColor backColour() const { return colourOf(mBackColor, palette()); }
    void backColour(const QColor& colour) { BackColor(codeOf(colour)); }
    void resetBackColour() { BackColor(buttonFace); }
    void setButtonCount(int count);
    void givenButtonCount(int count);
    ButtonStyle styleCode() const { return static_cast<ButtonStyle>(mStyle); }
    void styleCode(ButtonStyle style) { takeCode(*this, &funcPanel::buttonStyle, style, "buttonStyle"); }
    FontSize frameFontCode() const { return static_cast<FontSize>(mFrameFontSize); }
    void frameFontCode(FontSize size) { takeCode(*this, &funcPanel::FrameFontSize, size, "FrameFontSize"); }
    FontSize buttonFontCode() const { return static_cast<FontSize>(mButtonFontSize); }
    void buttonFontCode(FontSize size) {
        takeCode(*this, &funcPanel::ButtonFontSize, size, "ButtonFontSize");
    }

    void setButtonEnabled(int index, bool on);
    void setBold(int index, bool bold);
    static const char* refusal(int count);
    void readBackColor(const PropertyBag& bag);
    void readCount(const PropertyBag& bag);
    void showBackColour();
    void showStyle();
    void showFonts();
    void arrange() override;
    void placeAll();
    QSize sizeFor(int buttonHeight) const;

    ButtonColumn mColumn;
    QSize mArranged; ///< the control's size that the column follows
    bool mArrangesLater = false;
    qint32 mBackColor = buttonFace;
    std::array<bool, most> mEnabled{};
    bool mAllBold = false;
    qint16 mCount = most;
    qint16 mStyle = ThreeDimensional;
    qint16 mFrameFontSize = TenPoints;
    qint16 mButtonFontSize = TenPoints;
};

} // namespace Korvane
