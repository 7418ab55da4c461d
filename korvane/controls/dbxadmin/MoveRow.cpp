#include <korvane/controls/dbxadmin/MoveRow.h>

#include <korvane/controls/buttons/MoveCaption.h>
#include <korvane/controls/buttons/PanelButton.h>

#include <QHBoxLayout>
#include <QLabel>

namespace Korvane {

MoveRow::MoveRow(QWidget* parent) : QWidget(parent), mRow(*this), mNumber(new QLabel(this)) {
    mNumber->setObjectName(QStringLiteral("lblRecNumber"));
    mNumber->setTextFormat(Qt::PlainText);
    mNumber->setAlignment(Qt::AlignCenter);
    mNumber->setAccessibleDescription(tr("Record number"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    for (int i = 0; i < 4; ++i)
        row->addWidget(makeButton(i));
    row->insertWidget(2, mNumber, 1);
    row->insertSpacing(3, fontMetrics().averageCharWidth());
    row->insertSpacing(2, fontMetrics().averageCharWidth());
}

/// The buttons still speak to the row while they are destroyed.
MoveRow::~MoveRow() {
    qDeleteAll(findChildren<PanelButton*>());
}

QWidget* MoveRow::makeButton(int index) {
    auto* button = new PanelButton(mRow, this);
    button->setObjectName(QStringLiteral("cmdMove(%1)").arg(index));
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    showMoveCaption(*button, index, moveCaptions()[index]);
    connect(button, &QPushButton::clicked, this, [this, index] { emit clicked(index); });
    return button;
}

} // namespace Korvane
