#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/ado/Transaction.h>
#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

namespace Korvane {

namespace {

/// Overflow above 32767.
qint16 eventID(const Encounter& encounter) {
    return Variant(encounter.EncounterID()).toInt16();
}

} // namespace

/// The host hears of it only once everything is stored, so that nothing its slots do can take it back. Once a
/// slot has closed the Nip, opened another or deleted the panel, nothing more is told of this one.
void ucNIPPanel::Members::saveAndClose() {
    const std::weak_ptr<Encounter> open = mEncounter;
    bool renamed = false;
    alone(
        [&] {
            if (!mEncounter) {
                tell(tr("Unable to save this encounter"), MsgBoxStyle::OkOnly);
                return false;
            }
            if (!isComplete()) return false;
            renamed = !creating && form->encounterPane().renames(*mEncounter);
            return storeAll();
        },
        [&] {
            if (renamed) raiseRenamed();
            if (!open.expired()) raiseCreated();
            if (!open.expired()) close();
        });
}

void ucNIPPanel::Members::saveNipInfo() {
    if (!mEncounter) return;
    alone([&] { return creating ? isComplete() && storeAll() : storeValues(); }, [&] { raiseCreated(); });
}

/// Whether there is everything that an encounter needs.
bool ucNIPPanel::Members::isComplete() {
    EncounterPane& pane = form->encounterPane();
    if (!pane.takeDate())
        return leadTo(
            &EncounterPane::focusDate,
            tr("The date of this encounter is not a valid date. Please enter it as month/day/year."));
    if (pane.hasProvider() || mEncounter->ProviderID() >= 0) return true;
    return leadTo(&EncounterPane::focusProvider,
                  pane.offersProviders()
                      ? tr("Please choose the provider of this encounter. It cannot be saved without one.")
                      : tr("This clinic has no providers yet. An encounter cannot be saved without one."));
}

/// Tells the user what is missing, with the focus there. False.
bool ucNIPPanel::Members::leadTo(void (EncounterPane::*focus)(), const QString& message) {
    (form->encounterPane().*focus)();
    tell(message, MsgBoxStyle::Information);
    return false;
}

bool ucNIPPanel::Members::storeAll() {
    if (!freshStructure()) return false;
    mEncounter->Settle();
    const Encounter before = *mEncounter;
    form->encounterPane().copyInto(*mEncounter);
    const Outcome outcome =
        store("Error in ucNipPanel.SaveEncounterInfo: ", [&] { return storeEncounter(); });
    if (outcome == Outcome::Stored) {
        form->encounterPane().settle(*mEncounter);
        setChanged(false);
        return true;
    }
    // As it was before, a new one without its identifier: the next try inserts again.
    const Encounter attempt = *mEncounter;
    *mEncounter = before;
    if (outcome == Outcome::Unknown) mEncounter->MayBeStored(attempt);
    nip->EncounterID(before.EncounterID());
    if (outcome == Outcome::Customized) takeOnStructure();
    return false;
}

/// The encounter pane is not saved here: what was edited there stays unsaved.
bool ucNIPPanel::Members::storeValues() {
    if (!freshStructure()) return false;
    const Outcome outcome = store("Error in ucNipPanel.SaveNipInfo: ", [&] { return claim(); });
    if (outcome == Outcome::Customized) takeOnStructure();
    if (outcome != Outcome::Stored) return false;
    setChanged(form->encounterPane().isEdited());
    return true;
}

QString ucNIPPanel::Members::reportOf(Outcome outcome) {
    switch (outcome) {
    case Outcome::NumberTaken:
        return tr("This Nip could not be saved, because another desk took its number at the same moment. "
                  "Everything you entered is still here; please try again.");
    case Outcome::Gone:
        return tr("This Nip could not be saved, because its encounter is no longer there. It may have been "
                  "deleted at another desk. Everything you entered is still here.");
    case Outcome::Unknown:
        return tr(
            "The connection was lost at the last moment, so it is not known whether this Nip was saved. "
            "Everything you entered is still here; please save it again. It is not stored twice.");
    default:
        return tr("This Nip could not be saved. Everything you entered is still here; please try again.");
    }
}

/// The encounter and the values in one transaction. Tells the user of any outcome but `Stored` and
/// `Customized`.
ucNIPPanel::Members::Outcome ucNIPPanel::Members::store(std::string_view routineName,
                                                        const std::function<Outcome()>& encounter) {
    Outcome outcome = Outcome::NotStored;
    bool committing = false;
    QString untold; // no query has reported it
    const auto work = [&] {
        const Hourglass hourglass;
        ado::Transaction transaction(*connection);
        outcome = encounter();
        if (outcome != Outcome::Stored) return false;
        outcome = Outcome::NotStored;
        form->tabs().collect();
        if (!nip->Save()) return false;
        committing = true;
        transaction.commit();
        return true;
    };
    const bool stored = routine(routineName, false, [&] {
        try {
            return work();
        } catch (...) {
            untold = "\r\n\r\n" + qt(currentError().Description());
            throw;
        }
    });
    if (stored) return Outcome::Stored;
    if (nip->StructureChanged()) return Outcome::Customized;
    // Without an answer to the commit it may have taken place or not.
    if (committing && connection->State() != 1) outcome = Outcome::Unknown;
    tell(reportOf(outcome) + untold, MsgBoxStyle::Exclamation);
    return outcome;
}

/// Inserts the encounter or updates it. Its identifier may lead to another desk's row: when that one was
/// inserted at the same moment, or when this one was deleted and its number given away again.
ucNIPPanel::Members::Outcome ucNIPPanel::Members::storeEncounter() {
    nip->EncounterID(mEncounter->EncounterID());
    if (mEncounter->Save() && mEncounter->Stored()) return Outcome::Stored;
    if (mEncounter->Gone()) return Outcome::Gone;
    return mEncounter->KeyTaken() ? Outcome::NumberTaken : Outcome::NotStored;
}

/// Values without their encounter would never be seen again; those of another patient's would be seen there.
ucNIPPanel::Members::Outcome ucNIPPanel::Members::claim() const {
    const std::optional<bool> own = mEncounter->Claim();
    if (!own) return Outcome::NotStored;
    return *own ? Outcome::Stored : Outcome::Gone;
}

/// Shows the form as another desk has customized it, with what was entered.
void ucNIPPanel::Members::takeOnStructure() {
    const Hourglass hourglass;
    const PaintLock lock(panel);
    QString lost;
    if (!reloadStructure(lost))
        return tell(
            tr("This Nip could not be saved, because another desk has customized the form, and the new form "
               "could not be read. Everything you entered is still here; please try again."),
            MsgBoxStyle::Exclamation);
    tell(tr("This Nip is not saved yet, because another desk has customized the form. It is shown as it is "
            "now, with everything you entered; please look through it and save it again.") +
             lost,
         MsgBoxStyle::Exclamation);
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
