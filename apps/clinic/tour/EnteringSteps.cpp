#include "clinic/tour/Steps.h"

#include <korvane/controls/container/Text.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QTableView>

namespace Clinic {

using Apps::require;

namespace {

void requireType(const Journey& j, const FieldName& name, std::string_view displayType) {
    require(j.ledger.placeOf(name.group, name.field).displayType == displayType,
            QStringLiteral("%1 is no %2.").arg(Korvane::qt(name.field), Korvane::qt(displayType)));
}

void chooseAPatient(Journey& j) {
    j.choosePatient(QStringLiteral("garcia"));
    j.requirePatient(QStringLiteral("García Márquez, Luisa"), QStringLiteral("P-0007"));
    j.album.add(QStringLiteral("Choose a patient"));
}

void startANip(Journey& j) {
    j.hand.press(Qt::Key_N, Qt::ControlModifier);
    j.requireNipOpen(true);
    j.visit.description = QStringLiteral("Follow-up, new medication");
    j.form.write(j.part("txtEncounterInfo"), j.visit.description);
    j.form.pick(j.part<QComboBox>("pvcEncounterInfo"), QStringLiteral("Physician Anna Köhler MD"),
                [&] { j.album.add(QStringLiteral("Start a Nip")); });
}

void writeTexts(Journey& j) {
    const std::vector<std::pair<FieldName, QString>> texts{
        {{"Vital Signs", "BPSys"}, QStringLiteral("142")},
        {{"Vital Signs", "BPSys_COMMENTS"}, QStringLiteral("sitting, left arm; patient's own cuff")},
        {{"Vital Signs", "HeartRate"}, QStringLiteral("72")}};
    for (const auto& [name, text] : texts) {
        requireType(j, name, "TEXT");
        j.form.write(j.form.control(name), text);
        j.visit.entries.push_back({name, text});
    }
    j.album.add(QStringLiteral("Write texts"));
}

void pickFromAComboBox(Journey& j) {
    const FieldName name{"PHQ-9", "FeelingTiredOrHavingLittleEnergy"};
    requireType(j, name, "COMBOBOX-RESTRICTED");
    j.form.pick(dynamic_cast<QComboBox&>(j.form.control(name)), QStringLiteral("Several days"),
                [&] { j.album.add(QStringLiteral("Pick from a restricted combo box")); });
    j.visit.entries.push_back({name, QStringLiteral("Several days")});
}

void chooseOneOfAList(Journey& j) {
    const FieldName name{"Demographics", "given_birth"};
    requireType(j, name, "LIST");
    auto& grid = dynamic_cast<QAbstractItemView&>(j.form.control(name));
    j.form.check(grid, QStringLiteral("No"));
    j.form.check(grid, QStringLiteral("Yes"));
    j.visit.entries.push_back({name, QStringLiteral("Yes")});
    j.album.add(QStringLiteral("Choose one of a list"));
}

void writeIntoAComboBox(Journey& j) {
    const FieldName name{"Demographics", "specify_mood"};
    requireType(j, name, "COMBOBOX");
    j.form.write(j.form.control(name), QStringLiteral("Hopeful"));
    j.visit.entries.push_back({name, QStringLiteral("Hopeful")});
    j.album.add(QStringLiteral("Write into a combo box"));
}

void editAList(Journey& j) {
    const FieldName name{"Problem List", "Problems"};
    requireType(j, name, "LIST-EDITCONTENT");
    const auto add = [&](const QString& problem, const QString& picture) {
        QWidget& button = j.form.button(name, 1);
        j.hand.answering([&] { j.hand.click(button); }, problem,
                         [&] {
                             if (!picture.isEmpty()) j.album.add(picture);
                         });
    };
    const QString before = j.form.shown(name);
    const QString problem = QStringLiteral("Hypertension, stage 1");
    add(problem, QStringLiteral("Add to a list"));
    add(QStringLiteral("Entered by mistake"), {});
    j.hand.click(j.form.button(name, 2));
    const QString expected = before.isEmpty() ? problem : before + u'|' + problem;
    require(j.form.shown(name) == expected,
            QStringLiteral("The problem list holds \"%1\".").arg(j.form.shown(name)));
    j.visit.entries.push_back({name, expected});
    j.album.add(QStringLiteral("The edited list"));
}

void checkSeveralOfAList(Journey& j) {
    const FieldName name{"Billing", "Services"};
    requireType(j, name, "LIST-MULTIPLE");
    auto& grid = dynamic_cast<QAbstractItemView&>(j.form.control(name));
    j.form.check(grid, QStringLiteral("Medication review"));
    j.form.check(grid, QStringLiteral("Depression screening"));
    j.visit.entries.push_back(
        {name, QStringLiteral("Office visit, established patient|Depression screening|Medication review")});
    require(j.form.shown(name) == j.visit.entries.back().value,
            QStringLiteral("The billing list holds \"%1\".").arg(j.form.shown(name)));
    j.album.add(QStringLiteral("Check several of a list"));
}

void save(Journey& j) {
    const auto& list = j.part<QTableView>("encounters");
    const int before = list.model()->rowCount();
    const qint32 stored = j.ledger.encounterCount();
    j.hand.press(Qt::Key_S, Qt::ControlModifier);
    j.requireNipOpen(false);
    require(list.model()->rowCount() == before + 1,
            QStringLiteral("The list does not show the new encounter."));
    require(j.chosenCell("encounters", 1) == j.visit.description,
            QStringLiteral("The new encounter is not chosen."));
    require(j.ledger.encounterCount() == stored + 1, QStringLiteral("Not one encounter more is stored."));
    j.album.add(QStringLiteral("Save"));
}

void findItInTheDatabase(Journey& j) {
    j.visit.encounter = j.ledger.newestEncounter();
    j.requireStored();
}

} // namespace

const std::vector<Step>& enteringSteps() {
    static const std::vector<Step> steps{{"choose a patient", chooseAPatient},
                                         {"start a Nip", startANip},
                                         {"write texts", writeTexts},
                                         {"pick from a restricted combo box", pickFromAComboBox},
                                         {"choose one of a list", chooseOneOfAList},
                                         {"write into a combo box", writeIntoAComboBox},
                                         {"edit a list", editAList},
                                         {"check several of a list", checkSeveralOfAList},
                                         {"save", save},
                                         {"find it in the database", findItInTheDatabase}};
    return steps;
}

} // namespace Clinic
