#pragma once

#include <QWidget>

class QAbstractButton;
class QTreeWidget;

namespace Korvane {

class cNIP;

/// Where the structure of the Nip is customized (`paneCustomize`): for now it shows the groups with their
/// fields as they are stored, read-only.
class CustomizePane : public QWidget {
    Q_OBJECT

  public:
    explicit CustomizePane(QWidget* parent = nullptr);

    /// Shows the structure of a model; without one, nothing.
    void showStructure(const cNIP* nip);

    /// With `customizeOnly` there is no Nip to go back to, nor a close button of the pane's own.
    void arrange(bool customizeOnly);

  signals:
    void closeClicked();
    /// The user wants to go on with the Nip.
    void backClicked();

  private:
    QTreeWidget* mStructure;
    QAbstractButton* mBack;
    QAbstractButton* mClose;
};

} // namespace Korvane
