#include <korvane/controls/nippanel/NipTabs.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/controls/nippanel/GroupPage.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/controls/nippanel/StructurePlan.h>
#include <korvane/runtime/Interaction.h>

#include <QApplication>
#include <QPointer>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace Korvane {

namespace {

constexpr auto routineName = "Error in ucNipPanel.CreateNipControls: ";

} // namespace

NipTabs::NipTabs(QWidget* parent) : QTabWidget(parent) {
    setObjectName(QStringLiteral("atNips"));
    setElideMode(Qt::ElideNone);
    for (auto* scrollButton : tabBar()->findChildren<QToolButton*>())
        scrollButton->setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabWidget::currentChanged, this, &NipTabs::makePageInView);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { reveal(now); });
}

NipTabs::~NipTabs() {
    disconnect(this, &QTabWidget::currentChanged, this, nullptr);
    disconnect(qApp, nullptr, this, nullptr);
}

void NipTabs::CreateNipControls(cNIP& nip) {
    std::string problems;
    routine(routineName, [&] {
        const PaintLock noFlicker(*this);
        try {
            problems = rebuild(nip);
        } catch (...) {
            forget();
            throw;
        }
    });
    if (problems.empty()) return;
    const QString text = tr("The following problems occurred when loading the NIP controls:\n\n%1");
    Interaction::current().MsgBox(utf8(text.arg(qt(problems))), MsgBoxStyle::OkOnly, "");
}

/// What looks at the model goes by a structure that it may have no more.
void NipTabs::forget() {
    for (GroupPage* page : mPages)
        page->clear();
}

std::string NipTabs::rebuild(cNIP& nip) {
    const QString title = tabText(currentIndex());
    const int preferred = currentIndex();
    const QPointer<GroupPage> inView = pageInView();
    const int scrolled = inView ? inView->scrollPosition() : 0;
    StructurePlan plan = planStructure(nip);
    {
        const QSignalBlocker quiet(this);
        arrangePages(nip);
        for (std::size_t i = 0; i < mPages.size(); ++i) {
            const auto group = static_cast<std::int16_t>(i + 1);
            const QString name = withoutShortcut(qt(nip.GroupName(group)));
            if (tabText(static_cast<int>(i)) != name) setTabText(static_cast<int>(i), name);
            mPages[i]->plan(nip, group, std::move(plan.groups[i]));
        }
        setCurrentIndex(inView ? indexOf(inView) : indexOfTitle(title, preferred));
    }
    makePageInView();
    if (!inView && pageInView() && tabText(currentIndex()) == title) pageInView()->scrollTo(scrolled);
    return plan.problems;
}

/// Gives every group the page that it had, or else a new one, in the order of the structure.
void NipTabs::arrangePages(const cNIP& nip) {
    std::vector<GroupPage*> left = std::exchange(mPages, {});
    for (const std::int16_t group : CountedFrom1(nip.GroupCount())) {
        const auto own = std::ranges::find_if(left, [&](auto* page) { return page->standsFor(nip, group); });
        mPages.push_back(own == left.end() ? makePage() : *own);
        if (own != left.end()) left.erase(own);
    }
    for (const GroupPage* page : left)
        delete page;
    for (std::size_t i = 0; i < mPages.size(); ++i)
        bringTo(mPages[i], static_cast<int>(i));
}

GroupPage* NipTabs::makePage() {
    auto* page = new GroupPage(this);
    connect(page, &GroupPage::edited, this, &NipTabs::edited);
    return page;
}

// The page in view stays where it is, and the others go round it: one that is moved is hidden on the way, and
// loses the focus.
void NipTabs::bringTo(GroupPage* page, int place) {
    if (indexOf(page) < 0) insertTab(place, page, QString());
    if (page != currentWidget() && indexOf(page) != place) tabBar()->moveTab(indexOf(page), place);
    while (indexOf(page) != place)
        tabBar()->moveTab(place, indexOf(page));
}

/// Of several groups with that name, the one at `preferred`, which is also the answer when there is none.
int NipTabs::indexOfTitle(const QString& title, int preferred) const {
    if (tabText(preferred) == title) return preferred;
    for (int i = 0; i < count(); ++i)
        if (tabText(i) == title) return i;
    return preferred;
}

GroupPage* NipTabs::pageInView() const {
    return qobject_cast<GroupPage*>(currentWidget());
}

void NipTabs::makePageInView() {
    GroupPage* page = pageInView();
    if (!page) return;
    routine(routineName, [&] { page->make(tabBar()); });
    // Where the focus was on the tab left behind, it came along, to a page that was still empty.
    if (page->hasFocus()) page->focusFirst();
}

// A control under the mouse must not move away between press and release.
void NipTabs::reveal(QWidget* focus) {
    if (!focus || !pageInView() || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    pageInView()->reveal(*focus);
}

void NipTabs::fill() {
    for (GroupPage* page : mPages)
        page->fill();
}

void NipTabs::collect() {
    for (GroupPage* page : mPages)
        page->collect();
}

} // namespace Korvane
