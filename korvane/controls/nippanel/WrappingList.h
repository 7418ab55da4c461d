#pragma once

#include <QListView>

namespace Korvane {

/// A list whose long rows wrap, so that each can be read whole.
class WrappingList : public QListView {
  public:
    explicit WrappingList(QWidget* parent);
};

} // namespace Korvane
