#include "clinic/tour/Steps.h"

#include <korvane/controls/container/Text.h>

#include <QApplication>
#include <QTableView>

namespace Clinic {

using Apps::require;

namespace {

const FieldName heartRate{"Vital Signs", "HeartRate"};

constexpr char cancelChanges[] = "Are you sure you want to cancel the changes made to this Nip?";

void openAgain(Journey& j) {
    j.openChosenEncounter();
    j.requireShown();
    j.form.control(heartRate);
    j.album.add(QStringLiteral("Open again"));
}

void changeAndRename(Journey& j) {
    j.form.write(j.form.control(heartRate), QStringLiteral("68"));
    for (auto& entry : j.visit.entries) {
        if (entry.name.field == heartRate.field) entry.value = QStringLiteral("68");
    }
    j.visit.description = QStringLiteral("Follow-up, dose halved");
    j.form.write(j.part("txtEncounterInfo"), j.visit.description);
    j.album.add(QStringLiteral("Change and rename"));
    j.hand.click(j.part("cmdNipButton(0)"));
    j.requireNipOpen(false);
    require(j.chosenCell("encounters", 1) == j.visit.description,
            QStringLiteral("The list does not show the new name."));
    j.requireStored();
    j.album.add(QStringLiteral("The new name in the list"));
}

void cancelWithoutChanges(Journey& j) {
    j.openChosenEncounter();
    j.hand.click(j.part("cmdNipButton(1)"));
    j.requireNipOpen(false);
    j.requireStored();
}

void cancelWithChanges(Journey& j) {
    j.openChosenEncounter();
    j.form.write(j.form.control(heartRate), QStringLiteral("200"));
    j.answer([&] { j.hand.click(j.part("cmdNipButton(1)")); }, cancelChanges, QMessageBox::No,
             QStringLiteral("Cancel asks about changes"));
    j.requireNipOpen(true);
    require(j.form.shown(heartRate) == QStringLiteral("200"), QStringLiteral("The entry is lost."));
}

void anotherPatientAsksFirst(Journey& j) {
    j.answer([&] { j.choosePatient(QStringLiteral("brien")); }, cancelChanges, QMessageBox::No,
             QStringLiteral("Another patient asks about changes"));
    j.requireNipOpen(true);
    j.hand.press(Qt::Key_F, Qt::ControlModifier);
    j.hand.press(Qt::Key_Escape);
    j.requirePatient(QStringLiteral("García Márquez, Luisa"), QStringLiteral("P-0007"));
}

void giveUpTheChanges(Journey& j) {
    j.answer([&] { j.hand.press(Qt::Key_W, Qt::ControlModifier); }, cancelChanges, QMessageBox::Yes);
    j.requireNipOpen(false);
    j.requireStored();
}

void giveUpANewNip(Journey& j) {
    const qint32 stored = j.ledger.encounterCount();
    j.hand.press(Qt::Key_N, Qt::ControlModifier);
    j.form.write(j.form.control(heartRate), QStringLiteral("90"));
    j.answer([&] { j.hand.press(Qt::Key_N, Qt::ControlModifier); },
             "Are you sure you want to create a new nip and discard the one you were creating?",
             QMessageBox::No);
    j.answer([&] { j.hand.click(j.part("cmdNipButton(1)")); },
             "Are you sure you want to cancel the creation of this Nip?", QMessageBox::Yes,
             QStringLiteral("Cancel asks about a new Nip"));
    j.requireNipOpen(false);
    require(j.ledger.encounterCount() == stored, QStringLiteral("A cancelled Nip is stored."));
}

void seeAnotherPatient(Journey& j) {
    j.choosePatient(QStringLiteral("brien"));
    j.requirePatient(QStringLiteral("O'Brien, Séamus"), QStringLiteral("P-0002"));
    j.hand.press(Qt::Key_Return);
    j.hand.press(Qt::Key_Return);
    j.requireNipOpen(true);
    j.album.add(QStringLiteral("See another patient"));
}

void readInLargeText(Journey& j) {
    const QFont before = QApplication::font();
    constexpr int presses = 3;
    for (int i = 0; i < presses; ++i)
        j.hand.press(Qt::Key_Plus, Qt::ControlModifier);
    j.album.add(QStringLiteral("Read in large text"));
    for (int i = 0; i < presses && QApplication::font() != before; ++i)
        j.hand.press(Qt::Key_Minus, Qt::ControlModifier);
}

} // namespace

const std::vector<Step>& changingSteps() {
    static const std::vector<Step> steps{{"open again", openAgain},
                                         {"change and rename", changeAndRename},
                                         {"cancel without changes", cancelWithoutChanges},
                                         {"cancel with changes", cancelWithChanges},
                                         {"another patient asks first", anotherPatientAsksFirst},
                                         {"give up the changes", giveUpTheChanges},
                                         {"give up a new Nip", giveUpANewNip},
                                         {"see another patient", seeAnotherPatient},
                                         {"read in large text", readInLargeText}};
    return steps;
}

} // namespace Clinic
