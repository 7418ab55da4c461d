#include "clinic/tour/Customizing.h"
#include "clinic/tour/Steps.h"

#include <korvane/controls/container/Text.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>

namespace Clinic {

using Apps::require;
using Korvane::qt;

namespace {

const char diary[] = "Headache Diary";
const FieldName heartRate{"Vital Signs", "HeartRate"};
const FieldName pulse{"Vital Signs", "Pulse"};
const FieldName rhythm{"Vital Signs", "HeartRate_COMMENTS"};
const FieldName days{diary, "HeadacheDays"};
const FieldName severity{diary, "Severity"};

constexpr char deletesField[] =
    "Are you certain you wish to delete this field?  All data in the field will be permenantly lost.";

void requireChoices(Journey& j, const FieldName& name, const std::vector<std::string>& choices) {
    require(j.ledger.placeOf(name.group, name.field).choices == choices,
            QStringLiteral("The choices of %1 are not in the order they were put in.").arg(qt(name.field)));
}

void customizeTheForm(Journey& j) {
    j.choosePatient(QStringLiteral("garcia"));
    j.requirePatient(QStringLiteral("García Márquez, Luisa"), QStringLiteral("P-0007"));
    j.hand.press(Qt::Key_Return);
    j.openChosenEncounter();
    j.requireShown();
    j.rowsBefore = j.ledger.everyRow();
    j.hand.press(Qt::Key_F9);
    j.hand.click(j.part("cmdNipButton(2)"));
    j.part("paneCustomize");
    j.album.add(QStringLiteral("Customize the form"));
}

void makeAGroup(Journey& j) {
    j.hand.answering([&] { clickTool(j, "ID_NewNipGroup"); }, QLatin1String(diary),
                     [&] { j.album.add(QStringLiteral("Make a group")); });
    const auto& tabs = j.part<QTabWidget>("atNips");
    require(tabs.tabText(tabs.currentIndex()) == QLatin1String(diary),
            QStringLiteral("The new group is not in view."));
}

void makeAFieldOfEachType(Journey& j) {
    const QStringList places{"Left", "Right", "Both sides"};
    const FieldSketch fields[] = {
        {"HeadacheDays", "Days with headache", "TEXT", {}},
        {"Severity", "Usual severity", "LIST", {"Mild", "Severe", "Unbearable", "Moderate"}},
        {"Triggers", "Triggers", "LIST-MULTIPLE", {"Stress", "Lack of sleep", "Weather"}},
        {"Tried", "Medication tried", "LIST-EDITCONTENT", {}},
        {"Site", "Where it hurts", "COMBOBOX", places},
        {"Aura", "With an aura", "COMBOBOX-RESTRICTED", {"Yes", "No", "Not sure"}}};
    for (const FieldSketch& field : fields) {
        makeField(j, field, QStringLiteral("Make a field: ") + field.displayType);
        const auto place = j.ledger.placeOf(diary, Korvane::utf8(field.name));
        require(qt(place.displayType) == field.displayType && qt(place.caption) == field.caption,
                QStringLiteral("%1 is not stored as it was made.").arg(field.name));
    }
}

void editAField(Journey& j) {
    const QString caption = QStringLiteral("Days with headache, last 30");
    chooseInList(j, days);
    writeInput(j, "txtCustNip(1)", caption);
    writeInput(j, "txtCustNip(2)", QStringLiteral("2"));
    j.album.add(QStringLiteral("Edit a field"));
    j.hand.press(Qt::Key_S, Qt::ControlModifier);
    j.requireNipOpen(true);
    j.ledger.reload();
    require(qt(j.ledger.placeOf(days.group, days.field).caption) == caption,
            QStringLiteral("The new caption is not stored."));
}

void putChoicesInOrder(Journey& j) {
    chooseInForm(j, severity);
    auto& list = j.part<QListView>("lstNipChoices");
    const auto middle = [&](int row) { return list.visualRect(list.model()->index(row, 0)).center(); };
    list.scrollToBottom();
    j.hand.click(*list.viewport(), middle(3));
    j.hand.press(Qt::Key_Up, Qt::AltModifier);
    if (Apps::Hand::canDrag())
        j.hand.drag(*list.viewport(), middle(2), middle(1),
                    [&] { j.album.add(QStringLiteral("Drag a choice to its place")); });
    else
        j.hand.press(Qt::Key_Up, Qt::AltModifier);
    j.album.add(QStringLiteral("Choices in order"));
    storeField(j);
    requireChoices(j, severity, {"Mild", "Moderate", "Severe", "Unbearable"});
}

void renameAField(Journey& j) {
    chooseInForm(j, heartRate);
    writeInput(j, "txtCustNip(0)", qt(pulse.field));
    writeInput(j, "txtCustNip(1)", QStringLiteral("Pulse (per minute)"));
    j.album.add(QStringLiteral("Rename a field"));
    storeField(j);
    for (auto& entry : j.visit.entries) {
        if (entry.name.field == heartRate.field) entry.name = pulse;
    }
    j.form.control(pulse);
    j.album.add(QStringLiteral("Its value under the new name"));
    j.requireShown();
    j.requireStored();
}

void refuseToDelete(Journey& j) {
    chooseInForm(j, pulse);
    j.answer([&] { j.hand.click(j.part("cmdNipCustomizeButton(1)")); }, deletesField, QMessageBox::Cancel,
             QStringLiteral("Deleting a field asks first"));
    requireEditing(j, pulse);
    j.answer([&] { clickTool(j, "ID_DeleteNipGroup"); },
             "Deleting a Nip Group will also delete all fields in the group.\nThis is a "
             "destructive action that cannot be reversed.  Do you wish to continue?",
             QMessageBox::Cancel, QStringLiteral("Deleting a group asks first"));
    j.ledger.reload();
    j.requireStored();
}

void deleteAField(Journey& j) {
    chooseInForm(j, rhythm);
    j.answer([&] { j.hand.click(j.part("cmdNipCustomizeButton(1)")); }, deletesField, QMessageBox::Ok);
    j.ledger.reload();
    require(!j.ledger.hasField(rhythm.group, rhythm.field), QStringLiteral("The field is still there."));
    j.album.add(QStringLiteral("A field is deleted"));
}

void goBackToTheNip(Journey& j) {
    j.hand.click(j.part("cmdBackToNip"));
    j.requireShown();
    j.form.control(pulse);
    j.album.add(QStringLiteral("Back to the Nip"));
    j.hand.press(Qt::Key_W, Qt::ControlModifier);
    j.requireNipOpen(false);
    j.earlier = std::exchange(j.visit, {});
}

void enter(Journey& j, const char* field, const QString& value, const std::function<void(QWidget&)>& how) {
    const FieldName name{diary, field};
    how(j.form.control(name));
    j.visit.entries.push_back({name, value});
}

void fillTheDiary(Journey& j) {
    const auto write = [&](const QString& text) {
        return [&j, text](QWidget& control) { j.form.write(control, text); };
    };
    const auto check = [&](const QStringList& rows) {
        return [&j, rows](QWidget& control) {
            for (const QString& row : rows)
                j.form.check(dynamic_cast<QAbstractItemView&>(control), row);
        };
    };
    enter(j, "HeadacheDays", QStringLiteral("11"), write(QStringLiteral("11")));
    enter(j, "Severity", QStringLiteral("Moderate"), check({QStringLiteral("Moderate")}));
    enter(j, "Triggers", QStringLiteral("Stress|Weather"), check({"Stress", "Weather"}));
    const FieldName tried{diary, "Tried"};
    const QString drug = QStringLiteral("Ibuprofen 400 mg");
    j.hand.answering([&] { j.hand.click(j.form.button(tried, 1)); }, drug);
    j.visit.entries.push_back({tried, drug});
    enter(j, "Site", QStringLiteral("Behind the eye"), write(QStringLiteral("Behind the eye")));
    enter(j, "Aura", QStringLiteral("Not sure"), [&](QWidget& control) {
        j.form.pick(dynamic_cast<QComboBox&>(control), QStringLiteral("Not sure"), [] {});
    });
}

void enterTheNewGroup(Journey& j) {
    j.hand.press(Qt::Key_N, Qt::ControlModifier);
    j.requireNipOpen(true);
    j.visit.description = QStringLiteral("Headache, first visit");
    j.form.write(j.part("txtEncounterInfo"), j.visit.description);
    j.form.pick(j.part<QComboBox>("pvcEncounterInfo"), QStringLiteral("Physician Anna Köhler MD"), [] {});
    fillTheDiary(j);
    j.requireShown();
    j.album.add(QStringLiteral("Enter the new group"));
    j.hand.press(Qt::Key_S, Qt::ControlModifier);
    j.requireNipOpen(false);
    j.visit.encounter = j.ledger.newestEncounter();
    j.requireStored();
}

/// What the changes of the form make of a row that was there before them.
StoredRow customized(StoredRow row) {
    std::erase_if(row.columns, [](const auto& column) { return column.first == rhythm.field; });
    for (auto& column : row.columns) {
        if (column.first == heartRate.field) column.first = pulse.field;
    }
    return row;
}

void findTheOldOnesIntact(Journey& j) {
    auto rows = j.ledger.everyRow();
    const std::string added = std::to_string(j.visit.encounter);
    std::erase_if(rows, [&](const StoredRow& row) { return row.at("EncounterID") == added; });
    require(rows.size() == j.rowsBefore.size(), QStringLiteral("There are rows more or less than before."));
    for (std::size_t i = 0; i < rows.size(); ++i)
        require(rows[i] == customized(j.rowsBefore[i]),
                QStringLiteral("%1 of encounter %2 is altered.")
                    .arg(qt(rows[i].table), qt(rows[i].at("EncounterID"))));
}

void addToAnOldNip(Journey& j) {
    std::swap(j.visit, j.earlier);
    j.hand.press(Qt::Key_Down);
    j.openChosenEncounter();
    j.requireShown();
    j.form.write(j.form.control(days), QStringLiteral("4"));
    j.visit.entries.push_back({days, QStringLiteral("4")});
    j.album.add(QStringLiteral("Add to an old Nip"));
    j.hand.press(Qt::Key_S, Qt::ControlModifier);
    j.requireNipOpen(false);
    j.requireStored(j.visit);
    j.requireStored(j.earlier);
}

} // namespace

const std::vector<Step>& customizingSteps() {
    static const std::vector<Step> steps{{"customize the form", customizeTheForm},
                                         {"make a group", makeAGroup},
                                         {"make a field of each type", makeAFieldOfEachType},
                                         {"edit a field", editAField},
                                         {"put choices in order", putChoicesInOrder},
                                         {"rename a field", renameAField},
                                         {"refuse to delete", refuseToDelete},
                                         {"delete a field", deleteAField},
                                         {"go back to the Nip", goBackToTheNip},
                                         {"enter the new group", enterTheNewGroup},
                                         {"find the old ones intact", findTheOldOnesIntact},
                                         {"add to an old Nip", addToAnOldNip}};
    return steps;
}

} // namespace Clinic
