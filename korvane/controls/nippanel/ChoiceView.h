#pragma once

#include <QListView>

namespace Korvane {

/// A list grid: long rows wrap, a click anywhere on a row with a check box, or the space bar, turns it.
class ChoiceView : public QListView {
  public:
    explicit ChoiceView(QWidget* parent);

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
};

} // namespace Korvane
