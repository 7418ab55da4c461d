#include <korvane/controls/nippanel/FieldForm.h>

#include <korvane/controls/container/PageCombo.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ChoiceEditor.h>
#include <korvane/controls/nippanel/DisplayTypes.h>
#include <korvane/controls/nippanel/EntryControl.h>
#include <korvane/controls/nippanel/FieldName.h>
#include <korvane/controls/nippanel/LeastGrid.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace Korvane {

namespace {

/// Also what the combo does not offer, behind the `offered` items, for as long as this field is shown.
void choose(QComboBox& combo, int offered, const QVariant& data) {
    const QSignalBlocker quiet(&combo);
    while (combo.count() > offered)
        combo.removeItem(offered);
    if (combo.findData(data) < 0) combo.addItem(data.toString(), data);
    combo.setCurrentIndex(combo.findData(data));
}

void setText(QLineEdit& box, const QString& text) {
    const QSignalBlocker quiet(&box);
    box.setText(text);
    box.setCursorPosition(0);
}

/// It keeps its room while it is not shown.
QLabel* makeMark(QWidget* parent) {
    auto* mark = new QLabel(QString(u'\u25cf'), parent);
    QSizePolicy keepsRoom = mark->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    mark->setSizePolicy(keepsRoom);
    return mark;
}

bool isDark(const QColor& colour) {
    constexpr int middle = 128;
    return colour.lightness() < middle;
}

} // namespace

