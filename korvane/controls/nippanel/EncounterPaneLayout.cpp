#include <korvane/controls/nippanel/EncounterPane.h>

#include <korvane/controls/container/PageCombo.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/EncounterDateEdit.h>

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace Korvane {

namespace {

constexpr int gapBetween = 75;
constexpr int descriptionWidth = 3000;

} // namespace

/// The widths that the three pairs of label and control ask for, in pixels.
struct EncounterPane::Measures {
    explicit Measures(const EncounterPane& pane) {
        const Twips twips(pane);
        line = twips.px(Twips::oneLine);
        gap = twips.px(gapBetween);
        for (int i = 0; i < 3; ++i)
            label[i] = pane.mLabels[i]->sizeHint().width();
        control[0] = twips.px(descriptionWidth);
        control[1] = pane.mDate->sizeHint().width();
        control[2] = pane.mProvider->sizeHint().width();
    }

    int pair(int i) const { return label[i] + gap + control[i]; }
    int oneRow() const { return pair(0) + pair(1) + pair(2) + 4 * gap; }
    int twoRows() const { return std::max(label[0], label[1]) + gap + control[1] + 2 * gap + pair(2); }
    int widestLabel() const { return *std::max_element(label, label + 3); }

    /// One row where it fits; else the description above date and provider; else one below the other.
    int rowsFor(int width) const { return width >= oneRow() ? 1 : width >= twoRows() ? 2 : 3; }
    int height(int rows) const { return rows * line + (rows - 1) * gap; }

    int line = 0;
    int gap = 0;
    int label[3] = {};
    int control[3] = {};
};

void EncounterPane::arrange() {
    const Measures measures(*this);
    const int rows = measures.rowsFor(width());
    switch (rows) {
    case 1:
        arrangeOneRow(measures);
        break;
    case 2:
        arrangeTwoRows(measures);
        break;
    default:
        arrangeThreeRows(measures);
    }
    if (minimumHeight() != measures.height(rows)) setFixedHeight(measures.height(rows));
}

/// What is left over goes to the description, a third of it to the provider's name.
void EncounterPane::arrangeOneRow(const Measures& s) {
    const int spare = width() - s.oneRow();
    const int description = s.control[0] + spare - spare / 3;
    const int provider = s.control[2] + spare / 3;
    int x = place(0, {0, 0}, s.label[0], description, s) + 2 * s.gap;
    x = place(1, {x, 0}, s.label[1], s.control[1], s) + 2 * s.gap;
    place(2, {x, 0}, s.label[2], provider, s);
}

void EncounterPane::arrangeTwoRows(const Measures& s) {
    const int label = std::max(s.label[0], s.label[1]);
    const int below = s.line + s.gap;
    place(0, {0, 0}, label, width() - label - s.gap, s);
    const int x = place(1, {0, below}, label, s.control[1], s) + 2 * s.gap;
    place(2, {x, below}, s.label[2], width() - x - s.label[2] - s.gap, s);
}

void EncounterPane::arrangeThreeRows(const Measures& s) {
    const int label = s.widestLabel();
    for (int i = 0; i < 3; ++i)
        place(i, {0, i * (s.line + s.gap)}, label, width() - label - s.gap, s);
}

/// Puts a label and its control there; returns where they end.
int EncounterPane::place(int pair, QPoint at, int labelWidth, int controlWidth, const Measures& s) {
    QWidget* const controls[] = {mDescription, mDate, mProvider};
    const QRect label(at, QSize(labelWidth, s.line));
    const QRect control(at.x() + labelWidth + s.gap, at.y(), controlWidth, s.line);
    mLabels[pair]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), label));
    controls[pair]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), control));
    return control.x() + control.width();
}

QSize EncounterPane::sizeHint() const {
    const Measures measures(*this);
    return {measures.oneRow(), measures.height(measures.rowsFor(width()))};
}

/// Narrower than its present rows need, since it then makes more of them.
QSize EncounterPane::minimumSizeHint() const {
    const Measures measures(*this);
    return {measures.widestLabel() + measures.gap + measures.control[1],
            measures.height(measures.rowsFor(width()))};
}

void EncounterPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

bool EncounterPane::event(QEvent* event) {
    const bool done = QWidget::event(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::LayoutRequest:
        arrange();
        break;
    default:
        break;
    }
    return done;
}

} // namespace Korvane
