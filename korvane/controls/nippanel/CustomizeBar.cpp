#include <korvane/controls/nippanel/CustomizeBar.h>

#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

namespace Korvane {

CustomizeBar::CustomizeBar(QWidget* parent)
    : QWidget(parent), mTools(new QToolBar(tr("General"), this)),
      mBack(new QPushButton(tr("&Back to the Nip"), this)), mClose(new QPushButton(tr("Close"), this)) {
    mTools->setObjectName("ToolBars1");
    mTools->setAccessibleName(tr("Groups"));
    addTool("ID_NewNipGroup", tr("&New Nip Group"), &CustomizeBar::newGroupClicked)
        ->setToolTip(tr("Add a group to the Nip"));
    mDeleteGroup = addTool("ID_DeleteNipGroup", tr("&Delete Nip Group"), &CustomizeBar::deleteGroupClicked);
    mCustomizeGroup =
        addTool("ID_CustomizeNipGroup", tr("CustomizeNipGroup"), &CustomizeBar::customizeGroupClicked);
    mBack->setObjectName("cmdBackToNip");
    mBack->setToolTip(tr("Go on with the Nip (Esc)"));
    mClose->setObjectName("cmdCloseNipCustomize");
    mClose->setToolTip(tr("Close the Nip"));
    connect(mBack, &QAbstractButton::clicked, this, &CustomizeBar::backClicked);
    connect(mClose, &QAbstractButton::clicked, this, &CustomizeBar::closeClicked);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTools, 1);
    layout->addWidget(mBack);
    layout->addWidget(mClose);
    showGroup({}, {});
}

/// A button of a tool bar shows no mnemonic and takes no focus unless it is told to.
QAction* CustomizeBar::addTool(const char* id, const QString& caption, void (CustomizeBar::*triggered)()) {
    QAction* action = mTools->addAction(caption);
    action->setObjectName(id);
    action->setIconText(caption);
    auto* tool = static_cast<QToolButton*>(mTools->widgetForAction(action));
    tool->setFocusPolicy(Qt::TabFocus);
    tool->setAutoRaise(false);
    connect(action, &QAction::triggered, this, triggered);
    return action;
}

void CustomizeBar::arrange(bool customizeOnly) {
    mBack->setVisible(!customizeOnly);
    mClose->setVisible(!customizeOnly);
}

QList<QWidget*> CustomizeBar::tabOrder() const {
    QList<QWidget*> order;
    for (QAction* action : mTools->actions())
        order << mTools->widgetForAction(action);
    return order << mBack << mClose;
}

void CustomizeBar::showGroup(const QString& title, const QString& content) {
    mDeleteGroup->setEnabled(!title.isEmpty());
    mCustomizeGroup->setEnabled(!title.isEmpty());
    mDeleteGroup->setToolTip(
        tr("Remove the group %1 and all that was entered in it, in every encounter").arg(content));
    mCustomizeGroup->setToolTip(tr("Go to the fields of the group %1").arg(title));
}

} // namespace Korvane
