#include <korvane/controls/axdate/axDate.h>

#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/DateVoice.h>
#include <korvane/controls/axdate/GivenDate.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QEvent>
#include <QLineEdit>
#include <QMimeData>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr int gap = 45;

} // namespace

axDate::axDate(QWidget* parent, bool dragonSpeechEnabled)
    : UserControl(parent), txtWholeDate(new QLineEdit(this)), mDragonSpeechEnabled(dragonSpeechEnabled) {
    mNextFieldCommand = QStringLiteral("Next Field");
    mPreviousFieldCommand = QStringLiteral("Previous Field");
    FocusSteps::Handler& steps = *this;
    mFocus = std::make_unique<FocusSteps>(*this, steps);
    txtWholeDate->setObjectName(QStringLiteral("txtWholeDate"));
    txtWholeDate->setReadOnly(true);
    txtWholeDate->setMaxLength(std::numeric_limits<int>::max());
    txtWholeDate->setAcceptDrops(true);
    txtWholeDate->setPlaceholderText(tr("MM/DD/YYYY"));
    txtWholeDate->setAccessibleName(tr("Date"));
    txtWholeDate->installEventFilter(this);
    mFocus->add(*txtWholeDate);
    makeBox(0, tr("Month"), tr("MM"));
    makeBox(1, tr("Day"), tr("DD"));
    makeBox(2, tr("Year"), tr("YYYY"));
    // Without a policy of its own it would have no place in a tab order. Its gaps take no clicks.
    setFocusPolicy(Qt::TabFocus);
    setFocusProxy(txtWholeDate);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    makeVoice();
    if (mDragonSpeechEnabled) mVoice->create();
}

axDate::~axDate() = default;

void axDate::makeBox(int index, const QString& name, const QString& placeholder) {
    auto* made = new DatePartBox(index, this);
    mBoxes.at(static_cast<std::size_t>(index)) = made;
    made->setAccessibleName(name);
    made->setPlaceholderText(placeholder);
    made->hide();
    mFocus->add(*made);
    connect(made, &QLineEdit::textChanged, this,
            [this, index] { partChanged(index, box(index).hasFocus()); });
    connect(made, &DatePartBox::enterPressed, this, [index] { leaveByTabs(index); });
    connect(made, &DatePartBox::stepWanted, this, [this, index](int by) { step(index, by); });
    connect(made, &DatePartBox::copyWanted, this, [this, index] { copyDate(index); });
    connect(made, &DatePartBox::dateGiven, this, &axDate::take);
    connect(made, &DatePartBox::moveWanted, this, [this, index](int by) { moveBy(index, by); });
}

/// The whole date box is no text to edit, but a whole date can be dropped on it.
bool axDate::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtWholeDate || !txtWholeDate->isEnabled()) return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto& drag = *static_cast<QDragMoveEvent*>(event);
        if (drag.mimeData()->hasText()) drag.acceptProposedAction();
        return true;
    }
    case QEvent::Drop: {
        auto& drop = *static_cast<QDropEvent*>(event);
        const auto given = givenDate(utf8(drop.mimeData()->text()));
        if (!given) {
            drop.ignore();
            QApplication::beep();
            return true;
        }
        acceptCopy(drop);
        take(*given);
        return true;
    }
    default:
        return false;
    }
}

void axDate::resizeEvent(QResizeEvent* event) {
    UserControl::resizeEvent(event);
    arrange();
}

void axDate::changeEvent(QEvent* event) {
    UserControl::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    arrange();
    updateGeometry();
}

void axDate::arrange() {
    const Twips twips(*this);
    const int unit = std::max(0, (twips.fromPx(width()) - 2 * gap) / 4);
    txtWholeDate->setGeometry(rect());
    int left = 0;
    for (DatePartBox* each : mBoxes) {
        const int wide = each->index() == 2 ? 2 * unit : unit;
        each->setGeometry(twips.px(left), 0, twips.px(wide), height());
        left += wide + gap;
    }
}

QSize axDate::sizeHint() const {
    const Twips twips(*this);
    const int unit = std::max(box(0).sizeFor(2).width(), (box(2).sizeFor(4).width() + 1) / 2);
    // The unit is rounded down to whole twips, each box to whole pixels.
    return {4 * (unit + 1) + twips.px(2 * gap), twips.px(Twips::oneLine)};
}

QSize axDate::minimumSizeHint() const {
    return sizeHint();
}

} // namespace Korvane
