#pragma once

#include <QAction>
#include <QCoreApplication>

class QMainWindow;

namespace Clinic {

/// What can be done in the window, with menus, tool bar and keys. Enabled as long as nobody says otherwise.
struct Actions {
    /// Makes the menus and the tool bar of a window.
    explicit Actions(QMainWindow& window);

    QAction* newNip;
    QAction* openNip;
    QAction* saveNip;
    QAction* closeNip;
    QAction* quit;
    QAction* findPatient;
    QAction* reload;
    QAction* showLists; ///< checked while they are in view
    QAction* nextPane;
    QAction* previousPane;
    QAction* largerText;
    QAction* smallerText;
    QAction* usualText;
    QAction* keys;
    QAction* about;

  private:
    void fillMenus(QMainWindow& window) const;
    void fillToolBar(QMainWindow& window) const;

    Q_DECLARE_TR_FUNCTIONS(Clinic::Actions)
};

} // namespace Clinic
