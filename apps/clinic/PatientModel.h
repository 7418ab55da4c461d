#pragma once

#include "clinic/Records.h"

#include <QAbstractTableModel>

#include <vector>

namespace Clinic {

/// The patients that a search finds, one a row: name, birth date, identifier.
class PatientModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Name, BirthDate, ID, ColumnCount };

    explicit PatientModel(QObject* parent = nullptr);

    /// Replaces all patients; the search stays.
    void setPatients(std::vector<PatientLine> patients);

    /// Shows those whose name or identifier holds every word of the text, whatever its case and accents.
    /// Resets the model.
    void search(const QString& text);

    const PatientLine& at(int row) const;
    /// -1 when the patient is not among those found.
    int rowOf(const QString& patientID) const;
    qsizetype total() const { return static_cast<qsizetype>(mPatients.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void refresh();

    std::vector<PatientLine> mPatients;
    std::vector<QString> mKeys; ///< what is searched, of each patient
    std::vector<std::size_t> mFound;
    QStringList mWords;
};

} // namespace Clinic
