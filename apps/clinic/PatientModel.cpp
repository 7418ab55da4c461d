#include "clinic/PatientModel.h"

#include "clinic/Fold.h"
#include "clinic/Show.h"

#include <algorithm>

namespace Clinic {

PatientModel::PatientModel(QObject* parent) : QAbstractTableModel(parent) {}

void PatientModel::setPatients(std::vector<PatientLine> patients) {
    mPatients = std::move(patients);
    mKeys.clear();
    for (const PatientLine& p : mPatients)
        mKeys.push_back(fold(p.lastName + u' ' + p.firstName + u' ' + p.id));
    refresh();
}

void PatientModel::search(const QString& text) {
    mWords = fold(text).replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
    refresh();
}

void PatientModel::refresh() {
    beginResetModel();
    mFound.clear();
    for (std::size_t i = 0; i < mPatients.size(); ++i) {
        const QString& key = mKeys[i];
        if (std::all_of(mWords.cbegin(), mWords.cend(), [&](const QString& w) { return key.contains(w); }))
            mFound.push_back(i);
    }
    endResetModel();
}

const PatientLine& PatientModel::at(int row) const {
    return mPatients.at(mFound.at(static_cast<std::size_t>(row)));
}

int PatientModel::rowOf(const QString& patientID) const {
    const auto found = std::find_if(mFound.begin(), mFound.end(),
                                    [&](std::size_t i) { return mPatients[i].id == patientID; });
    return found == mFound.end() ? -1 : static_cast<int>(found - mFound.begin());
}

int PatientModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mFound.size());
}

int PatientModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PatientModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const PatientLine& patient = at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        switch (index.column()) {
        case Name:
            return patient.name();
        case BirthDate:
            return dayText(patient.birthDate);
        case ID:
            return patient.id;
        }
    }
    return {};
}

QVariant PatientModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const QStringList names{tr("Name"), tr("Born"), tr("ID")};
    return names.value(section);
}

} // namespace Clinic
