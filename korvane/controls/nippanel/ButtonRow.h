#pragma once

#include <QWidget>

class QPushButton;

namespace Korvane {

/// The panel's row of buttons, the control array `cmdNipButton`: 0 "Save", 1 "Cancel" or "Close", 2
/// "Customize".
class ButtonRow : public QWidget {
    Q_OBJECT

  public:
    /// The buttons, by the index of their names.
    enum Index { Save = 0, Cancel = 1, Customize = 2 };

    explicit ButtonRow(QWidget* parent = nullptr);

    /// Shows the buttons that the panel's two properties call for, except Save.
    void arrange(bool customizeOnly, bool allowClose);
    void offerSave(bool shown, bool enabled);
    /// While the Nip is customized, the field's Save is the nearer one: Enter presses neither, and Customize
    /// is not offered.
    void showCustomizing(bool on);

    QPushButton& button(int index) const { return *mButtons[index]; }

  signals:
    void clicked(int index);

  private:
    QPushButton* mButtons[3];
};

} // namespace Korvane
