#include <korvane/controls/dbxadmin/ValueList.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/controls/container/UserControl.h>
#include <korvane/controls/dbxadmin/ListText.h>

#include <QAccessible>
#include <QBoxLayout>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolTip>
#include <QValidator>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr int leastList = 3 * Twips::oneLine;
constexpr int roomyNewValue = 1800;
constexpr int leastButton = 800;

class OneItem : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        return canBeListItem(input) ? Acceptable : Invalid;
    }
};

} // namespace

ValueList::ValueList(const UserControl& control, QWidget* parent)
    : QWidget(parent), mControl(control), txtAddtoList(new QLineEdit(this)),
      cmdAddtoList(new CommandButton(this)), lstAddtoList(new QListWidget(this)), mEntryRow(new QHBoxLayout) {
    makeEntry();
    makeList();
    mEntryRow->addWidget(txtAddtoList, 1);
    mEntryRow->addWidget(cmdAddtoList);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addLayout(mEntryRow);
    rows->addWidget(lstAddtoList, 1);
    followStyle();
    showButton();
}

void ValueList::makeEntry() {
    txtAddtoList->setObjectName(QStringLiteral("txtAddtoList"));
    txtAddtoList->setAccessibleName(tr("Value to add"));
    txtAddtoList->setMaxLength(std::numeric_limits<int>::max());
    txtAddtoList->setValidator(new OneItem(txtAddtoList));
    txtAddtoList->installEventFilter(this);
    connect(txtAddtoList, &QLineEdit::textChanged, this, &ValueList::typed);
    connect(txtAddtoList, &QLineEdit::inputRejected, this, &ValueList::explainSeparator);
    cmdAddtoList->setObjectName(QStringLiteral("cmdAddtoList"));
    connect(cmdAddtoList, &QPushButton::clicked, this, [this] {
        if (!mControl.designMode()) mRemoves ? remove(false) : add();
    });
}

void ValueList::makeList() {
    lstAddtoList->setObjectName(QStringLiteral("lstAddtoList"));
    lstAddtoList->setAccessibleName(tr("Values of the list"));
    lstAddtoList->installEventFilter(this);
    connect(lstAddtoList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) setRemoves(true);
    });
    connect(lstAddtoList, &QListWidget::itemClicked, this, [this] { setRemoves(selectedRow() >= 0); });
}

void ValueList::explainSeparator() {
    const QString text = tr("A value cannot hold a \"%1\": it separates the values.").arg(listSeparator);
    QToolTip::showText(txtAddtoList->mapToGlobal(txtAddtoList->rect().bottomLeft()), text, txtAddtoList);
    txtAddtoList->setAccessibleDescription(text);
    QAccessibleEvent alert(txtAddtoList, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ValueList::arrangeFor(int width) {
    const bool wide = width >= wideWidth();
    mEntryRow->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    cmdAddtoList->setMinimumWidth(wide ? mButtonWidth : Twips(*this).px(leastButton));
}

int ValueList::wideWidth() const {
    return Twips(*this).px(roomyNewValue) + mEntryRow->spacing() + mButtonWidth;
}

void ValueList::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        followStyle();
        break;
    default:
        break;
    }
}

/// The button is wide enough for either caption, so that nothing moves when it changes.
void ValueList::followStyle() {
    QPushButton probe(this);
    mButtonWidth = 0;
    for (const QString& text : {tr("Remove from List"), tr("Add to List")}) {
        probe.setText(text);
        mButtonWidth = std::max(mButtonWidth, probe.sizeHint().width());
    }
    lstAddtoList->setMinimumHeight(Twips(*this).px(leastList));
    QPalette entry;
    entry.setBrush(QPalette::Disabled, QPalette::Base, palette().brush(QPalette::Disabled, QPalette::Window));
    txtAddtoList->setPalette(entry);
}

} // namespace Korvane
