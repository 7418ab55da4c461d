#pragma once

#include <korvane/controls/buttons/MoveSymbol.h>

#include <QPushButton>

#include <optional>

namespace Korvane {

class ButtonFocus;

/// A button of a button panel. What is more than a push button:
///
/// - Enter clicks it while it has the focus, and it shows the mark of the default button then. It never
///   becomes the default button of a dialog otherwise: Enter in a text box does not reach it.
/// - Its accelerator gives it the focus before the click: what refuses to let the focus go holds the click
/// up.
/// - A caption that has no room is shortened and shown whole as a tool tip; in a low button it is written
/// smaller.
/// - A flat one has a line around it.
class PanelButton : public QPushButton {
    Q_OBJECT

  public:
    PanelButton(ButtonFocus& row, QWidget* parent);

    void setOutlined(bool on);
    /// Shown in place of the caption; nothing for the caption itself.
    void setSymbol(std::optional<MoveSymbol> symbol);

    QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    QFont fittingFont() const;
    void showWholeCaption(const QPoint& at);
    void paintOutline(QPainter& painter, const QStyleOptionButton& option) const;

    ButtonFocus& mRow;
    bool mOutlined = false;
    std::optional<MoveSymbol> mSymbol;
};

} // namespace Korvane
