#pragma once

#include <vector>

class QKeyEvent;
class QWidget;

namespace Korvane {

class PanelButton;

/// The focus in a row (or column) of buttons. Tab enters the row at the button that was last in use and
/// leaves it; the arrow keys, Home and End move within it and stop at its ends. A button that is disabled or
/// hidden while it has the focus passes it to the nearest one of the row that can be used. While the one last
/// in use cannot be used, the nearest one stands in for it.
class ButtonFocus {
  public:
    /// `panel` is what the host sees: giving it the focus gives it to the row.
    explicit ButtonFocus(QWidget& panel) : mPanel(panel) {}

    void add(PanelButton& button);

    /// The button where Tab will enter.
    PanelButton& current() const { return *mButtons[mCurrent]; }

    /// A button got the focus.
    void entered(const PanelButton& button);
    /// A button was enabled, disabled, shown or hidden.
    void usableChanged();
    /// True when the focus has gone to another button of the row.
    bool passOn(const PanelButton& button);
    /// A key was pressed on a button. Moves by it; false when it is none of the row's.
    bool take(const PanelButton& button, const QKeyEvent& key);

  private:
    int indexOf(const PanelButton& button) const;
    int next(int index, int by) const;
    int nearest(int index) const;
    void setCurrent(int index);
    void focus(int index) const;

    QWidget& mPanel;
    std::vector<PanelButton*> mButtons;
    std::size_t mCurrent = 0;
    int mLastUsed = 0; ///< by the user, or for the host
    bool mPassingOn = false;
};

} // namespace Korvane
