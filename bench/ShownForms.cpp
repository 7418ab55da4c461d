#include "ShownForms.h"

#include "BareForm.h"

#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QApplication>

namespace Korvane::Bench {

namespace {

std::unique_ptr<QWidget> nipPanel(const std::shared_ptr<ado::Connection>& connection) {
    auto panel = std::make_unique<ucNIPPanel>();
    panel->Initialize(connection);
    if (!panel->LoadNipInfo(1, QStringLiteral("P-0001"))) qFatal("the Nip was not loaded");
    return panel;
}

} // namespace

std::unique_ptr<QWidget> showForm(const std::string& by, const Size& size,
                                  const std::shared_ptr<ado::Connection>& connection) {
    std::unique_ptr<QWidget> form;
    if (by == "korvane")
        form = nipPanel(connection);
    else
        form = bareForm(size);
    form->resize(1000, 750);
    form->show();
    form->repaint();
    return form;
}

} // namespace Korvane::Bench