FieldForm::FieldForm(QWidget* parent) : QWidget(parent) {
    auto* grid = new LeastGrid(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    mName = makeText(FieldDraft::Name, tr("Field Name:"));
    mCaption = makeText(FieldDraft::Caption, tr("Field Caption:"));
    mType = makeCombo(FieldDraft::Type, tr("Display Type:"));
    mWidth = makeText(FieldDraft::Width, tr("Width:"));
    mRule = makeCombo(FieldDraft::Rule, tr("Initial Value Rule:"));
    mRow = makeText(FieldDraft::Row, tr("Row Position:"));
    for (const DisplayType& type : displayTypes())
        mType->addItem(type.caption(), qt(type.keyword));
    mRule->addItem(tr("Cascade Item"), 1);
    mRule->addItem(tr("Do not Cascade"), 0);
    mRule->setToolTip(tr("Cascading means that values from one Exam will be carried over to the next exam"));
    mChoices = new ChoiceEditor(this);
    grid->addWidget(mChoices, FieldDraft::Choices, 0, 1, 2);
    mMarks[FieldDraft::Choices] = makeMark(this);
    grid->addWidget(mMarks[FieldDraft::Choices], FieldDraft::Choices, 2, Qt::AlignTop);
    grid->setRowStretch(FieldDraft::Choices, 1);

    connect(mName, &QLineEdit::textEdited, this, [this] { mProposesName = false; });
    connect(mCaption, &QLineEdit::textEdited, this, &FieldForm::proposeName);
    connect(mChoices, &ChoiceEditor::edited, this, &FieldForm::note);
    connect(mChoices, &ChoiceEditor::typed, this, &FieldForm::note);
    for (QLineEdit* box : {mName, mCaption, mWidth, mRow})
        connect(box, &QLineEdit::textChanged, this, &FieldForm::note);
    for (QComboBox* combo : {mType, mRule})
        connect(combo, &QComboBox::currentIndexChanged, this, &FieldForm::note);
    fill({}, false);
}

QLineEdit* FieldForm::makeText(FieldDraft::Input input, const QString& label) {
    auto* box = new QLineEdit(this);
    const int element = input == FieldDraft::Width ? 2 : input == FieldDraft::Row ? 3 : input;
    box->setObjectName(EntrySite::elementName("txtCustNip", element));
    addRow(input, label, box);
    return box;
}

QComboBox* FieldForm::makeCombo(FieldDraft::Input input, const QString& label) {
    auto* combo = new PageCombo(this);
    combo->setObjectName(EntrySite::elementName("cboCustNip", input == FieldDraft::Type ? 0 : 1));
    addRow(input, label, combo);
    return combo;
}

void FieldForm::addRow(FieldDraft::Input input, const QString& label, QWidget* widget) {
    auto* grid = static_cast<QGridLayout*>(layout());
    auto* caption = new QLabel(label, this);
    caption->setObjectName(EntrySite::elementName("lblCustNip", input));
    caption->setBuddy(widget);
    widget->setAccessibleName(QString(label).remove(u':'));
    mMarks[input] = makeMark(this);
    grid->addWidget(caption, input, 0);
    grid->addWidget(widget, input, 1);
    grid->addWidget(mMarks[input], input, 2);
}

void FieldForm::fill(const FieldDraft& field, bool isNew) {
    mProposesName = isNew && field.name == cleanedFieldName(field.caption);
    setText(*mName, field.name);
    setText(*mCaption, field.caption);
    choose(*mType, static_cast<int>(displayTypes().size()), field.displayType);
    setText(*mWidth, field.width);
    choose(*mRule, 2, field.rule);
    setText(*mRow, field.row);
    mRow->setPlaceholderText(isNew ? tr("the last") : tr("as it is"));
    const QSignalBlocker quiet(mChoices);
    mChoices->show(field.choices, field.selected);
    compareWith(field);
}

void FieldForm::compareWith(const FieldDraft& field) {
    mOriginal = field;
    note();
}

bool FieldForm::takeEdit() {
    return mChoices->takeEdit();
}

FieldDraft FieldForm::draft() const {
    FieldDraft draft;
    draft.name = mName->text();
    draft.caption = mCaption->text();
    draft.displayType = mType->currentData().toString();
    draft.width = mWidth->text();
    draft.rule = mRule->currentData().toInt();
    draft.row = mRow->text();
    draft.choices = mChoices->choices();
    draft.selected = mChoices->selected();
    return draft;
}

bool FieldForm::isChanged() const {
    return draft() != mOriginal || mChoices->isTyping();
}

bool FieldForm::isBox(const QWidget* widget) const {
    return widget && (widget == mName || widget == mCaption || widget == mWidth || widget == mRow);
}

QWidget* FieldForm::input(FieldDraft::Input input) const {
    QWidget* const inputs[] = {mName, mCaption, mType, mWidth, mRule, mRow, mChoices};
    return inputs[input];
}

void FieldForm::focus(FieldDraft::Input which) {
    QWidget* target = which == FieldDraft::Choices ? mChoices->findChild<QAbstractItemView*>() : input(which);
    target->setFocus(Qt::OtherFocusReason);
    if (auto* box = qobject_cast<QLineEdit*>(input(which))) box->selectAll();
}

void FieldForm::proposeName() {
    if (mProposesName) mName->setText(cleanedFieldName(mCaption->text()));
}

void FieldForm::note() {
    const FieldDraft now = draft();
    mark(FieldDraft::Name, now.name != mOriginal.name, mOriginal.name);
    mark(FieldDraft::Caption, now.caption != mOriginal.caption, mOriginal.caption);
    mark(FieldDraft::Type, now.displayType != mOriginal.displayType,
         mType->itemText(mType->findData(mOriginal.displayType)));
    mark(FieldDraft::Width, now.width != mOriginal.width, mOriginal.width);
    mark(FieldDraft::Rule, now.rule != mOriginal.rule, mRule->itemText(mRule->findData(mOriginal.rule)));
    mark(FieldDraft::Row, now.row != mOriginal.row, mOriginal.row);
    const DisplayType* type = findDisplayType(utf8(now.displayType));
    mChoices->explain(!type || type->offersChoices);
    const bool choicesChanged = now.choices != mOriginal.choices || now.selected != mOriginal.selected;
    mark(FieldDraft::Choices, choicesChanged || mChoices->isTyping(),
         mOriginal.choices.mid(0, 10).join(", "));

    QPalette colours = palette();
    if (!isValidFieldName(now.name))
        colours.setColor(QPalette::Text, isDark(colours.color(QPalette::Base)) ? QColor(0xff, 0x90, 0x90)
                                                                               : QColor(0xb0, 0, 0));
    mName->setPalette(colours);
    emit edited();
}

void FieldForm::mark(FieldDraft::Input which, bool changed, const QString& before) {
    QLabel& label = *mMarks[which];
    const QString was = before.isEmpty() ? tr("Changed") : tr("Changed; it was %1").arg(before);
    label.setVisible(changed);
    label.setToolTip(was);
    input(which)->setAccessibleDescription(changed ? was : QString());
}

} // namespace Korvane
