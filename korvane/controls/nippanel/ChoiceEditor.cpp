#include <korvane/controls/nippanel/ChoiceEditor.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ChoiceEditDelegate.h>
#include <korvane/controls/nippanel/ChoiceOrderList.h>
#include <korvane/controls/nippanel/ChoiceOrderModel.h>
#include <korvane/controls/nippanel/LeastGrid.h>
#include <korvane/controls/nippanel/ListEntryText.h>
#include <korvane/runtime/Interaction.h>

#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace Korvane {

namespace {

enum Button { Add, Remove, MoveUp, MoveDown };

} // namespace

ChoiceEditor::ChoiceEditor(QWidget* parent)
    : QWidget(parent), mChoices(new ChoiceOrderModel(this)), mList(new ChoiceOrderList(mChoices, this)),
      mTitle(new QLabel(this)),
      mButtons{makeButton(Add, tr("Add"), tr("Add a choice behind the last")),
               makeButton(Remove, tr("Remove"), tr("Remove the highlighted choice (Delete)")),
               makeButton(MoveUp, tr("Move Up"), tr("Move the highlighted choice up (Alt+Up)")),
               makeButton(MoveDown, tr("Move Down"), tr("Move the highlighted choice down (Alt+Down)"))} {
    arrange();
    connectList();
    connect(mButtons[Add], &QPushButton::clicked, this, &ChoiceEditor::add);
    connect(mButtons[Remove], &QPushButton::clicked, this, &ChoiceEditor::remove);
    connect(mButtons[MoveUp], &QPushButton::clicked, this, [this] { mList->moveCurrent(-1); });
    connect(mButtons[MoveDown], &QPushButton::clicked, this, [this] { mList->moveCurrent(1); });
    show({}, -1);
}

QPushButton* ChoiceEditor::makeButton(int index, const QString& text, const QString& tip) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString("cmdNipChoices(%1)").arg(index));
    button->setAccessibleName(tr("%1: choice").arg(text));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

void ChoiceEditor::arrange() {
    mList->setAccessibleName(tr("Choices"));
    mList->setAccessibleDescription(tr("The checked choice is the default"));
    mList->setToolTip(
        tr("Drag a choice to put it elsewhere, with the Ctrl key to copy it. F2 or a double click "
           "edits it. Space or a click on its box makes it the default, or no longer."));
    mTitle->setObjectName("lblNipChoices");
    mTitle->setWordWrap(true);
    mTitle->setBuddy(mList);
    explain(true);
    auto* layout = new LeastGrid(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTitle, 0, 0, 1, 2);
    int row = 1;
    for (QPushButton* button : mButtons)
        layout->addWidget(button, row++, 1);
    layout->addWidget(mList, 1, 0, row, 1);
    layout->setRowStretch(row, 1);
    layout->setColumnStretch(0, 1);
}

void ChoiceEditor::connectList() {
    connect(mChoices, &QAbstractItemModel::dataChanged, this, &ChoiceEditor::edited);
    connect(mChoices, &QAbstractItemModel::rowsMoved, this, &ChoiceEditor::edited);
    connect(&mList->delegate(), &ChoiceEditDelegate::typed, this, &ChoiceEditor::typed);
    for (auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(mChoices, changed, this, &ChoiceEditor::offerButtons);
    connect(mChoices, &QAbstractItemModel::rowsMoved, this, &ChoiceEditor::offerButtons);
    connect(mList->selectionModel(), &QItemSelectionModel::currentChanged, this, &ChoiceEditor::offerButtons);
    auto* deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), mList);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, mButtons[Remove], &QPushButton::click);
}

void ChoiceEditor::show(const QStringList& choices, int selected) {
    mFilling = std::make_shared<const int>();
    std::vector<ChoiceRow> rows;
    for (const QString& choice : choices) {
        const int place = static_cast<int>(rows.size());
        rows.push_back({place == selected, choice, place + 1});
    }
    mChoices->show(std::move(rows));
    mList->setCurrentIndex(mChoices->index(std::max(selected, 0)));
    offerButtons();
}

void ChoiceEditor::explain(bool offered) {
    mTitle->setText(
        offered ? tr("Choices (the checked one is the default):")
                : tr("Choices, not offered with this display type (the checked one is the default):"));
}

QStringList ChoiceEditor::choices() const {
    return mChoices->choices();
}

int ChoiceEditor::selected() const {
    return mChoices->checkedChoice();
}

bool ChoiceEditor::takeEdit() {
    return mList->takeEdit();
}

bool ChoiceEditor::isTyping() const {
    return mList->delegate().isTyping();
}

// While the user is asked, another field may be shown, or the pane be deleted: the answer is then for nothing
// that is in view.
void ChoiceEditor::add() {
    if (!takeEdit()) return;
    const std::weak_ptr<const int> asked = mFilling;
    const auto answer = Interaction::current().InputBox(utf8(tr("What is the new item?")), "");
    if (!answer || asked.expired()) return;
    const QString choice = ChoiceOrderModel::cleaned(qt(*answer));
    if (choice.isEmpty()) return;
    const QString fault = mChoices->fault(choice);
    if (!fault.isEmpty()) return showListEntryFault(fault);
    mChoices->append(choice);
    mList->setCurrentIndex(mChoices->index(mChoices->rowCount() - 1));
    emit edited();
}

void ChoiceEditor::remove() {
    const int row = mList->currentIndex().row();
    if (row < 0) return;
    const bool counts = mChoices->isChoice(row);
    mChoices->remove(row);
    mList->setCurrentIndex(mChoices->index(std::min(row, mChoices->rowCount() - 1)));
    if (counts) emit edited();
}

void ChoiceEditor::offerButtons() {
    QWidget* focused = focusWidget();
    const bool hadFocus = focused && focused->hasFocus();
    mButtons[Remove]->setEnabled(mList->currentIndex().isValid());
    mButtons[MoveUp]->setEnabled(mList->canMoveCurrent(-1));
    mButtons[MoveDown]->setEnabled(mList->canMoveCurrent(1));
    if (hadFocus && !focused->isEnabled()) mList->setFocus();
}

} // namespace Korvane
