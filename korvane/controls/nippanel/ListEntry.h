#pragma once

#include <korvane/controls/nippanel/GridEntry.h>

namespace Korvane {

/// "LIST": at most one of the field's values is checked and is the field's value; empty when none is.
class ListEntry : public GridEntry {
  public:
    explicit ListEntry(EntrySite entrySite) : GridEntry(std::move(entrySite), ChoiceModel::One) {}

  private:
    void showValue() override;
    QStringList content() const override;
};

} // namespace Korvane
