#include <korvane/controls/nippanel/PanelForm.h>

#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/CustomizeBar.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/DisplayTypes.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/FieldMark.h>
#include <korvane/controls/nippanel/FieldPicker.h>
#include <korvane/controls/nippanel/NipTabs.h>

#include <QApplication>
#include <QEvent>
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
    button->setToolTip(PanelForm::tr("Close the Nip"));
    button->setAccessibleName(button->toolTip());
    return button;
}

/// A gap without a grip: each pane is as high as it needs to be, or takes all there is.
class FixedSplitter : public QSplitter {
  public:
    using QSplitter::QSplitter;

  protected:
    QSplitterHandle* createHandle() override { return new Gap(orientation(), this); }

    /// A splitter keeps the room of a pane that has become lower.
    bool event(QEvent* event) override {
        const bool done = QSplitter::event(event);
        if (event->type() == QEvent::LayoutRequest) setSizes({1, height()});
        return done;
    }

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
    : QWidget(parent), mState(new QLabel(this)), mClose(nullptr), mBar(nullptr) {
    mState->setObjectName("lblNipState");
    auto* top = new QHBoxLayout;
    top->addWidget(mState, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(mBar = new CustomizeBar(this));
    layout->addWidget(makeSplitter(), 1);
    layout->addWidget(mButtons = new ButtonRow(this));

    top->addWidget(mClose = makeCloseButton(this)); // the last in the tab order
    QWidget* before = &mButtons->button(ButtonRow::Customize);
    for (QWidget* next : mBar->tabOrder()) {
        setTabOrder(before, next);
        before = next;
    }
    setFocusProxy(mEncounter);
    connect(mClose, &QAbstractButton::clicked, this, &PanelForm::closeClicked);
    showCustomizing(false);
}

QSplitter* PanelForm::makeSplitter() {
    auto* splitter = new FixedSplitter(Qt::Vertical, this);
    splitter->setObjectName("splitMain");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(mEncounter = new EncounterPane(this));
    makeContent();
    splitter->addWidget(mSplit);
    splitter->setStretchFactor(1, 1);
    splitter->setHandleWidth(Twips(*this).px(100));
    return splitter;
}

void PanelForm::makeContent() {
    mSplit = new QSplitter(Qt::Horizontal, this);
    mSplit->setObjectName("splitContent");
    mSplit->setChildrenCollapsible(false);
    mContent = new QWidget(mSplit);
    mContent->setObjectName("paneContent");
    mTabs = new NipTabs(mContent);
    mTabs->setAccessibleName(tr("Groups of the Nip"));
    auto* content = new QVBoxLayout(mContent);
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(mTabs);
    mPicker = new FieldPicker(mTabs);
    mMark = new FieldMark(this);
    mCustomize = new CustomizePane(mSplit);
    mSplit->setHandleWidth(Twips(*this).px(100));
}

void PanelForm::arrange(bool customizeOnly, bool allowClose) {
    mButtons->arrange(customizeOnly, allowClose);
    mClose->setVisible(allowClose);
    mBar->arrange(customizeOnly);
}

void PanelForm::showCustomizing(bool on) {
    const bool turns = on && !mCustomizing;
    mCustomizing = on;
    mBar->setVisible(on);
    mCustomize->setVisible(on);
    if (turns) mSplit->setSizes({mSplit->width() / 2, mSplit->width() / 2});
    mPicker->setActive(on);
    mButtons->showCustomizing(on);
    enableContent();
}

void PanelForm::showEncounter(bool on) const {
    mEncounter->setVisible(on);
}

void PanelForm::setEntryEnabled(bool on) {
    mEntryEnabled = on;
    mEncounter->setEnabled(on);
    enableContent();
}

/// A field is chosen among the entries also while nothing may be entered there.
void PanelForm::enableContent() {
    mContent->setEnabled(mEntryEnabled || mCustomizing);
}

void PanelForm::markField(const cNIP* nip, FieldPlace place) {
    const DisplayType* type =
        nip && place.field > 0 ? findDisplayType(nip->displayType(place.group, place.field)) : nullptr;
    if (!type) return mMark->frame(nullptr, nullptr);
    const auto find = [&](const char* array, int element) {
        return mTabs->findChild<QWidget*>(EntrySite::elementName(array, element));
    };
    mMark->frame(find("lblNip", nip->ControlIndexLabel(place.group, place.field)),
                 find(type->array, nip->ControlIndex(place.group, place.field)));
}

void PanelForm::focusEntries() {
    if (mMark->entry()) return mMark->entry()->setFocus(Qt::TabFocusReason);
    QWidget* const page = mTabs->currentWidget();
    for (QWidget* w = mTabs->nextInFocusChain(); page && w != mTabs; w = w->nextInFocusChain())
        if (page->isAncestorOf(w) && w->focusPolicy() & Qt::TabFocus) return w->setFocus(Qt::TabFocusReason);
    mTabs->setFocus(Qt::TabFocusReason);
}

bool PanelForm::focusIsInEntries() const {
    const QWidget* focus = QApplication::focusWidget();
    return focus && mContent->isAncestorOf(focus);
}

void PanelForm::focusDescription() {
    if (mEncounter->isVisible() && mEncounter->isEnabled())
        mEncounter->setFocus(Qt::OtherFocusReason);
    else
        mCustomize->focusList();
}

void PanelForm::focusClose() {
    if (mClose->isVisible())
        mClose->setFocus(Qt::OtherFocusReason);
    else
        mCustomize->focusList();
}

void PanelForm::say(const QString& state) {
    mState->setText(state);
}

} // namespace Korvane
