#include "dateform/VoiceBox.h"

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/voice/SpeechEngine.h>

#include <QBoxLayout>
#include <QSignalBlocker>

namespace DateForm {

namespace voice = Korvane::voice;
using Korvane::qt;

VoiceBox::VoiceBox(QWidget* parent)
    : QGroupBox(tr("Voice"), parent), mVoice(new QCheckBox(tr("&Voice of the date control"))),
      mButton(new QPushButton(tr("&Microphone"))), mStatus(new QLabel), mHeard(new QLabel) {
    auto* rows = new QVBoxLayout(this);
    auto* line = new QHBoxLayout;
    mVoice->setObjectName(QStringLiteral("chkVoice"));
    mButton->setObjectName(QStringLiteral("cmdMicrophone"));
    mButton->setCheckable(true);
    mButton->setProperty("CausesValidation", false);
    mStatus->setObjectName(QStringLiteral("lblMicrophone"));
    mHeard->setObjectName(QStringLiteral("lblHeard"));
    for (QLabel* each : {mStatus, mHeard}) {
        each->setTextFormat(Qt::PlainText);
        each->setWordWrap(true);
    }
    mHeard->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    mHeard->setMinimumHeight(2 * fontMetrics().lineSpacing());
    rows->addWidget(mVoice);
    line->addWidget(mButton);
    line->addWidget(mStatus, 1);
    rows->addLayout(line);
    rows->addWidget(mHeard);
    connect(mVoice, &QCheckBox::toggled, this, &VoiceBox::switched);
    connect(mButton, &QPushButton::toggled, this, &VoiceBox::switchMicrophone);
    setUpMicrophone();
}

void VoiceBox::showHeard(const QString& text) {
    mHeard->setText(text);
}

void VoiceBox::setUpMicrophone() {
    const auto engine = voice::current();
    mButton->setEnabled(engine != nullptr);
    mHeard->setVisible(engine != nullptr);
    mStatus->setText(qt(voice::whyAbsent()));
    if (!engine) return;
    mMicrophone = engine->MakeMicrophone();
    mMicrophone->SetUp(1);
    mHandle = mMicrophone->Changed.connect([this](bool) { showMicrophone(); });
    showMicrophone();
}

void VoiceBox::switchMicrophone(bool on) {
    try {
        mMicrophone->On(on);
        showMicrophone();
    } catch (...) {
        const std::string why = Korvane::currentError().Description();
        showMicrophone();
        mStatus->setText(qt(why));
    }
}

void VoiceBox::showMicrophone() {
    const QSignalBlocker quiet(mButton);
    mButton->setChecked(mMicrophone->On());
    mStatus->setText(qt(mMicrophone->Status()));
}

} // namespace DateForm
