#include "clinic/PatientPane.h"

#include "clinic/RowTable.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Clinic {

PatientPane::PatientPane(QWidget* parent)
    : QWidget(parent), mModel(new PatientModel(this)), mSearch(new QLineEdit(this)),
      mTable(new RowTable(this)), mCount(new QLabel(this)) {
    build();
    // The wish is passed on when the click or key press that made it is over: a question asked in the middle
    // of one would leave the list half-way.
    mWish.setSingleShot(true);
    mWish.setInterval(0);
    connect(&mWish, &QTimer::timeout, this, &PatientPane::passWish);
    connect(mTable, &RowTable::chosen, this, [this] { mWish.start(); });
    connect(mTable, &RowTable::activated, this, [this](const QModelIndex& index) {
        mTable->selectRow(index.row());
        passWish();
        emit entered();
    });
    connect(mSearch, &QLineEdit::textChanged, this, &PatientPane::search);
    connect(mSearch, &QLineEdit::returnPressed, this, &PatientPane::goIntoList);
}

void PatientPane::build() {
    auto* label = new QLabel(tr("&Find patient:"), this);
    label->setBuddy(mSearch);
    mSearch->setObjectName(QStringLiteral("searchPatient"));
    mSearch->setAccessibleName(tr("Find patient"));
    mSearch->setAccessibleDescription(tr("Part of a name or an ID. Down goes into the list."));
    mSearch->setPlaceholderText(tr("Name or ID"));
    mSearch->setClearButtonEnabled(true);
    mSearch->installEventFilter(this);
    mTable->setObjectName(QStringLiteral("patients"));
    mTable->setAccessibleName(tr("Patients"));
    mTable->setEmptyText(tr("No patient is found."));
    mTable->setModel(mModel);
    mTable->setStretchColumns({PatientModel::Name});
    mCount->setObjectName(QStringLiteral("patientCount"));
    mCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* head = new QHBoxLayout;
    head->addWidget(label);
    head->addWidget(mCount, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(mSearch);
    layout->addWidget(mTable, 1);
}

void PatientPane::setPatients(std::vector<PatientLine> patients) {
    mModel->setPatients(std::move(patients));
    search(mSearch->text());
}

void PatientPane::choose(const QString& patientID) {
    mChosen = patientID;
    showChosen();
}

void PatientPane::startSearch() {
    mSearch->setFocus(Qt::ShortcutFocusReason);
    mSearch->selectAll();
}

void PatientPane::search(const QString& text) {
    mModel->search(text);
    showChosen();
    const int found = mModel->rowCount();
    mCount->setText(tr("%1 of %2").arg(found).arg(mModel->total()));
}

void PatientPane::showChosen() {
    mTable->setChosenRow(mModel->rowOf(mChosen));
}

void PatientPane::goIntoList() {
    if (mModel->rowCount() == 0) return;
    mTable->setFocus(Qt::TabFocusReason);
    if (mTable->chosenRow() >= 0) return;
    mTable->selectRow(0);
}

void PatientPane::passWish() {
    mWish.stop();
    const int row = mTable->chosenRow();
    if (row < 0) return;
    const PatientLine patient = mModel->at(row);
    if (patient.id == mChosen) return;
    showChosen();
    emit wanted(patient);
}

bool PatientPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_PageDown) {
            goIntoList();
            return true;
        }
        if (key == Qt::Key_Escape) {
            mSearch->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Clinic
