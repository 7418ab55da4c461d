#include <korvane/controls/nippanel/GridEntry.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/ChoiceView.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr int gridHeight = 1140;

bool listsFillTab(const std::string& group) {
    return group == "Problem List" || group == "Billing";
}

} // namespace

GridEntry::GridEntry(EntrySite entrySite, ChoiceModel::Checking checking)
    : EntryControl(std::move(entrySite)), mGrid(new ChoiceView(site().parent)),
      mRows(new ChoiceModel(checking, mGrid)), mFillsTab(listsFillTab(site().nip.GroupName(site().group))) {
    mGrid->setModel(mRows);
    const auto edited = [this] { site().edited(); };
    QObject::connect(mRows, &ChoiceModel::dataChanged, mGrid, edited);
    QObject::connect(mRows, &ChoiceModel::rowsInserted, mGrid, edited);
    QObject::connect(mRows, &ChoiceModel::rowsRemoved, mGrid, edited);
}

QWidget* GridEntry::widget() const {
    return mGrid;
}

int GridEntry::height(const Twips& twips, int tabHeight) const {
    return mFillsTab ? std::max(tabHeight, twips.px(gridHeight)) : twips.px(gridHeight);
}

std::vector<ChoiceRow> GridEntry::rowsFor(const QStringList& chosen) const {
    std::vector<ChoiceRow> rows;
    const auto append = [&rows](const QString& content, bool checked) {
        rows.push_back({checked, content, static_cast<int>(rows.size()) + 1});
    };
    for (const QString& value : site().allowedValues())
        append(value, false);
    for (const QString& entry : chosen) {
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const ChoiceRow& r) { return !r.checked && r.content == entry; });
        if (row != rows.end())
            row->checked = true;
        else if (!entry.isEmpty())
            append(entry, true);
    }
    return rows;
}

// Current, but not selected: what is chosen is seen from the check box.
void GridEntry::showChoices(const QStringList& chosen) {
    std::vector<ChoiceRow> choices = rowsFor(chosen);
    const auto checked =
        std::find_if(choices.begin(), choices.end(), [](const ChoiceRow& row) { return row.checked; });
    const int current = checked == choices.end() ? -1 : checked->index - 1;
    mRows->show(std::move(choices));
    mGrid->scrollToTop();
    mGrid->selectionModel()->setCurrentIndex(mRows->index(current), QItemSelectionModel::NoUpdate);
}

void GridEntry::storeEntries(const QStringList& entries) const {
    if (entries.size() > std::numeric_limits<std::int16_t>::max()) throw RuntimeError(RuntimeError::Overflow);
    VariantArray list;
    for (const QString& entry : entries)
        list.elements.emplace_back(utf8(entry));
    site().nip.ChoiceList(site().group, site().field, Variant(std::move(list)));
    site().nip.ChoiceListCount(site().group, site().field, static_cast<std::int16_t>(entries.size()));
    site().store(entries.join(QLatin1Char('|')));
}

} // namespace Korvane
