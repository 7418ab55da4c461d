#pragma once

#include <korvane/controls/nippanel/GridEntry.h>

namespace Korvane {

/// "LIST-MULTIPLE": the checked values, in list order, are the field's `ChoiceList`.
class MultipleListEntry : public GridEntry {
  public:
    explicit MultipleListEntry(EntrySite entrySite) : GridEntry(std::move(entrySite), ChoiceModel::Many) {}

    void fill() override;
    void collect() override;

  private:
    QStringList mShown;
};

} // namespace Korvane
