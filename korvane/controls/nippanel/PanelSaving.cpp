#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/ado/Transaction.h>
#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/HeldMessages.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/Variant.h>

#include <QPointer>

namespace Korvane {

namespace {

/// Overflow above 32767.
qint16 eventID(const Encounter& encounter) {
    return Variant(encounter.EncounterID()).toInt16();
}

} // namespace

/// The host hears of it only once everything is stored, so that nothing its slots do can take it back.
void ucNIPPanel::Members::saveAndClose() {
    if (!mEncounter) {
        Interaction::current().MsgBox("Unable to save this encounter", MsgBoxStyle::OkOnly, "");
        return;
    }
    const bool renamed = !creating && form->encounterPane().renames(*mEncounter);
    if (!storeAll()) return;
    const QPointer<ucNIPPanel> alive(&panel);
    if (renamed) raiseRenamed();
    if (alive) raiseCreated();
    if (alive) close();
}

bool ucNIPPanel::Members::storeAll() {
    const Encounter before = *mEncounter;
    form->encounterPane().copyInto(*mEncounter);
    if (mEncounter->ProviderID() < 0) {
        *mEncounter = before;
        Interaction::current().MsgBox(
            "Please choose the provider of this encounter. It cannot be saved without one.",
            MsgBoxStyle::Information, "");
        form->encounterPane().focusProvider();
        return false;
    }
    if (storeEncounter()) {
        form->encounterPane().settle(*mEncounter);
        setChanged(false);
        return true;
    }
    // As it was before, a new one without its identifier: the next try inserts again.
    *mEncounter = before;
    nip->EncounterID(before.EncounterID());
    tellNotSaved();
    return false;
}

bool ucNIPPanel::Members::storeEncounter() {
    return routine("Error in ucNipPanel.SaveEncounterInfo: ", false, [&] {
        const HeldMessages messages;
        const Hourglass hourglass;
        ado::Transaction work(*connection);
        if (!mEncounter->Save() || !mEncounter->Stored() || !storeValues()) return false;
        work.commit();
        return true;
    });
}

bool ucNIPPanel::Members::storeValues() {
    form->tabs().collect();
    return nip->Save();
}

/// The encounter pane is not saved here: what was edited there stays unsaved.
void ucNIPPanel::Members::saveNipInfo() {
    if (!mEncounter) return;
    const bool stored = routine("Error in ucNipPanel.SaveNipInfo: ", false, [&] {
        const Hourglass hourglass;
        return storeValues();
    });
    if (!stored) return tellNotSaved();
    setChanged(form->encounterPane().isEdited());
    raiseCreated();
}

void ucNIPPanel::Members::tellNotSaved() const {
    Interaction::current().MsgBox(
        "This Nip could not be saved. Everything you entered is still here; please try again.",
        MsgBoxStyle::Exclamation, "");
}

/// No longer being created whatever becomes of the event: the row is there, and a slot may start the next
/// Nip.
void ucNIPPanel::Members::raiseCreated() {
    if (!creating) return;
    creating = false;
    describe();
    routine("Error in ucNipPanel.SaveNipInfo: ", [&] { emit panel.CreatedNip(eventID(*mEncounter)); });
}

void ucNIPPanel::Members::raiseRenamed() {
    routine("Error in ucNipPanel.SaveEncounterInfo: ", [&] {
        emit panel.RenamedNip(eventID(*mEncounter), qt(mEncounter->Description()),
                              qt(mEncounter->EncounterDate()));
    });
}

} // namespace Korvane
