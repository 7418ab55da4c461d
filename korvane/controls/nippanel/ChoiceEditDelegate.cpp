#include <korvane/controls/nippanel/ChoiceEditDelegate.h>

#include <korvane/controls/nippanel/ChoiceOrderModel.h>

#include <limits>

namespace Korvane {

namespace {

QColor warningColour(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 140, 140) : QColor(176, 0, 32);
}

} // namespace

QString ChoiceEditDelegate::fault() const {
    if (!mBox || !mEdited.isValid()) return {};
    return static_cast<const ChoiceOrderModel*>(mEdited.model())->fault(mBox->text(), mEdited.row());
}

bool ChoiceEditDelegate::isTyping() const {
    return mBox && mEdited.isValid() && mBox->text() != mEdited.data(Qt::EditRole).toString();
}

QWidget* ChoiceEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    auto* box = new QLineEdit(parent);
    box->setObjectName("txtNipChoice");
    box->setAccessibleName(tr("Choice"));
    box->setMaxLength(std::numeric_limits<int>::max());
    box->setAutoFillBackground(true);
    mBox = box;
    mEdited = index;
    connect(box, &QLineEdit::textChanged, this, [this] {
        showFault();
        emit typed();
    });
    return box;
}

void ChoiceEditDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
    if (editor == mBox) {
        mBox.clear();
        mEdited = QModelIndex();
        emit typed();
    }
    ChoiceRowDelegate::destroyEditor(editor, index);
}

void ChoiceEditDelegate::showFault() const {
    const QString why = fault();
    QPalette palette;
    if (!why.isEmpty()) palette.setColor(QPalette::Text, warningColour(palette));
    mBox->setPalette(palette);
    mBox->setToolTip(why);
    mBox->setAccessibleDescription(why);
}

void ChoiceEditDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    ChoiceRowDelegate::initStyleOption(option, index);
    if (index.data(Qt::CheckStateRole).toInt() != Qt::Checked) return;
    option->text = tr("%1  (default)").arg(option->text);
    option->font.setBold(true);
    option->fontMetrics = QFontMetrics(option->font);
}

} // namespace Korvane
