#include <korvane/controls/dbxadmin/AdminForm.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/controls/dbxadmin/CodeBox.h>
#include <korvane/controls/dbxadmin/MoveRow.h>
#include <korvane/controls/dbxadmin/ValueList.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>

#include <QBoxLayout>
#include <QFormLayout>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr int widest = 12000;
constexpr int betweenColumns = 180;
constexpr int roomyEntry = 2100;
constexpr int lines = 6; // one for each entry, and more for the list
constexpr int leastHeight = 3 * Twips::oneLine;

QStringList displayTypes() {
    return {dbxadmin::tr("unspecified"), dbxadmin::tr("Text box"),       dbxadmin::tr("Date control"),
            dbxadmin::tr("List box"),    dbxadmin::tr("Special format"), dbxadmin::tr("phone number"),
            dbxadmin::tr("SS Number"),   dbxadmin::tr("Zip Code"),       dbxadmin::tr("Email")};
}

QStringList requiredStates() {
    return {dbxadmin::tr("Not Required"), dbxadmin::tr("Required"), dbxadmin::tr("Just a Reminder")};
}

} // namespace

AdminForm::AdminForm(const UserControl& control, QWidget* parent)
    : PaneScroll(parent), mBody(new QWidget), mEntries(makeEntries()), mValues(new ValueList(control, mBody)),
      mMoves(new MoveRow(mBody)), cmdUpdate(new CommandButton(mBody)), mUpper(new QHBoxLayout),
      mLower(new QHBoxLayout) {
    cmdUpdate->setObjectName(QStringLiteral("cmdUpdate"));
    cmdUpdate->setText(tr("&Update"));
    mUpper->addWidget(mEntries, 1);
    mUpper->addWidget(mValues, 1);
    mLower->addWidget(mMoves);
    mLower->addStretch(1);
    mLower->addWidget(cmdUpdate);
    auto* rows = new QVBoxLayout(mBody);
    rows->setContentsMargins({});
    rows->addLayout(mUpper, 1);
    rows->addLayout(mLower);
    setWidget(mBody);
    mBody->setAutoFillBackground(false);
}

QWidget* AdminForm::makeEntries() {
    auto* entries = new QWidget(mBody);
    mRows = new QFormLayout(entries);
    mRows->setContentsMargins({});
    mRows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addEntry(0, *(txtFldName = new QLineEdit(entries)), QStringLiteral("txtFldName"));
    addEntry(1, *(txtFldCaption = new QLineEdit(entries)), QStringLiteral("txtFldCaption"));
    addEntry(2, *(cboInputDisplay = new CodeBox(displayTypes(), entries)), QStringLiteral("cboInputDisplay"));
    addEntry(3, *(cboRequired = new CodeBox(requiredStates(), entries)), QStringLiteral("cboRequired"));
    for (QLineEdit* box : {txtFldName, txtFldCaption})
        box->setMaxLength(std::numeric_limits<int>::max());
    return entries;
}

void AdminForm::addEntry(int index, QWidget& entry, const QString& name) {
    auto* caption = new QLabel(entry.parentWidget());
    caption->setObjectName(QStringLiteral("fldCaption%1").arg(index + 1));
    caption->setTextFormat(Qt::PlainText);
    mCaptions[static_cast<std::size_t>(index)] = caption;
    entry.setObjectName(name);
    mRows->addRow(caption, &entry);
    caption->setBuddy(&entry);
}

void AdminForm::contentChanged() {
    arrange();
    updateGeometry();
}

/// What decides is the area as a whole: a scroll bar that comes or goes does not bring itself back.
void AdminForm::arrange() {
    const Twips twips(*this);
    mBody->setMaximumWidth(twips.px(widest));
    mUpper->setSpacing(twips.px(betweenColumns));
    const int room = std::min(width(), mBody->maximumWidth()) - scrollBarWidth();
    const auto place = [room](QBoxLayout& layout, int needed) {
        layout.setDirection(room >= needed ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    };
    place(*mUpper, besideWidth());
    place(*mLower, mMoves->sizeHint().width() + mLower->spacing() + cmdUpdate->sizeHint().width());
    const bool beside = mUpper->direction() == QBoxLayout::LeftToRight;
    mUpper->setStretch(0, beside ? 1 : 0);
    if (!beside) mUpper->setSpacing(mLower->spacing());
    mRows->setRowWrapPolicy(room >= entriesWidth() ? QFormLayout::DontWrapRows : QFormLayout::WrapAllRows);
    mValues->arrangeFor(room);
}

/// With room for the captions beside their entries.
int AdminForm::entriesWidth() const {
    int captions = 0;
    for (const QLabel* each : mCaptions)
        captions = std::max(captions, each->sizeHint().width());
    return captions + mRows->horizontalSpacing() + Twips(*this).px(roomyEntry);
}

int AdminForm::besideWidth() const {
    return entriesWidth() + Twips(*this).px(betweenColumns) + mValues->wideWidth();
}

QSize AdminForm::sizeHint() const {
    const int line = txtFldName->sizeHint().height() + mRows->verticalSpacing();
    const int width = std::min(besideWidth(), Twips(*this).px(widest));
    return {width + scrollBarWidth(), lines * line + mMoves->sizeHint().height()};
}

/// With everything below each other. What is lower is scrolled to.
QSize AdminForm::minimumSizeHint() const {
    const int width = std::max(mMoves->minimumSizeHint().width(), cmdUpdate->minimumSizeHint().width());
    const Twips twips(*this);
    return {std::min(width, twips.px(widestCaption)) + scrollBarWidth(), twips.px(leastHeight)};
}

void AdminForm::resizeEvent(QResizeEvent* event) {
    arrange();
    PaneScroll::resizeEvent(event);
}

} // namespace Korvane
