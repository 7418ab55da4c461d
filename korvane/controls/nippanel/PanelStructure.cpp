#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/FieldForm.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/data/ErrLog.h>
#include <korvane/runtime/Interaction.h>

namespace Korvane {

namespace {

/// What was entered into fields that are gone: in full in the error log, since a box holds only so much.
std::string listOf(const std::vector<LostEntry>& lost) {
    if (lost.empty()) return {};
    constexpr std::size_t shown = 500;
    std::string list = "\r\n\r\nThese entries have no field any more (they are kept in the error log):";
    for (const LostEntry& entry : lost) {
        const std::string name = "[" + entry.groupName + "] " + entry.caption + ": ";
        ErrLog("ucNipPanel: the field is gone into which was entered: " + name + entry.text);
        const QString text = qt(entry.text);
        list += "\r\n" + name +
                utf8(static_cast<std::size_t>(text.size()) > shown ? text.left(shown) + QChar(0x2026) : text);
    }
    return list;
}

} // namespace

/// The reason of the operation that just failed, as a text to append.
std::string ucNIPPanel::Members::whyFailed() const {
    if (nip->StructureChanged())
        return "\n\nAnother desk has customized this form since it was shown here.  It is shown as it is "
               "now; what you entered is kept.";
    return nip->LastError() ? "\n\n" + nip->LastError()->Description() : "";
}

/// Loads the structure as it is stored and builds the controls anew. What was entered into the Nip stays, and
/// what is written in the customize pane; `lost` tells what has no field any more. False when it could not be
/// read: it is tried again before it is needed.
bool ucNIPPanel::Members::reloadStructure(std::string& lost) {
    form->tabs().collect();
    std::vector<LostEntry> entries;
    structureLoaded = nip->ReloadStructure(entries);
    if (!mEncounter) forgetValues(*nip);
    buildControls();
    lost = listOf(entries);
    return structureLoaded;
}

bool ucNIPPanel::Members::renewStructure() {
    std::string lost;
    if (!reloadStructure(lost))
        tell("The form could not be read from the database again." + whyFailed(), MsgBoxStyle::Exclamation);
    else if (!lost.empty())
        tell("The form is shown as it is now." + lost, MsgBoxStyle::Exclamation);
    return structureLoaded;
}

/// Whether the structure is as it is stored, after one more try if it is not.
bool ucNIPPanel::Members::freshStructure() {
    return mEncounter && !structureLoaded ? renewStructure() : ensureStructure();
}

/// Shows the structure in the customize pane, with what is being written there.
void ucNIPPanel::Members::followStructure() {
    CustomizePane& pane = form->customizePane();
    const QString held = pane.holdsChanges() ? pane.form().draft().name : QString();
    if (!pane.resume(*nip)) {
        showGroup();
        if (!held.isEmpty())
            tell("The field [" + utf8(held) + "] is no longer there.", MsgBoxStyle::Exclamation);
        return;
    }
    form->tabs().setCurrentIndex(pane.group() - 1);
    showTools();
}

} // namespace Korvane
