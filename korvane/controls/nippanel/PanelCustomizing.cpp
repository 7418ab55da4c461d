#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Keys.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/CustomizeBar.h>
#include <korvane/controls/nippanel/CustomizePane.h>
#include <korvane/controls/nippanel/FieldForm.h>
#include <korvane/controls/nippanel/FieldPicker.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/Routine.h>
#include <korvane/runtime/Interaction.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPointer>

namespace Korvane {

void ucNIPPanel::Members::listenToCustomizing() {
    const CustomizeBar& bar = form->customizeBar();
    const CustomizePane& pane = form->customizePane();
    connect(&bar, &CustomizeBar::closeClicked, &panel, [this] { click(ButtonRow::Cancel); });
    connect(&bar, &CustomizeBar::backClicked, &panel, [this] { leaveCustomizing(); });
    connect(&bar, &CustomizeBar::newGroupClicked, &panel, [this] { newGroup(); });
    connect(&bar, &CustomizeBar::deleteGroupClicked, &panel, [this] { deleteGroup(); });
    connect(&bar, &CustomizeBar::customizeGroupClicked, &panel, [this] { customize(); });
    connect(&pane, &CustomizePane::clicked, &panel, [this](int button) { clickCustomize(button); });
    connect(&pane, &CustomizePane::fieldChosen, &panel, [this](int field) { chooseField(field); });
    connect(&pane, &CustomizePane::turned, &panel, [this] { markField(); });
    connect(&form->picker(), &FieldPicker::picked, &panel, [this](int group, int field) {
        if (group == form->customizePane().group() && chooseField(field)) form->customizePane().focusList();
    });
    // Whoever hears of it may ask something: not in the middle of the click.
    connect(
        &form->tabs(), &QTabWidget::currentChanged, &panel, [this] { chooseTab(); }, Qt::QueuedConnection);
}

void ucNIPPanel::Members::customize() {
    if (panel.designMode()) return;
    alone([&] {
        return routine("Error in ucNipPanel.CustomizeNip: ", false, [&] {
            if (!mayLeaveField()) return false;
            if (nip) freshStructure();
            enterCustomizing();
            form->customizePane().focusList();
            return true;
        });
    });
}

void ucNIPPanel::Members::enterCustomizing() {
    mode = customizing;
    form->showCustomizing(true);
    describe();
    showGroup();
}

void ucNIPPanel::Members::leaveCustomizing() {
    alone([&] { return cancelCustomize(); });
}

/// True when the mode may be left. A panel that serves only to customize has nothing else to show.
bool ucNIPPanel::Members::cancelCustomize() {
    return routine("Error in ucNipPanel.CancelCustomizeNip: ", false, [&] {
        if (!mayLeaveField()) return false;
        if (customizeOnly) return true;
        mode = 0;
        form->showCustomizing(false);
        describe();
        return true;
    });
}

void ucNIPPanel::Members::arrange() {
    form->arrange(customizeOnly, allowClosePanel);
    describe();
    if (customizeOnly && mode != customizing) enterCustomizing();
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

void ucNIPPanel::Members::clickCustomize(int button) {
    if (panel.designMode()) return;
    switch (button) {
    case CustomizePane::NewField:
        return newField();
    case CustomizePane::DeleteField:
        return deleteField();
    case CustomizePane::Save:
        return saveField();
    default:
        cancelField();
    }
}

/// Counted from 1, as the tabs stand; 0: there is none.
std::int16_t ucNIPPanel::Members::selectedGroup() const {
    return static_cast<std::int16_t>(form->tabs().currentIndex() + 1);
}

void ucNIPPanel::Members::showGroup() {
    form->customizePane().showGroup(nip.get(), selectedGroup());
    showTools();
}

void ucNIPPanel::Members::showTools() {
    const CustomizePane& pane = form->customizePane();
    form->customizeBar().showGroup(pane.groupTitle(), pane.groupContent());
}

void ucNIPPanel::Members::markField() {
    const CustomizePane& pane = form->customizePane();
    form->markField(nip.get(), {pane.group(), pane.field()});
}

/// The field stays in view until the question is answered.
void ucNIPPanel::Members::chooseTab() {
    const CustomizePane& pane = form->customizePane();
    const int chosen = form->tabs().currentIndex();
    if (mode != customizing || chosen + 1 == pane.group() || chosen < 0) return;
    form->tabs().setCurrentIndex(pane.group() - 1);
    alone([&] {
        if (!mayLeaveField()) return false;
        form->tabs().setCurrentIndex(chosen);
        showGroup();
        return true;
    });
}

bool ucNIPPanel::Members::chooseField(int field) {
    CustomizePane& pane = form->customizePane();
    if (mode != customizing || panel.designMode()) return false;
    pane.markListed();
    if (field == pane.field()) return true;
    return alone([&] {
        if (!mayLeaveField()) return false;
        if (field <= nip->FieldCount(pane.group())) pane.edit(static_cast<std::int16_t>(field));
        return true;
    });
}

void ucNIPPanel::Members::newField() {
    CustomizePane& pane = form->customizePane();
    alone([&] {
        if (pane.group() < 1 || !mayLeaveField()) return false;
        pane.beginNew();
        pane.form().focus(FieldDraft::Name);
        return true;
    });
}

void ucNIPPanel::Members::cancelField() {
    alone([&] {
        if (!mayLeaveField()) return false;
        form->customizePane().reset();
        form->customizePane().focusList();
        return true;
    });
}

/// Whether the user lets go of what is written in the customize pane, which then holds no field any more.
bool ucNIPPanel::Members::mayLeaveField() {
    CustomizePane& pane = form->customizePane();
    if (mode != customizing) return true;
    if (pane.holdsNew() || pane.holdsChanges()) {
        const QPointer<ucNIPPanel> alive(&panel);
        const bool leaves = asksToLeave(pane);
        if (!alive) return false;
        if (!leaves) {
            form->focusClose();
            return false;
        }
    }
    pane.reset();
    return true;
}

bool ucNIPPanel::Members::asksToLeave(const CustomizePane& pane) {
    if (pane.holdsNew())
        return Interaction::current().MsgBox(utf8(tr("Are you sure you want to cancel creating this field?")),
                                             MsgBoxStyle::YesNo | MsgBoxStyle::Question,
                                             utf8(tr("Cancel field creation"))) == Answer::Yes;
    const QString text = tr("Changes have been made to the field [%1] in the group %2. \nAre you certain you "
                            "want to discard those changes?")
                             .arg(pane.form().original().name, pane.groupTitle());
    return Interaction::current().MsgBox(utf8(text), MsgBoxStyle::OkCancel | MsgBoxStyle::Question,
                                         utf8(tr("Discard Customization Confirmation"))) == Answer::Ok;
}

/// In one of the pane's boxes and closed combo boxes Enter stores the field, and never presses what a dialog
/// around the panel takes for its default button.
bool ucNIPPanel::Members::isEnterInPane(const QKeyEvent& key) const {
    if (!isEnter(key)) return false;
    const FieldForm& inputs = form->customizePane().form();
    const QWidget* const focus = QApplication::focusWidget();
    const auto* combo = qobject_cast<const QComboBox*>(focus);
    if (!combo) return inputs.isBox(focus);
    return inputs.isAncestorOf(combo) && !combo->view()->isVisible();
}

/// What the keys of the panel mean while it is customized: storing and leaving the field comes before storing
/// and leaving the Nip.
bool ucNIPPanel::Members::pressedWhileCustomizing(const QKeyEvent& key) {
    if (mode != customizing) return false;
    const CustomizePane& pane = form->customizePane();
    const bool holds = pane.holdsNew() || pane.field() > 0;
    const bool save = key.matches(QKeySequence::Save) || isEnterInPane(key);
    const bool cancel = key.matches(QKeySequence::Cancel);
    if (key.key() == Qt::Key_F6 && !(key.modifiers() & (Qt::AltModifier | Qt::MetaModifier))) {
        if (form->focusIsInEntries())
            form->customizePane().focusList();
        else
            form->focusEntries();
        return true;
    }
    if ((!save && !cancel) || (!holds && (save || customizeOnly))) return false;
    if (key.isAutoRepeat()) return true;
    if (save)
        clickCustomize(CustomizePane::Save);
    else if (holds)
        clickCustomize(CustomizePane::Cancel);
    else
        leaveCustomizing();
    return true;
}

} // namespace Korvane
