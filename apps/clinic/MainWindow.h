#pragma once

#include "clinic/Records.h"

#include <QMainWindow>

class QSplitter;

namespace Apps {
class PaneCycle;
}

namespace Clinic {

struct Actions;
class ConnectionBar;
class EncounterPane;
class NipDesk;
class PatientPane;
class TextSize;

/// The clinic's window: patients and the encounters of the chosen one on the left, the Nip panel on the
/// right. Lists and panel always speak of the same patient; unsaved entries are never thrown away unasked.
/// When the database goes away a bar says so, and an open Nip waits with its entries until it is back.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// Works on an open database that holds the clinic's tables, under the name that is shown. A text size of
    /// 0 percent means the one that was kept.
    MainWindow(std::shared_ptr<Korvane::ado::Connection> connection, const QString& databaseName,
               int textSize = 0);
    ~MainWindow() override;

    /// Reads patients and encounters again, once the connection is there.
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
    void showLists(bool on);
    void connectionIsBack();
    void refresh();
    void say(const QString& message);

    std::shared_ptr<Korvane::ado::Connection> mConnection;
    TextSize* mTextSize;
    ConnectionBar* mBar;
    QSplitter* mSides;
    QSplitter* mLists;
    PatientPane* mPatients;
    EncounterPane* mEncounters;
    NipDesk* mDesk;
    Apps::PaneCycle* mPanes;
    std::unique_ptr<Actions> mActions;
    bool mChoosingPatient = false;
};

} // namespace Clinic
