#include "clinic/Actions.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>

namespace Clinic {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Clinic::Actions", text);
}

QAction* make(QMainWindow& window, const char* name, const QString& text, const QString& tip,
              const QList<QKeySequence>& keys) {
    auto* action = new QAction(text, &window);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setStatusTip(tip);
    QString plain = text;
    plain.remove(u'&');
    action->setToolTip(keys.isEmpty()
                           ? plain
                           : plain + QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) +
                                 QStringLiteral(")"));
    return action;
}

} // namespace

Actions::Actions(QMainWindow& window) {
    const auto action = [&](const char* name, const char* text, const char* tip,
                            const QList<QKeySequence>& shortcuts) {
        return make(window, name, tr(text), tr(tip), shortcuts);
    };
    newNip =
        action("actionNewNip", "&New Nip", "Enter a new Nip for the chosen patient", {Qt::CTRL | Qt::Key_N});
    openNip = action("actionOpenNip", "&Open Nip", "Open the Nip of the chosen encounter (Enter in the list)",
                     {Qt::CTRL | Qt::Key_O});
    saveNip = action("actionSaveNip", "&Save Nip", "Save the Nip and close it", {Qt::CTRL | Qt::Key_S});
    closeNip = action("actionCloseNip", "&Close Nip", "Close the Nip without saving", {Qt::CTRL | Qt::Key_W});
    quit = action("actionQuit", "&Quit", "Close the window", {Qt::CTRL | Qt::Key_Q});
    findPatient = action("actionFindPatient", "&Find Patient", "Search by part of a name or an ID",
                         {Qt::CTRL | Qt::Key_F});
    reload =
        action("actionReload", "&Reload",
               "Read patients and encounters again; reconnects to a database that was lost", {Qt::Key_F5});
    showLists = action("actionShowLists", "Patients and &Encounters",
                       "Show or hide the lists beside an open Nip", {Qt::Key_F9});
    showLists->setCheckable(true);
    showLists->setChecked(true);
    nextPane = action("actionNextPane", "Ne&xt Pane", "Go to the next part of the window", {Qt::Key_F6});
    previousPane = action("actionPreviousPane", "&Previous Pane", "Go to the part of the window before",
                          {Qt::SHIFT | Qt::Key_F6});
    largerText = action("actionLargerText", "&Larger Text", "Make all text larger",
                        {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    smallerText =
        action("actionSmallerText", "&Smaller Text", "Make all text smaller", {Qt::CTRL | Qt::Key_Minus});
    usualText =
        action("actionUsualText", "&Usual Text Size", "Text in its usual size", {Qt::CTRL | Qt::Key_0});
    keys = action("actionKeys", "&Keyboard", "Which keys do what", {Qt::Key_F1});
    about = action("actionAbout", "&About", "What this program is", {});
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
