#pragma once

#include "clinic/Records.h"

#include <QDateTime>
#include <QWidget>

class QAbstractButton;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace Korvane {
class ucNIPPanel;
}

namespace Clinic {

/// Where Nips are worked on: who the patient is, named at the top, and below it the Nip panel, or a hint of
/// what to do while no Nip is open.
///
/// Patient and Nip always belong together: another patient is taken only when the Nip of the one before is
/// closed.
class NipDesk : public QWidget {
    Q_OBJECT

  public:
    explicit NipDesk(QWidget* parent = nullptr);

    void setConnection(const std::shared_ptr<Korvane::ado::Connection>& connection);

    /// Takes a patient, closing the Nip of the one before. False, with nothing changed, when the user wants
    /// to keep unsaved entries.
    bool setPatient(const PatientLine& patient);
    const PatientLine& patient() const { return mPatient; }
    bool hasPatient() const { return !mPatient.id.isEmpty(); }

    /// False when the user wants to keep unsaved entries, or when the Nip could not be shown: the
    /// panel has then told the user, and no Nip is open.
    bool createNip();
    bool openNip(qint32 encounterID);

    /// Presses the panel's own button.
    void saveNip() const;
    /// False when the user wants to go on with it.
    bool closeNip();

    bool isNipOpen() const;
    bool isModified() const;
    /// The encounter whose Nip is open; -1 while none is, or a new one.
    qint32 openEncounter() const { return mEncounter; }

    void takeFocus();
    /// The part of the panel that is in view while the form is customized.
    QWidget* customizePane() const;

  signals:
    void nipOpened();
    void nipClosed();
    void nipCreated(qint32 encounterID);
    void nipRenamed(qint32 encounterID, const QString& description, Korvane::Date date);
    void modifiedChanged();
    void newNipWanted();
    /// Saving is about to begin.
    void savePressed();

  private:
    QAbstractButton& saveButton() const;
    QWidget* makeHint();
    void listen();
    void showPatient();
    bool show(bool done, qint32 encounterID);
    void leave();

    PatientLine mPatient;
    qint32 mEncounter = -1;
    QLabel* mHeader;
    QLabel* mHint = nullptr;
    QPushButton* mNew = nullptr;
    QStackedWidget* mStack;
    Korvane::ucNIPPanel* mPanel;
};

} // namespace Clinic
