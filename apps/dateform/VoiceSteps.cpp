#include "dateform/VoiceSteps.h"

#include "dateform/Parts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

namespace DateForm {

using Apps::require;

namespace {

/// With the space bar.
void switchOn(Journey& j, const char* name) {
    auto& button = j.part<QAbstractButton>(QLatin1String(name));
    button.setFocus(Qt::ShortcutFocusReason);
    j.hand.press(Qt::Key_Space);
    require(button.isChecked(),
            QStringLiteral("%1 cannot be switched on: %2")
                .arg(button.text(), j.part<QLabel>(QStringLiteral("lblMicrophone")).text()));
}

/// Says something that must bring the focus to a part, with a date that follows from it.
void sayTo(Journey& j, const QString& words, const QString& focus, const QString& wholeDate) {
    j.speaker.say(words);
    constexpr int patience = 15000;
    j.hand.await(
        [&] {
            const QWidget* focused = QApplication::focusWidget();
            return focused && focused->objectName() == focus && j.date().wholeDate() == wholeDate;
        },
        patience, QStringLiteral("\"%1\" was not understood.").arg(words));
}

void listen(Journey& j) {
    switchOn(j, "chkVoice");
    switchOn(j, "cmdMicrophone");
    j.album.add(QStringLiteral("The voice is switched on"));
}

void goRound(Journey& j) {
    j.enterDate();
    const QString date = j.date().wholeDate();
    for (const QString& box : {day, year, month})
        sayTo(j, QStringLiteral("next field"), box, date);
    sayTo(j, QStringLiteral("previous field"), year, date);
    j.album.add(QStringLiteral("Spoken commands go round the boxes"));
}

void speakADate(Journey& j) {
    sayTo(j, QStringLiteral("november"), day, QStringLiteral("11/1/1900"));
    sayTo(j, QStringLiteral("fifteen"), year, QStringLiteral("11/15/1900"));
    sayTo(j, QStringLiteral("twenty twenty six"), year, QStringLiteral("11/15/2026"));
    j.album.add(QStringLiteral("A date is spoken"));
}

void speakElsewhere(Journey& j) {
    j.hand.press(Qt::Key_Return);
    j.requireDate(QStringLiteral("11/15/2026"), after);
    j.speaker.say(QStringLiteral("march"));
    constexpr int ampleTime = 3000;
    j.hand.rest(ampleTime);
    j.requireDate(QStringLiteral("11/15/2026"), after);
    j.album.add(QStringLiteral("What is said elsewhere changes nothing"));
}

} // namespace

const std::vector<Step>& voiceSteps() {
    static const std::vector<Step> steps{{"switch the voice on", listen},
                                         {"commands go round the boxes", goRound},
                                         {"speak a date", speakADate},
                                         {"speak elsewhere", speakElsewhere}};
    return steps;
}

} // namespace DateForm
