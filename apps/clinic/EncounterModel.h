#pragma once

#include "clinic/Records.h"

#include <QAbstractTableModel>

#include <vector>

namespace Clinic {

/// The encounters of one patient, one a row, newest first: date, description, provider. The one that is open
/// stands out.
class EncounterModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Date, Description, Provider, ColumnCount };

    explicit EncounterModel(QObject* parent = nullptr);

    void setEncounters(std::vector<EncounterLine> lines);

    /// Takes over a new description and date; the row moves to where the date belongs. Nothing happens when
    /// the encounter is not in the list.
    void rename(qint32 encounterID, const QString& description, Korvane::Date date);

    /// Marks an encounter as the one that is open; -1 for none.
    void setOpen(qint32 encounterID);

    const EncounterLine& at(int row) const;
    /// -1 when it is not in the list.
    int rowOf(qint32 encounterID) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString text(const EncounterLine& line, int column) const;
    QString toolTip(const EncounterLine& line, int column) const;
    bool isAloneInItsDay(const EncounterLine& line) const;

    std::vector<EncounterLine> mLines;
    qint32 mOpen = -1;
};

} // namespace Clinic
