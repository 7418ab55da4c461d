#pragma once

#include "clinic/EncounterModel.h"

#include <QWidget>

class QLabel;

namespace Clinic {

class RowTable;

/// The encounters of the chosen patient. Enter or a double click asks for one to be opened.
class EncounterPane : public QWidget {
    Q_OBJECT

  public:
    explicit EncounterPane(QWidget* parent = nullptr);

    /// Says that no patient is chosen.
    void clear();

    /// Lists the encounters of a patient; the one chosen before stays chosen while it is in the list. Nothing
    /// in place of the lines: they could not be read.
    void setEncounters(const PatientLine& patient, std::optional<std::vector<EncounterLine>> lines);

    /// A new description and date of an encounter, which stays chosen when it was.
    void rename(qint32 encounterID, const QString& description, Korvane::Date date);

    /// Marks the one that is open; -1 for none.
    void setOpen(qint32 encounterID);

    /// -1 for none.
    void choose(qint32 encounterID);
    qint32 chosen() const;

    void takeFocus();

  signals:
    void chosenChanged();
    void openWanted(qint32 encounterID);

  private:
    EncounterModel* mModel;
    RowTable* mTable;
    QLabel* mTitle;
};

} // namespace Clinic
