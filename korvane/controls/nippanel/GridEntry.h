#pragma once

#include <korvane/controls/nippanel/ChoiceModel.h>
#include <korvane/controls/nippanel/EntryControl.h>

#include <QStringList>

class QListView;

namespace Korvane {

/// What the list display types share: a grid (`gridNip`) over a `ChoiceModel`, 1140 twips high, except in the
/// groups "Problem List" and "Billing", where it takes the height of the tab.
class GridEntry : public EntryControl {
  public:
    GridEntry(EntrySite entrySite, ChoiceModel::Checking checking);

    QWidget* widget() const override;
    int height(const Twips& twips, int tabHeight) const override;
    bool isWide() const override { return mFillsTab; }

  protected:
    QListView& grid() const { return *mGrid; }
    ChoiceModel& rows() const { return *mRows; }

    /// Shows the field's allowed values, those of `chosen` checked; an entry of `chosen` that is not among
    /// them stands at the end. Each entry checks one row. The first row checked becomes the current one and
    /// is in view.
    void showChoices(const QStringList& chosen);

    /// Makes the entries the field's `ChoiceList`, and its value as it will be stored.
    void storeEntries(const QStringList& entries) const;

  private:
    std::vector<ChoiceRow> rowsFor(const QStringList& chosen) const;

    QListView* mGrid;
    ChoiceModel* mRows;
    bool mFillsTab;
};

} // namespace Korvane
