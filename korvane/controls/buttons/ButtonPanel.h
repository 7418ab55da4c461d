#pragma once

#include <korvane/controls/buttons/ButtonFocus.h>
#include <korvane/controls/container/UserControl.h>

#include <vector>

class QGroupBox;

namespace Korvane {

/// What the button panels have in common: a captioned frame (`frame1`) around a row of buttons, captions, and
/// one event that tells which button was clicked. An ampersand in a caption marks its accelerator. In design
/// mode nothing is raised.
///
/// Tab enters the row at the button last used and leaves it, the arrow keys, Home and End move in it, Space
/// and Enter click. An accelerator moves the focus first, so that what was being typed elsewhere is taken
/// over, or refused, before the click is heard.
///
/// Sizes are in twips of the control's font (see `Twips.h`).
class ButtonPanel : public UserControl {
    Q_OBJECT
    Q_PROPERTY(QString btnText1 READ btnText1 WRITE btnText1)
    Q_PROPERTY(QString btnText2 READ btnText2 WRITE btnText2)
    Q_PROPERTY(QString btnText3 READ btnText3 WRITE btnText3)
    Q_PROPERTY(QString btnText4 READ btnText4 WRITE btnText4)

  public:
    ~ButtonPanel() override;

    /// The captions, of the first button on.
    QString btnText1() const { return caption(0); }
    void btnText1(const QString& text) { caption(0, text); }
    QString btnText2() const { return caption(1); }
    void btnText2(const QString& text) { caption(1, text); }
    QString btnText3() const { return caption(2); }
    void btnText3(const QString& text) { caption(2, text); }
    QString btnText4() const { return caption(3); }
    void btnText4(const QString& text) { caption(3, text); }

    /// Puts the focus on a button, counted from 0. Nothing happens where it is disabled or hidden; an index
    /// without a button raises `RuntimeError::SubscriptOutOfRange`.
    void Focus(qint16 index);

  signals:
    /// A button was clicked, by mouse or by key; counted from 0. Its slots delete the control with
    /// `deleteLater` only.
    void btnClick(qint16 index);

  protected:
    /// `arrayName` is the name of the control array: its elements are `arrayName(0)` and so on.
    ButtonPanel(int count, const QString& arrayName, QWidget* parent);

    /// Around all buttons.
    QGroupBox& frame() const { return *frame1; }
    /// Of the buttons, those that are hidden too; indexes go from 0.
    int count() const { return static_cast<int>(mButtons.size()); }
    /// Raises `RuntimeError::SubscriptOutOfRange`.
    PanelButton& button(int index) const;

    /// The caption of a button as it was set, ampersand and all.
    QString caption(int index) const;
    void caption(int index, const QString& text);
    /// The same without marking the property changed.
    virtual void showCaption(int index, const QString& text);
    /// The captions and their defaults in a bag.
    void readCaptions(const PropertyBag& bag, const QStringList& defaults);
    void writeCaptions(PropertyBag& bag, const QStringList& defaults) const;

    /// Enables or disables every button and the frame. The focus goes on to the form's next control.
    void enableParts(bool on);

    /// The control was resized, or what its sizes follow has changed.
    virtual void arrange() = 0;
    /// The control's own size, in twips.
    QSize inTwips() const;
    /// Puts a part where it belongs in its parent, in twips; mirrored where one reads from the right.
    void place(QWidget& part, const QRect& twips) const;

    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QGroupBox* frame1;
    ButtonFocus mRow;
    std::vector<PanelButton*> mButtons;
};

} // namespace Korvane
