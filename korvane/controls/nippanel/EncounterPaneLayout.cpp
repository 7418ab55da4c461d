#include <korvane/controls/nippanel/EncounterPane.h>

#include <korvane/controls/container/Twips.h>

#include <QComboBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace Korvane {

namespace {

constexpr int descriptionWidth = 3000;

struct Place {
    int row, column, columnSpan;
};

/// Where each of the three label and control pairs stands when there is room for so many rows.
Place placeOf(int pair, int rows) {
    if (rows == 1) return {0, 2 * pair, 1};
    if (rows == 3) return {pair, 0, 1};
    return pair == 0 ? Place{0, 0, 3} : Place{1, 2 * (pair - 1), 1};
}

} // namespace

int EncounterPane::neededWidth(int rows) const {
    const int gap = mGrid->horizontalSpacing();
    const int description = mLabels[0]->sizeHint().width() + gap + Twips(*this).px(descriptionWidth);
    const int date = mLabels[1]->sizeHint().width() + gap + mDate->sizeHint().width();
    const int provider = mLabels[2]->sizeHint().width() + gap + mProvider->sizeHint().width();
    if (rows == 1) return description + date + provider + 2 * gap;
    const int widestLabel = std::max(mLabels[0]->sizeHint().width(), mLabels[1]->sizeHint().width());
    return widestLabel + mDate->sizeHint().width() + provider + 2 * gap;
}

/// One row where it fits; else the description above date and provider; else one below the other.
void EncounterPane::arrange() {
    const int rows = width() >= neededWidth(1) ? 1 : width() >= neededWidth(2) ? 2 : 3;
    if (rows == mRows) return;
    mRows = rows;
    QWidget* const controls[] = {mDescription, mDate, mProvider};
    for (int column = 0; column < 6; ++column)
        mGrid->setColumnStretch(column, 0);
    for (int pair = 0; pair < 3; ++pair) {
        const Place place = placeOf(pair, rows);
        mGrid->removeWidget(mLabels[pair]);
        mGrid->removeWidget(controls[pair]);
        mGrid->addWidget(mLabels[pair], place.row, place.column);
        mGrid->addWidget(controls[pair], place.row, place.column + 1, 1, place.columnSpan);
    }
    mGrid->setColumnStretch(rows == 2 ? 3 : 1, 1);
    updateGeometry();
}

QSize EncounterPane::sizeHint() const {
    return {neededWidth(1), mGrid->sizeHint().height()};
}

/// Narrower than its present rows need, since it then makes more of them.
QSize EncounterPane::minimumSizeHint() const {
    const int label = mLabels[0]->sizeHint().width() + mGrid->horizontalSpacing();
    return {label + std::max(mDate->sizeHint().width(), mProvider->minimumSizeHint().width()),
            mGrid->sizeHint().height()};
}

void EncounterPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void EncounterPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) arrange();
}

} // namespace Korvane
