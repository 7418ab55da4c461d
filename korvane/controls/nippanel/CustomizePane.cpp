#include <korvane/controls/nippanel/CustomizePane.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/nip/cNIP.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Korvane {

namespace {

QTreeWidget* makeStructureView(QWidget* parent) {
    auto* view = new QTreeWidget(parent);
    view->setObjectName("treeNipStructure");
    view->setAccessibleName("Groups and fields of the Nip");
    view->setHeaderLabels({"Field", "Caption", "Display Type"});
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setUniformRowHeights(true);
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return view;
}

QTreeWidgetItem* groupItem(const cNIP& nip, std::int16_t group) {
    auto* item = new QTreeWidgetItem({qt(nip.GroupName(group))});
    for (const std::int16_t field : CountedFrom1(nip.FieldCount(group))) {
        item->addChild(new QTreeWidgetItem({qt(nip.fieldName(group, field)), qt(nip.Caption(group, field)),
                                            qt(nip.displayType(group, field))}));
    }
    return item;
}

} // namespace

CustomizePane::CustomizePane(QWidget* parent)
    : QWidget(parent), mStructure(makeStructureView(this)), mBack(new QPushButton("&Back to the Nip", this)),
      mClose(new QPushButton("Close", this)) {
    setObjectName("paneCustomize");
    auto* title = new QLabel("Customizing the Structure of the NIP tables", this);
    title->setObjectName("lblCustomizeTitle");
    title->setWordWrap(true);
    title->setBuddy(mStructure);
    mBack->setObjectName("cmdBackToNip");
    mClose->setObjectName("cmdCloseNipCustomize");
    mClose->setToolTip("Close the Nip");
    connect(mBack, &QAbstractButton::clicked, this, &CustomizePane::backClicked);
    connect(mClose, &QAbstractButton::clicked, this, &CustomizePane::closeClicked);

    auto* top = new QHBoxLayout;
    top->addWidget(title, 1);
    top->addWidget(mBack);
    top->addWidget(mClose);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(mStructure, 1);
}

void CustomizePane::showStructure(const cNIP* nip) {
    mStructure->clear();
    if (!nip) return;
    QList<QTreeWidgetItem*> groups;
    for (const std::int16_t group : CountedFrom1(nip->GroupCount()))
        groups.append(groupItem(*nip, group));
    mStructure->addTopLevelItems(groups);
    for (QTreeWidgetItem* item : groups)
        item->setFirstColumnSpanned(true);
    mStructure->expandAll();
}

void CustomizePane::arrange(bool customizeOnly) {
    mBack->setVisible(!customizeOnly);
    mClose->setVisible(!customizeOnly);
}

} // namespace Korvane
