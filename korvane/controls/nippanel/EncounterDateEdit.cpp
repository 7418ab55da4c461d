#include <korvane/controls/nippanel/EncounterDateEdit.h>

#include <korvane/controls/nippanel/TypedDate.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QWheelEvent>

namespace Korvane {

namespace {

const QRegularExpression& separators() {
    static const QRegularExpression any("[/: ]");
    return any;
}

/// The base knows what to do with these; all others are for the text.
bool isOfTheEditor(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

} // namespace

EncounterDateEdit::EncounterDateEdit(QWidget* parent) : QDateTimeEdit(parent) {
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setDisplayFormat("M/d/yyyy h:mm AP");
    setDateTimeRange(QDateTime(QDate(100, 1, 1), QTime(0, 0)),
                     QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)));
    setSpecialValueText(" ");
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    // What comes by other ways than keys: pasted, cut, composed. The base hears no more of it than of keys.
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        lineEdit()->blockSignals(!isShown(text()));
        emit typed();
    });
}

bool EncounterDateEdit::isShown(const QString& text) const {
    if (dateTime() == minimumDateTime()) return text.trimmed().isEmpty();
    return text == textFromDateTime(dateTime());
}

bool EncounterDateEdit::take() {
    if (!isShown(text())) {
        const auto date = typedDate(text(), dateTime());
        if (!date) return false;
        setDateTime(*date);
    }
    lineEdit()->blockSignals(false);
    return true;
}

void EncounterDateEdit::stepBy(int steps) {
    if (!take()) return;
    constexpr Section sections[] = {MonthSection, DaySection, YearSection, HourSection, MinuteSection};
    const qsizetype before = text().left(lineEdit()->cursorPosition()).count(separators());
    setCurrentSection(before < std::ssize(sections) ? sections[before] : AmPmSection);
    QDateTimeEdit::stepBy(steps);
}

/// The base would go by sections, each of which it completes and leaves at once, and would put the date
/// before in place of a text that is none yet: it is not to hear from the line edit until the text is taken.
void EncounterDateEdit::keyPressEvent(QKeyEvent* event) {
    if (isOfTheEditor(event->key())) {
        if (take()) QDateTimeEdit::keyPressEvent(event);
        return;
    }
    const QString before = text();
    lineEdit()->blockSignals(true);
    if (!passesOver(event->text())) lineEdit()->event(event);
    lineEdit()->blockSignals(!isShown(text()));
    if (text() != before) emit typed();
}

/// Whoever types over one part after the other types the separator that is there already: the next part is
/// then selected.
bool EncounterDateEdit::passesOver(const QString& separator) {
    const QString shown = text();
    const qsizetype at = lineEdit()->cursorPosition();
    if (separator.size() != 1 || !separator.contains(separators()) || lineEdit()->hasSelectedText() ||
        at == 0 || shown.mid(at, 1) != separator)
        return false;
    const qsizetype end = shown.indexOf(separators(), at + 1);
    const qsizetype length = (end < 0 ? shown.size() : end) - at - 1;
    lineEdit()->setSelection(static_cast<int>(at + 1), static_cast<int>(length));
    return true;
}

// Past the base, which would put the date before in place of a text that is none, and go by sections.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void EncounterDateEdit::focusInEvent(QFocusEvent* event) {
    take() ? QDateTimeEdit::focusInEvent(event) : QAbstractSpinBox::focusInEvent(event);
}

void EncounterDateEdit::focusOutEvent(QFocusEvent* event) {
    if (take()) return QDateTimeEdit::focusOutEvent(event);
    lineEdit()->event(event);
    QWidget::focusOutEvent(event);
}

void EncounterDateEdit::hideEvent(QHideEvent* event) {
    take() ? QDateTimeEdit::hideEvent(event) : QWidget::hideEvent(event);
}

void EncounterDateEdit::showEvent(QShowEvent* event) {
    take() ? QDateTimeEdit::showEvent(event) : QWidget::showEvent(event);
}

// No calendar over a text that is no date: on closing it would put the date before in its place.
void EncounterDateEdit::mousePressEvent(QMouseEvent* event) {
    take() ? QDateTimeEdit::mousePressEvent(event) : QWidget::mousePressEvent(event);
}

bool EncounterDateEdit::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next);
}
// NOLINTEND(bugprone-parent-virtual-call)

void EncounterDateEdit::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QValidator::State EncounterDateEdit::validate(QString& text, int&) const {
    return isShown(text) || typedDate(text, dateTime()) ? QValidator::Acceptable : QValidator::Intermediate;
}

QDateTime EncounterDateEdit::dateTimeFromText(const QString& text) const {
    return isShown(text) ? dateTime() : typedDate(text, dateTime()).value_or(dateTime());
}

} // namespace Korvane
