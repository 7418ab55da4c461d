#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/FieldForm.h>
#include <korvane/controls/nippanel/FieldName.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/Text.h>

#include <QPointer>

namespace Korvane {

namespace {

constexpr auto nameTitle = "Field Name Validation";
constexpr auto duplicateText =
    "The field name already exists in this Nip group.  Field names cannot be duplicated.";

bool hasField(const cNIP& nip, std::int16_t group, std::string_view name) {
    for (const std::int16_t field : CountedFrom1(nip.FieldCount(group)))
        if (sameName(nip.fieldName(group, field), name)) return true;
    return false;
}

/// The group that has that identifier, or, for one without fields, that name; 0: none.
std::int16_t findGroup(const cNIP& nip, std::int32_t id, const std::string& name) {
    for (const std::int16_t group : CountedFrom1(nip.GroupCount())) {
        const std::int32_t own = nip.FieldCount(group) > 0 ? nip.GroupID(group, 1) : 0;
        if (id > 0 ? own == id : nip.GroupName(group) == name) return group;
    }
    return 0;
}

std::int16_t findField(const cNIP& nip, std::int16_t group, const std::string& name) {
    for (const std::int16_t field : CountedFrom1(nip.FieldCount(group)))
        if (nip.fieldName(group, field) == name) return field;
    return 0;
}

} // namespace

/// What the pane holds, to be found again in a structure that was loaded anew.
struct ucNIPPanel::Members::InHand {
    InHand(const cNIP& nip, const CustomizePane& pane)
        : groupName(nip.GroupName(pane.group())), fieldName(nip.fieldName(pane.group(), pane.field())),
          isNew(pane.holdsNew()) {
        if (nip.FieldCount(pane.group()) > 0) groupID = nip.GroupID(pane.group(), 1);
    }

    /// Group 0 when it is there no more.
    FieldPlace in(const cNIP& nip) const {
        const std::int16_t group = findGroup(nip, groupID, groupName);
        if (isNew || group < 1) return {group, 0};
        const std::int16_t field = findField(nip, group, fieldName);
        return {field > 0 ? group : std::int16_t{0}, field};
    }

