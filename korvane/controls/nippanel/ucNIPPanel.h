#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/controls/container/UserControl.h>

#include <QDateTime>
#include <QString>

#include <memory>

namespace Korvane {

/// The Nip panel: a clinician enters, reviews and customizes one Nip for one patient in it. Each Nip saved is
/// one encounter.
///
///     auto* panel = new ucNIPPanel(window);
///     panel->Initialize(connection);
///     connect(panel, &ucNIPPanel::CreatedNip, window, &Window::refresh);
///     panel->CreateNip("P-0042");                 // or LoadNipInfo(12, "P-0042")
///
/// The connection is the host's: it is never opened or closed here. Failures inside are written to the error
/// log; the user is asked before entries are thrown away and told when they could not be saved.
///
/// While one of its boxes is open, in a timer of the host, calls that open, save or close a Nip do nothing
/// and return false. Slots of its events may call anything, and may delete the panel: an event is raised
/// last, and what would follow is left out once the slot has closed the Nip or opened another.
class ucNIPPanel : public UserControl {
    Q_OBJECT
    Q_PROPERTY(QString PatientID READ PatientID STORED false)
    Q_PROPERTY(bool CustomizeOnly READ CustomizeOnly WRITE CustomizeOnly)
    Q_PROPERTY(bool AllowClosePanel READ AllowClosePanel WRITE AllowClosePanel)
    Q_PROPERTY(bool NumbersGroups READ NumbersGroups WRITE NumbersGroups STORED false)

  public:
    /// Shows no Nip; `Initialize` comes next.
    explicit ucNIPPanel(QWidget* parent = nullptr);
    ~ucNIPPanel() override;

    /// The patient whose Nip is shown, or was before it was closed; empty before the first create or load,
    /// and after one that failed.
    QString PatientID() const;

    /// Whether the panel serves only to customize the structure. Default false.
    bool CustomizeOnly() const;
    void CustomizeOnly(bool on);

    /// Whether the panel offers its close buttons. Default true.
    bool AllowClosePanel() const;
    void AllowClosePanel(bool on);

    /// Whether a group that the user makes gets a table with the next free number (`cNIP::numbersGroups`), so
    /// that there can be more than two of them. Default false; not kept in the host's bag.
    bool NumbersGroups() const;
    void NumbersGroups(bool on);

    /// Saves the entered values; of a Nip being created also its encounter, in the same transaction, as the
    /// Save button does. Otherwise the encounter pane is not saved, and what was edited there stays modified.
    /// When they cannot be saved (also because the encounter was deleted meanwhile) the user is told, nothing
    /// is raised and every entry stays. Does nothing while no Nip is open.
    void SaveNipInfo();

    /// Gives the panel its connection, loads the structure and builds the entry controls. May be called
    /// again: what was open is then gone, unsaved entries included. Shows nothing by itself; when the
    /// structure cannot be read, the next create or load tries again.
    void Initialize(const std::shared_ptr<ado::Connection>& connection);

    /// Switches into customization mode: groups and fields are made, changed and deleted beside the form,
    /// whose entries then stand for their fields; what was entered into an open Nip stays. Asks before a
    /// field that is being written is left, and does nothing when the user wants to stay; so do the calls
    /// that open or close a Nip, which leave the mode unless the panel serves only to customize.
    void CustomizeNip();

    /// Hands the identifier of an encounter just inserted to the model. Called by the encounter's own event.
    void mEncounter_SavedNewEncounter();

    /// Starts a new, empty Nip. False when the user wants to keep unsaved entries, before `Initialize`, and
    /// without a patient, with what is open left open; also when the structure, the patient's latest Nip or
    /// the providers cannot be read: nothing is open then. The user was told.
    bool CreateNip(const QString& patientID);

    /// Shows a saved Nip. False as above, and when there is no such encounter or it is another patient's.
    bool LoadNipInfo(qint32 encounterID, const QString& patientID);

    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;

    /// Whether there are entries that are not saved.
    bool isModified() const;

    /// Runs the closing routine, as the Cancel button does; false when the user wants to go on. For a host
    /// whose window closes.
    bool requestClose();

  signals:
    /// The Nip was closed, by the user or by a successful save: nothing is open any more.
    void CloseNipPanel();
    /// A Nip made by `CreateNip` was saved for the first time. An identifier above 32767 fails with an
    /// overflow.
    void CreatedNip(qint16 encounterID);
    /// The description or date of an existing encounter was changed and saved.
    void RenamedNip(qint16 encounterID, const QString& description, const QDateTime& encounterDate);
    /// `isModified` has changed. What the user types is told from the event loop.
    void modifiedChanged(bool modified);

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool pressed(const QKeyEvent& key);

    struct Members;
    std::unique_ptr<Members> m;
};

} // namespace Korvane
