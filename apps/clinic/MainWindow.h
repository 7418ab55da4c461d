#pragma once

#include "clinic/Records.h"

#include <QMainWindow>

class QSplitter;

namespace Clinic {

struct Actions;
class EncounterPane;
class NipDesk;
class PaneCycle;
class PatientPane;
class TextSize;

/// The clinic's window: patients and the encounters of the chosen one on the left, the Nip panel on the
/// right. Lists and panel always speak of the same patient; unsaved entries are never thrown away unasked.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// Works on an open database that holds the clinic's tables. A text size of 0 percent means the one that
    /// was kept.
    MainWindow(std::shared_ptr<Korvane::ado::Connection> connection, const QString& databaseName,
               int textSize = 0);
    ~MainWindow() override;

    /// Reads patients and encounters again.
    void reload();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void build(const QString& databaseName);
    void listen();
    void connectActions();
    void fitIcons();
    void restore();
    void keep() const;

    void choosePatient(const PatientLine& patient);
    void openEncounter(qint32 encounterID);
    void newNip();
    void readEncountersOfPatient();
    void nipClosed();
    void refresh();
    void say(const QString& message);

    std::shared_ptr<Korvane::ado::Connection> mConnection;
    TextSize* mTextSize;
    QSplitter* mSides;
    QSplitter* mLists;
    PatientPane* mPatients;
    EncounterPane* mEncounters;
    NipDesk* mDesk;
    PaneCycle* mPanes;
    std::unique_ptr<Actions> mActions;
    bool mChoosingPatient = false;
};

} // namespace Clinic
