#include <korvane/controls/nippanel/GroupPage.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <utility>

namespace Korvane {

namespace {

/// Scrolls up and down only; whoever places its content hears of every change of the room there is, also of
/// a scroll bar that comes or goes.
class ScrollNip : public QScrollArea {
  public:
    ScrollNip(QWidget* parent, std::function<void()> resized)
        : QScrollArea(parent), mResized(std::move(resized)) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        mResized();
    }

  private:
    std::function<void()> mResized;
};

// A caption is shown as it stands: no markup, and an ampersand is an ampersand.
QLabel* makeLabel(const QString& caption, int element, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(EntrySite::elementName("lblNip", element));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(withoutShortcut(caption));
    label->setBuddy(buddy);
    return label;
}

} // namespace

GroupPage::GroupPage(QWidget* parent) : QWidget(parent) {}

GroupPage::~GroupPage() {
    clear();
}

void GroupPage::plan(cNIP& nip, std::int16_t group, std::vector<PlannedField> fields) {
    clear();
    mNip = &nip;
    mGroup = group;
    mPlan = std::move(fields);
}

// The widgets go first: they call back into their cells.
void GroupPage::clear() {
    delete std::exchange(mContent, nullptr);
    mCells.clear();
    mPlan.clear();
    mNip = nullptr;
}

void GroupPage::make(QWidget* before) {
    if (isMade() || !mNip) return;
    if (!mScroll) makeScrollArea();
    auto* content = new QWidget(mScroll->viewport());
    makeCells(content);
    mContent = content;
    mScroll->setWidget(mContent);
    mContent->setAutoFillBackground(false);
    measure();
    mContent->show();
    chain(before);
}

void GroupPage::makeScrollArea() {
    mScroll = new ScrollNip(this, [this] { arrange(); });
    mScroll->setObjectName(EntrySite::elementName("scrollNip", mGroup - 1));
    mScroll->viewport()->setAutoFillBackground(false);
    mScroll->setGeometry(rect());
    mScroll->show();
}

void GroupPage::makeCells(QWidget* parent) {
    mCells.reserve(mPlan.size());
    for (const PlannedField& planned : mPlan)
        mCells.push_back(makeCell(planned, parent));
}

PageCell GroupPage::makeCell(const PlannedField& planned, QWidget* parent) {
    PageCell cell;
    cell.row = mNip->RowIndex(mGroup, planned.field);
    cell.column = mNip->ColIndex(mGroup, planned.field);
    cell.caption = qt(mNip->Caption(mGroup, planned.field));
    cell.entry = planned.type->make({*mNip, mGroup, planned.field, planned.type->array, planned.control,
                                     planned.button, parent, [this] { emit edited(); }});
    cell.label = makeLabel(cell.caption, planned.label, cell.entry->widget(), parent);
    cell.entry->fill();
    return cell;
}

void GroupPage::chain(QWidget* before) {
    for (const PageCell& cell : mCells)
        for (QWidget* next : cell.entry->tabOrder()) {
            QWidget::setTabOrder(before, next);
            before = next;
        }
}

void GroupPage::fill() {
    for (const PageCell& cell : mCells)
        cell.entry->fill();
    scrollTo(0);
}

void GroupPage::collect() {
    for (const PageCell& cell : mCells)
        cell.entry->collect();
}

int GroupPage::scrollPosition() const {
    return isMade() ? mScroll->verticalScrollBar()->value() : 0;
}

void GroupPage::scrollTo(int position) {
    if (isMade()) mScroll->verticalScrollBar()->setValue(position);
}

void GroupPage::reveal(QWidget& widget) {
    if (!isMade() || !mContent->isAncestorOf(&widget)) return;
    constexpr int around = 450;
    const int margin = Twips(*mContent).px(around);
    mScroll->ensureWidgetVisible(&widget, 0, margin);
}

void GroupPage::focusFirst() {
    if (!mCells.empty()) mCells.front().entry->widget()->setFocus();
}

void GroupPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (mScroll) mScroll->setGeometry(rect());
}

void GroupPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        if (isMade()) measure();
        break;
    default:
        break;
    }
}

void GroupPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    arrange();
}

void GroupPage::measure() {
    measureCaptions(mCells, *mContent);
    mArrangedFor = QSize();
    if (isVisible()) arrange();
}

void GroupPage::arrange() {
    if (!isMade()) return;
    const QSize room = mScroll->viewport()->size();
    if (room == mArrangedFor) return;
    mArrangedFor = room;
    mContent->resize(room.width(), placeCells(mCells, *mContent, room));
}

} // namespace Korvane
