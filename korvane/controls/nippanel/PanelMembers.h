#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Encounter.h>

#include <QString>

#include <memory>
#include <string_view>

namespace Korvane {

class PanelForm;

/// What the Nip panel holds and how it goes from one state to the next. The panel itself only offers it to
/// the host.
///
/// Nothing is open while there is no encounter. With one, `creating` and `changed` give the state: viewing or
/// editing a saved Nip, or entering a new one. `mode` 1 is customizing, whatever is open.
struct ucNIPPanel::Members {
    /// Why a Nip is not shown.
    enum class Shown { Yes, NotInitialized, NotReadable, NotFound, OfAnotherPatient };

    static constexpr qint16 customizing = 1;

    explicit Members(ucNIPPanel& owner);
    ~Members();

    void initialize(const std::shared_ptr<ado::Connection>& host);
    bool createNip(const QString& patient);
    bool loadNip(qint32 encounterID, const QString& patient);
    bool close();

    /// The Save button: encounter and values in one transaction; then the events, then closing.
    void saveAndClose();
    /// The values alone.
    void saveNipInfo();

    void customize();
    bool cancelCustomize();
    void click(int button);
    void edited();
    /// Shows the buttons and the pane that the properties call for.
    void arrange();
    void setChanged(bool on);

    ucNIPPanel& panel;
    PanelForm* form;
    std::unique_ptr<cNIP> nip;
    std::shared_ptr<ado::Connection> connection;
    std::unique_ptr<Encounter> mEncounter;
    EventHandle savedNewEncounter;
    QString patientID;
    bool structureLoaded = false;
    bool initializing = false;
    bool creating = false;
    bool changed = false;
    qint16 mode = 0;
    bool customizeOnly = false;
    bool allowClosePanel = true;

  private:
    bool mayLose(std::string_view question) const;
    bool ensureStructure();
    void buildControls();
    void newEncounter(const QString& patient);
    Shown createInternal(const QString& patient);
    Shown loadInternal(qint32 encounterID, const QString& patient);
    bool loadControls(bool isNew);
    bool settle(Shown shown);
    void clear();
    void describe();

    bool storeAll();
    bool storeEncounter();
    bool storeValues();
    void tellNotSaved() const;
    void raiseCreated();
    void raiseRenamed();
};

} // namespace Korvane
