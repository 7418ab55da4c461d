#include <korvane/controls/nippanel/CustomizePane.h>

#include <korvane/controls/container/PaneScroll.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/EntryControl.h>
#include <korvane/controls/nippanel/FieldForm.h>
#include <korvane/controls/nippanel/FieldGrid.h>
#include <korvane/controls/nippanel/LeastGrid.h>
#include <korvane/nip/cNIP.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Korvane {

namespace {

QLabel* makeLine(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

CustomizePane::CustomizePane(QWidget* parent)
    : QFrame(parent), mHeading(nullptr), mGrid(nullptr), mForm(nullptr), mHint(nullptr), mWarning(nullptr) {
    setObjectName("paneCustomize");
    setFrameStyle(Box | Sunken);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeScroll(), 1);
    auto* line = new QFrame(this);
    line->setFrameStyle(HLine | Sunken);
    layout->addWidget(line);
    layout->addWidget(makeButtons());
    showGroup(nullptr, 0);
}

QWidget* CustomizePane::makeScroll() {
    auto* scroll = new PaneScroll(this);
    scroll->setObjectName("scrollCustomize");
    scroll->setWidget(makeContent());
    scroll->widget()->setAutoFillBackground(false);
    return scroll;
}

/// All of it scrolls: in large text there is room for a few lines only. The form keeps its room while the
/// hint stands there, so that the list stays where it is under the mouse.
QWidget* CustomizePane::makeContent() {
    auto* content = new QWidget(this);
    QLabel* title = makeLine("lblCustomizeTitle", content);
    title->setText(tr("Customizing the Structure of the NIP tables"));
    mHeading = makeLine("lblCustEditing", content);
    QFont bold = font();
    bold.setBold(true);
    mHeading->setFont(bold);
    mGrid = new FieldGrid(content);
    title->setBuddy(mGrid);
    mForm = new FieldForm(content);
    QSizePolicy keepsRoom = mForm->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    mForm->setSizePolicy(keepsRoom);
    mHint = makeLine("lblCustHint", content);
    mWarning = makeLine("lblCustDestroys", content);

    auto* layout = new LeastGrid(content);
    layout->setContentsMargins(0, 0, 0, 0);
    enum Row { Title, Heading, Grid, Warning, Form };
    layout->addWidget(title, Title, 0);
    layout->addWidget(mHeading, Heading, 0);
    layout->addWidget(mGrid, Grid, 0);
    layout->addWidget(mWarning, Warning, 0);
    layout->addWidget(mForm, Form, 0);
    layout->addWidget(mHint, Form, 0, Qt::AlignTop);
    layout->setRowStretch(Grid, 1);
    layout->setRowStretch(Form, 1);
    connect(mGrid, &FieldGrid::chosen, this, &CustomizePane::fieldChosen);
    connect(mForm, &FieldForm::edited, this, &CustomizePane::offer);
    return content;
}

QWidget* CustomizePane::makeButtons() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const QString captions[] = {tr("New Field"), tr("Delete Field"), tr("Cancel"), tr("Save")};
    for (const int i : {NewField, DeleteField, Cancel, Save}) {
        mButtons[i] = new QPushButton(captions[i], row);
        mButtons[i]->setObjectName(EntrySite::elementName("cmdNipCustomizeButton", i));
        mButtons[i]->setAutoDefault(false);
        if (i == Cancel) layout->addStretch();
        layout->addWidget(mButtons[i]);
        connect(mButtons[i], &QPushButton::clicked, this, [this, i] { emit clicked(i); });
    }
    mButtons[NewField]->setToolTip(tr("Add a field to this group"));
    mButtons[Cancel]->setAccessibleName(tr("Cancel the field"));
    mButtons[Save]->setAccessibleName(tr("Save the field"));
    mButtons[Cancel]->setToolTip(tr("Leave the field as it is stored (Esc)"));
    mButtons[Save]->setToolTip(tr("Store the field (Ctrl+S)"));
    return row;
}

void CustomizePane::showGroup(const cNIP* nip, std::int16_t group) {
    mNip = nip;
    mGroup = nip && group >= 1 && group <= nip->GroupCount() ? group : std::int16_t{0};
    mGrid->list(nip, mGroup);
    reset();
}

