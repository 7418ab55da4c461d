#pragma once

#include <QComboBox>

namespace Korvane {

/// A combo box on a page that scrolls: the wheel scrolls the page and never changes an answer; the list that
/// drops down is wide enough for its items; a tool tip shows what is cut off.
class PageCombo : public QComboBox {
    Q_OBJECT

  public:
    explicit PageCombo(QWidget* parent);

    void showPopup() override;

    /// Makes it editable, for a text of any length.
    void takeAnyText();

  protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    bool isCut() const;
};

} // namespace Korvane
