#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/Interaction.h>

namespace Korvane {

namespace {

void forgetValues(cNIP& nip) {
    const Variant nothing("");
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group) {
        for (std::int16_t field = 1; field <= nip.FieldCount(group); ++field) {
            nip.value(group, field, nothing);
            nip.ChoiceList(group, field, Variant());
            nip.ChoiceListCount(group, field, 0);
        }
    }
    nip.EncounterID(-1);
}

} // namespace

ucNIPPanel::Members::Members(ucNIPPanel& owner) : panel(owner), form(new PanelForm(&owner)) {
    form->setEntryEnabled(false);
    describe();
}

/// The controls look at the model until they are gone.
ucNIPPanel::Members::~Members() {
    delete form;
}

void ucNIPPanel::Members::initialize(const std::shared_ptr<ado::Connection>& host) {
    const PaintLock lock(panel);
    initializing = true;
    auto previous = std::exchange(nip, std::make_unique<cNIP>());
    connection = host;
    structureLoaded = nip->LoadStructure(connection);
    buildControls();
    clear();
    patientID.clear();
    initializing = false;
}

void ucNIPPanel::Members::buildControls() {
    form->tabs().CreateNipControls(*nip);
    if (mode == customizing) form->customizePane().showStructure(nip.get());
}

/// A structure that could not be read at first is tried again whenever it is needed.
bool ucNIPPanel::Members::ensureStructure() {
    if (structureLoaded) return true;
    structureLoaded = nip->LoadStructure(connection);
    if (structureLoaded) buildControls();
    return structureLoaded;
}

bool ucNIPPanel::Members::mayLose(std::string_view question) const {
    return !changed || Interaction::current().MsgBox(question, MsgBoxStyle::YesNo | MsgBoxStyle::Question,
                                                     "") == Answer::Yes;
}

bool ucNIPPanel::Members::createNip(const QString& patient) {
    if (!mayLose(creating
                     ? "Are you sure you want to create a new nip and discard the one you were creating?"
                     : "Are you sure you want to create a new nip and discard the changes you are making?"))
        return false;
    Shown shown = Shown::NotInitialized;
    {
        const Hourglass hourglass;
        const PaintLock lock(panel);
        shown = routine("Error in ucNipPanel.CreateNip: ", Shown::NotReadable,
                        [&] { return createInternal(patient); });
    }
    return settle(shown);
}

ucNIPPanel::Members::Shown ucNIPPanel::Members::createInternal(const QString& patient) {
    if (!nip) return Shown::NotInitialized;
    if (!ensureStructure()) return Shown::NotReadable;
    newEncounter(patient);
    creating = true;
    if (!loadControls(true)) return Shown::NotReadable;
    setChanged(false);
    return Shown::Yes;
}

bool ucNIPPanel::Members::loadNip(qint32 encounterID, const QString& patient) {
    if (!mayLose(creating ? "Are you sure you want to load a nip and discard the one you were creating?"
                          : "Are you sure you want to load a nip and discard the changes you are making?"))
        return false;
    const Shown shown = routine("Error in ucNipPanel.LoadNipInfo: ", Shown::NotReadable, [&] {
        const Hourglass hourglass;
        const PaintLock lock(panel);
        return routine("Error in ucNipPanel.LoadNipInfo_Internal: ", Shown::NotReadable,
                       [&] { return loadInternal(encounterID, patient); });
    });
    return settle(shown);
}

/// An encounter of another patient is neither shown nor made this patient's.
ucNIPPanel::Members::Shown ucNIPPanel::Members::loadInternal(qint32 encounterID, const QString& patient) {
    if (!nip) return Shown::NotInitialized;
    if (!ensureStructure()) return Shown::NotReadable;
    newEncounter(QString());
    mEncounter->EncounterID(encounterID);
    const std::string& storedFor = mEncounter->PatientID();
    if (storedFor.empty()) return Shown::NotFound;
    if (storedFor != utf8(patient)) return Shown::OfAnotherPatient;
    patientID = patient;
    creating = false;
    if (!loadControls(false)) return Shown::NotReadable;
    setChanged(false);
    return Shown::Yes;
}

void ucNIPPanel::Members::newEncounter(const QString& patient) {
    mEncounter = std::make_unique<Encounter>();
    mEncounter->Connection(connection);
    savedNewEncounter =
        mEncounter->SavedNewEncounter.connect([this] { panel.mEncounter_SavedNewEncounter(); });
    patientID = patient;
    mEncounter->PatientID(utf8(patient));
}

/// The prefix is the control's own, with its capitals and without a colon.
bool ucNIPPanel::Members::loadControls(bool isNew) {
    return routine("Error in ucNIPPanel.LoadControls ", false, [&] {
        if (!nip->Load(mEncounter->EncounterID(), utf8(patientID), isNew)) return false;
        form->tabs().fill();
        form->encounterPane().fill(*mEncounter, connection);
        return true;
    });
}

/// Nothing of the Nip before stays in view when the one asked for cannot be shown.
bool ucNIPPanel::Members::settle(Shown shown) {
    if (shown == Shown::NotInitialized) return false;
    if (shown == Shown::Yes) {
        form->setEntryEnabled(true);
        describe();
        return true;
    }
    clear();
    patientID.clear();
    const char* const why = shown == Shown::NotFound
                                ? "This Nip could not be found. It may have been deleted."
                            : shown == Shown::OfAnotherPatient
                                ? "This Nip belongs to another patient and cannot be shown here."
                                : "This Nip could not be read from the database. Please try again.";
    Interaction::current().MsgBox(why, MsgBoxStyle::Exclamation, "");
    return false;
}

/// Entries that were thrown away must not look as if they were kept.
void ucNIPPanel::Members::clear() {
    savedNewEncounter.disconnect();
    mEncounter.reset();
    creating = false;
    routine("Error in ucNIPPanel.LoadControls ", [&] {
        if (nip) {
            forgetValues(*nip);
            form->tabs().fill();
        }
        form->encounterPane().clear();
    });
    form->setEntryEnabled(false);
    setChanged(false);
}

bool ucNIPPanel::Members::close() {
    if (!mayLose(creating ? "Are you sure you want to cancel the creation of this Nip?"
                          : "Are you sure you want to cancel the changes made to this Nip?"))
        return false;
    if (mode == customizing && !cancelCustomize()) return false;
    {
        const PaintLock lock(panel);
        clear();
    }
    emit panel.CloseNipPanel();
    return true;
}

void ucNIPPanel::Members::edited() {
    if (!initializing && mEncounter) setChanged(true);
}

void ucNIPPanel::Members::setChanged(bool on) {
    const bool differs = changed != on;
    changed = on;
    describe();
    if (differs) emit panel.modifiedChanged(on);
}

void ucNIPPanel::Members::describe() {
    if (!mEncounter) return form->say("No Nip is open");
    const QString what = creating ? "New Nip" : "Saved Nip";
    form->say(changed ? what + " with changes that are not saved" : what);
}

} // namespace Korvane