bool CustomizePane::resume(const cNIP& nip) {
    const bool isNew = mHoldsNew;
    const FieldPlace place = isNew || mField > 0 ? mHeld.in(nip) : FieldPlace{};
    if (place.group < 1 || (!isNew && place.field < 1)) return false;
    const FieldDraft written = mForm->draft();
    const FieldDraft begun = mForm->original();
    mNip = &nip;
    mGroup = place.group;
    mGrid->list(&nip, mGroup);
    const FieldDraft now = isNew ? begun : draftOf(nip, mGroup, place.field);
    take(isNew, place.field, broughtUp(written, begun, now));
    mForm->compareWith(now);
    return true;
}

bool CustomizePane::resumeAsNew(const cNIP& nip, std::int16_t otherwise) {
    FieldDraft written = mForm->draft();
    if (written.row == mForm->original().row) written.row.clear();
    const std::int16_t group = mHeld.in(nip).group;
    showGroup(&nip, group > 0 ? group : otherwise);
    if (mGroup < 1) return false;
    take(true, 0, written);
    mForm->compareWith({});
    return true;
}

void CustomizePane::beginNew() {
    take(true, 0, {});
}

void CustomizePane::edit(std::int16_t field) {
    take(false, field, draftOf(*mNip, mGroup, field));
}

void CustomizePane::reset() {
    FieldDraft nothing;
    nothing.width.clear();
    take(false, 0, nothing);
}

void CustomizePane::take(bool isNew, std::int16_t field, const FieldDraft& draft) {
    mHoldsNew = isNew;
    mField = field;
    if (isNew || field > 0) mHeld = HeldField::of(*mNip, {mGroup, field});
    mForm->fill(draft, isNew);
    mForm->setEnabled(isNew || field > 0);
    mForm->setVisible(isNew || field > 0);
    markListed();
    describe();
    offer();
    emit turned();
}

void CustomizePane::markListed() {
    mGrid->mark(mField);
}

bool CustomizePane::holdsChanges() const {
    return (mHoldsNew || mField > 0) && mForm->isChanged();
}

void CustomizePane::focusList() {
    mGrid->setFocus(Qt::OtherFocusReason);
}

QString CustomizePane::groupTitle() const {
    return mGroup > 0 ? "[" + qt(mNip->GroupName(mGroup)) + "]" : QString();
}

QString CustomizePane::groupContent() const {
    const int fields = mGroup > 0 ? mNip->FieldCount(mGroup) : 0;
    if (fields < 1) return groupTitle();
    if (fields == 1) return tr("%1 with its 1 field").arg(groupTitle());
    return tr("%1 with its %2 fields").arg(groupTitle(), QString::number(fields));
}

QString CustomizePane::heading() const {
    if (mGroup < 1) return tr("There is no group yet.");
    if (mHoldsNew) return tr("New field in group %1").arg(groupTitle());
    if (mField < 1) return tr("Fields of group %1").arg(groupTitle());
    return tr("Editing field [%1] of group %2").arg(qt(mNip->fieldName(mGroup, mField)), groupTitle());
}

/// By the button or tool that is at hand.
QString CustomizePane::whatIsDestroyed() const {
    if (mField > 0)
        return tr("Delete Field destroys [%1] with all that any encounter has in it.")
            .arg(qt(mNip->fieldName(mGroup, mField)));
    if (mGroup < 1 || mHoldsNew) return {};
    return tr("Delete Nip Group destroys %1 and all that any encounter has in it.").arg(groupContent());
}

void CustomizePane::describe() {
    mHeading->setText(heading());
    mHint->setText(tr("Choose a field in the list or by a click on it in the form, or press New Field."));
    mHint->setVisible(mGroup > 0 && !mHoldsNew && mField < 1);
    const QString destroys = whatIsDestroyed();
    mWarning->setText(destroys);
    mWarning->setVisible(!destroys.isEmpty());
    mButtons[DeleteField]->setAccessibleDescription(destroys);
}

void CustomizePane::offer() {
    const bool holds = mHoldsNew || mField > 0;
    mButtons[NewField]->setEnabled(mGroup > 0);
    mButtons[DeleteField]->setEnabled(mField > 0);
    mButtons[Cancel]->setEnabled(holds);
    mButtons[Save]->setEnabled(holdsChanges());
}

} // namespace Korvane
