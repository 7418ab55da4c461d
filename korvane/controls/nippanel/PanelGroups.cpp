#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/Counted.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/controls/nippanel/StructureLimits.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/Text.h>

#include <QPointer>

namespace Korvane {

/// Nothing when the user gives none, or one that the table does not take.
std::optional<std::string> ucNIPPanel::Members::askGroupName() {
    const QPointer<ucNIPPanel> alive(&panel);
    std::optional<std::string> name = Interaction::current().InputBox(
        utf8(tr("What is the name of the group you would like to create")), utf8(tr("New group name")));
    if (!alive || !name) return std::nullopt;
    if (trim(*name).empty()) {
        tell(tr("A group needs a name.  No group was created."), MsgBoxStyle::Information);
        return std::nullopt;
    }
    const std::int32_t limit = readLimits(connection).groupName;
    if (limit > 0 && qt(*name).toUcs4().size() > limit) {
        tell(tr("The name of the group is too long.  It can have %1 characters.  No group was created.")
                 .arg(limit),
             MsgBoxStyle::Information);
        return std::nullopt;
    }
    return name;
}

void ucNIPPanel::Members::newGroup() {
    if (panel.designMode()) return;
    alone([&] {
        return routine("Error in ucNipPanel.NewNipGroup: ", false, [&] {
            if (!nip || !mayLeaveField() || !freshStructure()) return false;
            const std::optional<std::string> name = askGroupName();
            return name && createGroup(*name);
        });
    });
}

bool ucNIPPanel::Members::createGroup(const std::string& name) {
    const Hourglass hourglass;
    const PaintLock lock(panel);
    bool created = nip->CreateGroup(name);
    if (!created && nip->StructureChanged() && renewStructure()) created = nip->CreateGroup(name);
    QString failure;
    if (!created)
        failure = tr("System error: Unable to create this Nip group%1\n\nThe group [%2] was not created.")
                      .arg(whyFailed(), qt(name));
    if (!renewStructure(failure) || !created) return false;
    for (const std::int16_t group : CountedFrom1(nip->GroupCount()))
        if (nip->GroupName(group) == name) form->tabs().setCurrentIndex(group - 1);
    showGroup();
    return true;
}

void ucNIPPanel::Members::deleteGroup() {
    if (panel.designMode()) return;
    alone([&] {
        return routine("Error in ucNipPanel.DeleteNipGroup: ", false, [&] {
            if (!nip || !mayLeaveField() || !freshStructure() || selectedGroup() < 1) return false;
            const QPointer<ucNIPPanel> alive(&panel);
            const Answer answer = Interaction::current().MsgBox(
                utf8(tr(
                    "Deleting a Nip Group will also delete all fields in the group.\nThis is a destructive "
                    "action that cannot be reversed.  Do you wish to continue?")),
                MsgBoxStyle::OkCancel | MsgBoxStyle::Question | MsgBoxStyle::DefaultButton2,
                utf8(tr("Delete Group Confirmation")));
            if (!alive || answer != Answer::Ok) return false;
            const Hourglass hourglass;
            const PaintLock lock(panel);
            const bool deleted = nip->DeleteGroup(selectedGroup());
            return renewStructure(deleted
                                      ? QString()
                                      : tr("System error: Unable to remove this nip group.") + whyFailed()) &&
                   deleted;
        });
    });
}

} // namespace Korvane
