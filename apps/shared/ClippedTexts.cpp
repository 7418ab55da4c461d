#include "shared/ClippedTexts.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabBar>

namespace Apps {

namespace {

int widthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

bool fits(const QLabel& label) {
    const QRect room = label.contentsRect();
    if (label.textFormat() != Qt::PlainText && Qt::mightBeRichText(label.text()))
        return label.heightForWidth(label.width()) <= label.height();
    const int flags = Qt::TextShowMnemonic | (label.wordWrap() ? Qt::TextWordWrap : 0);
    const QRect text = label.fontMetrics().boundingRect(room, flags, label.text());
    constexpr int rounding = 1;
    return text.width() <= room.width() && text.height() - rounding <= room.height();
}

bool fits(const QAbstractButton& button, QStyle::SubElement contents) {
    QStyleOptionButton option;
    option.initFrom(&button);
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width();
    const QRect room = button.style()->subElementRect(contents, &option, &button);
    return icon + widthOf(button, button.text()) <= room.width() &&
           button.fontMetrics().height() <= button.height();
}

bool fits(const QAbstractButton& button) {
    if (qobject_cast<const QCheckBox*>(&button)) return fits(button, QStyle::SE_CheckBoxContents);
    if (qobject_cast<const QRadioButton*>(&button)) return fits(button, QStyle::SE_RadioButtonContents);
    if (qobject_cast<const QPushButton*>(&button)) return fits(button, QStyle::SE_PushButtonContents);
    return button.sizeHint().width() <= button.width();
}

/// Of a label or a button.
QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    return {};
}

/// What of a widget's parts is too wide; the whole widget's text where it has no parts.
QStringList tooWide(const QWidget& widget) {
    QStringList found;
    const auto check = [&](const QString& text, bool isFit) {
        if (!text.isEmpty() && !isFit) found << text;
    };
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        check(label->text(), fits(*label));
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        check(button->text(), fits(*button));
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        check(group->title(), widthOf(*group, group->title()) <= group->width());
    } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        const bool isEmpty = line->text().isEmpty();
        check(isEmpty ? line->placeholderText() : QString(),
              widthOf(*line, line->placeholderText()) <= line->contentsRect().width());
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            check(tabs->tabText(i), widthOf(*tabs, tabs->tabText(i)) <= tabs->tabRect(i).width());
    } else if (const auto* head = qobject_cast<const QHeaderView*>(&widget)) {
        for (int i = 0; i < head->count() && head->orientation() == Qt::Horizontal; ++i) {
            const QString text = head->model()->headerData(i, Qt::Horizontal).toString();
            check(head->isSectionHidden(i) ? QString() : text, widthOf(*head, text) <= head->sectionSize(i));
        }
    }
    return found;
}

/// Nothing is cut off by what the widget stands in; what can be scrolled to is not.
bool isInside(const QWidget& widget) {
    const QWidget* inner = &widget;
    while (!inner->isWindow()) {
        const QWidget* outer = inner->parentWidget();
        const auto* area = qobject_cast<const QAbstractScrollArea*>(outer->parentWidget());
        if (area && area->viewport() == outer) return true;
        if (!outer->rect().contains(QRect(widget.mapTo(outer, QPoint()), widget.size()))) return false;
        inner = outer;
    }
    return true;
}

} // namespace

QStringList clippedTexts(const QWidget& window) {
    QStringList found;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) continue;
        QStringList texts = tooWide(*widget);
        const QString whole = textOf(*widget);
        if (texts.isEmpty() && !whole.isEmpty() && !isInside(*widget)) texts << whole;
        for (const QString& text : texts)
            found << QStringLiteral("%1 %2: %3")
                         .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName(),
                              text);
    }
    return found;
}

} // namespace Apps
