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
QString listOf(const std::vector<LostEntry>& lost) {
    if (lost.empty()) return {};
    constexpr int shown = 500;
    QString list =
        "\r\n\r\n" + ucNIPPanel::tr("These entries have no field any more (they are kept in the error log):");
    for (const LostEntry& entry : lost) {
        const std::string name = "[" + entry.groupName + "] " + entry.caption + ": ";
        ErrLog("ucNipPanel: the field is gone into which was entered: " + name + entry.text);
        const QString text = qt(entry.text);
        list += "\r\n" + qt(name) + (text.size() > shown ? text.left(shown) + QChar(0x2026) : text);
    }
    return list;
}

/// In full, for the error log.
std::string textOf(const FieldDraft& draft) {
    return utf8("[" + draft.name + "] " + draft.caption + ", " + draft.displayType + " " + draft.width +
                (draft.choices.isEmpty() ? QString() : ": " + draft.choices.join(u'|')));
}

} // namespace

/// The reason of the operation that just failed, as a text to append.
QString ucNIPPanel::Members::whyFailed() const {
    if (nip->StructureChanged())
        return "\n\n" +
               tr("Another desk has customized this form since it was shown here.  It is shown as it is "
                  "now; what you entered is kept.");
    return nip->LastError() ? "\n\n" + qt(nip->LastError()->Description()) : QString();
}

/// Loads the structure as it is stored and builds the controls anew. What was entered into the Nip stays, and
/// what is written in the customize pane; `lost` tells, as a text to append, what has no field any more.
/// False when it could not be read: it is tried again before it is needed.
bool ucNIPPanel::Members::reloadStructure(QString& lost) {
    form->tabs().collect();
    std::vector<LostEntry> entries;
    structureLoaded = nip->ReloadStructure(entries);
    if (!mEncounter) forgetValues(*nip);
    buildControls();
    lost = listOf(entries) + displaced;
    return structureLoaded;
}

/// Tells with it, in one box, that something failed.
bool ucNIPPanel::Members::renewStructure(const QString& failure, int style) {
    QString lost;
    const bool read = reloadStructure(lost);
    const QString unread =
        read ? QString() : tr("The form could not be read from the database again.") + whyFailed();
    if (!failure.isEmpty() || !lost.isEmpty())
        tell((failure.isEmpty() ? tr("The form is shown as it is now.") : failure) + lost, style);
    if (!read) tell(unread, MsgBoxStyle::Exclamation);
    return read;
}

/// Whether the structure is as it is stored, after one more try if it is not, and what is written in the
/// customize pane still has its place there.
bool ucNIPPanel::Members::freshStructure() {
    displaced.clear();
    return (mEncounter && !structureLoaded ? renewStructure() : ensureStructure()) && displaced.isEmpty();
}

/// Shows the structure in the customize pane, with what is being written there. A model that could not be
/// read again may have what failed to be stored in it, which then would not look like a change.
void ucNIPPanel::Members::followStructure() {
    CustomizePane& pane = form->customizePane();
    if (!structureLoaded && pane.holdsChanges()) {
        markField();
    } else if (!pane.resume(*nip)) {
        if (!pane.holdsChanges()) return showGroup();
        displaceField();
    }
    form->tabs().setCurrentIndex(pane.group() - 1);
    showTools();
}

/// Offers what is written for a field that is gone, or in a group that is, as a new field.
void ucNIPPanel::Members::displaceField() {
    CustomizePane& pane = form->customizePane();
    const FieldDraft written = pane.form().draft();
    displaced = "\r\n\r\n" +
                (pane.holdsNew() ? tr("The group of the new field is no longer there.")
                                 : tr("The field [%1] is no longer there.").arg(pane.form().original().name));
    if (pane.resumeAsNew(*nip, selectedGroup())) {
        displaced += "  " + tr("What you wrote is kept as a new field of the group %1: "
                               "save it to create the field there, or cancel it.")
                                .arg(pane.groupTitle());
        return;
    }
    displaced += "  " + tr("There is no group left for what you wrote; it is kept in the error log.");
    ErrLog("ucNipPanel: there is no group any more for the field " + textOf(written));
}

} // namespace Korvane
