#include "dateform/TestForm.h"

#include <korvane/controls/axdate/PlaceDictated.h>
#include <korvane/controls/container/PropertyBag.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Interaction.h>

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>

namespace DateForm {

using Korvane::axDate;

namespace {

QLineEdit* boundBox(const char* name) {
    auto* made = new QLineEdit;
    made->setObjectName(QLatin1String(name));
    made->setPlaceholderText(TestForm::tr("none"));
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
    : QWidget(parent), mName(new QLineEdit), mDate(new axDate), mRefusal(new QLabel), mVoice(new VoiceBox),
      mEvents(new Apps::EventList) {
    setWindowTitle(tr("Date control"));
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->addWidget(makeForm());
    left->addWidget(makeSettings());
    left->addWidget(mVoice);
    left->addStretch();
    connect(mVoice, &VoiceBox::switched, this,
            [this](bool on) { readAnew("DragonSpeechEnabled", on, false); });
    columns->addLayout(left);
    columns->addWidget(mEvents, 1);
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
    constexpr const char* longest = "Year requires four digits. Please re-enter.";
    mRefusal->setMinimumWidth(fontMetrics().horizontalAdvance(axDate::tr(longest) + QStringLiteral("  ")));
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
    connect(four, &QCheckBox::toggled, this,
            [this](bool on) { readAnew("requireFourDigitYear", on ? "True" : "False", "True"); });
    connect(enlivened, &QCheckBox::toggled, mDate, [this](bool on) { mDate->Enlivened(on); });
    return group;
}

void TestForm::listen() {
    connect(mDate, &axDate::OnIndexChange, this,
            [this](qint16 index) { mEvents->hear(QStringLiteral("OnIndexChange"), QString::number(index)); });
    connect(mDate, &axDate::OnChange, this, [this] {
        mEvents->hear(QStringLiteral("OnChange"), QStringLiteral("axDate = \"%1\"").arg(mDate->wholeDate()));
        mRefusal->clear();
    });
    connect(mDate, &axDate::Exception, this, [this](const QString& message) {
        mEvents->hear(QStringLiteral("Exception"), message);
        mRefusal->setText(message);
    });
    connect(mDate, &axDate::SystemMessage, this,
            [this](const QString& message) { mEvents->hear(QStringLiteral("SystemMessage"), message); });
    connect(mDate, &axDate::Dictated, this, &TestForm::placeDictated);
    // The focus is still on its way then: a box has to wait until it has arrived.
    connect(mDate, &axDate::SystemMessage, this, &TestForm::checkBounds, Qt::QueuedConnection);
}

void TestForm::checkBounds() {
    const qint16 outside = mDate->ValidateMinMax();
    if (outside == 0) return;
    const QString message = outside > 0 ? tr("The date must not be after %1.").arg(mDate->MaximumDate())
                                        : tr("The date must not be before %1.").arg(mDate->MinimumDate());
    const QString title = tr("Date Error");
    mEvents->hear(title, message);
    Korvane::Interaction::current().MsgBox(Korvane::utf8(message), Korvane::MsgBoxStyle::Information,
                                           Korvane::utf8(title));
    mDate->SetElementFocus(0);
}

void TestForm::placeDictated(const QString& words) {
    mEvents->hear(QStringLiteral("Dictated"), words);
    const QString problem = Korvane::placeDictated(*mDate, words);
    mVoice->showHeard(problem.isEmpty() ? tr("Heard: %1").arg(words) : problem);
}

/// What has no property of its own, or takes effect only so, comes with the others that a host keeps.
void TestForm::readAnew(const QString& property, const QVariant& value, const QVariant& usual) {
    Korvane::PropertyBag bag;
    mDate->WriteProperties(bag);
    bag.WriteProperty(property, value, usual);
    mDate->ReadProperties(bag);
}

} // namespace DateForm
