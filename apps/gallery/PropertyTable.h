#pragma once

#include <QTableView>

namespace Gallery {

class PropertyModel;

/// The properties of a control, to be changed while it is looked at: by mouse, or with F2 or by typing on a
/// value, Space on a check box.
class PropertyTable : public QTableView {
    Q_OBJECT

  public:
    explicit PropertyTable(PropertyModel& model);
};

} // namespace Gallery