    std::string groupName;
    std::string fieldName;
    std::int32_t groupID = 0;
    bool isNew;
};

/// The reason of the operation that just failed, as a text to append.
std::string ucNIPPanel::Members::whyFailed() const {
    if (nip->StructureChanged())
        return "\n\nAnother desk has customized this form since it was shown here.  It is shown as it is "
               "now; "
               "what you entered is kept.";
    return nip->LastError() ? "\n\n" + nip->LastError()->Description() : "";
}

/// Loads the structure as it is stored and builds the controls anew. What was entered into the Nip stays.
bool ucNIPPanel::Members::renewStructure(bool tellsLost) {
    form->tabs().collect();
    std::vector<LostEntry> lost;
    const bool read = nip->ReloadStructure(lost);
    if (!read)
        tell("The form could not be read from the database again." + whyFailed(), MsgBoxStyle::Exclamation);
    if (!mEncounter) forgetValues(*nip);
    form->tabs().CreateNipControls(*nip);
    std::string texts;
    for (const LostEntry& entry : lost)
        texts += "\n" + entry.groupName + ", " + entry.caption + ": " + entry.text;
    if (tellsLost && !texts.empty())
        tell("These fields are no longer there.  What you entered in them:" + texts,
             MsgBoxStyle::Exclamation);
    return read;
}

/// After an operation that failed: the structure as it is, and what was written in the pane in its field.
void ucNIPPanel::Members::resume(const InHand& before) {
    renewStructure(true);
    const FieldPlace place = before.in(*nip);
    if (place.group > 0) form->tabs().setCurrentIndex(place.group - 1);
    const FieldDraft written = form->customizePane().form().draft();
    if (place.group > 0) return form->customizePane().resume(*nip, place);
    showGroup();
    tell("The field [" + utf8(written.name) + "] is no longer there.", MsgBoxStyle::Exclamation);
}

/// Says what is wrong with an input. False.
bool ucNIPPanel::Members::refuse(FieldDraft::Input input, std::string_view message, std::string_view title) {
    form->customizePane().form().focus(input);
    Interaction::current().MsgBox(message, MsgBoxStyle::Information, title);
    return false;
}

void ucNIPPanel::Members::saveField() {
    alone([&] {
        return routine("Error in ucNipPanel.SaveFieldCustomization: ", false, [&] {
            const CustomizePane& pane = form->customizePane();
            if (!nip || mode != customizing || !pane.form().takeEdit() || !pane.holdsChanges()) return false;
            const FieldDraft draft = pane.form().draft();
            if (!isValidFieldName(draft.name))
                return refuse(FieldDraft::Name,
                              "The field name (" + utf8(draft.name) +
                                  ") is not a valid field name.  \n\nField names cannot contain spaces, "
                                  "quotation marks, or special characters and must begin with a letter.",
                              nameTitle);
            const Hourglass hourglass;
            if (pane.holdsNew() && hasField(*nip, pane.group(), utf8(draft.name)))
                return refuse(FieldDraft::Name, duplicateText, nameTitle);
            const auto checked = definitionOf(draft, pane.form().original(), readLimits(connection));
            if (const auto* fault = std::get_if<DraftFault>(&checked))
                return refuse(fault->input, utf8(fault->message), "Field Validation");
            return storeField(std::get<FieldDefinition>(checked));
        });
    });
}

bool ucNIPPanel::Members::storeField(const FieldDefinition& definition) {
    const PaintLock lock(panel);
    const CustomizePane& pane = form->customizePane();
    const InHand before(*nip, pane);
    const std::int16_t group = pane.group();
    const bool isNew = pane.holdsNew();
    const bool defined =
        isNew ? nip->CreateField(group, definition) : nip->EditField(group, pane.field(), definition);
    if (defined && nip->SaveStructure()) {
        renewStructure(false);
        showGroup();
        form->focusDescription();
        return true;
    }
    const std::string reason = whyFailed();
    const bool isTaken = !defined && nip->LastError()->Number() == RuntimeError::DuplicateKey;
    const auto next = std::to_string(nip->FieldCount(group) + 1);
    if (isTaken) {
        resume(before);
        return refuse(FieldDraft::Name,
                      sameName(definition.fieldName, "EncounterID") ? reason.substr(2) + "." : duplicateText,
                      nameTitle);
    }
    if (isNew && !defined)
        tell("An error occured while creating this field.  Please try again.  "
             "(ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=" +
                 std::to_string(group) + ", mcF=" + next + reason,
             MsgBoxStyle::OkOnly);
    else
        tell("System error: Unable to save this field." + reason, MsgBoxStyle::Exclamation);
    resume(before);
    return false;
}

void ucNIPPanel::Members::deleteField() {
    alone([&] {
        return routine("Error in ucNipPanel.DeleteFieldCustomization: ", false, [&] {
            const CustomizePane& pane = form->customizePane();
            if (!nip || mode != customizing || pane.field() < 1) return false;
            const QPointer<ucNIPPanel> alive(&panel);
            const Answer answer = Interaction::current().MsgBox(
                "Are you certain you wish to delete this field?  All data in the field will be permenantly "
                "lost.",
                MsgBoxStyle::OkCancel | MsgBoxStyle::Question | MsgBoxStyle::DefaultButton2,
                "Delete Confirmation");
            if (!alive || answer != Answer::Ok) return false;
            const Hourglass hourglass;
            const PaintLock lock(panel);
            const InHand before(*nip, pane);
            if (nip->DeleteField(pane.group(), pane.field())) {
                renewStructure(false);
                showGroup();
                form->customizePane().focusList();
                return true;
            }
            tell("System error: Unable to delete this field." + whyFailed(), MsgBoxStyle::Exclamation);
            resume(before);
            return false;
        });
    });
}

} // namespace Korvane
