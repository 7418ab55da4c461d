#include "clinic/EncounterPane.h"

#include "clinic/RowTable.h"

#include <QHeaderView>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace Clinic {

EncounterPane::EncounterPane(QWidget* parent)
    : QWidget(parent), mModel(new EncounterModel(this)), mTable(new RowTable(this)),
      mTitle(new QLabel(this)) {
    mTitle->setBuddy(mTable);
    mTitle->setTextFormat(Qt::PlainText);
    mTitle->setWordWrap(true); // a long name must not widen the pane
    mTable->setObjectName(QStringLiteral("encounters"));
    mTable->setAccessibleDescription(tr("Enter opens the encounter."));
    mTable->setModel(mModel);
    mTable->setStretchColumns({EncounterModel::Description, EncounterModel::Provider});
    connect(mTable, &RowTable::chosen, this, &EncounterPane::chosenChanged);
    // Opening may ask a question, which must not be asked in the middle of a double click.
    connect(mTable, &RowTable::activated, this, [this](const QModelIndex& index) {
        const qint32 id = mModel->at(index.row()).id;
        QTimer::singleShot(0, this, [this, id] { emit openWanted(id); });
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mTitle);
    layout->addWidget(mTable, 1);
    clear();
}

void EncounterPane::clear() {
    mTitle->setText(tr("&Encounters"));
    mTable->setAccessibleName(tr("Encounters"));
    mTable->setEmptyText(tr("Choose a patient to see the encounters."));
    mModel->setEncounters({});
    emit chosenChanged();
}

void EncounterPane::setEncounters(const PatientLine& patient,
                                  std::optional<std::vector<EncounterLine>> lines) {
    const qint32 before = chosen();
    mTitle->setText(tr("&Encounters of %1").arg(patient.name().replace(u'&', QStringLiteral("&&"))));
    mTable->setAccessibleName(tr("Encounters of %1").arg(patient.name()));
    mTable->setEmptyText(lines ? tr("No encounters yet. Ctrl+N starts the first Nip.")
                               : tr("The encounters could not be read. F5 tries again."));
    mModel->setEncounters(lines ? std::move(*lines) : std::vector<EncounterLine>());
    choose(before);
}

void EncounterPane::rename(qint32 encounterID, const QString& description, Korvane::Date date) {
    mModel->rename(encounterID, description, date);
    mTable->scrollTo(mTable->currentIndex());
}

void EncounterPane::setOpen(qint32 encounterID) {
    mModel->setOpen(encounterID);
}

void EncounterPane::choose(qint32 encounterID) {
    mTable->setChosenRow(mModel->rowOf(encounterID));
    emit chosenChanged();
}

qint32 EncounterPane::chosen() const {
    const int row = mTable->chosenRow();
    return row < 0 ? -1 : mModel->at(row).id;
}

void EncounterPane::takeFocus() {
    if (mTable->chosenRow() < 0 && mModel->rowCount() > 0) choose(mModel->at(0).id);
    mTable->setFocus(Qt::OtherFocusReason);
}

} // namespace Clinic
