#include <korvane/controls/nippanel/EditContentEntry.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/ListEntryText.h>
#include <korvane/runtime/Interaction.h>

#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>

#include <algorithm>

namespace Korvane {

namespace {

constexpr int buttonWidth = 855;
constexpr int buttonHeight = Twips::oneLine;
constexpr int buttonGap = 60;
constexpr int besideCaption = 60;

} // namespace

EditContentEntry::EditContentEntry(EntrySite entrySite)
    : GridEntry(std::move(entrySite), ChoiceModel::None), mAdd(makeButton(tr("Add"))),
      mRemove(makeButton(tr("Remove"))) {
    QObject::connect(mAdd, &QPushButton::clicked, mAdd, [this] { add(); });
    QObject::connect(mRemove, &QPushButton::clicked, mRemove, [this] { remove(); });
    auto* deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), &grid());
    deleteKey->setContext(Qt::WidgetShortcut);
    QObject::connect(deleteKey, &QShortcut::activated, mRemove, &QPushButton::click);
    QObject::connect(grid().selectionModel(), &QItemSelectionModel::currentChanged, mRemove,
                     [this] { updateRemove(); });
}

QPushButton* EditContentEntry::makeButton(const QString& text) {
    auto* button = new QPushButton(text, site().parent);
    button->setAutoDefault(false);
    return button;
}

void EditContentEntry::identify() {
    GridEntry::identify();
    int number = 0;
    for (QPushButton* button : {mAdd, mRemove}) {
        button->setObjectName(EntrySite::elementName("cmdNip", site().button + number));
        button->setProperty("Tag", site().tag() + QLatin1String("::") + QString::number(++number));
        button->setAccessibleName(tr("%1: %2").arg(button->text(), site().caption()));
    }
}

QList<QWidget*> EditContentEntry::tabOrder() const {
    return {&grid(), mAdd, mRemove};
}

void EditContentEntry::showValue() {
    mFilling = std::make_shared<const int>();
    std::vector<ChoiceRow> entries;
    for (const QString& entry : site().storedEntries())
        entries.push_back({false, entry, static_cast<int>(entries.size()) + 1});
    rows().show(std::move(entries));
    grid().setCurrentIndex(rows().index(0));
    updateRemove();
}

QStringList EditContentEntry::content() const {
    return rows().contents();
}

int EditContentEntry::height(const Twips& twips, int tabHeight) const {
    const int buttons = twips.px(buttonGap) + twips.px(buttonHeight);
    return GridEntry::height(twips, tabHeight - buttons) + buttons;
}

/// A translation may have made a caption longer: the buttons then grow while both have room below the grid.
int EditContentEntry::widthOfButtons(const Twips& twips, int room) const {
    const auto captionOf = [](const QPushButton* each) {
        return each->fontMetrics().horizontalAdvance(each->text());
    };
    const int wanted = std::max(captionOf(mAdd), captionOf(mRemove)) + 2 * twips.px(besideCaption);
    return std::max(twips.px(buttonWidth), std::min(wanted, (room - twips.px(buttonGap)) / 2));
}

void EditContentEntry::place(const QRect& area, const Twips& twips) {
    const int top = area.bottom() + 1 - twips.px(buttonHeight);
    const QRect button(area.left(), top, widthOfButtons(twips, area.width()), twips.px(buttonHeight));
    grid().setGeometry(QRect(area.topLeft(), QSize(area.width(), top - twips.px(buttonGap) - area.top())));
    const auto inReadingOrder = [&](const QRect& r) {
        return QStyle::visualRect(grid().layoutDirection(), area, r);
    };
    mAdd->setGeometry(inReadingOrder(button));
    mRemove->setGeometry(inReadingOrder(button.translated(button.width() + twips.px(buttonGap), 0)));
}

// While the user is asked, the host may show another encounter or delete the controls: the answer is then
// for nothing that is in view.
void EditContentEntry::add() {
    const std::weak_ptr<const int> asked = mFilling;
    const auto answer = Interaction::current().InputBox(
        utf8(tr("Please enter the content for %1:").arg(site().caption())), "");
    if (!answer || asked.expired()) return;
    const QString entry = qt(*answer);
    // A list of nothing but blanks is stored as no list at all.
    if (entry.trimmed().isEmpty() || !canBeListEntry(entry)) return;
    rows().append(entry);
    grid().setCurrentIndex(rows().index(rows().rowCount() - 1));
}

void EditContentEntry::remove() {
    const int row = grid().currentIndex().row();
    if (row < 0) return;
    rows().remove(row);
    grid().setCurrentIndex(rows().index(std::min(row, rows().rowCount() - 1)));
    updateRemove();
}

void EditContentEntry::updateRemove() {
    const bool hadFocus = mRemove->hasFocus();
    const bool canRemove = grid().currentIndex().isValid();
    mRemove->setEnabled(canRemove);
    if (hadFocus && !canRemove) mAdd->setFocus();
}

} // namespace Korvane
