#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/controls/nippanel/FieldDraft.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Encounter.h>
#include <korvane/runtime/Interaction.h>

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QKeyEvent;

namespace Korvane {

class CustomizePane;
class EncounterPane;
class PanelForm;

/// What the Nip panel holds and how it goes from one state to the next. The panel itself only offers it to
/// the host.
///
/// Nothing is open while there is no encounter. With one, `creating` and `changed` give the state: viewing or
/// editing a saved Nip, or entering a new one. `mode` 1 is customizing, whatever is open.
struct ucNIPPanel::Members {
    /// Why a Nip is not shown.
    enum class Shown { Yes, NotReadable, NotFound, OfAnotherPatient };

    /// What became of a save.
    enum class Outcome { Stored, NotStored, NumberTaken, Gone, Unknown, Customized };

    static constexpr qint16 customizing = 1;

    explicit Members(ucNIPPanel& owner);
    ~Members();

    void initialize(const std::shared_ptr<ado::Connection>& host);
    bool createNip(const QString& patient);
    bool loadNip(qint32 encounterID, const QString& patient);
    bool close();

    /// The Save button: encounter and values in one transaction; then the events, then closing.
    void saveAndClose();
    /// The values alone; of a new Nip the encounter with them.
    void saveNipInfo();

    void customize();
    bool cancelCustomize();
    void leaveCustomizing();
    void click(int button);
    bool pressedWhileCustomizing(const QKeyEvent& key);
    void edited();
    /// Shows the buttons and the pane that the properties call for.
    void arrange();

    ucNIPPanel& panel;
    PanelForm* form;
    std::unique_ptr<cNIP> nip;
    std::shared_ptr<ado::Connection> connection;
    /// Nobody else keeps it: who waits for something can tell by a weak pointer whether it is still open.
    std::shared_ptr<Encounter> mEncounter;
    EventHandle savedNewEncounter;
    QString patientID;
    bool structureLoaded = false;
    bool busy = false;
    bool creating = false;
    bool changed = false;
    bool toldChanged = false; ///< by `modifiedChanged`
    bool nothingLeft = false; ///< closed, or not shown, since `Initialize`
    qint16 mode = 0;
    bool customizeOnly = false;
    bool allowClosePanel = true;
    bool numbersGroups = false;
    /// Where what is written in the customize pane went when its place was gone, as a text to append; empty
    /// while it has its place.
    QString displaced;

  private:
    /// Runs one of the panel's tasks, which no other may interrupt: those that the host calls for meanwhile,
    /// in a timer while a box is open, are refused. What the task has to say is said at its end; then
    /// `raise` is called if the task succeeded, and may call for others. False when it did not, or when the
    /// panel was deleted before it ended.
    bool alone(const std::function<bool()>& task, const std::function<void()>& raise = {});
    static void tell(const QString& message, int style);
    void tellModified();
    void setChanged(bool on);
    bool mayLose(const QString& question) const;
    bool ensureStructure();
    bool loadValues(bool isNew);
    void buildControls();
    void newEncounter(const QString& patient);
    Shown createInternal(const QString& patient);
    Shown loadInternal(qint32 encounterID, const QString& patient);
    bool loadControls(bool isNew);
    bool settle(Shown shown);
    void clear();
    void describe();

    static void forgetValues(cNIP& nip);

    void listenToCustomizing();
    void enterCustomizing();
    void clickCustomize(int button);
    std::int16_t selectedGroup() const;
    void showGroup();
    void showTools();
    void markField();
    void chooseTab();
    bool chooseField(int field);
    void newField();
    void cancelField();
    bool mayLeaveField();
    bool isEnterInPane(const QKeyEvent& key) const;
    static bool asksToLeave(const CustomizePane& pane);

    QString whyFailed() const;
    bool reloadStructure(QString& lost);
    bool renewStructure(const QString& failure = {}, int style = MsgBoxStyle::Exclamation);
    bool freshStructure();
    void followStructure();
    void displaceField();
    bool refuse(FieldDraft::Input input, const QString& message, const QString& title);
    void saveField();
    bool storeField(const FieldDefinition& definition);
    void deleteField();
    std::optional<std::string> askGroupName();
    void newGroup();
    bool createGroup(const std::string& name);
    void deleteGroup();

    bool isComplete();
    bool leadTo(void (EncounterPane::*focus)(), const QString& message);
    bool storeAll();
    bool storeValues();
    Outcome store(std::string_view routineName, const std::function<Outcome()>& encounter);
    static QString reportOf(Outcome outcome);
    Outcome storeEncounter();
    void takeOnStructure();
    Outcome claim() const;
    void raiseCreated();
    void raiseRenamed();
};

} // namespace Korvane
