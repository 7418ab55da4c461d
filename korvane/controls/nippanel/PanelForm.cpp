#include <korvane/controls/nippanel/PanelForm.h>

#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvane {

namespace {

QToolButton* makeCloseButton(QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName("cmdCloseNip");
    button->setText(QString::fromUtf8("\u00d7"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip("Close the Nip");
    button->setAccessibleName("Close the Nip");
    return button;
}

} // namespace

PanelForm::PanelForm(QWidget* parent)
    : QWidget(parent), mState(new QLabel(this)), mClose(makeCloseButton(this)),
      mEncounter(new EncounterPane(this)), mContent(new QWidget(this)), mTabs(new NipTabs(mContent)),
      mCustomize(new CustomizePane(this)), mButtons(new ButtonRow(this)) {
    mState->setObjectName("lblNipState");
    mContent->setObjectName("paneContent");
    mTabs->setObjectName("atNips");
    mTabs->setAccessibleName("Groups of the Nip");
    auto* content = new QVBoxLayout(mContent);
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(mTabs);

    auto* top = new QHBoxLayout;
    top->addWidget(mState, 1);
    top->addWidget(mClose);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(makeSplitter(), 1);
    layout->addWidget(mButtons);

    setFocusProxy(mEncounter);
    setTabOrder(&mButtons->button(ButtonRow::Customize), mClose);
    connect(mClose, &QAbstractButton::clicked, this, &PanelForm::closeClicked);
    showCustomizing(false);
}

QSplitter* PanelForm::makeSplitter() {
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName("splitMain");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(mEncounter);
    splitter->addWidget(mContent);
    splitter->addWidget(mCustomize);
    splitter->setStretchFactor(1, 1);
    splitter->setStretchFactor(2, 1);
    splitter->setHandleWidth(Twips(*this).px(100));
    splitter->handle(1)->setEnabled(false); // the encounter pane is as high as its rows
    return splitter;
}

void PanelForm::arrange(bool customizeOnly, bool allowClose) {
    mButtons->arrange(customizeOnly, allowClose);
    mClose->setVisible(allowClose);
    mCustomize->arrange(customizeOnly);
}

void PanelForm::showCustomizing(bool on) {
    mEncounter->setVisible(!on);
    mContent->setVisible(!on);
    mCustomize->setVisible(on);
    mButtons->button(ButtonRow::Customize).setEnabled(!on);
}

void PanelForm::setEntryEnabled(bool on) {
    mEncounter->setEnabled(on);
    mContent->setEnabled(on);
}

void PanelForm::say(const QString& state) {
    mState->setText(state);
}

} // namespace Korvane
