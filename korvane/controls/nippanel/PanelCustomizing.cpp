#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>

namespace Korvane {

void ucNIPPanel::Members::customize() {
    routine("Error in ucNipPanel.CustomizeNip: ", [&] {
        form->customizePane().showStructure(nip.get());
        form->showCustomizing(true);
        mode = customizing;
    });
}

/// True when the mode may be left. A panel that serves only to customize has nothing else to show.
bool ucNIPPanel::Members::cancelCustomize() {
    return routine("Error in ucNipPanel.CancelCustomizeNip: ", false, [&] {
        if (customizeOnly) return true;
        mode = 0;
        form->showCustomizing(false);
        return true;
    });
}

void ucNIPPanel::Members::arrange() {
    form->arrange(customizeOnly, allowClosePanel);
    describe();
    if (customizeOnly) customize();
}

void ucNIPPanel::Members::click(int button) {
    if (panel.designMode()) return;
    switch (button) {
    case ButtonRow::Save:
        return saveAndClose();
    case ButtonRow::Customize:
        return panel.CustomizeNip();
    default:
        close();
    }
}

} // namespace Korvane
