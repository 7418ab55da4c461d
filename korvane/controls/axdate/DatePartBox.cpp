#include <korvane/controls/axdate/DatePartBox.h>

#include <korvane/controls/axdate/GivenDate.h>
#include <korvane/controls/container/Keys.h>
#include <korvane/controls/container/Text.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace Korvane {

namespace {

bool isDigits(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

/// The validator lets anything through once the host has set a text that is not valid.
bool isDiscarded(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = key.text();
    return held != Qt::ControlModifier && !text.isEmpty() &&
           text.front().category() != QChar::Other_Control && !isDigits(text);
}

} // namespace

void acceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

DatePartBox::DatePartBox(int index, QWidget* parent) : QLineEdit(parent), mIndex(index) {
    setObjectName(QStringLiteral("txtDate(%1)").arg(index));
    // Digits run from left to right wherever the form comes from.
    setLayoutDirection(Qt::LeftToRight);
    setInputMethodHints(Qt::ImhDigitsOnly);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
}

QSize DatePartBox::sizeFor(int digits) const {
    ensurePolished();
    const QFontMetrics metrics(font());
    const int text = std::max(metrics.horizontalAdvance(QString(digits, u'0')),
                              metrics.horizontalAdvance(placeholderText()));
    // Beside the text stand a margin on both sides and the cursor.
    constexpr int besideText = 2 * 2 + 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    return {style()
                ->sizeFromContents(QStyle::CT_LineEdit, &option, {text + besideText, metrics.height()}, this)
                .width(),
            QLineEdit::sizeHint().height()};
}

/// A text that is selected as a whole lies at both edges.
bool DatePartBox::isAtEdge(int key) const {
    if (hasSelectedText()) return selectedText() == text();
    return key == Qt::Key_Left ? cursorPosition() == 0 : cursorPosition() == text().size();
}

void DatePartBox::keyPressEvent(QKeyEvent* event) {
    const bool plain = isPlain(*event);
    const int key = event->key();
    if (event->matches(QKeySequence::Copy)) return emit copyWanted();
    if (event->matches(QKeySequence::Paste)) return takeClipboard();
    if (plain && (key == Qt::Key_Up || key == Qt::Key_Down))
        return emit stepWanted(key == Qt::Key_Up ? 1 : -1);
    if (plain && (key == Qt::Key_Left || key == Qt::Key_Right) && isAtEdge(key))
        return emit moveWanted(key == Qt::Key_Left ? -1 : 1);
    if (isDiscarded(*event)) return;
    if (isEnter(*event)) emit enterPressed();
    QLineEdit::keyPressEvent(event);
}

void DatePartBox::inputMethodEvent(QInputMethodEvent* event) {
    if (!isDigits(event->commitString())) event->setCommitString(QString());
    QLineEdit::inputMethodEvent(event);
}

void DatePartBox::focusInEvent(QFocusEvent* event) {
    mClickBroughtFocus = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MenuBarFocusReason) selectAll(); // the menu bar is no leaving
}

void DatePartBox::mousePressEvent(QMouseEvent* event) {
    if (!mClickBroughtFocus) QLineEdit::mousePressEvent(event);
}

void DatePartBox::mouseMoveEvent(QMouseEvent* event) {
    if (!mClickBroughtFocus) QLineEdit::mouseMoveEvent(event);
}

void DatePartBox::mouseReleaseEvent(QMouseEvent* event) {
    mClickBroughtFocus = false;
    if (event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection())
        return takeClipboard(QClipboard::Selection);
    QLineEdit::mouseReleaseEvent(event);
}

/// False when it holds nothing for a date.
bool DatePartBox::take(const QString& text) {
    const QString trimmed = text.trimmed();
    if (!trimmed.isEmpty() && isDigits(trimmed)) {
        insert(trimmed);
        return true;
    }
    const auto date = givenDate(utf8(trimmed));
    if (date)
        emit dateGiven(*date);
    else
        QApplication::beep();
    return date.has_value();
}

void DatePartBox::takeClipboard(QClipboard::Mode mode) {
    take(QApplication::clipboard()->text(mode));
}

/// What the base's menu copies and pastes is the part alone.
void DatePartBox::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto offer = [&](const char* name, const QString& text, auto deed) {
        auto* action = menu->addAction(text, this, deed);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    offer("edit-cut", tr("Cu&t"), &QLineEdit::cut)->setEnabled(hasSelectedText());
    offer("edit-copy", tr("&Copy date"), &DatePartBox::copyWanted);
    offer("edit-paste", tr("&Paste"), [this] { takeClipboard(); });
    offer("edit-select-all", tr("Select &all"), &QLineEdit::selectAll);
    menu->popup(event->globalPos());
}

void DatePartBox::dropEvent(QDropEvent* event) {
    QDragLeaveEvent over;
    dragLeaveEvent(&over); // takes the cursor away that showed where
    if (take(event->mimeData()->text()))
        acceptCopy(*event);
    else
        event->ignore();
}

} // namespace Korvane
