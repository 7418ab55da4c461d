#include <korvane/controls/nippanel/NipTabs.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/GroupPage.h>
#include <korvane/controls/nippanel/StructurePlan.h>
#include <korvane/data/ErrLog.h>
#include <korvane/runtime/Interaction.h>

#include <QSignalBlocker>
#include <QTabBar>

#include <algorithm>

namespace Korvane {

namespace {

/// The text of a tab: an ampersand in a name is an ampersand.
QString tabTitle(const std::string& group) {
    return qt(group).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void logBuildError() {
    const RuntimeError error = currentError();
    ErrLog("Error in ucNipPanel.CreateNipControls: " + std::to_string(error.Number()) + ":" +
           error.Description() + " on line 0");
}

} // namespace

NipTabs::NipTabs(QWidget* parent) : QTabWidget(parent) {
    setObjectName(QStringLiteral("atNips"));
    setElideMode(Qt::ElideNone);
    connect(this, &QTabWidget::currentChanged, this, &NipTabs::makeCurrent);
}

NipTabs::~NipTabs() {
    disconnect(this, &QTabWidget::currentChanged, this, nullptr);
}

void NipTabs::CreateNipControls(cNIP& nip) {
    std::string problems;
    try {
        const PaintLock noFlicker(*this);
        problems = rebuild(nip);
    } catch (...) {
        logBuildError();
    }
    if (problems.empty()) return;
    Interaction::current().MsgBox("The following problems occurred when loading the NIP controls:\n\n" +
                                      problems,
                                  MsgBoxStyle::OkOnly, "");
}

std::string NipTabs::rebuild(cNIP& nip) {
    const QString shown = currentIndex() < 0 ? QString() : tabText(currentIndex());
    const int scrolled =
        currentIndex() < 0 ? 0 : mPages[static_cast<std::size_t>(currentIndex())]->scrollPosition();
    for (GroupPage* page : mPages)
        page->clear();
    StructurePlan plan = planStructure(nip);
    {
        const QSignalBlocker quiet(this);
        resizeTo(static_cast<int>(plan.groups.size()));
        for (std::size_t i = 0; i < mPages.size(); ++i) {
            const auto group = static_cast<std::int16_t>(i + 1);
            setTabText(static_cast<int>(i), tabTitle(nip.GroupName(group)));
            mPages[i]->plan(nip, group, std::move(plan.groups[i]));
        }
        setCurrentIndex(indexOfTitle(shown, currentIndex()));
    }
    makeCurrent(currentIndex());
    if (currentIndex() >= 0 && tabText(currentIndex()) == shown)
        mPages[static_cast<std::size_t>(currentIndex())]->scrollTo(scrolled);
    return plan.problems;
}

void NipTabs::resizeTo(int count) {
    while (static_cast<int>(mPages.size()) > count) {
        delete mPages.back();
        mPages.pop_back();
    }
    while (static_cast<int>(mPages.size()) < count) {
        auto* page = new GroupPage(this);
        page->setObjectName(EntrySite::elementName("atpNips", static_cast<int>(mPages.size())));
        connect(page, &GroupPage::edited, this, &NipTabs::edited);
        mPages.push_back(page);
        addTab(page, QString());
    }
}

int NipTabs::indexOfTitle(const QString& title, int otherwise) const {
    for (int i = 0; i < count(); ++i)
        if (tabText(i) == title) return i;
    return otherwise;
}

void NipTabs::makeCurrent(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= mPages.size()) return;
    GroupPage& page = *mPages[static_cast<std::size_t>(index)];
    try {
        page.make(tabBar());
    } catch (...) {
        logBuildError();
    }
    // Where the focus was on the tab left behind, it came along, to a page that was still empty.
    if (page.hasFocus()) page.focusFirst();
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
