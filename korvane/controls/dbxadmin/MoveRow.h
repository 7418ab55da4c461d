#pragma once

#include <korvane/controls/buttons/ButtonFocus.h>

#include <QWidget>

class QLabel;

namespace Korvane {

/// Four record-move buttons (`cmdMove(0)` to `cmdMove(3)`) with the number of the record in their middle.
class MoveRow : public QWidget {
    Q_OBJECT

  public:
    explicit MoveRow(QWidget* parent);
    ~MoveRow() override;

    QLabel& number() const { return *mNumber; }

  signals:
    void clicked(int index);

  private:
    QWidget* makeButton(int index);

    ButtonFocus mRow;
    QLabel* mNumber;
};

} // namespace Korvane
