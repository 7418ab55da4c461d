#pragma once

#include <QWidget>

class QAbstractButton;
class QAction;
class QToolBar;

namespace Korvane {

/// What stands above the form while it is customized: the toolbar for its groups (`ToolBars1`) and the ways
/// back.
class CustomizeBar : public QWidget {
    Q_OBJECT

  public:
    explicit CustomizeBar(QWidget* parent = nullptr);

    /// With `customizeOnly` there is no Nip to go back to, nor a close button of this bar's own.
    void arrange(bool customizeOnly);

    /// The group that the tools are for, as it is shown to the user: its title, and with what is in it. None
    /// when the title is empty.
    void showGroup(const QString& title, const QString& content);

    /// What takes the focus, in the order in which it stands.
    QList<QWidget*> tabOrder() const;

  signals:
    void newGroupClicked();
    void deleteGroupClicked();
    void customizeGroupClicked();
    void closeClicked();
    /// The user wants to go on with the Nip.
    void backClicked();

  private:
    QAction* addTool(const char* id, const QString& caption, void (CustomizeBar::*triggered)());

    QToolBar* mTools;
    QAction* mDeleteGroup;
    QAction* mCustomizeGroup;
    QAbstractButton* mBack;
    QAbstractButton* mClose;
};

} // namespace Korvane
