#include "ShownForms.h"

#include "BareForm.h"

#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <stdexcept>

namespace Korvane::Bench {

namespace {

void require(bool done) {
    if (!done) throw std::runtime_error("the Nip was not loaded");
}

std::unique_ptr<QWidget> nipTabs(cNIP& nip) {
    auto tabs = std::make_unique<NipTabs>();
    tabs->CreateNipControls(nip);
    tabs->fill();
    return tabs;
}

std::unique_ptr<QWidget> nipPanel(const std::shared_ptr<ado::Connection>& connection) {
    auto panel = std::make_unique<ucNIPPanel>();
    panel->Initialize(connection);
    require(panel->LoadNipInfo(1, QStringLiteral("P-0001")));
    return panel;
}

} // namespace

FormMaker::FormMaker(Maker maker, const Size& size, const std::string& address)
    : mMaker(maker), mSize(size), mConnection(ado::open(address)) {
    if (mMaker == Maker::Tabs) require(mNip.LoadStructure(mConnection) && mNip.Load(1, "P-0001", false));
}

std::unique_ptr<QWidget> FormMaker::make() {
    if (mMaker == Maker::Tabs) return nipTabs(mNip);
    if (mMaker == Maker::Panel) return nipPanel(mConnection);
    return bareForm(mSize);
}

std::unique_ptr<QWidget> FormMaker::show() {
    auto form = make();
    form->resize(1000, 750);
    form->show();
    form->repaint();
    return form;
}

} // namespace Korvane::Bench
