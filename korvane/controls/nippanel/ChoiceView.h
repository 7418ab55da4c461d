#pragma once

#include <korvane/controls/nippanel/WrappingList.h>

namespace Korvane {

/// A list grid: a click anywhere on a row with a check box, or the space bar, turns it.
class ChoiceView : public WrappingList {
  public:
    using WrappingList::WrappingList;

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
};

} // namespace Korvane
