#include <korvane/controls/nippanel/GroupPage.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <map>
#include <tuple>
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
QLabel* makeLabel(QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setBuddy(buddy);
    return label;
}

/// Empty for a group without fields, which has nothing that could be kept.
std::string tableOf(const cNIP& nip, std::int16_t group) {
    return nip.FieldCount(group) > 0 ? nip.TableName(group, 1) : std::string();
}

std::vector<QWidget*> widgetsOf(const PageCell& cell) {
    std::vector<QWidget*> widgets{cell.label};
    for (QWidget* widget : cell.entry->tabOrder())
        widgets.push_back(widget);
    return widgets;
}

// Hidden first, so that the focus goes on to the next one instead of to nobody.
void removeCell(const PageCell& cell) {
    for (QWidget* widget : widgetsOf(cell)) {
        widget->hide();
        delete widget;
    }
}

} // namespace

GroupPage::GroupPage(QWidget* parent) : QWidget(parent) {}

GroupPage::~GroupPage() {
    clear();
}

void GroupPage::plan(cNIP& nip, std::int16_t group, std::vector<PlannedField> fields) {
    const bool keeps = isMade() && mNip == &nip;
    if (!keeps) clear();
    mNip = &nip;
    mGroup = group;
    mTable = tableOf(nip, group);
    mGroupName = nip.GroupName(group);
    mPlan = std::move(fields);
    nameParts();
    if (keeps) remake();
}

// By the group's name, too: it decides how high lists are.
bool GroupPage::standsFor(const cNIP& nip, std::int16_t group) const {
    return mNip == &nip && mTable == tableOf(nip, group) && mGroupName == nip.GroupName(group);
}

void GroupPage::nameParts() {
    setObjectName(EntrySite::elementName("atpNips", mGroup - 1));
    if (mScroll) mScroll->setObjectName(EntrySite::elementName("scrollNip", mGroup - 1));
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
    mBefore = before;
    chain();
}

void GroupPage::makeScrollArea() {
    mScroll = new ScrollNip(this, [this] { arrange(); });
    nameParts();
    mScroll->viewport()->setAutoFillBackground(false);
    mScroll->setGeometry(rect());
    mScroll->show();
}

void GroupPage::makeCells(QWidget* parent) {
    mCells.reserve(mPlan.size());
    for (const PlannedField& planned : mPlan)
        makeCell(mCells.emplace_back(), planned, parent);
}

void GroupPage::makeCell(PageCell& cell, const PlannedField& planned, QWidget* parent) {
    cell.type = planned.type;
    cell.entry =
        planned.type->make({placeOf(planned), *mNip, planned.type->array, parent, [this] { emit edited(); }});
    cell.label = makeLabel(cell.entry->widget(), parent);
    assign(cell, planned);
    cell.entry->fill();
}

EntryPlace GroupPage::placeOf(const PlannedField& planned) const {
    return {mGroup, planned.field, planned.control, planned.button};
}

/// Gives it all that it has of its field but the value.
void GroupPage::assign(PageCell& cell, const PlannedField& planned) const {
    cell.fieldName = mNip->fieldName(mGroup, planned.field);
    cell.row = mNip->RowIndex(mGroup, planned.field);
    cell.column = mNip->ColIndex(mGroup, planned.field);
    cell.caption = qt(mNip->Caption(mGroup, planned.field));
    cell.entry->moveTo(placeOf(planned));
    cell.label->setObjectName(EntrySite::elementName("lblNip", planned.label));
    cell.label->setText(withoutShortcut(cell.caption));
}

// Widgets call back into their cells, which therefore outlive them, also when this fails halfway.
void GroupPage::remake() {
    std::vector<PageCell> before = std::exchange(mCells, {});
    try {
        if (!takeOver(before)) return;
        chain();
        place();
    } catch (...) {
        delete std::exchange(mContent, nullptr);
        throw;
    }
}

/// Makes the cells of the plan, as far as they are there from those before, of which the rest goes. Whether
/// any is another one or stands elsewhere.
bool GroupPage::takeOver(std::vector<PageCell>& before) {
    std::map<std::string, PageCell*, std::less<>> left;
    for (PageCell& cell : before)
        left.emplace(cell.fieldName, &cell);
    bool changed = mPlan.size() != before.size();
    mCells.reserve(mPlan.size());
    for (const PlannedField& planned : mPlan) {
        const auto same = left.find(mNip->fieldName(mGroup, planned.field));
        PageCell& cell = mCells.emplace_back();
        if (same == left.end() || same->second->type != planned.type) {
            addCell(cell, planned);
            changed = true;
            continue;
        }
        const auto place = static_cast<std::size_t>(same->second - before.data());
        cell = std::move(*same->second);
        left.erase(same);
        const bool moved = bringUpToDate(cell, planned);
        changed = changed || moved || place + 1 != mCells.size();
    }
    for (const PageCell& cell : before)
        if (cell.entry) removeCell(cell);
    return changed;
}

/// To a page that is in use.
void GroupPage::addCell(PageCell& cell, const PlannedField& planned) {
    makeCell(cell, planned, mContent);
    measureCaption(cell, mContent->fontMetrics());
    for (QWidget* widget : widgetsOf(cell))
        widget->show();
}

/// Whether it takes another place or another room than before.
bool GroupPage::bringUpToDate(PageCell& cell, const PlannedField& planned) {
    const auto [row, column, caption] = std::tuple(cell.row, cell.column, cell.caption);
    assign(cell, planned);
    cell.entry->refresh();
    if (caption != cell.caption) measureCaption(cell, mContent->fontMetrics());
    return row != cell.row || column != cell.column || caption != cell.caption;
}

void GroupPage::chain() {
    QWidget* before = mBefore;
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
    const QFontMetrics font(mContent->fontMetrics());
    for (PageCell& cell : mCells)
        measureCaption(cell, font);
    place();
}

void GroupPage::place() {
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
