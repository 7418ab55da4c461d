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

QString nameTitle() {
    return ucNIPPanel::tr("Field Name Validation");
}

QString duplicateText() {
    return ucNIPPanel::tr(
        "The field name already exists in this Nip group.  Field names cannot be duplicated.");
}

bool hasField(const cNIP& nip, std::int16_t group, std::string_view name) {
    for (const std::int16_t field : CountedFrom1(nip.FieldCount(group)))
        if (sameName(nip.fieldName(group, field), name)) return true;
    return false;
}

} // namespace

/// Says what is wrong with an input. False.
bool ucNIPPanel::Members::refuse(FieldDraft::Input input, const QString& message, const QString& title) {
    form->customizePane().form().focus(input);
    Interaction::current().MsgBox(utf8(message), MsgBoxStyle::Information, utf8(title));
    return false;
}

void ucNIPPanel::Members::saveField() {
    alone([&] {
        return routine("Error in ucNipPanel.SaveFieldCustomization: ", false, [&] {
            const CustomizePane& pane = form->customizePane();
            if (!nip || mode != customizing || !pane.form().takeEdit() || !freshStructure()) return false;
            if (!pane.holdsChanges()) return false;
            const FieldDraft draft = pane.form().draft();
            if (!isValidFieldName(draft.name))
                return refuse(FieldDraft::Name,
                              tr("The field name (%1) is not a valid field name.  \n\nField names cannot "
                                 "contain spaces, quotation marks, or special characters and must begin "
                                 "with a letter.")
                                  .arg(draft.name),
                              nameTitle());
            const Hourglass hourglass;
            if (pane.holdsNew() && hasField(*nip, pane.group(), utf8(draft.name)))
                return refuse(FieldDraft::Name, duplicateText(), nameTitle());
            const auto checked = definitionOf(draft, pane.form().original(), readLimits(connection));
            if (const auto* fault = std::get_if<DraftFault>(&checked))
                return refuse(fault->input, fault->message, tr("Field Validation"));
            return storeField(std::get<FieldDefinition>(checked));
        });
    });
}

bool ucNIPPanel::Members::storeField(const FieldDefinition& definition) {
    const PaintLock lock(panel);
    form->tabs().collect(); // while the entries are still what the model takes them for
    CustomizePane& pane = form->customizePane();
    const std::int16_t group = pane.group();
    const bool isNew = pane.holdsNew();
    const bool defined =
        isNew ? nip->CreateField(group, definition) : nip->EditField(group, pane.field(), definition);
    if (defined && nip->SaveStructure()) {
        pane.reset();
        renewStructure();
        form->focusDescription();
        return true;
    }
    const QString reason = whyFailed();
    const bool isTaken = !defined && nip->LastError()->Number() == RuntimeError::DuplicateKey;
    const auto next = QString::number(nip->FieldCount(group) + 1);
    if (isTaken) {
        renewStructure();
        return refuse(FieldDraft::Name,
                      sameName(definition.fieldName, "EncounterID") ? reason.mid(2) + u'.' : duplicateText(),
                      nameTitle());
    }
    if (isNew && !defined)
        renewStructure(tr("An error occured while creating this field.  Please try again.  "
                          "(ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=%1, mcF=%2%3")
                           .arg(QString::number(group), next, reason),
                       MsgBoxStyle::OkOnly);
    else
        renewStructure(tr("System error: Unable to save this field.") + reason);
    return false;
}

void ucNIPPanel::Members::deleteField() {
    alone([&] {
        return routine("Error in ucNipPanel.DeleteFieldCustomization: ", false, [&] {
            CustomizePane& pane = form->customizePane();
            if (!nip || mode != customizing || !freshStructure() || pane.field() < 1) return false;
            const QPointer<ucNIPPanel> alive(&panel);
            const Answer answer = Interaction::current().MsgBox(
                utf8(tr("Are you certain you wish to delete this field?  All data in the field will be "
                        "permenantly lost.")),
                MsgBoxStyle::OkCancel | MsgBoxStyle::Question | MsgBoxStyle::DefaultButton2,
                utf8(tr("Delete Confirmation")));
            if (!alive || answer != Answer::Ok) return false;
            const Hourglass hourglass;
            const PaintLock lock(panel);
            if (nip->DeleteField(pane.group(), pane.field())) {
                pane.reset();
                renewStructure();
                pane.focusList();
                return true;
            }
            renewStructure(tr("System error: Unable to delete this field.") + whyFailed());
            return false;
        });
    });
}

} // namespace Korvane
