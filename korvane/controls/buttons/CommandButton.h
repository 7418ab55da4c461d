#pragma once

#include <QPushButton>

class QShortcutEvent;

namespace Korvane {

/// The room in twips that one caption asks for at most: none makes a form wider than the screen.
constexpr int widestCaption = 6000;

/// A button on a form. What is more than a push button:
///
/// - Enter clicks it while it has the focus, once for each press, and it shows the mark of the default button
///   then. Held down it does nothing to what has got the focus since, such as a question's Yes. It never
///   becomes the default button of a dialog otherwise: Enter in a text box does not reach it.
/// - Its accelerator gives it the focus and clicks it, at once and once for each press. What refuses to let
///   the focus go holds the click up, and a button that has been disabled since is never clicked.
/// - A caption that has no room is shortened and shown whole as a tool tip.
class CommandButton : public QPushButton {
    Q_OBJECT

  public:
    explicit CommandButton(QWidget* parent);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;
    virtual QFont captionFont() const { return font(); }

  private:
    bool takeAccelerator(const QShortcutEvent& accelerator);
    bool isShortened() const;
};

} // namespace Korvane
