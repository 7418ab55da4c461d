#pragma once

#include "clinic/PatientModel.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace Clinic {

class RowTable;

/// The patients: a search box over the list of those it finds.
///
/// The list never shows another patient as chosen than the one it was told: a choice by the user is only
/// asked for (`wanted`), and takes effect when the owner answers with `choose`. A search changes what is
/// listed, never who is chosen.
class PatientPane : public QWidget {
    Q_OBJECT

  public:
    explicit PatientPane(QWidget* parent = nullptr);

    void setPatients(std::vector<PatientLine> patients);

    /// Empty for none.
    void choose(const QString& patientID);
    const QString& chosen() const { return mChosen; }

    /// Puts the cursor into the search box, its text selected.
    void startSearch();

  signals:
    void wanted(const Clinic::PatientLine& patient);
    /// Enter or a double click on the patient who is chosen.
    void entered();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void search(const QString& text);
    void showChosen();
    void goIntoList();
    void passWish();
    void build();

    PatientModel* mModel;
    QLineEdit* mSearch;
    RowTable* mTable;
    QLabel* mCount;
    QTimer mWish;
    QString mChosen;
};

} // namespace Clinic
