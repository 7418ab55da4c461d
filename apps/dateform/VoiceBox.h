#pragma once

#include <korvane/voice/MicrophoneSwitch.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <memory>

namespace DateForm {

/// The voice of the form: a switch for the date control's, a microphone button, and a line that says how the
/// microphone stands, or why there is no voice, and one for what was heard.
class VoiceBox : public QGroupBox {
    Q_OBJECT

  public:
    explicit VoiceBox(QWidget* parent = nullptr);

    void showHeard(const QString& text);

  signals:
    void switched(bool on);

  private:
    void setUpMicrophone();
    void switchMicrophone(bool on);
    void showMicrophone();

    QCheckBox* mVoice;
    QPushButton* mButton;
    QLabel *mStatus, *mHeard;
    std::unique_ptr<Korvane::voice::MicrophoneSwitch> mMicrophone;
    Korvane::EventHandle mHandle;
};

} // namespace DateForm
