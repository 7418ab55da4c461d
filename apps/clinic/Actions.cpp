#include "clinic/Actions.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>

namespace Clinic {

namespace {

QAction* make(QMainWindow& window, const char* name, const QString& text, const QString& tip,
              const QList<QKeySequence>& keys) {
    auto* action = new QAction(text, &window);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setStatusTip(tip);
    QString plain = text;
    plain.remove(u'&');
    action->setToolTip(
        keys.isEmpty() ? plain
                       : Actions::tr("%1 (%2)").arg(plain, keys.first().toString(QKeySequence::NativeText)));
    return action;
}

} // namespace

Actions::Actions(QMainWindow& window) {
    const auto action = [&](const char* name, const QString& text, const QString& tip,
                            const QList<QKeySequence>& shortcuts) {
        return make(window, name, text, tip, shortcuts);
    };
    newNip = action("actionNewNip", tr("&New Nip"), tr("Enter a new Nip for the chosen patient"),
                    {Qt::CTRL | Qt::Key_N});
    openNip = action("actionOpenNip", tr("&Open Nip"),
                     tr("Open the Nip of the chosen encounter (Enter in the list)"), {Qt::CTRL | Qt::Key_O});
    saveNip =
        action("actionSaveNip", tr("&Save Nip"), tr("Save the Nip and close it"), {Qt::CTRL | Qt::Key_S});
    closeNip = action("actionCloseNip", tr("&Close Nip"), tr("Close the Nip without saving"),
                      {Qt::CTRL | Qt::Key_W});
    quit = action("actionQuit", tr("&Quit"), tr("Close the window"), {Qt::CTRL | Qt::Key_Q});
    findPatient = action("actionFindPatient", tr("&Find Patient"), tr("Search by part of a name or an ID"),
                         {Qt::CTRL | Qt::Key_F});
    reload = action("actionReload", tr("&Reload"),
                    tr("Read patients and encounters again; reconnects to a database that was lost"),
                    {Qt::Key_F5});
    showLists = action("actionShowLists", tr("Patients and &Encounters"),
                       tr("Show or hide the lists beside an open Nip"), {Qt::Key_F9});
    showLists->setCheckable(true);
    showLists->setChecked(true);
    nextPane =
        action("actionNextPane", tr("Ne&xt Pane"), tr("Go to the next part of the window"), {Qt::Key_F6});
    previousPane = action("actionPreviousPane", tr("&Previous Pane"),
                          tr("Go to the part of the window before"), {Qt::SHIFT | Qt::Key_F6});
    largerText = action("actionLargerText", tr("&Larger Text"), tr("Make all text larger"),
                        {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    smallerText = action("actionSmallerText", tr("&Smaller Text"), tr("Make all text smaller"),
                         {Qt::CTRL | Qt::Key_Minus});
    usualText = action("actionUsualText", tr("&Usual Text Size"), tr("Text in its usual size"),
                       {Qt::CTRL | Qt::Key_0});
    keys = action("actionKeys", tr("&Keyboard"), tr("Which keys do what"), {Qt::Key_F1});
    about = action("actionAbout", tr("&About"), tr("What this program is"), {});
    fillMenus(window);
    fillToolBar(window);
}

void Actions::fillMenus(QMainWindow& window) const {
    QMenu* nip = window.menuBar()->addMenu(tr("N&ip"));
    nip->addActions({newNip, openNip, saveNip, closeNip});
    nip->addSeparator();
    nip->addAction(quit);
    QMenu* patients = window.menuBar()->addMenu(tr("P&atients"));
    patients->addActions({findPatient, reload});
    QMenu* view = window.menuBar()->addMenu(tr("&View"));
    view->addActions({largerText, smallerText, usualText});
    view->addSeparator();
    view->addActions({showLists, nextPane, previousPane});
    window.menuBar()->addMenu(tr("&Help"))->addActions({keys, about});
}

void Actions::fillToolBar(QMainWindow& window) const {
    newNip->setIcon(window.style()->standardIcon(QStyle::SP_FileIcon));
    openNip->setIcon(window.style()->standardIcon(QStyle::SP_DialogOpenButton));
    saveNip->setIcon(window.style()->standardIcon(QStyle::SP_DialogSaveButton));
    closeNip->setIcon(window.style()->standardIcon(QStyle::SP_DialogCloseButton));
    QToolBar* bar = window.addToolBar(tr("Actions"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setMovable(false);
    bar->toggleViewAction()->setVisible(false);
    bar->addActions({newNip, openNip, saveNip, closeNip});
}

} // namespace Clinic
