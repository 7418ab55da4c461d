#include "clinic/tour/Form.h"

#include "shared/Failure.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace Clinic {

using Apps::Failure;
using Apps::require;

namespace {

QModelIndex rowOf(const QAbstractItemView& view, const QString& text) {
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        if (index.data().toString() == text) return index;
    }
    throw Failure(QStringLiteral("The list has no row \"%1\".").arg(text));
}

/// The rows that stand for the value: those that are checked, or all where none can be.
QString chosenRows(const QAbstractItemView& view) {
    QStringList rows;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        const QVariant state = index.data(Qt::CheckStateRole);
        if (!state.isValid() || state.toInt() == Qt::Checked) rows << index.data().toString();
    }
    return rows.join(u'|');
}

} // namespace

Form::Form(QWidget& panel, Apps::Hand& hand, const Ledger& ledger)
    : mPanel(panel), mHand(hand), mLedger(ledger) {}

QWidget& Form::tagged(const QString& tag) {
    for (QWidget* widget : mPanel.findChildren<QWidget*>()) {
        if (widget->property("Tag").toString() == tag && widget->isVisible()) {
            mHand.reach(*widget);
            mHand.settle();
            return *widget;
        }
    }
    throw Failure(QStringLiteral("There is no control tagged %1 in view.").arg(tag));
}

QWidget& Form::control(const FieldName& name) {
    const auto place = mLedger.placeOf(name.group, name.field);
    showTab(place.group - 1);
    return tagged(QStringLiteral("%1::%2").arg(place.group).arg(place.field));
}

QWidget& Form::button(const FieldName& name, int number) {
    const auto place = mLedger.placeOf(name.group, name.field);
    showTab(place.group - 1);
    return tagged(QStringLiteral("%1::%2::%3").arg(place.group).arg(place.field).arg(number));
}

void Form::showTab(int index) {
    auto* tabs = mPanel.findChild<QTabWidget*>();
    require(tabs && index < tabs->count(), QStringLiteral("The form has no tab %1.").arg(index + 1));
    if (tabs->currentIndex() == index) return;
    QTabBar& bar = *tabs->tabBar();
    if (bar.rect().contains(bar.tabRect(index))) {
        mHand.click(bar, bar.tabRect(index).center());
    } else {
        bar.setFocus(Qt::TabFocusReason);
        for (int presses = tabs->count(); presses > 0 && tabs->currentIndex() != index; --presses)
            mHand.press(tabs->currentIndex() < index ? Qt::Key_Right : Qt::Key_Left);
    }
    require(tabs->currentIndex() == index, QStringLiteral("The tab %1 cannot be shown.").arg(index + 1));
}

void Form::write(QWidget& control, const QString& text) {
    mHand.click(control, QPoint(control.height() / 2, control.height() / 2));
    mHand.press(Qt::Key_A, Qt::ControlModifier);
    mHand.type(text);
}

void Form::pick(QComboBox& combo, const QString& item, const std::function<void()>& look) {
    mHand.click(combo);
    require(combo.view()->isVisible(), QStringLiteral("The list of a combo box does not open."));
    combo.view()->scrollTo(rowOf(*combo.view(), item));
    look();
    mHand.click(*combo.view()->viewport(), combo.view()->visualRect(rowOf(*combo.view(), item)).center());
    require(combo.currentText() == item, QStringLiteral("\"%1\" cannot be picked.").arg(item));
}

void Form::check(QAbstractItemView& grid, const QString& row) {
    const QModelIndex index = rowOf(grid, row);
    grid.scrollTo(index);
    const QRect line = grid.visualRect(index);
    mHand.click(*grid.viewport(), QPoint(line.left() + line.height() * 2, line.center().y()));
}

QString Form::shown(const FieldName& name) {
    QWidget& widget = control(name);
    if (const auto* box = qobject_cast<QLineEdit*>(&widget)) return box->text();
    if (const auto* combo = qobject_cast<QComboBox*>(&widget)) return combo->currentText();
    const auto* grid = qobject_cast<QAbstractItemView*>(&widget);
    require(grid, QStringLiteral("The control of a field is of a strange kind."));
    return chosenRows(*grid);
}

} // namespace Clinic
