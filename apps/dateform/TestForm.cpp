#include "dateform/TestForm.h"

#include <korvane/controls/container/PropertyBag.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Interaction.h>

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>

namespace DateForm {

using Korvane::axDate;

namespace {

QLineEdit* boundBox(const char* name) {
    auto* made = new QLineEdit;
    made->setObjectName(QLatin1String(name));
    made->setPlaceholderText(QStringLiteral("none"));
    return made;
}

QCheckBox* switchBox(const char* name, const QString& text) {
    auto* made = new QCheckBox(text);
    made->setObjectName(QLatin1String(name));
    made->setChecked(true);
    return made;
}

} // namespace

TestForm::TestForm(QWidget* parent)
    : QWidget(parent), mName(new QLineEdit), mDate(new axDate), mRefusal(new QLabel),
      mEvents(new QTreeWidget) {
    setWindowTitle(tr("Date control"));
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->addWidget(makeForm());
    left->addWidget(makeSettings());
    left->addStretch();
    columns->addLayout(left);
    columns->addWidget(makeEvents(), 1);
    mDate->InitProperties();
    listen();
    mName->setFocus();
}

QWidget* TestForm::makeForm() {
    auto* group = new QGroupBox(tr("Form"));
    auto* rows = new QFormLayout(group);
    auto* note = new QLineEdit;
    mName->setObjectName(QStringLiteral("txtBefore"));
    note->setObjectName(QStringLiteral("txtAfter"));
    mDate->setObjectName(QStringLiteral("axDate"));
    mRefusal->setObjectName(QStringLiteral("lblRefusal"));
    mRefusal->setTextFormat(Qt::PlainText);
    mRefusal->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("Year requires four digits. Please re-enter.  ")));
    rows->addRow(tr("&Before"), mName);
    rows->addRow(tr("&Date"), mDate);
    rows->addRow(QString(), mRefusal);
    rows->addRow(tr("&After"), note);
    return group;
}

QWidget* TestForm::makeSettings() {
    auto* group = new QGroupBox(tr("Properties"));
    auto* rows = new QFormLayout(group);
    auto* minimum = boundBox("txtMinimum");
    auto* maximum = boundBox("txtMaximum");
    auto* four = switchBox("chkFourDigits", tr("Year requires &four digits"));
    auto* enlivened = switchBox("chkEnlivened", tr("&Enlivened"));
    rows->addRow(tr("Mi&nimum"), minimum);
    rows->addRow(tr("Ma&ximum"), maximum);
    rows->addRow(four);
    rows->addRow(enlivened);
    connect(minimum, &QLineEdit::textChanged, mDate, [this](const QString& t) { mDate->MinimumDate(t); });
    connect(maximum, &QLineEdit::textChanged, mDate, [this](const QString& t) { mDate->MaximumDate(t); });
    connect(four, &QCheckBox::toggled, this, &TestForm::requireFourDigits);
    connect(enlivened, &QCheckBox::toggled, mDate, [this](bool on) { mDate->Enlivened(on); });
    return group;
}

QWidget* TestForm::makeEvents() {
    auto* group = new QGroupBox(tr("Events"));
    auto* rows = new QVBoxLayout(group);
    auto* clear = new QPushButton(tr("&Clear"));
    mEvents->setObjectName(QStringLiteral("lstEvents"));
    mEvents->setAccessibleName(tr("Events"));
    mEvents->setLayoutDirection(Qt::LeftToRight);
    mEvents->setHeaderLabels({tr("Event"), tr("What it says")});
    mEvents->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mEvents->setRootIsDecorated(false);
    mEvents->setAlternatingRowColors(true);
    mEvents->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    clear->setObjectName(QStringLiteral("cmdClear"));
    clear->setProperty("CausesValidation", false);
    rows->addWidget(mEvents);
    rows->addWidget(clear, 0, Qt::AlignRight);
    connect(clear, &QPushButton::clicked, mEvents, &QTreeWidget::clear);
    return group;
}

void TestForm::listen() {
    connect(mDate, &axDate::OnIndexChange, this,
            [this](qint16 index) { hear(QStringLiteral("OnIndexChange"), QString::number(index)); });
    connect(mDate, &axDate::OnChange, this, [this] {
        hear(QStringLiteral("OnChange"), QStringLiteral("axDate = \"%1\"").arg(mDate->wholeDate()));
        mRefusal->clear();
    });
    connect(mDate, &axDate::Exception, this, [this](const QString& message) {
        hear(QStringLiteral("Exception"), message);
        mRefusal->setText(message);
    });
    connect(mDate, &axDate::SystemMessage, this,
            [this](const QString& message) { hear(QStringLiteral("SystemMessage"), message); });
    // The focus is still on its way then: a box has to wait until it has arrived.
    connect(mDate, &axDate::SystemMessage, this, &TestForm::checkBounds, Qt::QueuedConnection);
}

void TestForm::hear(const QString& event, const QString& text) {
    mEvents->scrollToItem(new QTreeWidgetItem(mEvents, {event, text}));
}

void TestForm::checkBounds() {
    const qint16 outside = mDate->ValidateMinMax();
    if (outside == 0) return;
    const QString message = outside > 0 ? tr("The date must not be after %1.").arg(mDate->MaximumDate())
                                        : tr("The date must not be before %1.").arg(mDate->MinimumDate());
    hear(QStringLiteral("Date Error"), message);
    Korvane::Interaction::current().MsgBox(Korvane::utf8(message), Korvane::MsgBoxStyle::Information,
                                           "Date Error");
    mDate->SetElementFocus(0);
}

/// The flag has no property of its own; it comes with the others that the host keeps.
void TestForm::requireFourDigits(bool on) {
    Korvane::PropertyBag bag;
    mDate->WriteProperties(bag);
    bag.WriteProperty(QStringLiteral("requireFourDigitYear"), on ? "True" : "False", "True");
    mDate->ReadProperties(bag);
}

} // namespace DateForm
