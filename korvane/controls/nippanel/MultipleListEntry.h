#pragma once

#include <korvane/controls/nippanel/GridEntry.h>

namespace Korvane {

/// "LIST-MULTIPLE": the checked values, in list order, are the field's `ChoiceList`.
class MultipleListEntry : public GridEntry {
  public:
    explicit MultipleListEntry(EntrySite entrySite) : GridEntry(std::move(entrySite), ChoiceModel::Many) {}

  private:
    void showValue() override;
    QStringList content() const override;
    void store(const QStringList& entries) override { storeEntries(entries); }
};

} // namespace Korvane
