#pragma once

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/buttons/MoveSymbol.h>

#include <optional>

namespace Korvane {

class ButtonFocus;

/// A button in a row or column of them: keys move the focus within it (see `ButtonFocus.h`). It can show a
/// symbol in place of its caption, a flat one has a line around it, and in a low one the caption is written
/// smaller.
class PanelButton : public CommandButton {
    Q_OBJECT

  public:
    PanelButton(ButtonFocus& row, QWidget* parent);

    void setOutlined(bool on);
    /// Shown in place of the caption; nothing for the caption itself.
    void setSymbol(std::optional<MoveSymbol> symbol);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;
    QFont captionFont() const override;

  private:
    void paintOutline(QPainter& painter, const QStyleOptionButton& option) const;

    ButtonFocus& mRow;
    bool mOutlined = false;
    std::optional<MoveSymbol> mSymbol;
};

} // namespace Korvane
