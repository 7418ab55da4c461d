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

/// A gap without a grip: each pane is as high as it needs to be, or takes all there is.
class FixedSplitter : public QSplitter {
  public:
    using QSplitter::QSplitter;

  protected:
    QSplitterHandle* createHandle() override { return new Gap(orientation(), this); }

  private:
    class Gap : public QSplitterHandle {
      public:
        Gap(Qt::Orientation orientation, QSplitter* parent) : QSplitterHandle(orientation, parent) {
            setEnabled(false);
            unsetCursor();
        }

      protected:
        void paintEvent(QPaintEvent*) override {}
    };
};

} // namespace

PanelForm::PanelForm(QWidget* parent)
    : QWidget(parent), mState(new QLabel(this)), mClose(makeCloseButton(this)),
      mEncounter(new EncounterPane(this)), mContent(new QWidget(this)), mTabs(new NipTabs(mContent)),
      mCustomize(new CustomizePane(this)), mButtons(new ButtonRow(this)) {
    mState->setObjectName("lblNipState");
    mContent->setObjectName("paneContent");
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
    auto* splitter = new FixedSplitter(Qt::Vertical, this);
    splitter->setObjectName("splitMain");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(mEncounter);
    splitter->addWidget(mContent);
    splitter->addWidget(mCustomize);
    splitter->setStretchFactor(1, 1);
    splitter->setStretchFactor(2, 1);
    splitter->setHandleWidth(Twips(*this).px(100));
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
