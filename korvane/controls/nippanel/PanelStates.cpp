#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/Interaction.h>

#include <QPointer>

namespace Korvane {

ucNIPPanel::Members::Members(ucNIPPanel& owner) : panel(owner), form(new PanelForm(&owner)) {
    form->setEntryEnabled(false);
    listenToCustomizing();
    describe();
}

/// The controls look at the model until they are gone.
ucNIPPanel::Members::~Members() {
    delete form;
}

void ucNIPPanel::Members::initialize(const std::shared_ptr<ado::Connection>& host) {
    alone([&] {
        const Hourglass hourglass;
        const PaintLock lock(panel);
        clear();
        nothingLeft = false;
        patientID.clear();
        form->customizePane().showGroup(nullptr, 0);
        const auto previous = std::exchange(nip, std::make_unique<cNIP>()); // the controls still look at it
        nip->numbersGroups(numbersGroups);
        connection = host;
        structureLoaded = nip->LoadStructure(connection);
        buildControls();
        describe();
        return true;
    });
}

void ucNIPPanel::Members::buildControls() {
    displaced.clear();
    form->tabs().CreateNipControls(*nip);
    if (mode == customizing) followStructure();
}

/// A structure that could not be read at first is tried again whenever it is needed.
bool ucNIPPanel::Members::ensureStructure() {
    if (structureLoaded) return true;
    structureLoaded = nip->LoadStructure(connection);
    if (!structureLoaded) return false;
    buildControls();
    if (!displaced.isEmpty())
        tell(tr("The form is shown as it is now.") + displaced, MsgBoxStyle::Exclamation);
    return true;
}

bool ucNIPPanel::Members::mayLose(const QString& question) const {
    if (!changed) return true;
    const QPointer<ucNIPPanel> alive(&panel);
    return Interaction::current().MsgBox(utf8(question), MsgBoxStyle::YesNo | MsgBoxStyle::Question, "") ==
               Answer::Yes &&
           alive;
}

bool ucNIPPanel::Members::createNip(const QString& patient) {
    return alone([&] {
        if (!nip) return false;
        if (patient.trimmed().isEmpty()) {
            tell(tr("No patient is chosen. A Nip cannot be created without one."), MsgBoxStyle::Exclamation);
            return false;
        }
        if (!mayLose(creating
                         ? tr("Are you sure you want to create a new nip and discard the one you were "
                              "creating?")
                         : tr("Are you sure you want to create a new nip and discard the changes you are "
                              "making?")))
            return false;
        if (mode == customizing && !cancelCustomize()) return false;
        const Hourglass hourglass;
        const PaintLock lock(panel);
        return settle(routine("Error in ucNipPanel.CreateNip: ", Shown::NotReadable,
                              [&] { return createInternal(patient); }));
    });
}

ucNIPPanel::Members::Shown ucNIPPanel::Members::createInternal(const QString& patient) {
    if (!ensureStructure()) return Shown::NotReadable;
    newEncounter(patient);
    creating = true;
    return loadControls(true) ? Shown::Yes : Shown::NotReadable;
}

bool ucNIPPanel::Members::loadNip(qint32 encounterID, const QString& patient) {
    return alone([&] {
        if (!nip) return false;
        if (!mayLose(creating
                         ? tr("Are you sure you want to load a nip and discard the one you were creating?")
                         : tr("Are you sure you want to load a nip and discard the changes you are making?")))
            return false;
        if (mode == customizing && !cancelCustomize()) return false;
        return routine("Error in ucNipPanel.LoadNipInfo: ", false, [&] {
            const Hourglass hourglass;
            const PaintLock lock(panel);
            return settle(routine("Error in ucNipPanel.LoadNipInfo_Internal: ", Shown::NotReadable,
                                  [&] { return loadInternal(encounterID, patient); }));
        });
    });
}

/// An encounter of another patient is neither shown nor made this patient's.
ucNIPPanel::Members::Shown ucNIPPanel::Members::loadInternal(qint32 encounterID, const QString& patient) {
    if (!ensureStructure()) return Shown::NotReadable;
    newEncounter(QString());
    mEncounter->EncounterID(encounterID);
    if (mEncounter->Unread()) return Shown::NotReadable;
    const std::string& storedFor = mEncounter->PatientID();
    if (storedFor.empty()) return Shown::NotFound;
    if (storedFor != utf8(patient)) return Shown::OfAnotherPatient;
    patientID = patient;
    creating = false;
    return loadControls(false) ? Shown::Yes : Shown::NotReadable;
}

void ucNIPPanel::Members::newEncounter(const QString& patient) {
    mEncounter = std::make_shared<Encounter>();
    mEncounter->Connection(connection);
    savedNewEncounter =
        mEncounter->SavedNewEncounter.connect([this] { panel.mEncounter_SavedNewEncounter(); });
    patientID = patient;
    mEncounter->PatientID(utf8(patient));
}

/// The prefix is the control's own, with its capitals and without a colon.
bool ucNIPPanel::Members::loadControls(bool isNew) {
    return routine("Error in ucNIPPanel.LoadControls ", false, [&] {
        if (!loadValues(isNew)) return false;
        form->tabs().fill();
        return form->encounterPane().fill(*mEncounter, connection);
    });
}

/// A form that another desk has customized is loaded anew.
bool ucNIPPanel::Members::loadValues(bool isNew) {
    const auto load = [&] { return nip->Load(mEncounter->EncounterID(), utf8(patientID), isNew); };
    if (load()) return true;
    if (!nip->StructureChanged()) return false;
    structureLoaded = false;
    if (!ensureStructure() || !load()) return false;
    tell(tr("Another desk has customized the form. It is shown as it is now."), MsgBoxStyle::Information);
    return true;
}

/// Nothing of the Nip before stays in view when the one asked for cannot be shown.
bool ucNIPPanel::Members::settle(Shown shown) {
    if (shown == Shown::Yes) {
        nothingLeft = false;
        form->setEntryEnabled(true);
        setChanged(false);
        return true;
    }
    clear();
    patientID.clear();
    tell(shown == Shown::NotFound ? tr("This Nip could not be found. It may have been deleted.")
         : shown == Shown::OfAnotherPatient
             ? tr("This Nip belongs to another patient and cannot be shown here.")
             : tr("This Nip could not be read from the database. Please try again."),
         MsgBoxStyle::Exclamation);
    return false;
}

void ucNIPPanel::Members::forgetValues(cNIP& nip) {
    const Variant nothing("");
    for (const std::int16_t group : CountedFrom1(nip.GroupCount())) {
        for (const std::int16_t field : CountedFrom1(nip.FieldCount(group))) {
            nip.value(group, field, nothing);
            nip.ChoiceList(group, field, Variant());
            nip.ChoiceListCount(group, field, 0);
        }
    }
    nip.EncounterID(-1);
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
    nothingLeft = true;
    setChanged(false);
}

bool ucNIPPanel::Members::close() {
    return alone(
        [&] {
            if (!mayLose(creating ? tr("Are you sure you want to cancel the creation of this Nip?")
                                  : tr("Are you sure you want to cancel the changes made to this Nip?")))
                return false;
            if (mode == customizing && !cancelCustomize()) return false;
            const PaintLock lock(panel);
            clear();
            return true;
        },
        [&] { emit panel.CloseNipPanel(); });
}

/// Told from the event loop: a slot may delete or rebuild the control that is in the middle of its key.
void ucNIPPanel::Members::edited() {
    if (busy || !mEncounter) return;
    setChanged(true);
    QMetaObject::invokeMethod(
        &panel, [this] { tellModified(); }, Qt::QueuedConnection);
}

void ucNIPPanel::Members::setChanged(bool on) {
    changed = on;
    describe();
}

/// Unsaved entries can be saved, also by a panel that from now on serves only to customize.
void ucNIPPanel::Members::describe() {
    form->buttons().offerSave(!customizeOnly || changed, !nothingLeft);
    form->showEncounter(mode != customizing || mEncounter);
    if (!mEncounter) return form->say(tr("No Nip is open"));
    if (!changed) return form->say(creating ? tr("New Nip") : tr("Saved Nip"));
    form->say(creating ? tr("New Nip with changes that are not saved")
                       : tr("Saved Nip with changes that are not saved"));
}

} // namespace Korvane
