#include <korvane/controls/nippanel/NipTabs.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/GroupPage.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/controls/nippanel/StructurePlan.h>
#include <korvane/runtime/Interaction.h>

#include <QApplication>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>

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
        problems = rebuild(nip);
    });
    if (problems.empty()) return;
    Interaction::current().MsgBox("The following problems occurred when loading the NIP controls:\n\n" +
                                      problems,
                                  MsgBoxStyle::OkOnly, "");
}

std::string NipTabs::rebuild(cNIP& nip) {
    const QString title = tabText(currentIndex());
    const int scrolled = pageInView() ? pageInView()->scrollPosition() : 0;
    for (GroupPage* page : mPages)
        page->clear();
    StructurePlan plan = planStructure(nip);
    {
        const QSignalBlocker quiet(this);
        resizeTo(static_cast<int>(plan.groups.size()));
        for (std::size_t i = 0; i < mPages.size(); ++i) {
            const auto group = static_cast<std::int16_t>(i + 1);
            setTabText(static_cast<int>(i), withoutShortcut(qt(nip.GroupName(group))));
            mPages[i]->plan(nip, group, std::move(plan.groups[i]));
        }
        setCurrentIndex(indexOfTitle(title, currentIndex()));
    }
    makePageInView();
    if (pageInView() && tabText(currentIndex()) == title) pageInView()->scrollTo(scrolled);
    return plan.problems;
}

void NipTabs::resizeTo(int count) {
    while (static_cast<int>(mPages.size()) > count) {
        const GroupPage* last = mPages.back();
        mPages.pop_back();
        delete last;
    }
    while (static_cast<int>(mPages.size()) < count) {
        auto* page = new GroupPage(this);
        page->setObjectName(EntrySite::elementName("atpNips", static_cast<int>(mPages.size())));
        connect(page, &GroupPage::edited, this, &NipTabs::edited);
        mPages.push_back(page);
        addTab(page, QString());
    }
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
